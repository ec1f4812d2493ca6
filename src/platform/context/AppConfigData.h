#pragma once

#include <string>
#include <vector>

struct FileRights;

/// The agent platform's configuration: one JSON file in the system-wide place. In builds for developers the
/// environment variable VELMORA_RYX_CONFIG names another, which is trusted. Keys bear the names of the fields
/// below; docs/configuration.md lists them. GUI thread.
class AppConfigData {
public:
    /// The process's configuration; read from the file at the first call.
    static AppConfigData* Instance();

    /// Reads the file. A missing or broken file, or a value of the wrong type, leaves the defaults;
    /// returns a line on each such thing, for the log, which may not be open yet. With a reason not to trust
    /// the file, the keys that say whom the program trusts, talks to and sends its user to, and where it
    /// writes, are left alone, and a line names them.
    std::vector<std::string> Load(const std::string& path, const std::string& whyNotTrusted = {});

    /// Why others than administrators may have written the file, as a sentence; empty when they cannot have.
    static std::string WhyNotTrusted(const FileRights& folder, const FileRights& file);

    /// Path of the file that Instance reads.
    static std::string DefaultPath();

    const std::string& GetSentryDSN() const { return sentryDsn; }

    std::string sentryDsn;
    std::string language;            ///< such as "en" or "zh_CN"; empty: the system's
    std::string theme;               ///< "light" or "dark"; empty: light
    std::string pipeName;            ///< empty: the product's own
    std::string agentAccount;        ///< account that may serve the pipe beside the local system account
    std::string logFolder;           ///< empty: see RyxPath
    std::string dataFolder;          ///< of the user's own data; empty: the system's place for it
    std::string organisation;        ///< display name of the managing organisation
    std::string deviceName;          ///< empty: the host name
    std::string webServer;           ///< base address of the organisation's web service; empty: none
    std::string webProxy;            ///< "direct": none; empty: the system's
    std::string webCaFile;           ///< trusted certificates in PEM form; empty: the system's
    std::string webHttpHosts;        ///< hosts that may be talked to without TLS, separated by commas
    std::string messageFileFolder;   ///< of the administrator's files; empty: the user's downloads
    int messageFileMegabytes = 1024; ///< the largest of them
    int webSilenceSeconds = 30;      ///< of a transfer in which nothing moves
    int webCallSeconds = 60;         ///< of a question and its answer
    int webTransferSeconds = 3600;   ///< of a file on its way
    bool enrolled = false;           ///< the device was enrolled when the service last wrote the file
    std::string schoolCode;          ///< of the organisation that the device is enrolled with
    std::string adminAccount;        ///< the administrator's e-mail address
    std::vector<std::string> deviceTags;
    std::vector<std::string> permissionList; ///< what the organisation was granted
    std::string userAgreementUrl;            ///< web pages; empty: there is no link
    std::string privacyPolicyUrl;
    std::vector<std::string> networkServers; ///< addresses that the network page checks beside webServer
    std::string supportName;                 ///< whom a user may ask for help, and how; empty: not known
    std::string supportTelephone;
    std::string supportMail;
    std::string supportPage;
    std::string publisherSuffix; ///< with which the paths of the system's own programs end; empty: of none
    std::vector<std::string> publisherSigners; ///< whose signatures its own programs bear

    std::vector<std::string> loadNotes; ///< what Instance's Load returned
};

#pragma once

#include "entity/FeedbackEntities.h"

#include <QString>
#include <map>
#include <mutex>
#include <string>

/// How the file store wants its files.
struct UploadManner {
    bool asForm = false;     ///< POST of a form, instead of PUT of the bare file
    bool wantsNotice = true; ///< the upload counts when notice of it was given
};

/// The files that front ends have uploaded, in a folder, and what is known of each. Any thread.
class WebStore {
public:
    explicit WebStore(const QString& folder);

    /// The folder's problem, or an empty text.
    QString Problem() const;
    const QString& Folder() const { return m_folder; }

    void SetManner(const UploadManner& manner);

    /// Announces a file: how it is to be uploaded to the store at `address`.
    NubraUploadPolicyData Announce(const std::string& name, const std::string& address);

    /// Whether the file is announced and may be uploaded with this token.
    bool MayUpload(const std::string& fileKey, const std::string& token) const;
    /// Path for the file's bytes.
    QString PathOf(const std::string& fileKey) const;
    /// The file is on the disk, with this digest. Returns whether it counts already, without a notice.
    bool Take(const std::string& fileKey, const std::string& digest);
    /// The notice of it has come; false when it names another digest or there is no such file.
    bool TakeNotice(const std::string& fileKey, const std::string& digest);
    /// Takes a file of this machine in, under a key that ends with `name`; empty when it cannot be read.
    std::string Offer(const QString& path, const std::string& name);
    /// Whether the upload of the file is through.
    bool Has(const std::string& fileKey) const;
    /// Of the file's bytes, as hexadecimal digits.
    std::string DigestOf(const std::string& fileKey) const;

    /// Keeps a feedback document; returns the name of its file, empty when it cannot be kept.
    std::string KeepFeedback(const std::string& document);

private:
    struct File {
        std::string token;
        std::string digest; // empty until the file is there
        bool wantsNotice = true;
        bool counts = false;
    };

    mutable std::mutex m_mutex; // guards all below
    QString m_folder;
    UploadManner m_manner;
    std::map<std::string, File> m_files;
    int m_lastFile = 0;
    int m_lastFeedback = 0;
};

#pragma once

#include "EventLog.h"
#include "WebStore.h"

#include <QObject>
#include <condition_variable>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace httplib {
class Server;
struct Request;
struct Response;
} // namespace httplib

/// What an endpoint does wrong.
struct WebFault {
    enum Kind { None, Slow, Drip, Status, Half, Wrong, Empty, Large, Redirect, Gone, Text, Anew, Huge };

    /// As commands give them and the event log tells them.
    static const std::map<std::string, Kind>& Names();

    Kind kind = None;
    double seconds = 0;    ///< Slow: before the answer; Drip: between its bytes
    int status = 0;        ///< Status: the answer's
    std::string text = {}; ///< Redirect: the address, or empty for the one that was asked; Text: the
                           ///< answer; Half: "once", or "anew" to leave no rest for the next request
};

/// The organisation's web service, without TLS and on the own machine only, as docs/web-service.md describes
/// it. Serves on threads of its own; tells each request in the event log.
class WebService : public QObject {
    Q_OBJECT

public:
    /// Names of the endpoints, as commands give them.
    static const std::vector<std::string>& Endpoints();

    /// Uploaded files and feedback documents are kept in `folder`.
    WebService(EventLog& log, const QString& folder);
    ~WebService() override;

    /// Begins to serve; at any free port when it is 0. Returns what went wrong, or an empty text.
    QString Listen(int port);
    /// Base address of the service.
    std::string Address() const;

    WebStore& Store() { return m_store; }
    /// Takes a file of this machine in; returns its address and digest, or nothing when it cannot be read.
    std::optional<std::pair<std::string, std::string>> Offer(const QString& path, const std::string& name);
    void SetFault(const std::string& endpoint, const WebFault& fault);

signals:
    /// A request has come; emitted on a thread of the service.
    void Requested(const QString& endpoint);

private:
    struct Answer {
        int status = 200;
        std::string body;
        std::map<std::string, std::string> headers;
    };
    class Receipt;

    static Answer Refusal(int status, const std::string& message);
    static Answer FileAnswer(const httplib::Request& request, const std::string& fileKey);
    void AddEndpoints();
    void AddStore();
    Answer AnnounceUpload(const httplib::Request& request);
    Answer TakeFile(const std::string& fileKey, Receipt& receipt);
    Answer TakeNotice(const httplib::Request& request);
    Answer TellAddress(const httplib::Request& request);
    Answer ListLog(const httplib::Request& request);
    Answer TakeFeedback(const httplib::Request& request);
    Answer SendFile(const httplib::Request& request);

    void Reply(const std::string& endpoint, const httplib::Request& request, std::size_t size,
               const Answer& answer, httplib::Response& response);
    /// False when the service ends meanwhile.
    bool Wait(double seconds);

    EventLog& m_log;
    WebStore m_store;
    std::unique_ptr<httplib::Server> m_server;
    std::thread m_thread;
    int m_port = 0;
    std::mutex m_mutex; // guards the following
    std::condition_variable m_endingChanged;
    bool m_ending = false;
    std::map<std::string, WebFault> m_faults;
};

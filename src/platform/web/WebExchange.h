#pragma once

#include "platform/web/WebSession.h"

#include <QEventLoop>
#include <QTimer>
#include <QUrl>

/// One request on its way and the answer to it. Used on a worker thread, whose events run while it waits.
class WebExchange : public QObject {
public:
    struct Limits {
        std::chrono::milliseconds silence;
        QDeadlineTimer deadline;
        bool givenAuthoritiesOnly; ///< whatever the system trusts
    };

    WebExchange(QNetworkReply* reply, const WebRequest& request, const TaskControl& control,
                const Limits& limits, const WebSession::Sink& sink);
    ~WebExchange() override;

    /// Waits until it is over. The answer is one of status 2xx, or a redirect. Throws WebException.
    WebAnswer Wait();

    /// How far the answer has come.
    WebProgress Progress() const;

    /// Where the answer redirects to; empty when it does not.
    QUrl Redirect() const;
    /// Whether the redirect takes method and body along.
    bool KeepsMethod() const { return Status() == 307 || Status() == 308; }

private:
    void CheckAuthority();
    void Look();
    void Read();
    bool BeginPart();
    void End(WebError error, const std::string& words, bool mayPass = false);
    int Status() const;
    bool IsSuccess() const { return Status() >= 200 && Status() < 300; }
    [[noreturn]] void ThrowFailure();

    QNetworkReply* m_reply;
    const WebRequest& m_request;
    const TaskControl& m_control;
    const Limits m_limits;
    const WebSession::Sink& m_sink;
    QDeadlineTimer m_silence;
    QEventLoop m_loop;
    QTimer m_look;
    qint64 m_received = 0;   // of the file, up to here
    qint64 m_begin = 0;      // where in the file the answer begins
    bool m_hasBegun = false; // the first bytes for the sink have come
    std::string m_distrust;  // what is wrong with the server's certificate
    WebAnswer m_answer;
    std::unique_ptr<WebException> m_end; // why the program itself has ended it
};

#include "platform/web/WebExchange.h"

#include "entity/JsonText.h"
#include "platform/security/LogText.h"
#include "platform/web/WebTransport.h"

#include <QRegularExpression>
#include <QSet>
#include <QSslError>

namespace {

constexpr int LookMs = 50;
constexpr qint64 LargestAnswer = 1024 * 1024;
constexpr qint64 ReadBuffer = 256 * 1024;

std::string SecondsText(std::chrono::milliseconds time) {
    return QString::number(static_cast<double>(time.count()) / 1000).toStdString() + " s";
}

} // namespace

WebExchange::WebExchange(QNetworkReply* reply, const WebRequest& request, const TaskControl& control,
                         const Limits& limits, const WebSession::Sink& sink)
    : m_reply(reply),
      m_request(request),
      m_control(control),
      m_limits(limits),
      m_sink(sink),
      m_silence(limits.silence) {
    m_reply->setReadBufferSize(ReadBuffer);
    connect(m_reply, &QNetworkReply::readyRead, this, &WebExchange::Read);
    connect(m_reply, &QNetworkReply::finished, &m_loop, &QEventLoop::quit);
    connect(m_reply, &QNetworkReply::sslErrors, this, [this](const QList<QSslError>& errors) {
        m_distrust.clear();
        for (const QSslError& error : errors)
            m_distrust += (m_distrust.empty() ? "" : "; ") + LogText(error.errorString());
    });
    connect(m_reply, &QNetworkReply::encrypted, this, &WebExchange::CheckAuthority);
    connect(m_reply, &QNetworkReply::metaDataChanged, this,
            [this] { m_silence.setRemainingTime(m_limits.silence); });
    connect(m_reply, &QNetworkReply::uploadProgress, this, [this](qint64 sent, qint64 total) {
        m_silence.setRemainingTime(m_limits.silence);
        if (m_request.file && total >= m_request.file->Size()) // a form's other fields come first
            m_control.Tell(qMax<qint64>(0, sent - (total - m_request.file->Size())), m_request.file->Size());
    });
    connect(&m_look, &QTimer::timeout, this, &WebExchange::Look);
    m_look.start(LookMs);
}

WebExchange::~WebExchange() {
    m_reply->disconnect(this);
    delete m_reply;
}

WebAnswer WebExchange::Wait() {
    if (!m_reply->isFinished())
        m_loop.exec();
    Read(); // what came with the end
    if (!m_end && m_sink && IsSuccess() && !m_hasBegun && BeginPart())
        m_sink(0, {}, 0); // an empty answer takes back what an earlier attempt has brought
    if (m_end)
        throw WebException(*m_end);
    if (Redirect().isEmpty() && (m_reply->error() != QNetworkReply::NoError || !IsSuccess()))
        ThrowFailure();
    if (m_request.file && m_request.file->HasChanged())
        throw WebException(WebError::File, "the file changed while it was sent");
    m_answer.headers = m_reply->rawHeaderPairs();
    return m_answer;
}

QUrl WebExchange::Redirect() const {
    // Qt tells none when it could not send the body again.
    static const QSet<int> redirects{301, 302, 303, 307, 308};
    const QUrl target = QUrl::fromEncoded(m_reply->rawHeader("Location"));
    const bool isRedirect = redirects.contains(Status()) && target.isValid() && !target.isEmpty();
    return isRedirect ? m_request.url.resolved(target) : QUrl();
}

void WebExchange::CheckAuthority() {
    if (m_limits.givenAuthoritiesOnly && WebTransport::IsOfAnotherAuthority(*m_reply))
        End(WebError::NotTrusted, "the certificate is of none of the configured authorities");
}

void WebExchange::Look() {
    if (m_control.IsCancelled())
        End(WebError::Cancelled, "cancelled");
    else if (m_limits.deadline.hasExpired())
        End(WebError::TimedOut, "the time for it is over");
    else if (m_silence.hasExpired())
        End(WebError::TimedOut, "not a byte for " + SecondsText(m_limits.silence), true);
    else if (m_request.file && m_request.file->HasChanged())
        End(WebError::File, "the file changed while it was sent");
}

void WebExchange::Read() {
    if (m_end || m_reply->bytesAvailable() == 0)
        return;
    const QByteArray bytes = m_reply->readAll();
    m_silence.setRemainingTime(m_limits.silence);
    if (!m_sink || !IsSuccess()) {
        m_answer.body += bytes;
        if (m_answer.body.size() > LargestAnswer)
            End(WebError::BadAnswer, "the answer is larger than 1 MiB");
        return;
    }
    if (!m_hasBegun && !BeginPart())
        return;
    const QVariant length = m_reply->header(QNetworkRequest::ContentLengthHeader);
    const WebFailure failure =
        m_sink(m_received, bytes, length.isValid() ? m_begin + length.toLongLong() : -1);
    m_received += bytes.size();
    if (failure.error != WebError::None)
        End(failure.error, failure.words);
}

// The first bytes are those of a whole file, or of the part that was asked for.
bool WebExchange::BeginPart() {
    m_hasBegun = true;
    if (Status() != 206)
        return true;
    static const QRegularExpression part(QStringLiteral("^bytes (\\d+)-(\\d+)/(\\d+)$"));
    const auto range = part.match(QString::fromLatin1(m_reply->rawHeader("Content-Range")));
    m_begin = m_received = m_request.resumeAt;
    const bool isTheRest = m_begin > 0 && range.captured(1).toLongLong() == m_begin &&
                           range.captured(2).toLongLong() + 1 == range.captured(3).toLongLong();
    if (!isTheRest)
        End(WebError::BadAnswer, "the server sends another part of the file than was asked for");
    return isTheRest;
}

WebProgress WebExchange::Progress() const {
    const QByteArray tag = m_reply->rawHeader("ETag");
    // A weak one says that the file means the same, not that it is the same.
    return {m_received, tag.startsWith('"') ? tag : m_reply->rawHeader("Last-Modified")};
}

void WebExchange::End(WebError error, const std::string& words, bool mayPass) {
    if (m_end)
        return;
    m_end = std::make_unique<WebException>(error, words, mayPass);
    m_reply->abort();
    m_loop.quit();
}

int WebExchange::Status() const {
    return m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
}

void WebExchange::ThrowFailure() {
    if (const int status = Status(); status != 0 && !IsSuccess()) {
        const std::optional<Json::Value> answer = ParseJsonObject(m_answer.body.toStdString());
        const Json::Value message = answer ? answer->get("message", Json::Value()) : Json::Value();
        const std::string said = message.isString() ? message.asString() : std::string();
        throw WebException(WebError::Refused,
                           "the server answered " + std::to_string(status) + (said.empty() ? "" : ": ") +
                               LogText(said),
                           status >= 500, said);
    }
    if (m_reply->error() == QNetworkReply::SslHandshakeFailedError)
        throw WebException(WebError::NotTrusted,
                           m_distrust.empty() ? LogText(m_reply->errorString()) : m_distrust);
    throw WebException(WebError::Unreachable, LogText(m_reply->errorString()), true);
}

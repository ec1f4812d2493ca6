#include "platform/web/WebSession.h"

#include "platform/ProductConstants.h"
#include "platform/security/LogText.h"
#include "platform/web/WebExchange.h"
#include "platform/web/WebTransport.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QHttpMultiPart>
#include <QRandomGenerator>
#include <QSet>
#include <algorithm>
#include <cstring>

namespace {

constexpr int MostRedirects = 5;
constexpr unsigned long PauseSliceMs = 20;

/// A body that can be sent once only. Qt would send any other request, one without a body too, again by
/// itself when the connection breaks, even behind half an answer, and append the second answer to it.
class SinglePassBody : public QIODevice {
public:
    explicit SinglePassBody(const QByteArray& bytes) : m_bytes(bytes) { open(QIODevice::ReadOnly); }
    bool isSequential() const override { return true; }
    bool seek(qint64) override { return false; }
    qint64 bytesAvailable() const override { return m_bytes.size() - m_read + QIODevice::bytesAvailable(); }

protected:
    qint64 readData(char* data, qint64 size) override {
        if (m_read == m_bytes.size())
            return -1;
        const qint64 read = qMin<qint64>(size, m_bytes.size() - m_read);
        std::memcpy(data, m_bytes.constData() + m_read, static_cast<std::size_t>(read));
        m_read += static_cast<int>(read);
        return read;
    }
    qint64 writeData(const char*, qint64) override { return -1; }

private:
    QByteArray m_bytes;
    int m_read = 0;
};

/// The same for a body on the disk.
class SinglePassFile : public QFile {
public:
    using QFile::QFile;
    bool reset() override { return false; }
};

/// What belongs to the connection, to its proxy and to the length of the body is the client's own to say.
bool IsReserved(const QByteArray& header) {
    static const QSet<QByteArray> names{
        "host",    "connection", "accept-encoding", "content-length", "transfer-encoding",
        "upgrade", "te",         "trailer",         "expect"};
    return names.contains(header) || header.startsWith("proxy-");
}

/// Qt sends what it is given, line breaks included.
void SetHeader(QNetworkRequest& head, const std::string& name, const std::string& value) {
    static const std::string separators = "()<>@,;:\\\"/[]?={} ";
    const auto isToken = [](char c) {
        return c > ' ' && c < 0x7f && separators.find(c) == std::string::npos;
    };
    const auto isControl = [](char c) { return (c >= 0 && c < ' ' && c != '\t') || c == 0x7f; };
    if (name.empty() || !std::all_of(name.begin(), name.end(), isToken) ||
        std::any_of(value.begin(), value.end(), isControl) ||
        IsReserved(QByteArray::fromStdString(name).toLower()))
        throw WebException(WebError::BadAnswer,
                           "a header is asked for that must not be sent: " + LogText(name));
    head.setRawHeader(QByteArray::fromStdString(name), QByteArray::fromStdString(value));
}

/// `name` between quotes in the head of a form's part.
QByteArray Quoted(const QByteArray& name) {
    return '"' + QByteArray(name).replace('\r', "%0D").replace('\n', "%0A").replace('"', "%22") + '"';
}

std::unique_ptr<QFile> Open(const UploadSource& source) {
    auto file = std::make_unique<SinglePassFile>(source.Path());
    if (!file->open(QIODevice::ReadOnly))
        throw WebException(WebError::File, LogText(file->errorString()));
    return file;
}

std::unique_ptr<QHttpMultiPart> MakeForm(const WebFields& fields, const UploadSource& source) {
    auto form = std::make_unique<QHttpMultiPart>(QHttpMultiPart::FormDataType);
    for (const auto& [name, value] : fields) {
        QHttpPart part;
        part.setRawHeader("Content-Disposition",
                          "form-data; name=" + Quoted(QByteArray::fromStdString(name)));
        part.setBody(QByteArray::fromStdString(value));
        form->append(part);
    }
    QHttpPart part;
    part.setRawHeader("Content-Disposition",
                      "form-data; name=\"file\"; filename=" + Quoted(source.Name().toUtf8()));
    part.setRawHeader("Content-Type", "application/octet-stream");
    QFile* file = Open(source).release();
    file->setParent(form.get());
    part.setBodyDevice(file);
    form->append(part);
    return form;
}

QSslConfiguration TlsConfiguration(const QString& caFile) {
    const auto tls = WebTransport::Tls(caFile);
    if (!tls)
        throw WebException(WebError::NotConfigured, "there is no certificate in " + LogText(caFile));
    return *tls;
}

/// The request for what is missing behind a break, provided that the file is still the same one.
WebRequest Resumed(WebRequest request, const WebProgress& progress) {
    if (progress.received > 0 && !progress.validator.isEmpty()) {
        request.resumeAt = progress.received;
        request.headers.emplace_back("Range", "bytes=" + std::to_string(progress.received) + '-');
        request.headers.emplace_back("If-Range", progress.validator.toStdString());
    }
    return request;
}

} // namespace

UploadSource::UploadSource(const std::wstring& path) : m_path(QString::fromStdWString(path)) {
    const QFileInfo facts(m_path);
    m_name = facts.fileName();
    m_size = facts.size();
    m_modified = facts.lastModified();
    if (!facts.isFile() || m_size == 0)
        throw WebException(WebError::File, "there is no file, or an empty one: " + LogText(m_name));
}

bool UploadSource::HasChanged() const {
    const QFileInfo facts(m_path);
    return facts.size() != m_size || facts.lastModified() != m_modified;
}

WebSession::WebSession(const WebSettings& settings, const TaskControl& control)
    : m_settings(settings), m_control(control), m_fileDeadline(settings.transferDeadline) {
    m_manager.setProxyFactory(new WebTransport::Proxies(settings.proxy)); // which the manager owns
}

WebAnswer WebSession::Send(const WebRequest& request, const Sink& sink) {
    m_deadline = request.file || sink ? m_fileDeadline
                                      : std::min(m_fileDeadline, QDeadlineTimer(m_settings.callDeadline));
    WebProgress progress;
    try {
        return FollowRedirects(request, sink, progress);
    } catch (const WebException& failure) {
        if (!failure.mayPass || !request.isRepeatable)
            throw;
    }
    // Not all at the same moment after a fault that has met many.
    Pause(m_settings.retryPause + m_settings.retryPause * QRandomGenerator::global()->bounded(1000) / 1000);
    return FollowRedirects(Resumed(request, progress), sink, progress);
}

WebAnswer WebSession::FollowRedirects(WebRequest request, const Sink& sink, WebProgress& progress) {
    for (int redirects = 0;; ++redirects) {
        ThrowIfOver();
        WebExchange exchange(Start(request), request, m_control,
                             {m_settings.silence, m_deadline, !m_settings.caFile.isEmpty()}, sink);
        WebAnswer answer;
        try {
            answer = exchange.Wait();
        } catch (const WebException&) {
            progress = exchange.Progress();
            throw;
        }
        const QUrl target = exchange.Redirect();
        if (target.isEmpty())
            return answer;
        if (redirects == MostRedirects)
            throw WebException(WebError::Refused, "the server redirects without end");
        if (target.host() != request.url.host() ||
            (request.url.scheme() == QLatin1String("https") && target.scheme() != QLatin1String("https")))
            throw WebException(WebError::NotAllowed,
                               "the server redirects to another host, or to one without TLS");
        if (request.method != "GET" && !exchange.KeepsMethod())
            throw WebException(WebError::Refused, "the server redirects in a way that loses what is sent");
        request.url = target;
    }
}

QNetworkReply* WebSession::Start(const WebRequest& request) {
    if (!m_settings.Allow(request.url))
        throw WebException(WebError::NotAllowed,
                           "the address is not allowed: " +
                               LogText(request.url.toString(QUrl::RemoveUserInfo | QUrl::RemoveQuery)));
    QNetworkRequest head(request.url);
    head.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    head.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    head.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    head.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
    head.setHeader(QNetworkRequest::UserAgentHeader,
                   QStringLiteral("VelmoraRYX/%1").arg(QLatin1String(Product::Version)));
    head.setRawHeader("Accept-Encoding", "identity"); // a small answer must not become a large one
    for (const auto& [name, value] : request.headers)
        SetHeader(head, name, value);
    if (request.url.scheme() == QLatin1String("https"))
        head.setSslConfiguration(TlsConfiguration(m_settings.caFile));

    if (request.file && !request.formFields.empty()) {
        head.setRawHeader("Content-Type", {}); // the form's own names where its parts end
        auto form = MakeForm(request.formFields, *request.file);
        QNetworkReply* reply = m_manager.sendCustomRequest(head, request.method, form.get());
        form.release()->setParent(reply);
        return reply;
    }
    std::unique_ptr<QIODevice> body;
    if (request.file) {
        if (!head.header(QNetworkRequest::ContentTypeHeader).isValid())
            head.setHeader(QNetworkRequest::ContentTypeHeader, QStringLiteral("application/octet-stream"));
        body = Open(*request.file);
    } else {
        head.setAttribute(QNetworkRequest::DoNotBufferUploadDataAttribute, true);
        head.setHeader(QNetworkRequest::ContentLengthHeader, request.body.size());
        body = std::make_unique<SinglePassBody>(request.body);
    }
    QNetworkReply* reply = m_manager.sendCustomRequest(head, request.method, body.get());
    body.release()->setParent(reply);
    return reply;
}

void WebSession::Pause(std::chrono::milliseconds time) {
    for (const QDeadlineTimer end(time); !end.hasExpired(); QThread::msleep(PauseSliceMs))
        ThrowIfOver();
}

void WebSession::ThrowIfOver() const {
    if (m_control.IsCancelled())
        throw WebException(WebError::Cancelled, "cancelled");
    if (m_deadline.hasExpired())
        throw WebException(WebError::TimedOut, "the time for it is over");
}

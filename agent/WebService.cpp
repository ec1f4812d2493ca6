#include "WebService.h"

#include "entity/JsonText.h"
#include "platform/security/LogText.h"
#include "platform/web/WebEndpoints.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QUrl>
#include <QUuid>
#include <chrono>
#include <httplib.h>

namespace {

constexpr char Host[] = "127.0.0.1";
constexpr char StorePath[] = "/store";
constexpr char FilesPath[] = "/files/";
constexpr std::size_t HugeAnswer = std::size_t(2) * 1024 * 1024 * 1024;
constexpr std::size_t LargeAnswer = 2 * 1024 * 1024;

std::string BaseOf(const httplib::Request& request) {
    return "http://" + request.get_header_value("Host");
}

std::string AddressOf(const httplib::Request& request, const std::string& fileKey) {
    return BaseOf(request) + FilesPath +
           QUrl::toPercentEncoding(QString::fromStdString(fileKey)).toStdString();
}

std::string TextAt(const Json::Value& object, const char* key) {
    const Json::Value& value = object[key];
    return value.isString() ? value.asString() : std::string();
}

} // namespace

const std::map<std::string, WebFault::Kind>& WebFault::Names() {
    static const std::map<std::string, Kind> names = {
        {"ok", None},     {"slow", Slow},   {"drip", Drip},        {"half", Half},
        {"wrong", Wrong}, {"empty", Empty}, {"large", Large},      {"huge", Huge},
        {"answer", Text}, {"gone", Gone},   {"redirect", Redirect}};
    return names;
}

/// The bytes of an upload on their way to the disk; gone with this object unless they are kept.
class WebService::Receipt {
public:
    explicit Receipt(const QString& folder)
        : m_file(QDir(folder).filePath(QUuid::createUuid().toString(QUuid::WithoutBraces) +
                                       QStringLiteral(".part"))) {
        m_isWhole = m_file.open(QIODevice::WriteOnly);
    }
    ~Receipt() {
        if (!m_isKept)
            m_file.remove();
    }
    Q_DISABLE_COPY(Receipt)

    /// True also when it fails, which Keep tells: what was sent is to be taken to its end.
    bool Append(const char* data, std::size_t size) {
        m_hash.addData(data, static_cast<int>(size));
        m_size += size;
        m_isWhole = m_isWhole && m_file.write(data, static_cast<qint64>(size)) == static_cast<qint64>(size);
        return true;
    }
    bool Keep(const QString& path) {
        QFile::remove(path);
        m_isWhole = m_isWhole && m_file.flush();
        m_file.close();
        m_isKept = m_isWhole && m_file.rename(path);
        return m_isKept;
    }
    std::size_t Size() const { return m_size; }
    std::string Digest() const { return m_hash.result().toHex().toStdString(); }

    std::string token; ///< that came with the file

private:
    QFile m_file;
    bool m_isWhole = false;
    bool m_isKept = false;
    QCryptographicHash m_hash{QCryptographicHash::Md5};
    std::size_t m_size = 0;
};

const std::vector<std::string>& WebService::Endpoints() {
    static const std::vector<std::string> names = {"policy", "upload",   "notice", "url",
                                                   "log",    "feedback", "file"};
    return names;
}

WebService::WebService(EventLog& log, const QString& folder)
    : m_log(log), m_store(folder), m_server(std::make_unique<httplib::Server>()) {
    m_server->set_keep_alive_timeout(1); // which the end waits for
    AddEndpoints();
    AddStore();
}

WebService::~WebService() {
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_ending = true;
    }
    m_endingChanged.notify_all();
    m_server->stop();
    if (m_thread.joinable())
        m_thread.join();
}

QString WebService::Listen(int port) {
    if (QString problem = m_store.Problem(); !problem.isEmpty())
        return problem;
    if (port == 0)
        m_port = m_server->bind_to_any_port(Host);
    else if (m_server->bind_to_port(Host, port))
        m_port = port;
    if (m_port <= 0)
        return QStringLiteral("cannot listen at port %1").arg(port);
    m_thread = std::thread([this] { m_server->listen_after_bind(); });
    while (!m_server->is_running()) // before that, stop() would do nothing
        std::this_thread::yield();
    m_log.Line("web service at " + Address() + ", files in " + m_store.Folder().toStdString());
    return {};
}

std::string WebService::Address() const {
    return std::string("http://") + Host + ':' + std::to_string(m_port);
}

std::optional<std::pair<std::string, std::string>> WebService::Offer(const QString& path,
                                                                     const std::string& name) {
    const std::string key = m_store.Offer(path, name);
    if (key.empty())
        return std::nullopt;
    return std::pair(Address() + FilesPath +
                         QUrl::toPercentEncoding(QString::fromStdString(key)).toStdString(),
                     m_store.DigestOf(key));
}

void WebService::SetFault(const std::string& endpoint, const WebFault& fault) {
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_faults[endpoint] = fault;
}

void WebService::AddEndpoints() {
    const auto serve = [this](const char* name, Answer (WebService::*answer)(const httplib::Request&)) {
        return [this, name, answer](const httplib::Request& request, httplib::Response& response) {
            Reply(name, request, request.body.size(), (this->*answer)(request), response);
        };
    };
    m_server->Get(WebEndpoint::UploadPolicy, serve("policy", &WebService::AnnounceUpload));
    m_server->Post(WebEndpoint::UploadNotice, serve("notice", &WebService::TakeNotice));
    m_server->Get(WebEndpoint::DownloadUrl, serve("url", &WebService::TellAddress));
    m_server->Post(WebEndpoint::DeviceLog, serve("log", &WebService::ListLog));
    m_server->Post(WebEndpoint::Feedback, serve("feedback", &WebService::TakeFeedback));
    m_server->Get(std::string(FilesPath) + "(.+)", serve("file", &WebService::SendFile));
}

void WebService::AddStore() {
    m_server->Put(StorePath, [this](const httplib::Request& request, httplib::Response& response,
                                    const httplib::ContentReader& read) {
        const std::string fileKey = request.get_param_value("fileKey");
        Receipt receipt(m_store.Folder());
        receipt.token = request.get_header_value("X-Store-Token");
        if (read([&receipt](const char* data, std::size_t size) { return receipt.Append(data, size); }))
            Reply("upload", request, receipt.Size(), TakeFile(fileKey, receipt), response);
    });
    m_server->Post(StorePath, [this](const httplib::Request& request, httplib::Response& response,
                                     const httplib::ContentReader& read) {
        const std::string fileKey = request.get_param_value("fileKey");
        Receipt receipt(m_store.Folder());
        std::string part;
        const bool whole =
            request.is_multipart_form_data() && read(
                                                    [&part](const httplib::MultipartFormData& field) {
                                                        part = field.name;
                                                        return true;
                                                    },
                                                    [&](const char* data, std::size_t size) {
                                                        if (part == "file")
                                                            return receipt.Append(data, size);
                                                        if (part == "token")
                                                            receipt.token.append(data, size);
                                                        return true;
                                                    });
        if (whole)
            Reply("upload", request, receipt.Size(), TakeFile(fileKey, receipt), response);
    });
}

WebService::Answer WebService::Refusal(int status, const std::string& message) {
    Json::Value body;
    body["message"] = message;
    return {status, body.toStyledString(), {}};
}

WebService::Answer WebService::FileAnswer(const httplib::Request& request, const std::string& fileKey) {
    NubraNotifyUploadResultResponse response;
    response.status = "success";
    response.data.fileKey = fileKey;
    response.data.downloadUrl = AddressOf(request, fileKey);
    return {200, response.WriteToString(), {}};
}

WebService::Answer WebService::AnnounceUpload(const httplib::Request& request) {
    if (!request.has_param("name") || !request.has_param("size") || !request.has_param("type"))
        return Refusal(400, "type, name and size are wanted");
    NubraUploadPolicyResponse response;
    response.status = "success";
    response.data = m_store.Announce(request.get_param_value("name"), BaseOf(request) + StorePath);
    return {200, response.WriteToString(), {}};
}

WebService::Answer WebService::TakeFile(const std::string& fileKey, Receipt& receipt) {
    if (!m_store.MayUpload(fileKey, receipt.token))
        return Refusal(403, "this file was not announced");
    if (!receipt.Keep(m_store.PathOf(fileKey)))
        return Refusal(500, "the file could not be kept");
    Answer answer;
    answer.headers["ETag"] = '"' + receipt.Digest() + '"';
    if (m_store.Take(fileKey, receipt.Digest())) {
        NubraUploadResponse response;
        response.message = "success";
        response.data.fileKey = fileKey;
        response.data.fileSize = static_cast<std::int32_t>(receipt.Size());
        answer.body = response.WriteToString();
    }
    return answer;
}

WebService::Answer WebService::TakeNotice(const httplib::Request& request) {
    const auto notice = ParseJsonObject(request.body);
    const std::string fileKey = notice ? TextAt(*notice, "fileKey") : std::string();
    const Json::Value fields = notice ? (*notice)["headerFields"] : Json::Value();
    const std::string tag =
        fields.isArray() && fields.size() == 1 ? TextAt(fields[0], "value") : std::string();
    const std::string digest = tag.size() > 2 ? tag.substr(1, tag.size() - 2) : std::string();
    if (!m_store.TakeNotice(fileKey, digest))
        return Refusal(404, "there is no such upload");
    return FileAnswer(request, fileKey);
}

WebService::Answer WebService::TellAddress(const httplib::Request& request) {
    const std::string fileKey = request.get_param_value("fileKey");
    if (!m_store.Has(fileKey))
        return Refusal(404, "there is no such file");
    return FileAnswer(request, fileKey);
}

WebService::Answer WebService::ListLog(const httplib::Request& request) {
    const auto notice = ParseJsonObject(request.body);
    if (!notice || TextAt(*notice, "device").empty() || !m_store.Has(TextAt(*notice, "fileKey")))
        return Refusal(404, "there is no such device or file");
    m_log.Line("web log of " + LogText(TextAt(*notice, "device")) + ": " +
               LogText(TextAt(*notice, "fileKey")));
    NotifyDeviceLogUploadResponse response;
    response.status = "success";
    response.data = AddressOf(request, TextAt(*notice, "fileKey"));
    return {200, response.WriteToString(), {}};
}

WebService::Answer WebService::TakeFeedback(const httplib::Request& request) {
    const auto document = ParseJsonObject(request.body);
    if (!document || TextAt(*document, "method") != "sendFeedBack")
        return Refusal(400, "this is no feedback");
    const std::string name = m_store.KeepFeedback(request.body);
    if (name.empty())
        return Refusal(500, "the feedback could not be kept");
    m_log.Line("web feedback kept as " + name);
    Json::Value answer;
    answer["code"] = 0;
    answer["message"] = "Thank you for your report.";
    return {200, answer.toStyledString(), {}};
}

WebService::Answer WebService::SendFile(const httplib::Request& request) {
    const std::string fileKey = request.matches[1];
    QFile file(m_store.PathOf(fileKey));
    if (!m_store.Has(fileKey) || !file.open(QIODevice::ReadOnly))
        return Refusal(404, "there is no such file");
    return {200,
            file.readAll().toStdString(),
            {{"Content-Type", "application/octet-stream"}, {"ETag", '"' + m_store.DigestOf(fileKey) + '"'}}};
}

bool WebService::Wait(double seconds) {
    std::unique_lock<std::mutex> lock(m_mutex);
    return !m_endingChanged.wait_for(lock, std::chrono::duration<double>(seconds),
                                     [this] { return m_ending; });
}

void WebService::Reply(const std::string& endpoint, const httplib::Request& request, std::size_t size,
                       const Answer& answer, httplib::Response& response) {
    WebFault fault;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        fault = m_faults[endpoint];
        if (fault.kind == WebFault::Half && !fault.text.empty())
            m_faults[endpoint].kind = fault.text == "anew" ? WebFault::Anew : WebFault::None;
    }
    // The server itself sends the part that is asked for, unless it is told that none is.
    const std::string condition = request.get_header_value("If-Range");
    const bool sendsAll = fault.kind == WebFault::Anew || answer.status != 200 ||
                          !answer.headers.count("ETag") ||
                          (!condition.empty() && condition != answer.headers.at("ETag"));
    if (sendsAll)
        const_cast<httplib::Request&>(request).ranges.clear();
    response.status = request.ranges.empty() ? answer.status : 206;
    std::string told = std::to_string(fault.kind == WebFault::Status ? fault.status : response.status);
    for (const auto& [name, kind] : WebFault::Names())
        if (kind == fault.kind && kind != WebFault::None)
            told = name;
    m_log.Line("web " + request.method + ' ' + LogText(request.path) + ' ' + std::to_string(size) +
               " bytes: " + told);
    emit Requested(QString::fromStdString(endpoint));

    for (const auto& [name, value] : answer.headers)
        response.set_header(name, value);
    const auto type =
        answer.headers.count("Content-Type") ? answer.headers.at("Content-Type") : "application/json";
    const std::string body = answer.body;
    // Announces all of the body and sends the bytes that `bytes` lets through, up to `end`.
    const auto provide = [&](std::size_t end, std::size_t step, double pause) {
        response.set_content_provider(
            std::max<std::size_t>(body.size(), 1), type,
            [this, body, end, step, pause](std::size_t offset, std::size_t, httplib::DataSink& sink) {
                const std::size_t count = std::min(step, end - std::min(end, offset));
                return count > 0 && Wait(pause) && sink.write(body.data() + offset, count);
            });
    };
    switch (fault.kind) {
    case WebFault::Slow:
        Wait(fault.seconds);
        [[fallthrough]];
    case WebFault::Anew:
    case WebFault::None:
        return response.set_content(body, type);
    case WebFault::Huge:
        return response.set_content_provider(HugeAnswer, type,
                                             [](std::size_t, std::size_t, httplib::DataSink& sink) {
                                                 const std::string zeros(64 * 1024, '\0');
                                                 return sink.write(zeros.data(), zeros.size());
                                             });
    case WebFault::Drip:
        return provide(body.size(), 1, fault.seconds);
    case WebFault::Half:
        return provide(body.size() / 2, body.size(), 0);
    case WebFault::Gone:
        return provide(0, 1, 0);
    case WebFault::Status:
        response.status = fault.status;
        return response.set_content(Refusal(fault.status, "told to fail").body, type);
    case WebFault::Wrong:
        return response.set_content("{\"status\": \"success\", \"data\":", type);
    case WebFault::Empty:
        return response.set_content("{}", type);
    case WebFault::Text:
        return response.set_content(fault.text, type);
    case WebFault::Large:
        return response.set_content(std::string(LargeAnswer, ' ') + body, type);
    case WebFault::Redirect:
        return response.set_redirect(fault.text.empty() ? BaseOf(request) + request.target : fault.text, 307);
    }
}

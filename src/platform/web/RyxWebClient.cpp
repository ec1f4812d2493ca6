#include "platform/web/RyxWebClient.h"

#include "entity/JsonText.h"
#include "platform/security/LogText.h"
#include "platform/web/WebEndpoints.h"
#include "platform/web/WebSession.h"

#include <QCryptographicHash>
#include <QSaveFile>
#include <QUrlQuery>
#include <glog/logging.h>
#include <limits>

namespace {

/// One call, which `act` makes in a session of its own; everything thrown on the way becomes its result.
template <class Act>
WebFailure Carry(const char* function, const WebSettings& settings, const TaskControl& control,
                 WebFailure* told, const Act& act) {
    WebFailure failure;
    try {
        if (IsGuiThread())
            throw WebException(WebError::Internal, "called on the GUI thread");
        WebSession session(settings, control);
        act(session, settings);
    } catch (const WebException& exception) {
        failure = {exception.error, exception.what(), exception.said};
    } catch (const Json::Exception& exception) { // a value of the wrong type
        failure = {WebError::BadAnswer, exception.what()};
    }
    LOG_IF(WARNING, failure.error != WebError::None)
        << "RyxWebClient::" << function << " failed: " << LogText(failure.words);
    if (told)
        *told = failure;
    return failure;
}

[[noreturn]] void RefuseAnswer(const char* why) {
    throw WebException(WebError::BadAnswer, why);
}

Json::Value ObjectOf(const WebAnswer& answer) {
    std::optional<Json::Value> object = ParseJsonObject(answer.body.toStdString());
    if (!object)
        RefuseAnswer("the answer is no JSON object");
    return *std::move(object);
}

template <class Entity>
Entity Read(const Json::Value& object) {
    Entity entity;
    entity.ReadFromJson(object);
    return entity;
}

/// Behind what the address has already; every special character is encoded, "+" among them.
void AddQuery(QUrl& url, const WebFields& fields) {
    QUrlQuery query(url);
    for (const auto& [name, value] : fields)
        query.addQueryItem(QString::fromLatin1(QUrl::toPercentEncoding(QString::fromStdString(name))),
                           QString::fromLatin1(QUrl::toPercentEncoding(QString::fromStdString(value))));
    if (!query.isEmpty())
        url.setQuery(query);
}

QUrl Endpoint(const WebSettings& settings, const char* path, const WebFields& query = {}) {
    if (settings.server.isEmpty())
        throw WebException(WebError::NotConfigured, "no web service is configured");
    QUrl url(settings.server);
    QString base = url.path();
    while (base.endsWith(QLatin1Char('/')))
        base.chop(1);
    url.setPath(base + QLatin1String(path));
    if (!settings.Allow(url))
        throw WebException(WebError::NotConfigured, "the configured address of the service is not allowed: " +
                                                        LogText(url.toString(QUrl::RemoveUserInfo)));
    AddQuery(url, query);
    return url;
}

WebRequest Post(const QUrl& url, const std::string& json) {
    WebRequest request;
    request.method = "POST";
    request.url = url;
    request.headers = {{"Content-Type", "application/json"}};
    request.body = QByteArray::fromStdString(json);
    return request;
}

const char* Name(UploadType type) {
    switch (type) {
    case UploadType::DeviceLog:
        return "deviceLog";
    case UploadType::Picture:
        return "png";
    case UploadType::Attachment:
        break;
    }
    return "attachment";
}

WebFields Fields(const std::vector<NubraFieldInfo>& infos) {
    WebFields fields;
    for (const NubraFieldInfo& info : infos)
        fields.emplace_back(info.name, info.value);
    return fields;
}

/// One upload to the file store, from the question how to do it to the proof that it is done.
class Upload {
public:
    Upload(WebSession& session, const WebSettings& settings, const UploadSource& file)
        : m_session(session), m_settings(settings), m_file(file) {}

    NubraUploadResult Run(UploadType type) {
        AskPolicy(type);
        const WebAnswer answer = SendFile();
        NubraUploadResult result =
            m_policy.uploadPolicyVo.needCallServer ? GiveNotice(answer) : Proof(answer);
        if (result.fileKey.empty() || (!m_policy.fileKey.empty() && result.fileKey != m_policy.fileKey))
            RefuseAnswer("the file store does not name the file's key");
        return result;
    }

private:
    void AskPolicy(UploadType type) {
        WebRequest request;
        request.url = Endpoint(m_settings, WebEndpoint::UploadPolicy,
                               {{"type", Name(type)},
                                {"name", m_file.Name().toStdString()},
                                {"size", std::to_string(m_file.Size())}});
        m_policy = Read<NubraUploadPolicyResponse>(ObjectOf(m_session.Send(request))).data;
    }

    WebAnswer SendFile() {
        const NubraUploadPolicy& policy = m_policy.uploadPolicyVo;
        WebRequest request;
        request.method = QByteArray::fromStdString(policy.httpMethod).toUpper();
        if (request.method != "PUT" && request.method != "POST")
            RefuseAnswer("the upload policy names no method that sends a file");
        request.url = QUrl::fromEncoded(QByteArray::fromStdString(policy.uploadUrl));
        AddQuery(request.url, Fields(policy.keyInfoFields));
        request.headers = Fields(policy.headerFields);
        request.formFields = Fields(policy.formFields);
        request.file = &m_file;
        return m_session.Send(request);
    }

    /// Without a notice the store itself says that it has the file.
    NubraUploadResult Proof(const WebAnswer& answer) const {
        const Json::Value object = ObjectOf(answer);
        if (!object["code"].isInt())
            RefuseAnswer("the file store tells no code");
        const auto response = Read<NubraUploadResponse>(object);
        if (response.code != 0)
            throw WebException(WebError::Refused,
                               "the file store answered with code " + std::to_string(response.code) + ": " +
                                   LogText(response.message),
                               false, response.message);
        if (response.data.fileSize != 0 && response.data.fileSize != m_file.Size())
            RefuseAnswer("the file store has another number of bytes");
        return response.data;
    }

    NubraUploadResult GiveNotice(const WebAnswer& answer) {
        Json::Value notice;
        notice["fileKey"] = m_policy.fileKey;
        notice["keyInfoFields"] = entity::WriteValue(m_policy.uploadPolicyVo.keyInfoFields);
        notice["headerFields"] = entity::WriteValue(PickUp(answer));
        const WebRequest request =
            Post(Endpoint(m_settings, WebEndpoint::UploadNotice), notice.toStyledString());
        const auto response = Read<NubraNotifyUploadResultResponse>(ObjectOf(m_session.Send(request)));
        NubraUploadResult result;
        result.fileKey = response.data.fileKey;
        result.downloadUrl = response.data.downloadUrl;
        return result;
    }

    std::vector<NubraFieldInfo> PickUp(const WebAnswer& answer) const {
        std::vector<NubraFieldInfo> found;
        for (const std::string& name : m_policy.uploadPolicyVo.needExtractHeaderNames)
            for (const auto& [header, value] : answer.headers)
                if (header.compare(name.c_str(), Qt::CaseInsensitive) == 0) {
                    NubraFieldInfo& field = found.emplace_back();
                    field.name = name;
                    field.value = value.toStdString();
                }
        return found;
    }

    WebSession& m_session;
    const WebSettings& m_settings;
    const UploadSource& m_file;
    NubraUploadPolicyData m_policy;
};

/// A file that is being fetched.
class DownloadTarget {
public:
    DownloadTarget(const DownloadRequest& request, const TaskControl& control)
        : m_request(request), m_control(control), m_file(QString::fromStdWString(request.target)) {
        if (!m_file.open(QIODevice::WriteOnly))
            throw WebException(WebError::File, LogText(m_file.errorString()));
    }

    WebFailure Take(qint64 offset, const QByteArray& bytes, qint64 total) {
        if (offset == 0) {
            m_hash.reset();
            m_file.resize(0);
            m_file.seek(0);
        }
        if (qMax(total, offset + bytes.size()) > m_request.maxBytes)
            return {WebError::TooLarge,
                    "the file is larger than " + std::to_string(m_request.maxBytes) + " bytes"};
        if (m_file.write(bytes) != bytes.size())
            return {WebError::File, "the file could not be written: " + LogText(m_file.errorString())};
        m_hash.addData(bytes);
        m_control.Tell(offset + bytes.size(), total);
        return {};
    }

    void Finish() {
        const QByteArray expected = QByteArray::fromStdString(m_request.md5).trimmed().toLower();
        if (!expected.isEmpty() && m_hash.result().toHex() != expected)
            throw WebException(WebError::WrongDigest, "the file's digest is not the one that was promised");
        if (!m_file.commit())
            throw WebException(WebError::File, LogText(m_file.errorString()));
    }

private:
    const DownloadRequest& m_request;
    const TaskControl& m_control;
    QSaveFile m_file; // beside the target, and gone with this object unless it is committed
    QCryptographicHash m_hash{QCryptographicHash::Md5};
};

} // namespace

RyxWebClient* RyxWebClient::Instance() {
    static RyxWebClient client;
    return &client;
}

void RyxWebClient::Configure(const WebSettings& settings) {
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_settings = settings;
}

WebSettings RyxWebClient::Settings() const {
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_settings;
}

NubraUploadResponse RyxWebClient::UploadFile(const std::wstring& path, UploadType type,
                                             const TaskControl& control, WebFailure* failure) const {
    NubraUploadResponse response;
    response.code = -1;
    const WebFailure ended = Carry(
        "UploadFile", Settings(), control, failure, [&](WebSession& session, const WebSettings& settings) {
            const UploadSource file(path);
            response.data = Upload(session, settings, file).Run(type);
            response.data.fileSize = static_cast<std::int32_t>(
                qMin<qint64>(file.Size(), std::numeric_limits<std::int32_t>::max()));
            response.code = 0;
        });
    response.message = ended.words;
    return response;
}

FileDto RyxWebClient::NotifyDeviceLogUpload(const std::string& device, const std::string& fileKey,
                                            const TaskControl& control, WebFailure* failure) const {
    FileDto log;
    Carry("NotifyDeviceLogUpload", Settings(), control, failure,
          [&](WebSession& session, const WebSettings& settings) {
              Json::Value notice;
              notice["device"] = device;
              notice["fileKey"] = fileKey;
              const auto answer = Read<NotifyDeviceLogUploadResponse>(ObjectOf(
                  session.Send(Post(Endpoint(settings, WebEndpoint::DeviceLog), notice.toStyledString()))));
              if (answer.data.empty())
                  RefuseAnswer("the service does not name the log");
              log.name = fileKey;
              log.url = answer.data;
          });
    return log;
}

std::string RyxWebClient::GetDownloadUrlByFileKey(const std::string& fileKey, const TaskControl& control,
                                                  WebFailure* failure) const {
    std::string address;
    Carry("GetDownloadUrlByFileKey", Settings(), control, failure,
          [&](WebSession& session, const WebSettings& settings) {
              WebRequest request;
              request.url = Endpoint(settings, WebEndpoint::DownloadUrl, {{"fileKey", fileKey}});
              const NubraFileInfo file =
                  Read<NubraNotifyUploadResultResponse>(ObjectOf(session.Send(request))).data;
              if (file.downloadUrl.empty() || file.fileKey != fileKey)
                  RefuseAnswer("the service does not name the file's address");
              address = file.downloadUrl;
          });
    return address;
}

bool RyxWebClient::Feedback(const std::string& json, std::string& message, const TaskControl& control,
                            WebFailure* failure) const {
    const WebFailure ended = Carry(
        "Feedback", Settings(), control, failure, [&](WebSession& session, const WebSettings& settings) {
            WebRequest request = Post(Endpoint(settings, WebEndpoint::Feedback), json);
            request.isRepeatable = false;
            const Json::Value answer = ObjectOf(session.Send(request));
            const Json::Value& code = answer["code"];
            if (!code.isInt())
                RefuseAnswer("the answer tells no code");
            if (const Json::Value& said = answer["message"]; said.isString()) // the code alone counts
                message = said.asString();
            if (code.asInt() != 0)
                throw WebException(WebError::Refused,
                                   message.empty() ? "code " + std::to_string(code.asInt()) : message, false,
                                   message);
        });
    if (ended.error != WebError::None)
        message = ended.words;
    return ended.error == WebError::None;
}

bool RyxWebClient::DownloadFile(const DownloadRequest& request, const TaskControl& control,
                                WebFailure* failure) const {
    const WebFailure ended =
        Carry("DownloadFile", Settings(), control, failure, [&](WebSession& session, const WebSettings&) {
            WebRequest question;
            question.url = QUrl::fromEncoded(QByteArray::fromStdString(request.url));
            DownloadTarget target(request, control);
            session.Send(question, [&target](qint64 offset, const QByteArray& bytes, qint64 total) {
                return target.Take(offset, bytes, total);
            });
            target.Finish();
        });
    return ended.error == WebError::None;
}

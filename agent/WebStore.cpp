#include "WebStore.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QUuid>

namespace {

/// The name without anything that means something in a path or an address.
std::string SafeName(const std::string& name) {
    QString safe;
    for (const QChar character : QString::fromStdString(name).right(100))
        safe += character.isLetterOrNumber() || character == QLatin1Char('.') || character == QLatin1Char('-')
                    ? character
                    : QLatin1Char('_');
    return safe.toStdString();
}

NubraFieldInfo Field(const std::string& name, const std::string& value) {
    NubraFieldInfo field;
    field.name = name;
    field.value = value;
    return field;
}

} // namespace

WebStore::WebStore(const QString& folder) : m_folder(folder) {
    QDir().mkpath(folder);
    // What an earlier run has kept stays.
    static const QRegularExpression number(QStringLiteral("^(feedback-)?(\\d{1,9})[-.]"));
    for (const QString& name : QDir(folder).entryList(QDir::Files)) {
        const auto match = number.match(name);
        int& last = match.captured(1).isEmpty() ? m_lastFile : m_lastFeedback;
        last = qMax(last, match.captured(2).toInt());
    }
}

QString WebStore::Problem() const {
    const QFileInfo facts(m_folder);
    return facts.isDir() && facts.isWritable() ? QString()
                                               : QStringLiteral("cannot write to %1").arg(m_folder);
}

void WebStore::SetManner(const UploadManner& manner) {
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_manner = manner;
}

NubraUploadPolicyData WebStore::Announce(const std::string& name, const std::string& address) {
    const std::lock_guard<std::mutex> lock(m_mutex);
    NubraUploadPolicyData data;
    data.fileKey = std::to_string(++m_lastFile) + '-' + SafeName(name);
    File& file = m_files[data.fileKey];
    file.token = QUuid::createUuid().toString(QUuid::WithoutBraces).toStdString();
    file.wantsNotice = m_manner.wantsNotice;

    NubraUploadPolicy& policy = data.uploadPolicyVo;
    policy.httpMethod = m_manner.asForm ? "POST" : "PUT";
    policy.uploadUrl = address;
    policy.needCallServer = m_manner.wantsNotice;
    policy.keyInfoFields = {Field("fileKey", data.fileKey)};
    policy.headerFields = {Field("Content-Type", "application/octet-stream")}; // no form may be called so
    if (m_manner.asForm)
        policy.formFields = {Field("token", file.token)};
    else
        policy.headerFields.push_back(Field("X-Store-Token", file.token));
    policy.needExtractHeaderNames = {"ETag"};
    return data;
}

bool WebStore::MayUpload(const std::string& fileKey, const std::string& token) const {
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto file = m_files.find(fileKey);
    return file != m_files.end() && file->second.token == token;
}

QString WebStore::PathOf(const std::string& fileKey) const {
    return QDir(m_folder).filePath(QString::fromStdString(fileKey));
}

bool WebStore::Take(const std::string& fileKey, const std::string& digest) {
    const std::lock_guard<std::mutex> lock(m_mutex);
    File& file = m_files[fileKey];
    file.digest = digest;
    file.counts = !file.wantsNotice;
    return file.counts;
}

bool WebStore::TakeNotice(const std::string& fileKey, const std::string& digest) {
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto file = m_files.find(fileKey);
    if (file == m_files.end() || file->second.digest.empty() || file->second.digest != digest)
        return false;
    file->second.counts = true;
    return true;
}

std::string WebStore::Offer(const QString& path, const std::string& name) {
    QFile file(path);
    QCryptographicHash hash(QCryptographicHash::Md5);
    if (!file.open(QIODevice::ReadOnly) || !hash.addData(&file))
        return {};
    const std::lock_guard<std::mutex> lock(m_mutex);
    std::string key = std::to_string(++m_lastFile) + '-' + SafeName(name);
    QFile::remove(PathOf(key));
    if (!file.copy(PathOf(key)))
        return {};
    m_files[key] = {{}, hash.result().toHex().toStdString(), false, true};
    return key;
}

std::string WebStore::DigestOf(const std::string& fileKey) const {
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto file = m_files.find(fileKey);
    return file == m_files.end() ? std::string() : file->second.digest;
}

bool WebStore::Has(const std::string& fileKey) const {
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto file = m_files.find(fileKey);
    return file != m_files.end() && file->second.counts;
}

std::string WebStore::KeepFeedback(const std::string& document) {
    const std::lock_guard<std::mutex> lock(m_mutex);
    const QString name = QStringLiteral("feedback-%1.json").arg(++m_lastFeedback);
    QFile file(QDir(m_folder).filePath(name));
    const QByteArray bytes = QByteArray::fromStdString(document);
    const bool isKept = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
    return isKept ? name.toStdString() : std::string();
}

#include "messages/MessageHistory.h"

#include "platform/files/JsonFile.h"

#include <QJsonArray>
#include <QJsonObject>
#include <algorithm>
#include <glog/logging.h>

namespace {

constexpr qint64 LargestFile = 64 * 1024 * 1024; // above what the longest messages take

QString Utf16(const std::string& text) {
    return QString::fromStdString(text);
}

QJsonObject ToJson(const Message& message) {
    return {{QStringLiteral("operationId"), message.operationId},
            {QStringLiteral("received"), message.received.toString(Qt::ISODate)},
            {QStringLiteral("state"), static_cast<int>(message.state)},
            {QStringLiteral("emergency"), message.isEmergency},
            {QStringLiteral("mayBeClosed"), message.mayBeClosed},
            {QStringLiteral("seconds"), message.seconds},
            {QStringLiteral("showings"), message.showings},
            {QStringLiteral("text"), message.text},
            {QStringLiteral("fileName"), Utf16(message.file.name)},
            {QStringLiteral("fileUrl"), Utf16(message.file.url)},
            {QStringLiteral("fileMd5"), Utf16(message.file.md5)},
            {QStringLiteral("savedAs"), message.savedAs}};
}

Message FromJson(const QJsonObject& object) {
    const auto text = [&object](const char* key) { return object[QLatin1String(key)].toString(); };
    Message message;
    message.operationId = object[QStringLiteral("operationId")].toInt();
    message.received = QDateTime::fromString(text("received"), Qt::ISODate);
    const int state = object[QStringLiteral("state")].toInt();
    message.state =
        static_cast<MessageState>(std::clamp(state, 0, static_cast<int>(MessageState::Withdrawn)));
    message.isEmergency = object[QStringLiteral("emergency")].toBool();
    message.mayBeClosed = object[QStringLiteral("mayBeClosed")].toBool(true);
    message.seconds = object[QStringLiteral("seconds")].toInt();
    message.showings = object[QStringLiteral("showings")].toInt(1);
    message.text = text("text");
    message.file.name = text("fileName").toStdString();
    message.file.url = text("fileUrl").toStdString();
    message.file.md5 = text("fileMd5").toStdString();
    message.savedAs = text("savedAs");
    return message;
}

} // namespace

MessageHistory::MessageHistory(const QString& file) : m_file(file) {
    Read();
}

const Message* MessageHistory::Find(int id) const {
    const auto found = std::find_if(m_messages.begin(), m_messages.end(),
                                    [id](const Message& message) { return message.id == id; });
    return found == m_messages.end() ? nullptr : &*found;
}

int MessageHistory::Add(Message message, int shown) {
    if (m_messages.size() >= std::size_t(Most)) {
        const auto rank = [shown](const Message& old) {
            return old.id == shown                  ? 4
                   : old.state != MessageState::New ? 0
                   : old.isEmergency                ? 3
                   : old.mayBeClosed                ? 1
                                                    : 2;
        };
        const auto gone =
            std::min_element(m_messages.begin(), m_messages.end(),
                             [&](const Message& a, const Message& b) { return rank(a) < rank(b); });
        const int goneId = gone->id;
        LOG_IF(WARNING, gone->state == MessageState::New) << "MessageHistory::Add gives up an unread message";
        m_messages.erase(gone);
        emit Removed(goneId);
    }
    message.id = ++m_lastId;
    m_messages.push_back(message);
    Write();
    emit Changed();
    return message.id;
}

template <class Change>
void MessageHistory::Update(int id, Change change) {
    const auto found = std::find_if(m_messages.begin(), m_messages.end(),
                                    [id](const Message& message) { return message.id == id; });
    if (found == m_messages.end())
        return;
    change(found);
    Write();
    emit Changed();
}

void MessageHistory::Remove(int id) {
    Update(id, [this](auto message) { m_messages.erase(message); });
    emit Removed(id);
}

void MessageHistory::SetState(int id, MessageState state) {
    Update(id, [state](auto message) { message->state = state; });
}

void MessageHistory::SetSavedAs(int id, const QString& path) {
    Update(id, [&path](auto message) { message->savedAs = path; });
}

void MessageHistory::Read() {
    const QJsonDocument document = JsonFile::Read(m_file, LargestFile);
    if (!document.isArray())
        return JsonFile::SetAside(m_file);
    const QJsonArray messages = document.array();
    for (int i = std::max(0, messages.size() - Most); i < messages.size(); ++i) {
        Message message = FromJson(messages[i].toObject());
        if (message.text.isEmpty() && !message.HasFile())
            continue;
        message.id = ++m_lastId;
        m_messages.push_back(message);
    }
}

void MessageHistory::Write() const {
    QJsonArray messages;
    for (const Message& message : m_messages)
        messages.append(ToJson(message));
    JsonFile::Write(m_file, QJsonDocument(messages));
}

#include "enroll/EnrollmentFile.h"

#include "enroll/TagRules.h"
#include "entity/JsonText.h"
#include "platform/context/Text.h"
#include "platform/security/LogText.h"

#include <QDateTime>
#include <QDir>
#include <algorithm>
#include <glog/logging.h>

namespace {

constexpr qint64 LargestFile = 64 * 1024;
constexpr char ByteOrderMark[] = "\xEF\xBB\xBF";

QDateTime Creation(const QFileInfo& file) {
    const QDateTime created = file.birthTime();
    return created.isValid() ? created : file.lastModified(); // not every file system knows
}

bool ReadText(const QString& path, QByteArray& text) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    text = file.read(LargestFile + 1);
    return file.error() == QFileDevice::NoError;
}

/// Keeps what the user could have typed.
void KeepRules(std::vector<std::string>& tags) {
    QStringList kept;
    for (const std::string& tag : tags) {
        const QString text = QString::fromStdString(tag).trimmed();
        if (TagRules::Check(text, kept) == TagRules::Refusal::None)
            kept.append(text);
    }
    tags.clear();
    for (const QString& tag : qAsConst(kept))
        tags.push_back(tag.toStdString());
}

EnrollmentFile::State Parse(const QByteArray& text, UsbEnrollmentFile& content) {
    const QByteArray json = text.startsWith(ByteOrderMark) ? text.mid(3) : text;
    if (QString::fromUtf8(json).toUtf8() != json) // the parser does not look
        return EnrollmentFile::State::NotJson;
    const auto root = ParseJson(json.toStdString());
    if (!root)
        return EnrollmentFile::State::NotJson;
    // A file has nobody who catches for it, as a message of the service has.
    try {
        content.ReadFromJson(*root);
    } catch (const Json::Exception& error) {
        LOG(INFO) << "EnrollmentFile::FindOn " << LogText(std::string(error.what()));
        return EnrollmentFile::State::WrongFormat;
    }
    if (content.code.empty() || content.account.empty())
        return EnrollmentFile::State::Incomplete;
    KeepRules(content.tags);
    return EnrollmentFile::State::Usable;
}

EnrollmentFile::State Read(const QFileInfo& file, UsbEnrollmentFile& content) {
    using State = EnrollmentFile::State;
    if (file.isSymLink() || !file.isFile())
        return State::NotRegular;
    if (file.size() > LargestFile)
        return State::TooLarge;
    QByteArray text;
    if (!ReadText(file.filePath(), text))
        return State::Unreadable;
    return text.size() > LargestFile ? State::TooLarge : Parse(text, content);
}

} // namespace

EnrollmentFile EnrollmentFile::FindOn(const QString& drive) noexcept {
    EnrollmentFile found;
    // Links, also those that lead nowhere, count as system files.
    const QFileInfoList files = QDir(drive).entryInfoList(
        {QStringLiteral("Enrollment**.json")}, QDir::Files | QDir::System | QDir::CaseSensitive, QDir::Name);
    const auto newest =
        std::max_element(files.begin(), files.end(), [](const QFileInfo& left, const QFileInfo& right) {
            return Creation(left) < Creation(right);
        });
    if (newest == files.end())
        return found;
    found.path = newest->filePath();
    UsbEnrollmentFile content;
    found.state = Read(*newest, content);
    if (found.IsUsable())
        found.content = content;
    LOG(INFO) << "EnrollmentFile::FindOn " << LogText(found.path) << " state "
              << static_cast<int>(found.state);
    return found;
}

QString EnrollmentFile::Refusal() const {
    switch (state) {
    case State::Missing:
    case State::Usable:
        break;
    case State::NotRegular:
        return Text("usb_file_not_regular");
    case State::TooLarge:
        return Text("usb_file_too_large").arg(LargestFile / 1024);
    case State::Unreadable:
        return Text("usb_file_unreadable");
    case State::NotJson:
        return Text("usb_file_not_json");
    case State::WrongFormat:
        return Text("usb_file_wrong_format");
    case State::Incomplete:
        return Text("usb_file_incomplete");
    }
    return {};
}

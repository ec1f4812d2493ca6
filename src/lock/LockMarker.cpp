#include "lock/LockMarker.h"

#include "platform/files/JsonFile.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonObject>
#include <glog/logging.h>

namespace {

constexpr qint64 LargestFile = 4096;

QString DayOf(const Clock& clock) {
    return clock.Now().date().toString(Qt::ISODate);
}

} // namespace

LockMarker::LockMarker(const QString& file, const std::string& bootId, const Clock& clock)
    : m_file(file), m_bootId(QString::fromStdString(bootId)), m_clock(clock) {}

void LockMarker::Write(const EndTime& end) const {
    const QJsonObject marker{{QStringLiteral("endAt"), QString::fromStdString(end.Text())},
                             {QStringLiteral("day"), DayOf(m_clock)},
                             {QStringLiteral("boot"), m_bootId}};
    JsonFile::Write(m_file, QJsonDocument(marker));
}

void LockMarker::Remove() const {
    QFile::remove(m_file);
}

std::optional<EndTime> LockMarker::Read() const {
    const QFileInfo info(m_file);
    if (!info.isFile() || info.isSymLink())
        return std::nullopt;
    const QJsonObject marker = JsonFile::Read(m_file, LargestFile).object();
    const QString endAt = marker.value(QStringLiteral("endAt")).toString(QStringLiteral("none"));
    std::optional<EndTime> end = EndTime::Parse(endAt.toStdString());
    const char* fault = nullptr;
    if (!end)
        fault = "is broken";
    else if (end->IsSet() &&
             (marker.value(QStringLiteral("day")) != DayOf(m_clock) || end->HasPassed(m_clock)))
        fault = "is past its end";
    else if (!end->IsSet() && (m_bootId.isEmpty() || marker.value(QStringLiteral("boot")) != m_bootId))
        fault = "is from before the last start of the system";
    if (!fault)
        return end;
    LOG(WARNING) << "LockMarker::Read ignores a lock that " << fault;
    Remove();
    return std::nullopt;
}

#include "pages/ActHistory.h"

#include "platform/context/AppContextData.h"
#include "platform/context/DevicePermissions.h"
#include "platform/files/JsonFile.h"
#include "platform/link/PipeSendEvent.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonObject>
#include <QMetaEnum>
#include <utility>

namespace {

constexpr int WriteAfterMs = 1000; // a burst is written once
constexpr qint64 LargestFile = 1024 * 1024;

const QMetaEnum& Names() {
    static const QMetaEnum names = QMetaEnum::fromType<ActHistory::Act>();
    return names;
}

/// Whether the act goes on with the last one: windows close by the day, and several messages make one change
/// of permissions.
bool IsPartOf(const ActHistory::Record& last, ActHistory::Act act, const QDateTime& now) {
    using Act = ActHistory::Act;
    return last.act == act && ((act == Act::WindowsClosed && last.time.date() == now.date()) ||
                               (act == Act::Permissions && last.time.secsTo(now) < 60));
}

} // namespace

ActHistory::ActHistory(const QString& file, const DevicePermissions& permissions, const Clock& clock,
                       QObject* parent)
    : QObject(parent), m_file(file), m_clock(clock) {
    m_writeTimer.setSingleShot(true);
    m_writeTimer.setInterval(WriteAfterMs);
    connect(&m_writeTimer, &QTimer::timeout, this, &ActHistory::Write);
    Read();
    QCoreApplication::instance()->installEventFilter(this);
    connect(&permissions, &DevicePermissions::ChangedByService, this, [this] {
        if (AppContextData::Instance()->Enrolled())
            Add(Act::Permissions);
    });
    connect(AppContextData::Instance(), &AppContextData::Changed, this, [this](AppContextData::Field field) {
        if (field == AppContextData::Field::Enrolled && !AppContextData::Instance()->Enrolled())
            Add(Act::Unenrolled);
    });
}

ActHistory::~ActHistory() {
    if (m_writeTimer.isActive())
        Write();
}

ActHistory* ActHistory::OfApplication() {
    return QCoreApplication::instance()->findChild<ActHistory*>(QString(), Qt::FindDirectChildrenOnly);
}

void ActHistory::Add(Act act) {
    const QDateTime now = m_clock.Now();
    if (!m_records.empty() && IsPartOf(m_records.front(), act, now)) {
        m_records.front().time = now;
        ++m_records.front().times;
    } else {
        m_records.push_front({act, now});
        if (m_records.size() > Most)
            m_records.pop_back();
    }
    if (!m_file.isEmpty() && !m_writeTimer.isActive())
        m_writeTimer.start();
    emit Changed();
}

// The report of a closed window goes on to whoever sends it.
bool ActHistory::eventFilter(QObject* watched, QEvent* event) {
    if (watched == QCoreApplication::instance() && event->type() == PipeSendEvent::eventType() &&
        static_cast<PipeSendEvent*>(event)->Key() == PipeKey::PopupDetected)
        Add(Act::WindowsClosed);
    return QObject::eventFilter(watched, event);
}

void ActHistory::AddHourFormat(HourFormat format) {
    const auto number = static_cast<int>(format);
    if (std::exchange(m_hourFormat, number) != number)
        Add(Act::Clock);
}

void ActHistory::Read() {
    const QJsonObject json = JsonFile::Read(m_file, LargestFile).object();
    if (!json[QStringLiteral("records")].isArray())
        return JsonFile::SetAside(m_file);
    m_hourFormat = json[QStringLiteral("hourFormat")].toInt(-1);
    for (const auto& value : json[QStringLiteral("records")].toArray()) {
        const QJsonObject record = value.toObject();
        bool isKnown = false;
        const int act = Names().keyToValue(record[QStringLiteral("act")].toString().toLatin1(), &isKnown);
        const QDateTime time = QDateTime::fromString(record[QStringLiteral("time")].toString(), Qt::ISODate);
        if (isKnown && time.isValid() && m_records.size() < Most)
            m_records.push_back({static_cast<Act>(act), time, record[QStringLiteral("times")].toInt(1)});
    }
}

void ActHistory::Write() {
    QJsonArray records;
    for (const Record& record : m_records)
        records.append(QJsonObject{
            {QStringLiteral("act"), QLatin1String(Names().valueToKey(static_cast<int>(record.act)))},
            {QStringLiteral("time"), record.time.toString(Qt::ISODate)},
            {QStringLiteral("times"), record.times}});
    JsonFile::Write(m_file, QJsonDocument(QJsonObject{{QStringLiteral("hourFormat"), m_hourFormat},
                                                      {QStringLiteral("records"), records}}));
}

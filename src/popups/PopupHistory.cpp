#include "popups/PopupHistory.h"

#include "platform/files/JsonFile.h"
#include "platform/link/PipeClientService.h"
#include "platform/link/PipeEventWatcher.h"
#include "platform/link/PipeSendEvent.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonObject>
#include <algorithm>
#include <utility>

namespace {

constexpr std::size_t MostRecords = 200;
constexpr int WriteAfterMs = 1000; // a burst is written once
constexpr int LookMs = 1000;
constexpr qint64 TimeToCloseMs = 5000;
constexpr qint64 LargestFile = 16 * 1024 * 1024;

/// Names of a rule's fields in the file; the folder comes last.
constexpr std::pair<const char*, std::string PopupsTypeParams::*> Fields[] = {
    {"appName", &PopupsTypeParams::appName},        {"productName", &PopupsTypeParams::popProductName},
    {"className", &PopupsTypeParams::popClassName}, {"title", &PopupsTypeParams::popName},
    {"signer", &PopupsTypeParams::popSignName},     {"directory", &PopupsTypeParams::popDirectory}};

QJsonObject ToJson(const PopupRecord& record) {
    QJsonObject json{{QStringLiteral("last"), record.last.toString(Qt::ISODateWithMs)},
                     {QStringLiteral("times"), record.times}};
    for (const auto& [name, field] : Fields)
        json.insert(QLatin1String(name), QString::fromStdString(record.rule.*field));
    return json;
}

PopupRecord FromJson(const QJsonObject& json) {
    PopupRecord record;
    record.last = QDateTime::fromString(json[QStringLiteral("last")].toString(), Qt::ISODateWithMs);
    record.times = json[QStringLiteral("times")].toInt();
    for (const auto& [name, field] : Fields)
        record.rule.*field = json[QLatin1String(name)].toString().toStdString();
    return record;
}

} // namespace

PopupHistory::PopupHistory(const QString& file, OpenWindows openWindows, const Clock& clock, QObject* parent)
    : QObject(parent), m_file(file), m_openWindows(std::move(openWindows)), m_clock(clock) {
    m_writeTimer.setSingleShot(true);
    m_writeTimer.setInterval(WriteAfterMs);
    connect(&m_writeTimer, &QTimer::timeout, this, &PopupHistory::Write);
    m_lookTimer.setObjectName(QStringLiteral("popupLookTimer"));
    m_lookTimer.setInterval(LookMs);
    connect(&m_lookTimer, &QTimer::timeout, this, &PopupHistory::LookAgain);
    connect(&m_look, &QFutureWatcherBase::finished, this, &PopupHistory::OnLooked);
    Read();
    QCoreApplication::instance()->installEventFilter(this);
    new PipeEventWatcher(this, [this](PipeKey key, const std::string& body) { OnPipeReceive(key, body); });
}

PopupHistory::~PopupHistory() {
    if (m_writeTimer.isActive())
        Write();
}

PopupHistory* PopupHistory::OfApplication() {
    return QCoreApplication::instance()->findChild<PopupHistory*>(QString(), Qt::FindDirectChildrenOnly);
}

int PopupHistory::CountOfToday() const {
    return m_day == Today() ? m_count : 0;
}

// The event goes on to whoever sends it.
bool PopupHistory::eventFilter(QObject* watched, QEvent* event) {
    if (watched == QCoreApplication::instance() && event->type() == PipeSendEvent::eventType()) {
        const auto* message = static_cast<PipeSendEvent*>(event);
        if (message->Key() == PipeKey::PopupDetected)
            PipeClientService::Guard(message->Key(), metaObject()->className(), [&] {
                UploadPopupsParams report;
                report.ReadFromString(message->Data());
                Add(report);
            });
    }
    return QObject::eventFilter(watched, event);
}

void PopupHistory::OnPipeReceive(PipeKey key, const std::string& body) {
    if (key == PipeKey::DeviceUnenrolled) {
        SetPolicy({});
    } else if (key == PipeKey::PopupPolicy) {
        SyncPopupsParams policy;
        policy.ReadFromString(body);
        SetPolicy(policy);
    }
}

void PopupHistory::SetPolicy(const SyncPopupsParams& policy) {
    m_state = policy.popStatus ? Blocking::On : Blocking::Off;
    if (!policy.popStatus || !policy.hasOne)
        m_rules.clear();
    if (policy.popStatus && policy.hasOne && !policy.popupsDetails.empty()) {
        const QString rule = PopupWindow::Of(policy.popupsDetails.front()).Identity();
        if (const auto same = m_rules.find(rule); same != m_rules.end())
            m_rules.erase(same);
        if (policy.enable)
            m_rules.insert(rule);
    } else if (policy.popStatus && !policy.hasOne) {
        for (const PopupsTypeParams& rule : policy.popupsDetails)
            m_rules.insert(PopupWindow::Of(rule).Identity());
    }
    emit PolicyReceived();
}

void PopupHistory::Add(const UploadPopupsParams& report) {
    PopupRecord now;
    now.rule.appName = report.appName;
    now.rule.popName = report.popName;
    now.rule.popClassName = report.popClassName;
    now.rule.popProductName = report.popProductName;
    now.rule.popSignName = report.popSignName;
    now.rule.popDirectory = report.popDirectory;
    now.last = m_clock.Now();
    const QString identity = PopupWindow::Of(now.rule).Identity();
    const auto before = std::find_if(m_records.begin(), m_records.end(), [&](const PopupRecord& record) {
        return record.last.date() == now.last.date() && PopupWindow::Of(record.rule).Identity() == identity;
    });
    const bool isFirst = before == m_records.end();
    if (!isFirst) {
        now.times = before->times;
        now.stillOpen = before->stillOpen;
        now.lookAgain = before->lookAgain;
        m_records.erase(before);
    }
    ++now.times;
    if (!now.lookAgain.isValid())
        now.lookAgain = now.last.addMSecs(TimeToCloseMs);
    m_records.push_front(now);
    if (m_records.size() > MostRecords)
        m_records.resize(MostRecords);

    m_count = m_day == now.last.date() ? m_count + 1 : 1;
    m_day = now.last.date();
    if (!m_lookTimer.isActive())
        m_lookTimer.start();
    Touch();
    if (isFirst)
        emit Noticed(tr("popups_notice").arg(QString::fromStdString(report.appName)));
}

// Nobody tells when the other program has closed its window, or that it never will.
void PopupHistory::LookAgain() {
    if (!m_look.isFinished())
        return;
    const QDateTime now = m_clock.Now();
    const auto waits = [](const PopupRecord& record) { return record.lookAgain.isValid(); };
    const auto isDue = [&](const PopupRecord& record) { return waits(record) && record.lookAgain <= now; };
    if (std::none_of(m_records.begin(), m_records.end(), waits))
        return m_lookTimer.stop();
    if (std::none_of(m_records.begin(), m_records.end(), isDue))
        return;
    m_lookBegan = now;
    m_look.setFuture(m_worker.Run(m_openWindows, {}));
}

void PopupHistory::OnLooked() {
    const QSet<QString> open = m_look.result();
    bool changed = false;
    for (PopupRecord& record : m_records) {
        if (!record.lookAgain.isValid() || record.lookAgain > m_lookBegan)
            continue;
        const bool isOpen = open.contains(PopupWindow::Of(record.rule).Key());
        changed |= isOpen != record.stillOpen;
        record.stillOpen = isOpen;
        record.lookAgain = isOpen ? m_clock.Now().addMSecs(TimeToCloseMs) : QDateTime();
    }
    if (changed)
        emit RecordsChanged();
}

void PopupHistory::Touch() {
    if (!m_file.isEmpty() && !m_writeTimer.isActive())
        m_writeTimer.start();
    emit RecordsChanged();
}

void PopupHistory::Read() {
    const QJsonObject json = JsonFile::Read(m_file, LargestFile).object();
    if (!json[QStringLiteral("records")].isArray())
        return JsonFile::SetAside(m_file);
    m_day = QDate::fromString(json[QStringLiteral("day")].toString(), Qt::ISODate);
    m_count = json[QStringLiteral("count")].toInt();
    const QJsonArray records = json[QStringLiteral("records")].toArray();
    for (const QJsonValue& value : records) {
        const PopupRecord record = FromJson(value.toObject());
        if (record.last.isValid() && record.times > 0 && m_records.size() < MostRecords)
            m_records.push_back(record);
    }
}

void PopupHistory::Write() {
    QJsonArray records;
    for (const PopupRecord& record : m_records)
        records.append(ToJson(record));
    const QJsonObject json{{QStringLiteral("day"), m_day.toString(Qt::ISODate)},
                           {QStringLiteral("count"), m_count},
                           {QStringLiteral("records"), records}};
    JsonFile::Write(m_file, QJsonDocument(json));
}

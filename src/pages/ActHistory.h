#pragma once

#include "platform/application/Clock.h"
#include "platform/system/SystemPreferences.h"

#include <QDateTime>
#include <QObject>
#include <QTimer>
#include <deque>

class DevicePermissions;

/// What was done to this device for the organisation, for the user to read: kept beyond the program's end.
/// Lives from start-up. GUI thread.
class ActHistory : public QObject {
    Q_OBJECT

public:
    enum class Act { Locked, Unlocked, Message, WindowsClosed, Clock, Wallpaper, Permissions, Unenrolled };
    Q_ENUM(Act)

    struct Record {
        Act act;
        QDateTime time; ///< of the last
        int times = 1;
    };

    static constexpr std::size_t Most = 50;

    /// Reads what an earlier start has kept in `file`; without a name nothing is kept.
    ActHistory(const QString& file, const DevicePermissions& permissions,
               const Clock& clock = Clock::System(), QObject* parent = nullptr);
    /// Writes what is not written yet.
    ~ActHistory() override;

    /// The application object's; null when it has none.
    static ActHistory* OfApplication();

    /// The latest first.
    const std::deque<Record>& Records() const { return m_records; }

    /// Windows that are closed one after the other on one day make one record, and so do changes of
    /// permissions within a minute.
    void Add(Act act);
    /// The clock was set; the service says so at every connect, and only a change is an act.
    void AddHourFormat(HourFormat format);

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    void Changed();

private:
    void Read();
    void Write();

    const QString m_file;
    const Clock& m_clock;
    std::deque<Record> m_records;
    int m_hourFormat = -1; // that was set last
    QTimer m_writeTimer{this};
};

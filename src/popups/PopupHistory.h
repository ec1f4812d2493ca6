#pragma once

#include "platform/application/Clock.h"
#include "platform/application/PopupWindow.h"
#include "platform/files/Workers.h"
#include "platform/link/PipeKey.h"

#include <QDateTime>
#include <QFutureWatcher>
#include <QObject>
#include <QSet>
#include <QTimer>
#include <deque>
#include <functional>
#include <unordered_set>

/// The windows that one rule has asked to close on one day.
struct PopupRecord {
    PopupsTypeParams rule; ///< with the folder in which the program was found
    QDateTime last;
    int times = 0;
    bool stillOpen = false; ///< one of them was asked to close, and is still there
    QDateTime lookAgain;    ///< when to look whether it has gone; not valid: it has
};

/// Keeps which pop-up windows were asked to close, beyond the program's end, and what the service says of the
/// rules. Lives from start-up, for pages are made later. GUI thread.
class PopupHistory : public QObject {
    Q_OBJECT

public:
    enum class Blocking { Unknown, Off, On };
    /// Tells the keys (PopupWindow) of the windows on the screen. Worker threads: it asks about each of them.
    using OpenWindows = std::function<QSet<QString>()>;

    /// Reads what an earlier start has kept in `file`, and keeps the last 200 records there; without a name
    /// nothing is kept.
    PopupHistory(const QString& file, OpenWindows openWindows, const Clock& clock = Clock::System(),
                 QObject* parent = nullptr);
    /// Writes what is not written yet.
    ~PopupHistory() override;

    /// The application object's history; null when it has none.
    static PopupHistory* OfApplication();

    /// The latest first.
    const std::deque<PopupRecord>& Records() const { return m_records; }
    /// Windows that were asked to close today.
    int CountOfToday() const;
    QDate Today() const { return m_clock.Now().date(); }

    /// What the service has said last.
    Blocking State() const { return m_state; }
    int RuleCount() const { return static_cast<int>(m_rules.size()); }
    bool IsInForce(const PopupsTypeParams& rule) const {
        return m_rules.count(PopupWindow::Of(rule).Identity()) > 0;
    }

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    void RecordsChanged();
    /// The service has said which rules are in force.
    void PolicyReceived();
    /// A rule has asked its first window of the day to close; plain text for the user.
    void Noticed(const QString& text);

private:
    void OnPipeReceive(PipeKey key, const std::string& body);
    void SetPolicy(const SyncPopupsParams& policy);
    void Add(const UploadPopupsParams& report);
    void LookAgain();
    void OnLooked();
    void Read();
    void Write();
    void Touch();

    const QString m_file;
    const OpenWindows m_openWindows;
    const Clock& m_clock;
    std::deque<PopupRecord> m_records;
    QDate m_day; // that m_count counts
    int m_count = 0;
    Blocking m_state = Blocking::Unknown;
    std::unordered_multiset<QString> m_rules; // identities
    QTimer m_writeTimer{this};
    QTimer m_lookTimer{this};
    Workers m_worker{1};
    QFutureWatcher<QSet<QString>> m_look{this};
    QDateTime m_lookBegan;
};

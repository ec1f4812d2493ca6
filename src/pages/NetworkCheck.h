#pragma once

#include "platform/files/Workers.h"
#include "platform/web/CheckNetwork.h"

#include <QElapsedTimer>
#include <QFutureWatcher>
#include <QTimer>
#include <optional>

/// Runs the check of the network, one step after the other, and keeps its results for whoever shows them. A
/// step has five seconds; the first failure ends the check, but for the pipe. GUI thread.
class NetworkCheck : public QObject {
    Q_OBJECT

public:
    explicit NetworkCheck(std::shared_ptr<const NetworkProbe> probe, QObject* parent = nullptr);
    ~NetworkCheck() override;

    /// The application object's check; null when it has none.
    static NetworkCheck* OfApplication();

    /// The steps of the last check, or of the one that runs; empty before the first.
    const QVector<NetworkResult>& Results() const { return m_results; }
    bool IsRunning() const { return m_current >= 0; }
    /// When the last check began; not valid before the first.
    const QDateTime& Began() const { return m_began; }
    /// The step that failed, the pipe's left out; null when none did.
    const NetworkResult* Failure() const;

    /// Begins a check by the configuration; one that runs goes on.
    void Start();
    void Cancel();

    /// While somebody watches, the check begins anew when an adapter changes.
    void SetWatched(bool watched);

signals:
    void Changed();

private:
    void BeginStep(int index);
    void EndStep(const NetworkResult& result);
    void LookAtPipe();
    void OnAdaptersSeen();

    const std::shared_ptr<const NetworkProbe> m_probe;
    Workers m_workers;
    Cancellation m_cancellation; // of the step that runs
    std::optional<CheckNetwork> m_check;
    QVector<NetworkResult> m_results;
    int m_current = -1;
    QDateTime m_began;
    QElapsedTimer m_stepTime;
    QTimer m_stepTimer{this};
    QFutureWatcher<NetworkResult> m_step{this};
    QTimer m_adapterTimer{this};
    QFutureWatcher<QVector<NetworkAdapter>> m_adapterLook{this};
    std::optional<QVector<NetworkAdapter>> m_adapters; // when they were looked at last
};

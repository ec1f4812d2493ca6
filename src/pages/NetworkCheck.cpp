#include "pages/NetworkCheck.h"

#include "platform/context/AppConfigData.h"
#include "platform/context/AppContextData.h"

#include <QCoreApplication>
#include <algorithm>
#include <glog/logging.h>

namespace {

constexpr int StepMs = 5000;
constexpr int AdapterLookMs = 2000;
constexpr int EndMs = 500;
// A step that the system does not return from keeps its thread.
constexpr int Threads = 4;

QVector<QUrl> ConfiguredServers(const AppConfigData& config) {
    QStringList servers;
    if (!config.webServer.empty())
        servers += QString::fromStdString(config.webServer).trimmed();
    for (const std::string& server : config.networkServers)
        servers += QString::fromStdString(server).trimmed();
    return CheckNetwork::Servers(servers);
}

} // namespace

NetworkCheck::NetworkCheck(std::shared_ptr<const NetworkProbe> probe, QObject* parent)
    : QObject(parent), m_probe(std::move(probe)), m_workers(Threads) {
    m_stepTimer.setObjectName(QStringLiteral("networkStepTimer"));
    m_stepTimer.setSingleShot(true);
    m_stepTimer.setInterval(StepMs);
    connect(&m_stepTimer, &QTimer::timeout, this, [this] {
        m_cancellation.Cancel();
        NetworkResult late = m_results[m_current];
        late.Set(NetworkFinding::TimedOut);
        EndStep(late);
    });
    connect(&m_step, &QFutureWatcherBase::finished, this, [this] {
        if (IsRunning())
            EndStep(m_step.result());
    });
    m_adapterTimer.setObjectName(QStringLiteral("networkAdapterTimer"));
    m_adapterTimer.setInterval(AdapterLookMs);
    m_adapterLook.setObjectName(QStringLiteral("networkAdapterLook"));
    connect(&m_adapterTimer, &QTimer::timeout, this, [this] {
        if (!m_adapterLook.isRunning())
            m_adapterLook.setFuture(m_workers.Run([probe = m_probe] { return probe->Adapters(); }, {}));
    });
    connect(&m_adapterLook, &QFutureWatcherBase::finished, this, &NetworkCheck::OnAdaptersSeen);
    connect(AppContextData::Instance(), &AppContextData::Changed, this, [this](AppContextData::Field field) {
        if (field != AppContextData::Field::Linked || IsRunning() || m_results.isEmpty())
            return;
        LookAtPipe();
        emit Changed();
    });
}

NetworkCheck::~NetworkCheck() {
    m_cancellation.Cancel();
    m_workers.Join(QDeadlineTimer(EndMs));
}

NetworkCheck* NetworkCheck::OfApplication() {
    return QCoreApplication::instance()->findChild<NetworkCheck*>(QString(), Qt::FindDirectChildrenOnly);
}

const NetworkResult* NetworkCheck::Failure() const {
    const auto failed = std::find_if(m_results.begin(), m_results.end(), [](const NetworkResult& result) {
        return result.state == NetworkState::Failed && result.step != NetworkStep::Pipe;
    });
    return failed == m_results.end() ? nullptr : &*failed;
}

void NetworkCheck::Start() {
    if (IsRunning())
        return;
    const AppConfigData& config = *AppConfigData::Instance();
    m_check.emplace(WebSettings::From(config), ConfiguredServers(config), m_probe);
    m_results = m_check->Plan();
    m_began = m_probe->Now().toLocalTime();
    BeginStep(0);
}

void NetworkCheck::BeginStep(int index) {
    m_current = index;
    NetworkResult& next = m_results[index];
    if (next.step == NetworkStep::Pipe) {
        m_current = -1;
        LookAtPipe();
        const NetworkResult* failure = Failure();
        LOG(INFO) << "NetworkCheck::BeginStep has ended, "
                  << (failure ? "failed at step " + std::to_string(failure - m_results.constData() + 1)
                              : std::string("no step failed"));
    } else {
        next.state = NetworkState::Running;
        m_cancellation = {};
        m_stepTime.start();
        m_stepTimer.start();
        NetworkResult broken = next;
        broken.Set(NetworkFinding::TimedOut);
        m_step.setFuture(
            m_workers.Run([check = *m_check, next,
                           control = TaskControl{m_cancellation, {}}] { return check.Take(next, control); },
                          broken));
    }
    emit Changed();
}

void NetworkCheck::EndStep(const NetworkResult& result) {
    m_stepTimer.stop();
    m_results[m_current] = result;
    m_results[m_current].milliseconds = m_stepTime.elapsed();
    int next = m_current + 1;
    if (result.state == NetworkState::Failed)
        for (; m_results[next].step != NetworkStep::Pipe; ++next)
            m_results[next].Set(NetworkFinding::Skipped);
    BeginStep(next);
}

void NetworkCheck::Cancel() {
    if (!IsRunning())
        return;
    m_cancellation.Cancel();
    m_stepTimer.stop();
    for (int i = std::exchange(m_current, -1); i < m_results.size(); ++i)
        m_results[i].Set(NetworkFinding::Cancelled);
    emit Changed();
}

// Known without asking, and the only source of it.
void NetworkCheck::LookAtPipe() {
    m_results.last().Set(AppContextData::Instance()->Linked() ? NetworkFinding::PipeUp
                                                              : NetworkFinding::PipeDown);
}

void NetworkCheck::SetWatched(bool watched) {
    m_adapters.reset();
    if (watched)
        m_adapterTimer.start();
    else
        m_adapterTimer.stop();
}

void NetworkCheck::OnAdaptersSeen() {
    if (!m_adapterTimer.isActive())
        return;
    const QVector<NetworkAdapter> seen = m_adapterLook.result();
    const bool hasChanged = m_adapters && *m_adapters != seen;
    m_adapters = seen;
    if (!hasChanged)
        return;
    Cancel();
    Start();
}

#include "AgentUpdates.h"

#include "platform/ProductConstants.h"

namespace {

constexpr int StepMs = 300;
constexpr int StepPercent = 10;
constexpr int BadPercent = 40; // where a download stops that does not come to its end
constexpr double UnknownSize = 50e6;

} // namespace

AgentUpdates::AgentUpdates(AgentServer& server, AgentService& service)
    : m_server(server), m_service(service) {
    m_version.name = Product::Name;
    m_timer.setInterval(StepMs);
    connect(&m_timer, &QTimer::timeout, this, &AgentUpdates::GoOn);
    connect(&m_server, &AgentServer::MessageReceived, this, [this](PipeKey key) {
        if (key == PipeKey::OtaUpdateRequest && !m_service.Answers(key))
            Begin();
    });
}

void AgentUpdates::Offer(const OtaUpdateVersionInfo& version) {
    m_timer.stop();
    const std::string notes = m_version.updateDesc;
    m_version = version;
    m_version.name = Product::Name;
    m_version.hasUpdate = !version.versionCode.empty();
    m_version.updateDesc = notes;
    Tell();
}

void AgentUpdates::SetNotes(const std::string& notes) {
    m_version.updateDesc = notes;
    Tell();
}

void AgentUpdates::Tell() {
    m_service.SetUpdate(m_version);
}

void AgentUpdates::Begin() {
    m_percent = 0;
    if (m_course != Course::None)
        m_timer.start();
}

void AgentUpdates::GoOn() {
    m_percent += StepPercent;
    const bool isBad = m_course == Course::Stall || m_course == Course::Fail;
    if (m_percent <= (isBad ? BadPercent : 100))
        return TellProgress(m_percent);
    m_timer.stop();
    if (m_course != Course::Stall)
        TellEnd(!isBad);
}

void AgentUpdates::TellProgress(int percent) {
    const double size = m_version.fileSize > 0 ? static_cast<double>(m_version.fileSize) : UnknownSize;
    OtaDownloadProgressInfo progress;
    progress.progress = percent;
    progress.dlcurrent = size * percent / 100;
    progress.dltotal = m_course == Course::Unsized ? 0 : size;
    m_server.Send(PipeKey::OtaDownloadProgress, progress.WriteToString());
}

void AgentUpdates::TellEnd(bool success) {
    m_timer.stop();
    OtaDownloadProgressInfo progress;
    progress.finish = true;
    progress.success = success;
    progress.progress = success ? 100 : m_percent;
    m_server.Send(PipeKey::OtaDownloadProgress, progress.WriteToString());
}

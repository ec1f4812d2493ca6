#include "controllers/PopupBlocker.h"

#include "platform/link/PipeSendEvent.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <thread>
#include <utility>

namespace {

constexpr std::int32_t BlockedType = 1;
constexpr int MostClosing = 32;

/// Keeps threads from the application object when that ends.
struct ApplicationGuard {
    std::mutex mutex;
    bool hasEnded = false;
};

ApplicationGuard& Guard() {
    static auto& guard = *new ApplicationGuard; // threads may outlive what is static
    return guard;
}

void ApplicationEnds() {
    const std::lock_guard<std::mutex> lock(Guard().mutex);
    Guard().hasEnded = true;
}

void Post(UploadPopupsParams& report) {
    const std::lock_guard<std::mutex> lock(Guard().mutex);
    if (!Guard().hasEnded)
        QCoreApplication::postEvent(QCoreApplication::instance(),
                                    new PipeSendEvent(PipeKey::PopupDetected, report));
}

UploadPopupsParams ReportOf(const PopupsTypeParams& rule) {
    UploadPopupsParams report;
    report.type = BlockedType;
    report.appName = rule.appName;
    report.popName = rule.popName;
    report.popClassName = rule.popClassName;
    report.popProductName = rule.popProductName;
    report.popSignName = rule.popSignName;
    return report;
}

} // namespace

PopupBlocker::PopupBlocker(PopupRules& rules, const SystemDesktop& desktop, const SystemProcesses& processes,
                           const SystemPrograms& programs, const Clock& clock)
    : m_rules(rules), m_desktop(desktop), m_processes(processes), m_clock(clock), m_productNames(programs) {
    static const bool isGuarded = (qAddPostRoutine(ApplicationEnds), true);
    Q_UNUSED(isGuarded)
}

void PopupBlocker::Look(WId window) {
    if (!m_desktop.IsVisible(window) || !m_desktop.IsEnabled(window) || m_desktop.IsChildWindow(window))
        return;
    const QString file = m_processes.GetProcessFilePath(m_desktop.ProcessOf(window));
    if (file.isEmpty())
        return;
    Shown shown{window,
                {QFileInfo(file).fileName(), m_desktop.GetWindowClassName(window),
                 m_desktop.GetWindowTitle(window), QString()}};
    if (!m_rules.MayMatch(shown.window))
        return;
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto [work, isNew] = m_work.try_emplace(file);
    work->second.push_back(std::move(shown));
    if (isNew)
        std::thread([self = shared_from_this(), file] { self->WorkOn(file); }).detach();
}

void PopupBlocker::WorkOn(const QString& file) {
    for (;;) {
        Shown shown;
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            const auto work = m_work.find(file);
            if (work->second.empty()) {
                m_work.erase(work);
                return;
            }
            shown = std::move(work->second.front());
            work->second.pop_front();
        }
        shown.window.productName = m_productNames.NameOf(file);
        Block(shown, file);
    }
}

void PopupBlocker::Block(const Shown& shown, const QString& file) {
    const std::optional<PopupsTypeParams> rule = m_rules.FirstMatch(shown.window);
    if (!rule)
        return;
    UploadPopupsParams report = ReportOf(*rule);
    report.popDirectory = QDir::toNativeSeparators(QFileInfo(file).absolutePath()).toStdString();
    report.updateTime = m_clock.Now().toMSecsSinceEpoch();
    Post(report);
    Close(shown.id);
}

// A thread for each window, because the next one must not wait for the answer. Too many that nobody answers
// are as bad: beyond their number the answer is not waited for.
void PopupBlocker::Close(WId window) {
    if (m_closing >= MostClosing)
        return m_desktop.RequestClose(window);
    ++m_closing;
    std::thread([self = shared_from_this(), window] {
        self->m_desktop.Close(window);
        --self->m_closing;
    }).detach();
}

#include "popups/PickableWindow.h"

#include "platform/application/PopupWindow.h"
#include "platform/context/AppConfigData.h"
#include "platform/system/SystemDesktop.h"
#include "platform/system/SystemProcesses.h"
#include "platform/system/SystemPrograms.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <algorithm>

namespace {

bool IsPartClass(const QString& className) {
    static const QSet<QString> classes = [] {
        QSet<QString> all;
        for (const char* name : {"OleMainThreadWndClass",
                                 "MDIClient",
                                 "DDEMLEvent",
                                 "Message",
                                 "#32768",
                                 "#32769",
                                 "#32771",
                                 "#32772",
                                 "Progman",
                                 "Shell_TrayWnd",
                                 "CabinetWClass",
                                 "TaskManagerWindow",
                                 "PerryShadowWnd",
                                 "tooltips_class32",
                                 "msctls_trackbar32",
                                 "msctls_updown32",
                                 "msctls_progress32",
                                 "msctls_hotkey32",
                                 "SysAnimate32",
                                 "SysMonthCal32",
                                 "SysDateTimePick32",
                                 "SysHeader32",
                                 "SysListView32",
                                 "SysTreeView32",
                                 "ComboBoxEx32",
                                 "SysTabControl32",
                                 "SysIPAddress32",
                                 "SysPager",
                                 "NativeFontCtl",
                                 "Button",
                                 "Static",
                                 "Edit",
                                 "ListBox",
                                 "ComboBox",
                                 "ScrollBar",
                                 "ToolbarWindow32",
                                 "msctls_statusbar32",
                                 "ReBarWindow32",
                                 "SysLink",
                                 "ComboLBox",
                                 "RichEdit",
                                 "RichEdit20A",
                                 "GDI+ Hook Window Class",
                                 "DWM_THUMBNAIL_CAPTURE",
                                 "CLIPBRDWNDCLASS",
                                 "ConsoleWindowClass",
                                 "WorkerW",
                                 "SysShadow",
                                 "DirectUIHWND",
                                 "CtrlNotifySink",
                                 "ShellTabWindowClass",
                                 "Sogou_TSF_UI",
                                 "Internet Explorer_Hidden"})
            all.insert(QString::fromLatin1(name));
        return all;
    }();
    return classes.contains(className);
}

bool IsTool(const QString& fileName) {
    static const QSet<QString> tools{QStringLiteral("ScriptedSandbox64.exe"), QStringLiteral("devenv.exe"),
                                     QStringLiteral("spyxx.exe"), QStringLiteral("spyxx_amd64.exe")};
    return tools.contains(fileName);
}

} // namespace

PopupSystem PopupSystem::Native() {
    return {SystemDesktop::Native(), SystemProcesses::Native(), SystemPrograms::Native()};
}

OwnPublisher OwnPublisher::Configured() {
    const AppConfigData& config = *AppConfigData::Instance();
    OwnPublisher own{QString::fromStdString(config.publisherSuffix), {}};
    for (const std::string& signer : config.publisherSigners)
        own.signers.push_back(QString::fromStdString(signer));
    return own;
}

std::vector<WId> PickableWindow::Candidates(const PopupSystem& system, WId mask) {
    std::vector<WId> windows = system.desktop.TopLevelWindows().value_or(std::vector<WId>());
    windows.erase(std::remove_if(windows.begin(), windows.end(),
                                 [&](WId id) {
                                     return id == mask || !system.desktop.IsVisible(id) ||
                                            !system.desktop.IsEnabled(id) ||
                                            system.desktop.GetWindowExStyle(id).takesNoActivation;
                                 }),
                  windows.end());
    return windows;
}

std::optional<PickableWindow> PickableWindow::Read(const PopupSystem& system, WId id) {
    PickableWindow window;
    window.id = id;
    window.process = system.desktop.ProcessOf(id);
    window.path = system.processes.GetProcessFilePath(window.process);
    if (window.path.isEmpty())
        return std::nullopt;
    window.title = system.desktop.GetWindowTitle(id);
    window.className = system.desktop.GetWindowClassName(id);
    const std::optional<QRect> place = system.desktop.GetWindowGeometry(id);
    if (!place)
        return std::nullopt;
    window.place = *place;
    return window;
}

// A window whose program asks "Save changes?" is disabled meanwhile, and open all the same.
QSet<QString> PickableWindow::KeysOnScreen() {
    const PopupSystem system = PopupSystem::Native();
    QSet<QString> keys;
    for (const WId id : system.desktop.TopLevelWindows().value_or(std::vector<WId>()))
        if (const auto window = system.desktop.IsVisible(id) ? Read(system, id) : std::nullopt)
            keys.insert(PopupWindow{window->FileName(), window->className, window->title, {}}.Key());
    return keys;
}

bool PickableWindow::IsUncovered(const PopupSystem& system) const {
    const auto self = static_cast<quint32>(QCoreApplication::applicationPid());
    for (const WId other : system.desktop.TopLevelWindows().value_or(std::vector<WId>())) {
        if (other == id)
            return true;
        if (system.desktop.IsVisible(other) && system.desktop.ProcessOf(other) != self &&
            system.desktop.GetWindowGeometry(other).value_or(QRect()).intersects(place))
            return false;
    }
    return false; // it has gone
}

QString PickableWindow::FileName() const {
    return QFileInfo(QDir::fromNativeSeparators(path)).fileName();
}

QString PickableWindow::Directory() const {
    return QFileInfo(QDir::fromNativeSeparators(path)).absolutePath();
}

bool PickableWindow::IsPart() const {
    const bool isFrameOfShell = className == QLatin1String("ApplicationFrameWindow") &&
                                FileName().compare(QLatin1String("explorer.exe"), Qt::CaseInsensitive) == 0;
    return isFrameOfShell || IsPartClass(className) ||
           className.startsWith(QLatin1String("SoPY"), Qt::CaseInsensitive);
}

bool PickableWindow::IsRefused(const ProgramFacts& facts, const OwnPublisher& own, quint32 self) const {
    const bool isOfSystem = path.startsWith(QLatin1String("C:\\WINDOWS"), Qt::CaseInsensitive) ||
                            facts.product.compare(QStringLiteral("Microsoft® Windows® Operating System"),
                                                  Qt::CaseInsensitive) == 0;
    const bool isOwn = (!own.fileSuffix.isEmpty() && path.endsWith(own.fileSuffix, Qt::CaseInsensitive)) ||
                       (!facts.signer.isEmpty() &&
                        std::find(own.signers.begin(), own.signers.end(), facts.signer) != own.signers.end());
    return IsPart() ||
           path.startsWith(QLatin1String("C:\\PROGRAM FILES\\WINDOWSAPPS"), Qt::CaseInsensitive) ||
           isOfSystem || IsTool(FileName()) || isOwn || process == self;
}

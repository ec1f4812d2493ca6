#include "app/UserApp.h"

#include "app/MainWindow.h"
#include "common/CrashRecords.h"
#include "common/LoggerGuard.h"
#include "common/SentryGuard.h"
#include "controllers/MainController.h"
#include "controllers/MessageController.h"
#include "controllers/PopupsController.h"
#include "controllers/SettingsLockController.h"
#include "lock/UDeviceScreenLock.h"
#include "pages/ActHistory.h"
#include "pages/LiveChannels.h"
#include "pages/NetworkCheck.h"
#include "pages/UpdateStore.h"
#include "platform/ProductConstants.h"
#include "platform/application/QtSingleApplication.h"
#include "platform/application/QuitDeadline.h"
#include "platform/application/Watchdog.h"
#include "platform/context/AppConfigData.h"
#include "platform/context/AppHelper.h"
#include "platform/context/DevicePermissions.h"
#include "platform/context/ProcessEnvironment.h"
#include "platform/context/RyxPath.h"
#include "platform/link/PipeClientService.h"
#include "platform/security/LogText.h"
#include "platform/system/SystemSession.h"
#include "platform/system/SystemWindows.h"
#include "platform/web/RyxWebClient.h"
#include "popups/PickableWindow.h"
#include "popups/PopupHistory.h"

#include <QDir>
#include <QElapsedTimer>
#include <QMap>
#include <QSharedMemory>
#include <cstring>
#include <glog/logging.h>
#include <set>

namespace {

const QString ArgumentSeparator = QStringLiteral("<velmora_ryx>");
constexpr int ForwardTimeoutMs = 5000;

/// Takes the session's marker for this process; false when another process holds it.
bool TakeSessionMarker(QSharedMemory& marker) {
    const QString key = SystemSession::Native().OwnName(QString::fromLatin1(Product::ShellMarker));
    SystemSession::Native().ReleaseOrphanedSharedMemory(key);
    marker.setNativeKey(key);
    if (marker.attach(QSharedMemory::ReadWrite))
        return false;

    const auto processId = static_cast<quint32>(QCoreApplication::applicationPid());
    marker.create(sizeof processId, QSharedMemory::ReadWrite);
    marker.lock();
    if (marker.data())
        std::memcpy(marker.data(), &processId, sizeof processId);
    marker.unlock();
    return true;
}

std::wstring CrashDatabasePath() {
    return (QDir(QDir::tempPath()).absolutePath() + QStringLiteral("/sentry-ryx-user")).toStdWString();
}

/// Knows whether the program is to end although the screen is locked: the user session ends, or an
/// administrator's installer asks for it. Told to quit then, the program does so, whatever its windows say.
class RightfulEnd : public QObject {
public:
    explicit RightfulEnd(QGuiApplication& application) {
        connect(&application, &QGuiApplication::commitDataRequest, this, [this] { m_askedToSave.start(); });
        application.installEventFilter(this);
        SystemSession::Native().OnQuitRequested(*this, [this] {
            LOG(INFO) << "UserApp::Run ends, as an installer asks";
            m_isRequested = true;
            QCoreApplication::exit();
        });
    }

    // A request to save counts for a while only: the end that it announced may have been called off.
    bool IsNear() const {
        return m_isRequested ||
               SystemSession::Native().IsEnding(m_askedToSave.isValid() && !m_askedToSave.hasExpired(EndMs));
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched == qApp && event->type() == QEvent::Quit && IsNear())
            QCoreApplication::exit();
        return QObject::eventFilter(watched, event);
    }

private:
    static constexpr int EndMs = 60000;
    QElapsedTimer m_askedToSave;
    bool m_isRequested = false;
};

/// Runs the event loop until it is to end, or whatever else ends it while the screen is not locked: a
/// message that any program may send is no way past the lock.
int Execute(QApplication& application, const UDeviceScreenLock& screenLock) {
    const RightfulEnd end(application);
    for (;;) {
        const int result = QApplication::exec();
        if (!screenLock.isVisible() || end.IsNear())
            return result;
        LOG_FIRST_N(WARNING, 10)
            << "UserApp::Execute goes on: the screen is locked, and the session does not end";
    }
}

/// Has the acts of those who do something for the organisation written down.
void Follow(ActHistory& acts, const UDeviceScreenLock& screenLock, const MessageController& message) {
    using Act = ActHistory::Act;
    QObject::connect(&screenLock, &UDeviceScreenLock::VisibleChanged, &acts,
                     [&acts](bool visible) { acts.Add(visible ? Act::Locked : Act::Unlocked); });
    QObject::connect(&message, &MessageController::MessageCame, &acts, [&acts] { acts.Add(Act::Message); });
    QObject::connect(&message, &MessageController::HourFormatSet, &acts, &ActHistory::AddHourFormat);
    QObject::connect(&message, &MessageController::WallpaperSet, &acts,
                     [&acts] { acts.Add(Act::Wallpaper); });
}

/// The link runs while this lives.
struct PipeLinkGuard {
    PipeLinkGuard() { PipeClientService::Instance()->Start(); }
    ~PipeLinkGuard() { PipeClientService::Instance()->Stop(); }
    Q_DISABLE_COPY(PipeLinkGuard)
};

} // namespace

int UserApp::Run(int argc, char** argv) {
    ProcessEnvironment::Close();
    SystemSession::Native().InitializeCom();
    SystemSession::Native().PrepareApplication();
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    // Windows that stay open would otherwise veto log-off and shutdown.
    QGuiApplication::setFallbackSessionManagementEnabled(false);
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QuitDeadline quitDeadline;
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments.append(SystemSession::Native().FromAnsi(argv[i]));
    int ownNameOnly = 1; // Qt takes options that would change how the program looks and what it loads
    QtSingleApplication application(QStringLiteral("velmora_ryx_windows_shell"), ownNameOnly, argv);
    if (application.isRunning()) {
        application.sendMessage(arguments.join(ArgumentSeparator), ForwardTimeoutMs);
        return 0;
    }
    application.setProperty("IsUser", true);
    SystemWindows::Native().AllowTakingForeground();

    const LoggerGuard logger(true, "User");
    SystemSession::Native().ProtectProcess();
    SystemSession::Native().QuitOnSignals();
    LOG_IF(WARNING, !application.StartProblem().isEmpty())
        << "UserApp::Run " << LogText(application.StartProblem());
    QSharedMemory marker;
    if (!TakeSessionMarker(marker)) {
        LOG(INFO) << "UserApp::Run application is already running!";
        return 0;
    }
    const SentryGuard sentry(std::string("VelmoraRYX@User@").append(Product::Version), CrashDatabasePath());
    CrashRecords::Start(QString::fromStdWString(RyxPath::GetRyxLogDir()));
    QGuiApplication::setQuitOnLastWindowClosed(false);

    UserApp app;
    connect(&application, &QtSingleApplication::messageReceived, &app,
            &UserApp::OnOtherInstanceMessageReceived);

    AppHelper::InitQss();
    AppHelper::InitLanguage();
    AppHelper::LoadConfig();
    RyxWebClient::Instance()->Configure(WebSettings::From(*AppConfigData::Instance()));

    // A lock in force comes before everything that reads files or makes windows.
    Watchdog watchdog;
    UDeviceScreenLock screenLock;
    connect(&screenLock, &UDeviceScreenLock::VisibleChanged, &watchdog, &Watchdog::SetLocked);
    connect(&screenLock, &UDeviceScreenLock::Lost,
            [] { Watchdog::EndProcess("the lock's window was destroyed, only a new start can lock again"); });
    screenLock.Resume();

    PopupsController popups;
    MainController main;
    SettingsLockController settings;
    MessageController message;
    const QMap<QString, ControllerBase*> controllers{{QStringLiteral("popups"), &popups},
                                                     {QStringLiteral("ryx"), &main},
                                                     {QStringLiteral("settings"), &settings},
                                                     {QStringLiteral("message"), &message}};
    application.setProperty("controllers", QVariant::fromValue(controllers));
    for (ControllerBase* controller : std::set<ControllerBase*>(controllers.begin(), controllers.end()))
        controller->SetService(PipeClientService::Instance());
    const QString dataFolder = QString::fromStdWString(RyxPath::GetUserDataDir());
    const PopupHistory popupHistory(dataFolder + QStringLiteral("/popups.json"),
                                    &PickableWindow::KeysOnScreen, Clock::System(), &application);
    const UpdateStore updates(Clock::System(), &application);
    const NetworkCheck networkCheck(NetworkProbe::Native(), &application);
    const DevicePermissions permissions(dataFolder + QStringLiteral("/permissions.json"), &application);
    const LiveChannels channels(&application);
    ActHistory acts(dataFolder + QStringLiteral("/acts.json"), permissions, Clock::System(), &application);
    Follow(acts, screenLock, message);
    const PipeLinkGuard link;

    MainWindow window;
    connect(&window, &MainWindow::MessagesRequested, &message, &MessageController::OpenMessages);
    application.setActivationWindow(&window, true);
    if (arguments.contains(QStringLiteral("-hide")))
        SystemWindows::Native().CreateHidden(window);
    else
        window.show();
    RyxPath::RemoveOldTempFiles();
    message.ShowUnread();
    const int exitCode = Execute(application, screenLock);
    quitDeadline.Begin(exitCode);
    return exitCode;
}

void UserApp::OnOtherInstanceMessageReceived(const QString& message) {
    if (message.isEmpty())
        if (QWidget* window = static_cast<QtSingleApplication*>(qApp)->activationWindow())
            window->show();
    LOG(INFO) << "UserApp::OnOtherInstanceMessageReceived Other instance commandline: "
              << LogText(QString(message).replace(ArgumentSeparator, QStringLiteral(" ")));
}

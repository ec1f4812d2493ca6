#include "gallery/Scenes.h"

#include "app/MainWindow.h"
#include "app/Pages.h"
#include "app/ULauncher.h"
#include "app/UMenu.h"
#include "controllers/MainController.h"
#include "gallery/ControlSheet.h"
#include "gallery/ScriptedProbe.h"
#include "lock/UBodySettingLockModal.h"
#include "lock/UDeviceScreenLock.h"
#include "lock/USettingsLockMaskModal.h"
#include "pages/ActHistory.h"
#include "pages/LiveChannels.h"
#include "pages/NetworkCheck.h"
#include "pages/UpdateStore.h"
#include "platform/context/AppConfigData.h"
#include "platform/context/AppContextData.h"
#include "platform/context/DevicePermissions.h"
#include "platform/link/PipeClientService.h"
#include "platform/system/SystemPipe.h"
#include "popups/PopupHistory.h"
#include "widgets/UAlert.h"
#include "widgets/UToast.h"

#include <QApplication>
#include <QComboBox>
#include <QDeadlineTimer>
#include <QDir>
#include <QLocalServer>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QSystemTrayIcon>
#include <QTimer>

namespace {

constexpr QSize DesignSize(1280, 720);

std::string Status(int status) {
    return "{\"status\": " + std::to_string(status) + "}";
}

constexpr int Connected = 2;
constexpr int Disconnected = 4;
constexpr int Connecting = 5;

void GoTo(Stage& stage, const char* page) {
    stage.Window().findChild<UMenu*>()->SwitchTo(PageIndex(page));
    WaitFor([] { return !NetworkCheck::OfApplication()->IsRunning(); });
}

Scene Page(const PageEntry& page) {
    return {QStringLiteral("page-") + QLatin1String(page.id), true, [id = page.id](Stage& stage) {
                stage.Receive(2, Status(Connected));
                stage.Receive(46, R"({"liveChannelList": [{"id": 1, "name": "News"}]})");
                GoTo(stage, id);
            }};
}

Scene Link(const QString& name, int status) {
    return {name, true, [status](Stage& stage) {
                stage.Receive(2, Status(status));
                GoTo(stage, PageId::Network);
            }};
}

Scene Toast(const QString& name, UToast::Kind kind, const char* key) {
    return {name, true, [kind, key](Stage& stage) {
                stage.Receive(2, Status(Connected));
                auto* toast = new UToast(&stage.Window());
                toast->SetKind(kind);
                toast->SetMessage(QCoreApplication::translate("Scenes", key));
                toast->show();
            }};
}

UAlert* Alert(Stage& stage, const char* title, const char* content) {
    stage.Receive(2, Status(Connected));
    auto* alert = new UAlert(&stage.Window());
    alert->SetTitle(QCoreApplication::translate("Scenes", title));
    alert->SetContent(QCoreApplication::translate("Scenes", content));
    return alert;
}

UDeviceScreenLock& Lock(Stage& stage, const char* body) {
    auto& lock = stage.Show(std::make_unique<UDeviceScreenLock>());
    stage.Receive(33, body);
    lock.setGeometry(QRect(QPoint(), DesignSize));
    return lock;
}

Scene SettingsMask(const QString& name, int wrongPasswords) {
    return {name, true, [wrongPasswords](Stage& stage) {
                static ControllerBase nobody;
                auto& mask = stage.Show(std::make_unique<USettingsLockMaskModal>(nobody));
                mask.BringForward();
                mask.setGeometry(QRect(QPoint(), DesignSize));
                for (int i = 0; i < wrongPasswords; ++i)
                    mask.findChild<QPushButton*>(QStringLiteral("okButton"))->click();
            }};
}

/// What waits for the end of a flood of messages.
void ShowLateUpdates() {
    QVector<QPointer<QTimer>> updates;
    for (const QWidget* window : QApplication::topLevelWidgets())
        for (QTimer* update : window->findChildren<QTimer*>(QStringLiteral("lateUpdate")))
            updates.append(update);
    for (const QPointer<QTimer>& update : updates) {
        if (!update || !update->isActive())
            continue;
        update->stop(); // so that nothing waits again
        QMetaObject::invokeMethod(update.data(), "timeout");
    }
}

QVector<Scene> PageScenes() {
    QVector<Scene> scenes;
    for (const PageEntry& page : Pages())
        scenes.append(Page(page));
    return scenes;
}

QVector<Scene> ShellScenes() {
    return {
        {QStringLiteral("launcher"), false, [](Stage&) {}},
        {QStringLiteral("launcher-narrow"), false, [](Stage& stage) { stage.Window().resize(640, 480); }},
        {QStringLiteral("page-enrolment-not-enrolled"), false,
         [](Stage& stage) { stage.Window().findChild<ULauncher*>()->EnrolRequested(); }},
        Link(QStringLiteral("link-connected"), Connected),
        Link(QStringLiteral("link-connecting"), Connecting),
        Link(QStringLiteral("link-disconnected"), Disconnected),
        {QStringLiteral("link-no-service"), true,
         [](Stage& stage) {
             GoTo(stage, PageId::Network);
             AppContextData::Instance()->SetLinked(false);
         }},
        {QStringLiteral("launcher-no-service"), false,
         [](Stage&) { AppContextData::Instance()->SetLinked(false); }},
        {QStringLiteral("menu-managed-settings"), true,
         [](Stage& stage) {
             stage.Receive(2, Status(Connected));
             stage.Receive(77, R"({"keyList": ["screenshot"]})");
         }},
        {QStringLiteral("menu-compact"), true,
         [](Stage& stage) {
             stage.Receive(2, Status(Disconnected));
             stage.Receive(77, R"({"keyList": ["screenshot"]})");
             stage.Window().resize(800, 600);
         }},
        {QStringLiteral("window-smallest"), true,
         [](Stage& stage) {
             stage.Receive(2, Status(Connecting));
             stage.Window().resize(stage.Window().minimumSize());
         }},
        {QStringLiteral("window-small"), true,
         [](Stage& stage) {
             stage.Receive(2, Status(Connected));
             Settle();
             stage.Window().resize(640, 360);
         }},
        {QStringLiteral("header-long-name"), true,
         [](Stage&) {
             AppContextData::Instance()->SetDeviceName("Interactive display in the great lecture hall on the "
                                                       "second floor of the northern building, left side");
         }},
        {QStringLiteral("busy-binding"), true,
         [](Stage& stage) {
             stage.Receive(2, Status(Connected));
             stage.Window().BeginBinding(RyxWindow::BindAction::Bind);
         }},
        {QStringLiteral("settings-language-list"), true,
         [](Stage& stage) {
             GoTo(stage, PageId::Settings);
             Settle();
             auto* box = stage.Window().findChild<QComboBox*>(QStringLiteral("languageBox"));
             box->showPopup();
         }},
        {QStringLiteral("tray-menu"), true,
         [](Stage& stage) {
             stage.Receive(2, Status(Connected));
             QMenu* menu = stage.Window().findChild<QSystemTrayIcon*>()->contextMenu();
             menu->popup(QPoint());
         }},
    };
}

QVector<Scene> NoticeScenes() {
    return {
        {QStringLiteral("toast-wifi"), true, [](Stage& stage) { stage.Receive(74, "Staff network"); }},
        {QStringLiteral("toast-channel"), true, [](Stage& stage) { stage.Receive(75); }},
        Toast(QStringLiteral("toast-success"), UToast::Kind::Success, "launcher_step_done"),
        Toast(QStringLiteral("toast-error"), UToast::Kind::Error, "menu_mark_disconnected"),
        Toast(QStringLiteral("toast-long"), UToast::Kind::Info, "launcher_sentence"),
        {QStringLiteral("alert-tell"), true,
         [](Stage& stage) { Alert(stage, "menu_mark_disconnected", "network_sentence")->show(); }},
        {QStringLiteral("alert-ask"), true,
         [](Stage& stage) {
             UAlert* alert = Alert(stage, "launcher_button", "launcher_step_code");
             alert->SetCancelText(QCoreApplication::translate("Scenes", "button_back"));
             alert->show();
         }},
        {QStringLiteral("alert-dangerous"), true,
         [](Stage& stage) {
             UAlert* alert = Alert(stage, "status_not_enrolled", "launcher_sentence");
             alert->SetCancelText(QCoreApplication::translate("Scenes", "button_back"));
             alert->SetDangerous(true);
             alert->show();
         }},
    };
}

QVector<Scene> OtherScenes() {
    return {
        {QStringLiteral("controls"), true,
         [](Stage& stage) {
             auto& sheet = stage.Show(std::make_unique<ControlSheet>());
             sheet.resize(DesignSize);
             sheet.show();
         }},
        {QStringLiteral("lock-message"), true, [](Stage& stage) { Lock(stage, "{}"); }},
        {QStringLiteral("lock-message-timed"), true,
         [](Stage& stage) { Lock(stage, R"({"endAt": "23:59"})"); }},
        {QStringLiteral("lock-password"), true,
         [](Stage& stage) {
             UDeviceScreenLock& lock = Lock(stage, "{}");
             lock.findChild<QPushButton*>(QStringLiteral("enterPasswordButton"))->click();
         }},
        {QStringLiteral("lock-low"), true,
         [](Stage& stage) {
             UDeviceScreenLock& lock = Lock(stage, "{}");
             lock.findChild<QPushButton*>(QStringLiteral("enterPasswordButton"))->click();
             lock.setGeometry(0, 0, 615, 346);
         }},
        {QStringLiteral("lock-waits-for-service"), true,
         [](Stage& stage) {
             UDeviceScreenLock& lock = Lock(stage, "{}");
             AppContextData::Instance()->SetUnlockPassword({});
             lock.findChild<QPushButton*>(QStringLiteral("enterPasswordButton"))->click();
         }},
        SettingsMask(QStringLiteral("settings-mask"), 0),
        SettingsMask(QStringLiteral("settings-mask-error"), 1),
        SettingsMask(QStringLiteral("settings-mask-locked-out"), 6),
        {QStringLiteral("settings-dialog"), true,
         [](Stage& stage) {
             GoTo(stage, PageId::Settings);
             (new UBodySettingLockModal(&stage.Window()))->show();
         }},
        {QStringLiteral("settings-dialog-low"), true,
         [](Stage& stage) {
             stage.Window().resize(700, 560);
             Settle();
             (new UBodySettingLockModal(&stage.Window()))->show();
         }},
    };
}

} // namespace

Stage::Stage(bool enrolled) : m_controller(std::make_unique<MainController>()) {
    AppContextData& context = *AppContextData::Instance();
    context.Reset();
    context.SetEnrolled(enrolled);
    context.SetLinked(true);
    context.SetUnlockPassword("a hash");
    context.SetDeviceName("Lecture hall 3");
    if (enrolled) {
        context.SetAdminAccount("admin@school.example");
        context.SetSchoolCode("A1B2C3");
        context.SetDeviceTags({"second floor", "physics"});
    }
    AppConfigData::Instance()->dataFolder = QDir::temp().filePath(QStringLiteral("ryx-scenes")).toStdString();
    AppConfigData::Instance()->organisation = "Northern Comprehensive School";

    m_controller->SetService(PipeClientService::Instance());
    const QMap<QString, ControllerBase*> controllers{{QStringLiteral("ryx"), m_controller.get()}};
    qApp->setProperty("controllers", QVariant::fromValue(controllers));
    m_popups = std::make_unique<PopupHistory>(
        QString(), [] { return QSet<QString>(); }, Clock::System(), qApp);
    AppConfigData& config = *AppConfigData::Instance();
    config.webServer = "https://device.school.example/api";
    config.supportName = "IT desk of the school";
    config.supportTelephone = "+44 20 7946 0018";
    config.supportMail = "it@school.example";
    config.supportPage = "https://help.school.example";
    m_network = std::make_shared<ScriptedProbe>();
    m_updates = std::make_unique<UpdateStore>(Clock::System(), qApp);
    m_networkCheck = std::make_unique<NetworkCheck>(m_network, qApp);
    m_permissions = std::make_unique<DevicePermissions>(QString(), qApp);
    m_channels = std::make_unique<LiveChannels>(qApp);
    m_acts = std::make_unique<ActHistory>(QString(), *m_permissions, Clock::System(), qApp);
    m_window = std::make_unique<MainWindow>();
    m_window->resize(1280, 720); // also where the screen is smaller
    m_window->show();
    Settle();
}

Stage::~Stage() {
    m_owner.reset();
    m_other.reset();
    m_window.reset();
    if (m_service) {
        PipeClientService::Instance()->Stop();
        Settle(); // so that nobody is told of it later
    }
    qApp->setProperty("controllers", QVariant());
}

void Stage::ConnectLink() {
    m_service = std::make_unique<QLocalServer>();
    m_service->setSocketOptions(QLocalServer::UserAccessOption); // Wine knows no owner of a pipe without any
    m_service->listen(QStringLiteral("ryx-scene-%1").arg(QCoreApplication::applicationPid()));
    PipeClientService& link = *PipeClientService::Instance();
    link.SetServer({m_service->serverName(), SystemPipe::Native().CurrentAccount()});
    link.Start();
    while (!link.IsConnected())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void Stage::Receive(int key, const std::string& body) {
    PipeClientService::Instance()->Deliver(static_cast<PipeKey>(key), body);
    ShowLateUpdates();
}

QWidget& Stage::Subject() {
    if (m_shown)
        return *m_shown;
    if (m_other)
        return *m_other;
    if (QWidget* popup = QApplication::activePopupWidget())
        return *popup;
    return *m_window;
}

QVector<Scene> AllScenes() {
    return PageScenes() + ShellScenes() + NoticeScenes() + EnrollPageScenes() + EnrollScenes() +
           FeedbackScenes() + MessageScenes() + PopupScenes() + SettingScenes() + StatusScenes() +
           OtherScenes();
}

bool WaitFor(const std::function<bool()>& condition) {
    const QDeadlineTimer deadline(10000);
    while (!condition() && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 10);
    return condition();
}

void Settle() {
    ShowLateUpdates();
    const auto places = [] {
        QVector<QRect> all;
        for (const QWidget* widget : QApplication::allWidgets())
            all.append(widget->geometry());
        return all;
    };
    // One layout may cause the next, and some systems tell of a new size a moment later.
    constexpr int RestingRounds = 3, MostRounds = 100;
    QVector<QRect> before;
    for (int round = 0, resting = 0; round < MostRounds && resting < RestingRounds; ++round) {
        QCoreApplication::sendPostedEvents(nullptr, 0);
        QCoreApplication::processEvents();
        const QVector<QRect> now = places();
        resting = now == before ? resting + 1 : 0;
        before = now;
    }
}

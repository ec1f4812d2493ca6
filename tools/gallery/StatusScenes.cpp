#include "app/MainWindow.h"
#include "app/Pages.h"
#include "app/UMenu.h"
#include "gallery/Scenes.h"
#include "gallery/ScriptedProbe.h"
#include "pages/NetworkCheck.h"
#include "platform/context/AppConfigData.h"
#include "platform/context/AppContextData.h"

#include <QPushButton>

namespace {

constexpr char Offer[] = R"({"hasUpdate": true, "versionCode": "2.0.1", "fileSize": 125829120,
    "updateDesc": "The network page says what is in the way.\n<b>Plain text</b>, whatever it looks like."})";
constexpr char ForcedOffer[] = R"({"hasUpdate": true, "versionCode": "2.0.1", "isForceUpdate": true})";
constexpr char SilentOffer[] = R"({"hasUpdate": true, "versionCode": "2.0.1", "isSilentDownload": true})";

void Open(Stage& stage, const char* page) {
    stage.Window().resize(1280, 1300);
    stage.Window().findChild<UMenu*>()->SwitchTo(PageIndex(page));
}

/// The about page, opened after these messages have come.
Scene About(const char* name, const std::vector<std::pair<int, std::string>>& messages,
            const std::function<void(Stage&)>& then = {}) {
    return {QStringLiteral("update-") + QLatin1String(name), true, [messages, then](Stage& stage) {
                stage.Receive(2, R"({"status": 2})");
                for (const auto& [key, body] : messages)
                    stage.Receive(key, body);
                Open(stage, PageId::About);
                if (then)
                    then(stage);
            }};
}

void FireStall(Stage&) {
    QMetaObject::invokeMethod(qApp->findChild<QTimer*>(QStringLiteral("updateStallTimer")), "timeout");
}

void Press(Stage& stage, const char* button) {
    stage.Window().findChild<QPushButton*>(QLatin1String(button))->click();
}

/// The network page over a network that `prepare` has spoilt.
Scene Network(const char* name, const std::function<void(ScriptedProbe&)>& prepare,
              const std::function<void(Stage&)>& then = {}) {
    return {QStringLiteral("network-") + QLatin1String(name), true, [prepare, then](Stage& stage) {
                stage.Receive(2, R"({"status": 2})");
                prepare(stage.Network());
                Open(stage, PageId::Network);
                const auto* check = NetworkCheck::OfApplication();
                if (!stage.Network().hangs)
                    WaitFor([check] { return !check->IsRunning(); });
                else
                    WaitFor([check] { return check->Results()[4].state == NetworkState::Running; });
                if (then)
                    then(stage);
            }};
}

QVector<Scene> UpdateScenes() {
    return {
        About("up-to-date", {{12, R"({"hasUpdate": false})"}}),
        About("available", {{12, Offer}}),
        About("postponed", {{12, Offer}}, [](Stage& stage) { Press(stage, "updateLater"); }),
        About("forced", {{12, ForcedOffer}}),
        About("silent", {{12, SilentOffer}}),
        About("requested", {{12, Offer}},
              [](Stage& stage) {
                  stage.ConnectLink();
                  Press(stage, "updateNow");
              }),
        About("downloading", {{12, Offer}, {14, R"({"finish": false, "progress": 43, "dltotal": 100})"}}),
        About("downloading-unsized", {{12, Offer}, {14, R"({"finish": false, "dlcurrent": 52428800})"}}),
        About("stalled", {{12, Offer}, {14, R"({"finish": false, "progress": 43, "dltotal": 100})"}},
              FireStall),
        About("ready", {{12, Offer}, {14, R"({"finish": true, "success": true})"}}),
        About("failed", {{12, Offer}, {14, R"({"finish": true, "success": false})"}}),
        About("old", {{12, Offer}}, [](Stage&) { AppContextData::Instance()->SetLinked(false); }),
        About("no-service", {}, [](Stage&) { AppContextData::Instance()->SetLinked(false); }),
    };
}

QVector<Scene> NetworkScenes() {
    using Connection = NetworkProbe::Connection;
    const QString server = QStringLiteral("device.school.example");
    const QString proxy = QStringLiteral("proxy.school.example");
    const auto withProxy = [proxy](ScriptedProbe& probe) {
        probe.proxy = QNetworkProxy(QNetworkProxy::HttpProxy, proxy, 3128);
    };
    return {
        Network("passed", [](ScriptedProbe&) {}),
        Network("proxy", withProxy),
        Network("no-adapter", [](ScriptedProbe& probe) { probe.adapters.clear(); }),
        Network("no-address", [](ScriptedProbe& probe) { probe.adapters[0].addresses.clear(); }),
        Network("no-gateway", [](ScriptedProbe& probe) { probe.gateways.clear(); }),
        Network("proxy-dead",
                [=](ScriptedProbe& probe) {
                    withProxy(probe);
                    probe.connections[proxy] = Connection::Silent;
                }),
        Network("name-not-found", [](ScriptedProbe& probe) { probe.addresses.clear(); }),
        Network("sign-in",
                [](ScriptedProbe& probe) {
                    probe.plain.redirect = QUrl(QStringLiteral("http://login.cafe.example/welcome"));
                    probe.encrypted.isTls = false;
                }),
        Network("clock-wrong", [](ScriptedProbe& probe) { probe.now = probe.now.addDays(400); }),
        Network("server-refuses",
                [=](ScriptedProbe& probe) {
                    probe.encrypted = {};
                    probe.connections[server] = Connection::Refused;
                }),
        Network("certificate-bad",
                [](ScriptedProbe& probe) {
                    probe.encrypted.distrust =
                        QStringLiteral("The certificate is self-signed, and untrusted");
                }),
        Network(
            "no-service", [](ScriptedProbe&) {},
            [](Stage&) { AppContextData::Instance()->SetLinked(false); }),
        Network("no-server", [](ScriptedProbe&) { AppConfigData::Instance()->webServer.clear(); }),
        Network("running", [](ScriptedProbe& probe) { probe.hangs = true; }),
        Network(
            "cancelled", [](ScriptedProbe& probe) { probe.hangs = true; },
            [](Stage& stage) { Press(stage, "networkStart"); }),
        Network(
            "timed-out", [](ScriptedProbe& probe) { probe.hangs = true; },
            [](Stage&) {
                QMetaObject::invokeMethod(qApp->findChild<QTimer*>(QStringLiteral("networkStepTimer")),
                                          "timeout");
            }),
    };
}

} // namespace

QVector<Scene> StatusScenes() {
    return UpdateScenes() + NetworkScenes() +
           QVector<Scene>{
               {QStringLiteral("about-link-trace"), true,
                [](Stage& stage) {
                    stage.Receive(2, R"({"status": 2})");
                    stage.Receive(12, Offer);
                    Open(stage, PageId::About);
                    Press(stage, "supportTrace");
                }},
               {QStringLiteral("about-licences"), true,
                [](Stage& stage) {
                    Open(stage, PageId::About);
                    Press(stage, "supportLicences");
                }},
               {QStringLiteral("about-no-contact"), false,
                [](Stage& stage) {
                    AppConfigData& config = *AppConfigData::Instance();
                    config.supportName = config.supportTelephone = config.supportMail =
                        config.supportPage = {};
                    Open(stage, PageId::About);
                }},
           };
}

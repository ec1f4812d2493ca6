#include "app/MainWindow.h"
#include "app/Pages.h"
#include "app/UMenu.h"
#include "gallery/Scenes.h"
#include "pages/ActHistory.h"
#include "pages/UBodySetting.h"
#include "platform/application/RyxWindow.h"
#include "platform/context/AppContextData.h"
#include "platform/context/Theme.h"
#include "widgets/UTextButton.h"

#include <QMetaEnum>

namespace {

constexpr char Channels[] = R"({"liveChannelList": [
    {"id": 1, "name": "Morning news", "jobStatus": true, "url": "https://live.example.org/news"},
    {"id": 2, "name": "Assembly in the great hall, with everybody who wants to come and say something about it",
     "url": "rtsp://live.example.org/hall"},
    {"id": 3, "url": "udp://239.0.0.1:1234"}]})";

void GoTo(Stage& stage, const char* page, int height) {
    stage.Window().findChild<UMenu*>()->SwitchTo(PageIndex(page));
    stage.Window().resize(1280, height);
}

/// The page of the settings, all of it, after what the service has said.
Scene Settings(const char* name, const std::function<void(Stage&)>& play, int height = 1500) {
    return {QStringLiteral("settings-") + QLatin1String(name), true, [=](Stage& stage) {
                stage.Receive(2, R"({"status": 2})");
                stage.Receive(76, R"({"status": true})");
                stage.Receive(53, R"({"status": true})");
                GoTo(stage, PageId::Settings, height);
                play(stage);
            }};
}

Scene Live(const char* name, const std::function<void(Stage&)>& play) {
    return {QStringLiteral("live-") + QLatin1String(name), true, [=](Stage& stage) {
                stage.Receive(2, R"({"status": 2})");
                GoTo(stage, PageId::LiveChannels, 720);
                play(stage);
            }};
}

void Hold(Stage& stage) {
    stage.Receive(77, R"({"keyList": ["location", "remoteControl"]})");
}

/// The one after the other, with the text at this size; the next stage begins at the usual one.
class TextSize {
public:
    explicit TextSize(int percent) { Theme::Instance()->SetTextSize(percent); }
    ~TextSize() { Theme::Instance()->SetTextSize(100); }
    Q_DISABLE_COPY(TextSize)
};

} // namespace

QVector<Scene> SettingScenes() {
    return {
        Settings("switches", [](Stage&) {}),
        Settings("held", [](Stage& stage) { Hold(stage); }),
        Settings("opened",
                 [](Stage& stage) {
                     Hold(stage);
                     stage.Window().findChild<UBodySetting*>()->OnPermissionsLock();
                 }),
        Settings("unconfirmed",
                 [](Stage&) {
                     AppContextData::Instance()->SetLinked(false);
                     AppContextData::Instance()->SetLinked(true);
                 }),
        Settings("no-service", [](Stage&) { AppContextData::Instance()->SetLinked(false); }),
        {QStringLiteral("settings-not-enrolled"), false,
         [](Stage& stage) { GoTo(stage, PageId::Settings, 1000); }},
        Settings("unknown-permission",
                 [](Stage& stage) {
                     AppContextData::Instance()->SetPermissionList({"location", "applicationList"});
                     stage.Receive(77, R"({"keyList": ["kioskMode"]})");
                 }),
        Settings(
            "acts",
            [](Stage& stage) {
                const auto names = QMetaEnum::fromType<ActHistory::Act>();
                for (int round = 0; round < 3; ++round)
                    for (int i = 0; i < names.keyCount(); ++i)
                        ActHistory::OfApplication()->Add(static_cast<ActHistory::Act>(names.value(i)));
                stage.Window().findChild<UTextButton*>(QStringLiteral("actsOlder"))->click();
            },
            2000),
        Settings(
            "lock-dialog",
            [](Stage& stage) {
                Hold(stage);
                stage.Window().findChild<UBodySetting*>()->SetPermissionsLockStatus();
            },
            720),
        Settings(
            "large-text",
            [](Stage& stage) { stage.ShowWindow(stage.Window(), std::make_shared<TextSize>(130)); }, 2000),
        Live("channels", [](Stage& stage) { stage.Receive(46, Channels); }),
        Live("waiting", [](Stage&) {}),
        Live("none", [](Stage& stage) { stage.Receive(46, R"({"liveChannelList": []})"); }),
        Live("no-service",
             [](Stage& stage) {
                 stage.Receive(46, Channels);
                 AppContextData::Instance()->SetLinked(false);
             }),
        Live("unconfirmed",
             [](Stage& stage) {
                 stage.Receive(46, Channels);
                 AppContextData::Instance()->SetLinked(false);
                 AppContextData::Instance()->SetLinked(true);
             }),
        Live("not-enrolled", [](Stage& stage) { stage.Receive(2, R"({"status": 0})"); }),
    };
}

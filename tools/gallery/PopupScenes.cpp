#include "app/MainWindow.h"
#include "app/Pages.h"
#include "app/UMenu.h"
#include "gallery/Scenes.h"
#include "platform/context/AppContextData.h"
#include "platform/link/PipeSendEvent.h"
#include "popups/PopupHistory.h"
#include "popups/PopupWindowsDialog.h"
#include "popups/UPopupBlockMask.h"
#include "widgets/USwitchRow.h"
#include "widgets/UTextButton.h"

#include <QApplication>
#include <QScreen>

namespace {

PopupsTypeParams Rule(const char* program, const char* title, const char* windowClass, const char* product) {
    PopupsTypeParams rule;
    rule.appName = program;
    rule.popName = title;
    rule.popClassName = windowClass;
    rule.popProductName = product;
    rule.popDirectory = "/usr/bin";
    return rule;
}

const PopupsTypeParams Player = Rule("player.exe", "Offer of the day", "OfferWindow", "Player");
const PopupsTypeParams Updater =
    Rule("updater.exe", "A title that goes on and on, as a window of this kind may well have one, to its end",
         "UpdateNotice", "");
const PopupsTypeParams Unnamed = Rule("news.exe", "", "Chrome_WidgetWin_1", "News of the world");

void Policy(Stage& stage, bool on, const std::vector<PopupsTypeParams>& rules) {
    SyncPopupsParams policy;
    policy.popStatus = on;
    policy.popupsDetails = rules;
    stage.Receive(50, policy.WriteToString());
}

void Close(const PopupsTypeParams& rule, int times) {
    UploadPopupsParams report;
    report.appName = rule.appName;
    report.popName = rule.popName;
    report.popClassName = rule.popClassName;
    report.popProductName = rule.popProductName;
    report.popDirectory = rule.popDirectory;
    for (int i = 0; i < times; ++i) {
        PipeSendEvent event(PipeKey::PopupDetected, report);
        QCoreApplication::sendEvent(QCoreApplication::instance(), &event);
    }
}

void OpenPage(Stage& stage) {
    stage.Window().findChild<UMenu*>()->SwitchTo(PageIndex(PageId::Features));
    stage.Window().resize(1280, 1000);
}

Scene On(const char* name, const std::function<void(Stage&)>& play) {
    return {QStringLiteral("popups-") + QLatin1String(name), true, [play](Stage& stage) {
                stage.Receive(2, R"({"status": 2})");
                play(stage);
            }};
}

PickableWindow Window(const char* title, const char* className) {
    PickableWindow window;
    window.path = QStringLiteral("/usr/bin/player");
    window.title = QString::fromUtf8(title);
    window.className = QString::fromUtf8(className);
    window.place = {420, 200, 400, 240};
    return window;
}

/// The mask with this window picked; with none, it waits for a click.
Scene Picker(const char* name, const std::optional<PickableWindow>& picked) {
    return On(name, [picked](Stage& stage) {
        auto& mask = stage.Show(std::make_unique<UPopupBlockMask>(
            *QGuiApplication::primaryScreen(), PopupSystem::Native(), PopupReport::Upload()));
        mask.show();
        mask.resize(1280, 720);
        if (!picked)
            return;
        mask.Pick(*picked);
        const auto* cancel = mask.findChild<UTextButton*>(QStringLiteral("cancelButton"));
        WaitFor([&] { return !cancel->IsLoading(); });
    });
}

} // namespace

QVector<Scene> PopupScenes() {
    return {
        On("off",
           [](Stage& stage) {
               Policy(stage, false, {});
               OpenPage(stage);
           }),
        On("history",
           [](Stage& stage) {
               Policy(stage, true, {Player, Updater});
               Close(Unnamed, 1);
               Close(Updater, 1);
               Close(Player, 12);
               OpenPage(stage);
           }),
        On("many",
           [](Stage& stage) {
               std::vector<PopupsTypeParams> rules;
               for (int i = 0; i < 45; ++i) {
                   rules.push_back(Player);
                   rules.back().popName += ' ' + std::to_string(i);
                   Close(rules.back(), i + 1);
               }
               Policy(stage, true, rules);
               OpenPage(stage);
           }),
        On("waiting",
           [](Stage& stage) {
               Policy(stage, true, {Player});
               Close(Player, 1);
               OpenPage(stage);
               emit stage.Window().findChild<USwitchRow*>()->Switched(false);
           }),
        On("no-service",
           [](Stage& stage) {
               Policy(stage, true, {Player});
               Close(Player, 2);
               OpenPage(stage);
               AppContextData::Instance()->SetLinked(false);
           }),
        {QStringLiteral("popups-not-enrolled"), false, [](Stage& stage) { OpenPage(stage); }},
        On("windows",
           [](Stage& stage) {
               OpenPage(stage);
               (new PopupWindowsDialog({Window("Offer of the day", "Offer"), Window("", "News")},
                                       &stage.Window()))
                   ->show();
           }),
        On("windows-none",
           [](Stage& stage) {
               OpenPage(stage);
               (new PopupWindowsDialog({}, &stage.Window()))->show();
           }),
        Picker("picker", std::nullopt),
        Picker("picker-window", Window("Offer of the day", "Offer")),
        Picker("picker-refused", Window("Tool tip", "tooltips_class32")),
        On("notice", [](Stage&) { Close(Player, 1); }),
    };
}

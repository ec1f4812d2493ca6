// The page of the settings, and what lives from start-up for it.
#include "app/MainWindow.h"
#include "app/Pages.h"
#include "app/UMenu.h"
#include "entity/AppEntities.h"
#include "gallery/Scenes.h"
#include "lock/UBodySettingLockModal.h"
#include "pages/ActHistory.h"
#include "pages/UBodySetting.h"
#include "platform/context/AppConfigData.h"
#include "platform/context/AppContextData.h"
#include "platform/context/AppHelper.h"
#include "platform/context/DevicePermissions.h"
#include "platform/context/LanguageHelper.h"
#include "platform/context/Theme.h"
#include "platform/link/PipeClientService.h"
#include "platform/link/PipeSendEvent.h"
#include "support/FakeService.h"
#include "widgets/USwitch.h"

#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QMetaEnum>
#include <QTemporaryDir>
#include <QtTest>
#include <gtest/gtest.h>

namespace {

struct SettingsPage : testing::Test {
    SettingsPage() {
        LanguageHelper::Instance()->SetLanguage(QStringLiteral("en"));
        link.SetServer(service.Address());
        link.Start();
        EXPECT_TRUE(QTest::qWaitFor([this] { return link.IsConnected() && service.IsConnected(); }));
    }
    ~SettingsPage() override { link.Stop(); }

    void Open(const char* page = PageId::Settings) {
        stage.Window().findChild<UMenu*>()->SwitchTo(PageIndex(page));
    }
    UBodySetting& Page() { return *stage.Window().findChild<UBodySetting*>(); }
    USwitch& Switch(const char* row) {
        return *Page().findChild<QWidget*>(QLatin1String(row))->findChild<USwitch*>();
    }
    /// Whether the page shows this text, or one with it.
    bool Shows(const char* part) {
        Settle();
        const auto labels = Page().findChildren<QLabel*>();
        return std::any_of(labels.begin(), labels.end(), [&](const QLabel* label) {
            return label->isVisible() && label->text().contains(QString::fromUtf8(part));
        });
    }
    /// Keys that have arrived at the service, other than a connection's first.
    std::string Arrived() {
        link.Send(PipeKey::ScreenUnlock); // behind whatever was sent
        std::string keys;
        for (auto frame = service.Receive(); frame.key != PipeKey::ScreenUnlock; frame = service.Receive())
            if (frame.key != PipeKey::ContextRequest && frame.key != PipeKey::OtaVersionInfo)
                keys += std::to_string(static_cast<int>(frame.key)) + ' ';
        return keys;
    }

    FakeService service;
    PipeClientService& link = *PipeClientService::Instance();
    Stage stage{true};
};

TEST_F(SettingsPage, ShowsWhatCameBeforeItWasOpenedAndSaysWhenItIsOld) {
    stage.Receive(76, R"({"status": true})");
    stage.Receive(77, R"({"keyList": ["screenshot", "kiosk"]})");
    Open();
    EXPECT_TRUE(Switch("locationRow").isChecked());
    EXPECT_TRUE(Shows("Northern Comprehensive School holds this setting."));
    EXPECT_TRUE(Shows("Northern Comprehensive School may find out where this device is."));
    EXPECT_TRUE(Shows("also holds “kiosk”"));
    EXPECT_FALSE(Shows("known last"));
    AppContextData::Instance()->SetLinked(false);
    EXPECT_TRUE(Shows("is not reached"));
    AppContextData::Instance()->SetLinked(true);
    EXPECT_TRUE(Shows("has not confirmed it"));
    for (const char* useless : {"{}", R"({"keyList": "x"})", "[]", "none"})
        stage.Receive(77, useless);
    EXPECT_TRUE(Shows("has not confirmed it"));
    EXPECT_TRUE(Switch("screenViewRow").IsHeld()) << "what is old is still shown";
    stage.Receive(76, R"({"status": false})");
    EXPECT_TRUE(Shows("has not confirmed it")) << "what is held is of before";
    stage.Receive(77, R"({"keyList": ["screenshot"]})");
    EXPECT_FALSE(Shows("has not confirmed it"));
    EXPECT_TRUE(Shows("may not find out where this device is."));
    AppContextData::Instance()->SetPermissionList({"<b>newOne</b>"});
    EXPECT_TRUE(Shows("“<b>newOne</b>”"));
    EXPECT_EQ(Arrived(), "") << "what the service sets is not sent back";
    stage.Receive(2, R"({"status": 0})");
    EXPECT_TRUE(Shows("No organisation manages this device"));
    EXPECT_TRUE(Shows("left the organisation’s management"));
    EXPECT_FALSE(Page().findChild<QWidget*>(QStringLiteral("locationRow"))->isVisible());
    EXPECT_FALSE(DevicePermissions::OfApplication()->IsHeld(DevicePermissions::Switch::ScreenView));
}

TEST_F(SettingsPage, AHeldSwitchOpensUntilThePageIsLeftOrOthersAreHeld) {
    stage.Receive(77, R"({"keyList": ["location", "remoteControl"]})");
    stage.Receive(52, R"({"status": true})");
    stage.Receive(53, R"({"status": true})");
    Open();
    QTest::mouseClick(&Switch("locationRow"), Qt::LeftButton);
    auto* modal = stage.Window().findChild<UBodySettingLockModal*>();
    ASSERT_TRUE(modal && modal->isVisible());
    EXPECT_FALSE(Switch("locationRow").isChecked());
    modal->hide();
    EXPECT_EQ(Arrived(), "") << "the dialog sends nothing";
    emit modal->PermissionsLock();
    QTest::mouseClick(&Switch("screenViewRow"), Qt::LeftButton);
    EXPECT_EQ(Arrived(), "53 52 ");
    for (const bool byLeaving : {true, false}) {
        SCOPED_TRACE(byLeaving);
        if (byLeaving) {
            Open(PageId::Network);
            Open();
        } else {
            Page().OnPermissionsLock();
            stage.Receive(77, R"({"keyList": ["location"]})");
        }
        QTest::mouseClick(&Switch("locationRow"), Qt::LeftButton);
        EXPECT_TRUE(modal->isVisible());
        modal->hide();
        EXPECT_EQ(Arrived(), "");
    }
}

TEST_F(SettingsPage, WhoMayNotTouchTheControlMayNotTakeTheViewFromIt) {
    stage.Receive(77, R"({"keyList": ["remoteControl"]})");
    stage.Receive(53, R"({"status": true})");
    Open();
    EXPECT_FALSE(Switch("screenViewRow").IsHeld());
    stage.Receive(52, R"({"status": true})");
    EXPECT_TRUE(Switch("screenViewRow").IsHeld());
}

TEST_F(SettingsPage, ChoicesCountAtOnceAndAtTheNextStartAboveTheConfiguration) {
    const QTemporaryDir folder;
    AppConfigData& config = *AppConfigData::Instance();
    config.dataFolder = folder.path().toStdString();
    config.language = "fr";
    config.theme = "dark";
    const auto inForce = [] {
        return LanguageHelper::Instance()->Language() + Theme::Instance()->Choice() +
               QString::number(Theme::Instance()->TextSize());
    };
    const auto start = [&] {
        AppHelper::InitQss();
        AppHelper::InitLanguage();
        return inForce();
    };
    EXPECT_EQ(start(), QStringLiteral("frdark100"));
    Open();
    const std::pair<const char*, QVariant> choices[] = {
        {"languageBox", QStringLiteral("de")}, {"themeBox", QStringLiteral("system")}, {"textSizeBox", 130}};
    for (const auto& [name, data] : choices) {
        auto* box = Page().findChild<QComboBox*>(QLatin1String(name));
        box->setCurrentIndex(box->findData(data));
        emit box->activated(box->currentIndex());
    }
    EXPECT_EQ(inForce(), QStringLiteral("desystem130"));
    LanguageHelper::Instance()->SetLanguage(QStringLiteral("en"));
    EXPECT_EQ(start(), QStringLiteral("desystem130"));
    for (const char* broken : {"{", R"({"language": "tlh", "theme": 5, "textSize": 1000})"}) {
        QFile file(folder.filePath(QStringLiteral("preferences.json")));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(broken) > 0);
        file.close();
        EXPECT_EQ(start(), QStringLiteral("frdark100")) << broken;
    }
    config.language = config.theme = "";
    Theme::Instance()->Apply(QStringLiteral("light"));
}

struct TestClock : Clock {
    QDateTime Now() const override { return now; }
    QDateTime now{QDate(2026, 3, 2), QTime(10, 0)};
};

struct KeptState : testing::Test {
    KeptState() {
        AppContextData::Instance()->Reset();
        AppContextData::Instance()->SetEnrolled(true);
        Start();
    }
    void Start() {
        acts.reset(); // this and the next write
        permissions.reset();
        permissions = std::make_unique<DevicePermissions>(Path("permissions"));
        acts = std::make_unique<ActHistory>(Path("acts"), *permissions, clock);
    }
    QString Path(const char* name) const {
        return folder.filePath(QStringLiteral("data/%1.json").arg(QLatin1String(name)));
    }
    void Break(const char* name) {
        QFile file(Path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write("[{") > 0);
    }
    static void Deliver(PipeKey key, const char* body) { PipeClientService::Instance()->Deliver(key, body); }
    std::string Story() const {
        const auto names = QMetaEnum::fromType<ActHistory::Act>();
        std::string story;
        for (const ActHistory::Record& record : acts->Records())
            story += std::to_string(record.times) + names.valueToKey(static_cast<int>(record.act)) + ' ';
        return story;
    }

    QTemporaryDir folder;
    TestClock clock;
    std::unique_ptr<DevicePermissions> permissions;
    std::unique_ptr<ActHistory> acts;
};

TEST_F(KeptState, TheHistoryTellsEachActOnceAndIsThereAfterAStart) {
    const struct {
        PipeKey key;
        const char* body;
        const char* added;
    } cases[] = {
        {PipeKey::LocationSetting, R"({"status": true})", "1Permissions "},
        {PipeKey::LocationSetting, R"({"status": true})", ""},
        {PipeKey::SettingPermission, R"({"keyList": ["location"]})", "1Permissions "},
    };
    acts->AddHourFormat(HourFormat::Hours12);
    std::string story = "1Clock ";
    for (const auto& [key, body, added] : cases) {
        clock.now = clock.now.addSecs(60);
        Deliver(key, body);
        story.insert(0, added);
        EXPECT_EQ(Story(), story) << body;
    }
    Start();
    acts->AddHourFormat(HourFormat::Hours12); // this and the next are said anew at every connect
    for (const auto& [key, body, added] : {cases[1], cases[2]})
        Deliver(key, body);
    EXPECT_EQ(Story(), story);

    UploadPopupsParams report;
    for (int i = 0; i < 3; ++i) {
        clock.now = clock.now.addDays(i / 2);
        PipeSendEvent event(PipeKey::PopupDetected, report);
        QCoreApplication::sendEvent(QCoreApplication::instance(), &event);
    }
    EXPECT_EQ(Story(), "1WindowsClosed 2WindowsClosed " + story);
    AppContextData::Instance()->SetEnrolled(false);
    EXPECT_EQ(Story().rfind("1Unenrolled ", 0), 0U);
    for (int i = 0; i < 60; ++i)
        acts->Add(ActHistory::Act::Locked);
    Start();
    EXPECT_EQ(acts->Records().size(), 50U);
    Break("acts");
    Start();
    EXPECT_EQ(Story(), "");
}

TEST_F(KeptState, PermissionsAreKeptAndABrokenFileMeansWhatWasGranted) {
    using Switch = DevicePermissions::Switch;
    Deliver(PipeKey::ScreenShotSetting, R"({"status": true})");
    Deliver(PipeKey::SettingPermission, R"({"keyList": ["screen"]})");
    Start();
    EXPECT_TRUE(permissions->IsOn(Switch::ScreenView) && permissions->IsHeld(Switch::ScreenView));
    EXPECT_FALSE(permissions->IsConfirmed());
    AppContextData::Instance()->SetPermissionList({"location"});
    EXPECT_TRUE(permissions->IsOn(Switch::Location) && !permissions->IsOn(Switch::ScreenView));
    Break("permissions");
    Start();
    EXPECT_TRUE(permissions->IsOn(Switch::Location));
    AppContextData::Instance()->SetEnrolled(false);
    Deliver(PipeKey::LocationSetting, R"({"status": true})");
    Start();
    AppContextData::Instance()->SetEnrolled(true);
    EXPECT_FALSE(permissions->IsOn(Switch::Location));
}

} // namespace

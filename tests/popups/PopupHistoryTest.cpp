// What was closed, as the history keeps it, and the page that shows it.
#include "popups/PopupHistory.h"
#include "app/MainWindow.h"
#include "app/Pages.h"
#include "app/UMenu.h"
#include "gallery/Scenes.h"
#include "platform/context/LanguageHelper.h"
#include "platform/link/PipeClientService.h"
#include "platform/link/PipeSendEvent.h"
#include "popups/UBodyFeaturesPopups.h"
#include "support/FakeService.h"
#include "widgets/USwitch.h"
#include "widgets/UToast.h"

#include <QFile>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>
#include <gtest/gtest.h>

namespace {

struct TestClock : Clock {
    QDateTime Now() const override { return now; }
    QDateTime now{QDate(2026, 3, 2), QTime(10, 0)};
};

void Close(const char* program, const char* title = "Offer") {
    UploadPopupsParams report;
    report.appName = program;
    report.popName = title;
    PipeSendEvent event(PipeKey::PopupDetected, report);
    QCoreApplication::sendEvent(QCoreApplication::instance(), &event);
}

struct PopupHistoryFile : testing::Test {
    PopupHistoryFile() { Start(); }
    void Start() {
        history.reset(); // writes
        history = std::make_unique<PopupHistory>(
            file, [this] { return open; }, clock);
        QObject::connect(history.get(), &PopupHistory::Noticed, [this] { ++notices; });
    }
    /// Times and programs, the latest first.
    std::string Story() {
        std::string story;
        for (const PopupRecord& record : history->Records())
            story += std::to_string(record.times) + record.rule.appName + (record.stillOpen ? "! " : " ");
        return story + "today " + std::to_string(history->CountOfToday());
    }

    QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("data/popups.json"));
    TestClock clock;
    QSet<QString> open;
    int notices = 0;
    std::unique_ptr<PopupHistory> history;
};

TEST_F(PopupHistoryFile, GroupsRepeatsByDayAndIsThereAgainAfterAStart) {
    Close("a");
    Close("b");
    Close("A", "OFFER");
    EXPECT_EQ(Story(), "2A 1b today 3");
    EXPECT_EQ(notices, 2);
    clock.now = clock.now.addDays(1);
    EXPECT_EQ(history->CountOfToday(), 0);
    Close("a");
    EXPECT_EQ(notices, 3);
    Start();
    EXPECT_EQ(Story(), "1a 2A 1b today 1");
    for (int i = 0; i < 250; ++i)
        Close("c", std::to_string(i).c_str());
    Start();
    EXPECT_EQ(history->Records().size(), 200U);
    EXPECT_EQ(history->CountOfToday(), 251);
}

TEST_F(PopupHistoryFile, SetsABrokenFileAside) {
    for (const char* content : {"{\"records\": [", "[]", "{\"records\": 3}"}) {
        SCOPED_TRACE(content);
        Close("a");
        history.reset();
        QFile broken(file);
        ASSERT_TRUE(broken.open(QIODevice::WriteOnly) && broken.write(content) > 0);
        broken.close();
        Start();
        EXPECT_EQ(Story(), "today 0");
        EXPECT_FALSE(QFile::exists(file));
        broken.setFileName(file + QStringLiteral(".broken"));
        ASSERT_TRUE(broken.open(QIODevice::ReadOnly));
        EXPECT_EQ(broken.readAll(), content);
    }
}

TEST_F(PopupHistoryFile, SaysWhichWindowsAreStillOpenAfterFiveSeconds) {
    auto& look = *history->findChild<QTimer*>(QStringLiteral("popupLookTimer"));
    const auto after = [&](int milliseconds) {
        clock.now = clock.now.addMSecs(milliseconds);
        QMetaObject::invokeMethod(&look, "timeout");
        const auto* looking = history->findChild<QFutureWatcherBase*>();
        EXPECT_TRUE(QTest::qWaitFor([&] { return looking->isFinished(); }));
        return Story();
    };
    EXPECT_FALSE(look.isActive());
    open = {PopupWindow{QStringLiteral("A"), {}, QStringLiteral("offer"), {}}.Key()};
    Close("a");
    EXPECT_EQ(after(4999), "1a today 1");
    EXPECT_EQ(after(1), "1a! today 1");
    open.clear();
    EXPECT_EQ(after(5000), "1a today 1");
    after(1000);
    EXPECT_FALSE(look.isActive());
}

/// The page over a real link: what is asked of the service, and what the service's word makes of it.
struct PopupsPage : testing::Test {
    PopupsPage() {
        LanguageHelper::Instance()->SetLanguage(QStringLiteral("en"));
        link.SetServer(service.Address());
        link.Start();
        EXPECT_TRUE(QTest::qWaitFor([this] { return link.IsConnected() && service.IsConnected(); }));
        stage.Window().findChild<UMenu*>()->SwitchTo(PageIndex(PageId::Features));
    }
    ~PopupsPage() override { link.Stop(); }

    void Policy(const char* body) {
        stage.Receive(50, body);
        Show();
    }
    void Show() { QMetaObject::invokeMethod(Timer("popupsShowTimer"), "timeout"); }
    QTimer* Timer(const char* name) { return Page().findChild<QTimer*>(QLatin1String(name)); }
    SyncPopupsParams Asked() {
        FrameDecoder::Frame frame = service.Receive();
        while (frame.key == PipeKey::ContextRequest || frame.key == PipeKey::OtaVersionInfo)
            frame = service.Receive(); // what every connection begins with
        EXPECT_EQ(frame.key, PipeKey::FeaturesPopupsCommand);
        SyncPopupsParams asked;
        asked.ReadFromString(frame.body);
        return asked;
    }
    QWidget& Page() { return *stage.Window().findChild<UBodyFeaturesPopups*>(); }
    USwitch& Switch() { return *Page().findChild<USwitch*>(); }
    /// The button by which the user doubts the rule; null when it cannot be doubted.
    QPushButton* Wrong() {
        auto* button = Page().findChild<QPushButton*>(QStringLiteral("popupWrong"));
        return button && !button->isHidden() ? button : nullptr;
    }

    FakeService service;
    PipeClientService& link = *PipeClientService::Instance();
    Stage stage{true};
};

TEST_F(PopupsPage, ShowsWhatTheServiceSaysAndNotWhatWasClicked) {
    EXPECT_FALSE(Switch().isChecked());
    QTest::mouseClick(&Switch(), Qt::LeftButton);
    EXPECT_TRUE(Asked().popStatus);
    EXPECT_FALSE(Switch().isChecked());
    Policy(R"({"popStatus": true, "popupsDetails": [{"appName": "a", "popName": "Offer"}]})");
    EXPECT_TRUE(Switch().isChecked());

    QTest::mouseClick(&Switch(), Qt::LeftButton);
    EXPECT_FALSE(Asked().popStatus);
    QTest::mouseClick(&Switch(), Qt::LeftButton); // while an answer is awaited
    QMetaObject::invokeMethod(Timer("popupsAnswerTimer"), "timeout");
    EXPECT_TRUE(Switch().isChecked());
    EXPECT_EQ(stage.Window().findChild<UToast*>()->ShownMessage(),
              QStringLiteral("The service has not answered. Nothing has changed."));

    Close("A");
    Show();
    ASSERT_TRUE(Wrong());
    Wrong()->setFocus();
    Wrong()->click();
    const SyncPopupsParams asked = Asked();
    EXPECT_TRUE(asked.popStatus && asked.hasOne && !asked.enable);
    ASSERT_EQ(asked.popupsDetails.size(), 1U);
    EXPECT_EQ(asked.popupsDetails[0].appName, "A");
    EXPECT_TRUE(Wrong());
    Policy(asked.WriteToString().c_str());
    EXPECT_FALSE(Wrong());
    EXPECT_TRUE(stage.Window().focusWidget()->inherits("PopupRow"))
        << "a second press hits no other row's button";
    Policy("no JSON");
    EXPECT_FALSE(Switch().isChecked());
}

TEST_F(PopupsPage, IsAwayWhileAWindowIsPointedAtAndBackBelowALock) {
    Page().findChild<QPushButton*>(QStringLiteral("popupsPoint"))->click();
    EXPECT_FALSE(stage.Window().isVisible());
    QWidget lock;
    lock.setProperty("TopLevel", 6);
    lock.show();
    EXPECT_TRUE(stage.Window().isVisible());
}

TEST_F(PopupsPage, IsWhereTheNoticeOfAClosingLeads) {
    stage.Window().findChild<UMenu*>()->SwitchTo(0);
    Close("a");
    auto* toast = stage.Window().findChild<UToast*>();
    ASSERT_TRUE(toast->isVisible());
    QTest::mouseClick(toast, Qt::LeftButton);
    EXPECT_EQ(stage.Window().findChild<UMenu*>()->Current(), PageIndex(PageId::Features));
}

} // namespace

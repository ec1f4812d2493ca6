#include "controllers/SettingsLockController.h"
#include "lock/PasswordPad.h"
#include "platform/context/AppContextData.h"
#include "platform/context/LanguageHelper.h"
#include "platform/link/PipeClientService.h"
#include "platform/security/PasswordHelper.h"
#include "support/FakeDesktop.h"
#include "support/FakeService.h"
#include "support/LogCapture.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QtTest>
#include <gtest/gtest.h>

namespace {

/// One Control Panel, which may be there or not, and no windows.
struct FakeProcesses : SystemProcesses {
    ProcessIdentity Find(const QString& name, const QString& commandLine) const override {
        EXPECT_EQ(name, QStringLiteral("explorer.exe"));
        EXPECT_TRUE(
            commandLine.endsWith(QStringLiteral("{5BD95610-9434-43C2-886C-57852CC8A120} -Embedding")));
        ++lookUps;
        return {pid, 1};
    }
    ProcessIdentity Identify(quint32 id) const override {
        ++passes;
        return {id, 1};
    }
    std::atomic<quint32> pid{0};
    mutable std::atomic<int> lookUps{0}, passes{0};
};

class SettingsLock : public testing::Test {
protected:
    void SetUp() override {
        LanguageHelper::Instance()->SetLanguage(QStringLiteral("en"));
        AppContextData::Instance()->Reset();
        link.SetServer(service.Address());
        link.Start();
        controller.SetService(&link);
        ASSERT_TRUE(QTest::qWaitFor([this] { return link.IsConnected() && service.IsConnected(); }));
        for (QWidget* window : QApplication::topLevelWidgets())
            if (window->objectName() == QLatin1String("USettinsLockMaskModal"))
                mask = window;
        ASSERT_TRUE(mask);
        AppContextData::Instance()->SetUnlockPassword(PasswordHelper::HashVelmoraPassword("123456"));
    }
    void TearDown() override {
        LanguageHelper::Instance()->SetLanguage(QStringLiteral("en"));
        link.Stop();
    }
    static void Type(QWidget& window, const char* digits) {
        for (const char* digit = digits; *digit; ++digit)
            QTest::keyClick(window.windowHandle(), *digit);
    }
    void Press(Qt::Key key, Qt::KeyboardModifiers held = {}) {
        QTest::keyClick(mask->windowHandle(), key, held);
    }
    bool MaskIsActive() { return QTest::qWaitForWindowActive(mask); }

    LogCapture log;
    FakeWindows windows;
    FakeInput input;
    FakeProcesses processes;
    const SystemDesktop desktop{};
    const Clock clock{};
    FakeService service;
    PipeClientService& link = *PipeClientService::Instance();
    SettingsLockController controller{clock, windows, input, desktop, processes};
    QWidget* mask = nullptr;
};

TEST_F(SettingsLock, TheMaskComesAndGoesByTheServicesWordAndTheUsers) {
    link.Deliver(PipeKey::SettingsLockShow, "");
    ASSERT_TRUE(MaskIsActive());
    EXPECT_EQ(mask->property("TopLevel").toInt(), 4);
    EXPECT_FALSE(mask->isModal());
    EXPECT_EQ(input.keyboard, nullptr);
    link.Deliver(PipeKey::SettingsLockHide, "");
    EXPECT_FALSE(mask->isVisible());

    const std::function<void()> leave[] = {[this] { Press(Qt::Key_Escape); }, [this] { mask->close(); },
                                           [this] { Press(Qt::Key_F4, Qt::AltModifier); }};
    for (const auto& act : leave) {
        link.Deliver(PipeKey::SettingsLockShow, "");
        ASSERT_TRUE(MaskIsActive());
        act();
        EXPECT_FALSE(mask->isVisible());
        EXPECT_EQ(windows.guarded.count(mask->winId()), 0u);
    }
    EXPECT_EQ(service.ReceivedBytes(), 0u);

    link.Deliver(PipeKey::SettingsLockShow, "");
    ASSERT_TRUE(MaskIsActive());
    Type(*mask, "12");
    link.Deliver(PipeKey::SettingsLockShow, ""); // a second one leaves what was typed
    Type(*mask, "3456");
    EXPECT_EQ(mask->findChild<PasswordPad*>()->GetPassword(), QStringLiteral("123456"));
    AppContextData::Instance()->SetUnlockPassword(PasswordHelper::HashVelmoraPassword("000000"));
    LanguageHelper::Instance()->SetLanguage(QStringLiteral("de"));
    QCoreApplication::processEvents();
    EXPECT_EQ(mask->findChild<QLabel*>(QStringLiteral("promptTitle"))->text(),
              QStringLiteral("Einstellungen sind gesperrt"));
    Press(Qt::Key_Return);
    EXPECT_TRUE(mask->isVisible()) << "the password was changed meanwhile";
    Type(*mask, "000000");
    Press(Qt::Key_Return);
    EXPECT_FALSE(mask->isVisible());
    const FrameDecoder::Frame frame = service.Receive();
    EXPECT_EQ(frame.key, PipeKey::SettingsLockUnlock);
    EXPECT_EQ(frame.body, "");
}

TEST_F(SettingsLock, TheControlPanelIsLookedUpFiveTimesAndThenOnlyWhenAskedAgain) {
    auto* timer = controller.findChild<QTimer*>(QStringLiteral("lookUpTimer"));
    EXPECT_EQ(timer->interval(), 200);
    timer->setInterval(1000 * 1000); // the test lets it run
    const auto lookedUp = [&](int times) {
        return QTest::qWaitFor([&] { return processes.lookUps == times && timer->isActive(); });
    };
    for (const int before : {0, 5}) {
        link.Deliver(PipeKey::ControllExit, "");
        for (int attempt = 1; attempt <= 5; ++attempt) {
            ASSERT_TRUE(lookedUp(before + attempt)) << attempt;
            EXPECT_EQ(log.Count("m_pid,GetControlPanelPid is:0\n"), before / 5);
            timer->stop();
            QMetaObject::invokeMethod(timer, "timeout");
        }
        EXPECT_EQ(log.Count("m_pid,GetControlPanelPid is:0\n"), before / 5 + 1);
        EXPECT_EQ(processes.lookUps, before + 5);
    }
    EXPECT_EQ(processes.passes, 0) << "nothing to watch, nothing to do";

    processes.pid = 42;
    link.Deliver(PipeKey::ControllExit, "");
    EXPECT_TRUE(QTest::qWaitFor([&] { return log.Count("m_pid,GetControlPanelPid is:42\n") == 1; }));
    EXPECT_TRUE(QTest::qWaitFor([&] { return processes.passes > 100; }));
    EXPECT_EQ(processes.lookUps, 11);
}

} // namespace

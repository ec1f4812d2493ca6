#include "app/ShellFixture.h"
#include "platform/context/AppContextData.h"
#include "widgets/UExitButton.h"
#include "widgets/ULoadingBar.h"
#include "widgets/UToast.h"

#include <QDialog>
#include <QLabel>
#include <QMenu>
#include <QScreen>
#include <QSystemTrayIcon>

namespace {

class ShellTest : public Shell {
protected:
    QString ShownToast() {
        for (const UToast* toast : Window().findChildren<UToast*>())
            if (!toast->ShownMessage().isEmpty())
                return toast->ShownMessage();
        return {};
    }
    void ActivateTray(QSystemTrayIcon::ActivationReason reason) {
        emit Find<QSystemTrayIcon>().activated(reason);
    }
};

TEST_F(ShellTest, StartsWhereTheDeviceStands) {
    Start(false);
    EXPECT_EQ(StackPage(), QStringLiteral("launcher"));
    Start(true);
    EXPECT_EQ(StackPage(), QStringLiteral("mainPage"));

    const auto& stack = Find<QStackedWidget>();
    QStringList pages;
    for (int i = 0; i < stack.count(); ++i)
        pages.append(stack.widget(i)->objectName());
    EXPECT_EQ(pages, (QStringList{QStringLiteral("mainPage"), QStringLiteral("launcher"),
                                  QStringLiteral("feedbackPage")}));
    EXPECT_EQ(Window().windowTitle(), QStringLiteral("Velmora RYX"));
    EXPECT_FALSE(Window().windowIcon().isNull());
    EXPECT_TRUE(Find<QSystemTrayIcon>().isVisible());
    EXPECT_EQ(Find<QSystemTrayIcon>().toolTip(), QStringLiteral("Velmora RYX"));
    EXPECT_FALSE(Entry("menu_live_channels").isVisible());
}

TEST_F(ShellTest, StartsNoLargerThanTheScreen) {
    Start(true);
    const MainWindow window;
    const QSize screen = window.screen()->availableSize();
    EXPECT_EQ(window.width(), qMin(1280, screen.width()));
    EXPECT_LE(window.height(), qMin(720, screen.height()));
}

TEST_F(ShellTest, ClosingHidesAndWithoutEnrolmentReturnsToTheLauncher) {
    Start(false);
    QTest::mouseClick(Window().findChild<QPushButton*>(QStringLiteral("launcherEnrol")), Qt::LeftButton);
    EXPECT_EQ(StackPage(), QStringLiteral("mainPage"));
    EXPECT_EQ(BodyPage(), static_cast<int>(MenuEntry::Enrolment));
    Press("menu_about");
    EXPECT_EQ(BodyPage(), static_cast<int>(MenuEntry::About));

    EXPECT_FALSE(Window().close());
    EXPECT_FALSE(Window().isVisible());
    ActivateTray(QSystemTrayIcon::Trigger);
    EXPECT_TRUE(Window().isVisible());
    EXPECT_EQ(StackPage(), QStringLiteral("launcher"));
    EXPECT_EQ(Find<UMenu>().Current(), 0);
    EXPECT_EQ(BodyPage(), 0);
}

TEST_F(ShellTest, ClosingAnEnrolledDevicesWindowKeepsThePage) {
    Start(true);
    Press("menu_about");
    QTest::mouseClick(&Find<UExitButton>(), Qt::LeftButton);
    EXPECT_FALSE(Window().isVisible());
    ActivateTray(QSystemTrayIcon::Trigger);
    EXPECT_EQ(StackPage(), QStringLiteral("mainPage"));
    EXPECT_EQ(BodyPage(), static_cast<int>(MenuEntry::About));
    EXPECT_EQ(Window().focusWidget(), &Entry("menu_about"));
}

TEST_F(ShellTest, TrayOpensOnSingleClickAlone) {
    Start(true);
    Window().hide();
    for (const auto reason : {QSystemTrayIcon::Unknown, QSystemTrayIcon::Context,
                              QSystemTrayIcon::DoubleClick, QSystemTrayIcon::MiddleClick}) {
        ActivateTray(reason);
        EXPECT_FALSE(Window().isVisible()) << reason;
    }
    ActivateTray(QSystemTrayIcon::Trigger);
    EXPECT_TRUE(Window().isVisible());

    Window().showMinimized();
    ActivateTray(QSystemTrayIcon::Trigger);
    EXPECT_TRUE(Window().isVisible());
    EXPECT_FALSE(Window().isMinimized());
}

TEST_F(ShellTest, TrayMenuTellsTheLinkAndOpensWhatIsAskedFor) {
    Start(true);
    const QList<QAction*> actions = Find<QSystemTrayIcon>().contextMenu()->actions();
    ASSERT_EQ(actions.size(), 4); // state, line, open, report
    EXPECT_FALSE(actions[0]->isEnabled());
    ReceiveStatus(2);
    EXPECT_EQ(actions[0]->text(), QStringLiteral("Link: Connected"));
    ReceiveStatus(4);
    EXPECT_EQ(actions[0]->text(), QStringLiteral("Link: Not connected"));

    Window().hide();
    EXPECT_EQ(actions[2]->text(), QStringLiteral("Open"));
    actions[2]->trigger();
    EXPECT_TRUE(Window().isVisible());
    EXPECT_EQ(StackPage(), QStringLiteral("mainPage"));

    Window().hide();
    EXPECT_EQ(actions[3]->text(), QStringLiteral("Report a problem"));
    actions[3]->trigger();
    EXPECT_TRUE(Window().isVisible());
    EXPECT_EQ(StackPage(), QStringLiteral("feedbackPage"));
}

TEST_F(ShellTest, ALinkThatComesUpLeavesTheLauncher) {
    Start(false);
    ReceiveStatus(0);
    EXPECT_EQ(StackPage(), QStringLiteral("launcher"));
    ReceiveStatus(2);
    EXPECT_EQ(StackPage(), QStringLiteral("mainPage"));
    EXPECT_EQ(Window().LinkStatus(), IotStatus::Connected);
    ReceiveStatus(0);
    EXPECT_EQ(StackPage(), QStringLiteral("mainPage")) << "nobody is thrown out of a page in use";
}

TEST_F(ShellTest, ToastsTellWhatHappened) {
    struct Case {
        std::function<void()> happens;
        const char* message;
    };
    const Case cases[] = {
        {[&] { stage->Receive(74, "Staff <b>net</b>"); },
         "Unable to connect to “Staff <b>net</b>”. Please contact IT administrator."},
        {[&] { stage->Receive(75, "whatever"); }, "The channel of this device was changed."},
        {[&] { Window().ShowResult(QStringLiteral("usb_bind_success")); },
         "The enrolment details were read from the USB drive."},
        {[&] { Window().ShowResult(QStringLiteral("usb_bind_failed")); },
         "This device is already enrolled. The details on the USB drive were not used."},
    };
    for (const Case& given : cases) {
        Start(true);
        given.happens();
        EXPECT_EQ(ShownToast(), QString::fromUtf8(given.message));
    }
    Start(true);
    Window().hide();
    stage->Receive(75);
    EXPECT_EQ(ShownToast(), QString()) << "nobody would see it";
}

TEST_F(ShellTest, PagesReachTheirWindowWithoutKnowingIt) {
    Start(true);
    QWidget& page = *Find<UBody>().currentWidget();
    QDialog dialog(&Window());
    auto* inDialog = new QLabel(&dialog);
    EXPECT_EQ(RyxWindow::Of(&page), &Window());
    EXPECT_EQ(RyxWindow::Of(inDialog), &Window());
    QWidget elsewhere;
    EXPECT_EQ(RyxWindow::Of(&elsewhere), nullptr);
    EXPECT_EQ(RyxWindow::Of(nullptr), nullptr);
    EXPECT_TRUE(RyxWindow::Of(&page)->MainController());

    RyxWindow::Of(&page)->OpenNetworkPage();
    EXPECT_EQ(BodyPage(), static_cast<int>(MenuEntry::Network));

    RyxWindow::Of(&page)->BeginBinding(RyxWindow::BindAction::Unbind);
    EXPECT_TRUE(Find<ULoadingBar>().IsBusy());
    RyxWindow::Of(&page)->EndBinding();
    EXPECT_FALSE(Find<ULoadingBar>().IsBusy());

    AppContextData::Instance()->deviceName = "Renamed";
    RyxWindow::Of(&page)->UpdateDeviceInfo();
    EXPECT_EQ(Window().findChild<QLabel*>(QStringLiteral("headerDeviceName"))->text(),
              QStringLiteral("Renamed"));
}

TEST_F(ShellTest, WindowIsWhiteUnlessTheThemeIsDark) {
    Start(true);
    const auto corner = [&] {
        const QImage picture = Window().grab().toImage();
        return picture.pixelColor(picture.width() - 3, picture.height() - 3);
    };
    EXPECT_EQ(corner(), QColor(Qt::white));
    EXPECT_EQ(Window().styleSheet(),
              QStringLiteral("QWidget#MainWindow\n{\t\n\tbackground-color: rgb(255, 255, 255);\n}"));
    Theme::Instance()->Apply(QStringLiteral("dark"));
    EXPECT_EQ(corner(), Theme::Instance()->Color(QStringLiteral("window")));
    Theme::Instance()->Apply(QStringLiteral("light"));
    EXPECT_EQ(corner(), QColor(Qt::white));
}

} // namespace

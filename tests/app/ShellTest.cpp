#include "app/MainWindow.h"
#include "app/MenuEntry.h"
#include "app/UBody.h"
#include "app/ULauncher.h"
#include "app/UMenu.h"
#include "app/UMenuEntry.h"
#include "app/URoomPage.h"
#include "gallery/Scenes.h"
#include "platform/context/AppContextData.h"
#include "platform/context/LanguageHelper.h"
#include "platform/context/Theme.h"
#include "widgets/UBackButton.h"
#include "widgets/UExitButton.h"
#include "widgets/ULoadingBar.h"
#include "widgets/UToast.h"

#include <QDialog>
#include <QLabel>
#include <QMenu>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QSystemTrayIcon>
#include <QtTest>
#include <gtest/gtest.h>

namespace {

class Shell : public testing::Test {
protected:
    void SetUp() override {
        Theme::Instance()->Apply(QStringLiteral("light"));
        LanguageHelper::Instance()->SetLanguage(QStringLiteral("en"));
    }

    void Start(bool enrolled) { stage = std::make_unique<Stage>(enrolled); }
    void ReceiveStatus(int status) { stage->Receive(2, "{\"status\": " + std::to_string(status) + "}"); }

    MainWindow& Window() { return stage->Window(); }
    template <class Part>
    Part& Find() {
        return *Window().findChild<Part*>();
    }
    QString StackPage() { return Find<QStackedWidget>().currentWidget()->objectName(); }
    UMenuEntry& Entry(const char* name) {
        return *Window().findChild<UMenuEntry*>(QString::fromLatin1(name));
    }
    void Press(const char* name) { QTest::mouseClick(&Entry(name), Qt::LeftButton); }
    int BodyPage() { return Find<UBody>().CurrentPage(); }
    QString ShownToast() {
        for (const UToast* toast : Window().findChildren<UToast*>())
            if (!toast->ShownMessage().isEmpty())
                return toast->ShownMessage();
        return {};
    }
    void ActivateTray(QSystemTrayIcon::ActivationReason reason) {
        emit Find<QSystemTrayIcon>().activated(reason);
    }

    std::unique_ptr<Stage> stage;
};

TEST_F(Shell, StartsWhereTheDeviceStands) {
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

TEST_F(Shell, ClosingHidesAndWithoutEnrolmentReturnsToTheLauncher) {
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

TEST_F(Shell, ClosingAnEnrolledDevicesWindowKeepsThePage) {
    Start(true);
    Press("menu_about");
    QTest::mouseClick(&Find<UExitButton>(), Qt::LeftButton);
    EXPECT_FALSE(Window().isVisible());
    ActivateTray(QSystemTrayIcon::Trigger);
    EXPECT_EQ(StackPage(), QStringLiteral("mainPage"));
    EXPECT_EQ(BodyPage(), static_cast<int>(MenuEntry::About));
    EXPECT_EQ(Window().focusWidget(), &Entry("menu_about"));
}

TEST_F(Shell, TrayOpensOnSingleClickAlone) {
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

TEST_F(Shell, TrayMenuTellsTheLinkAndOpensWhatIsAskedFor) {
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

TEST_F(Shell, LiveChannelsShowOnceTheEnrolledDeviceHasSome) {
    const std::string empty = R"({"liveChannelList": []})";
    const std::string one = R"({"liveChannelList": [{"id": 7, "name": "News"}]})";
    struct Case {
        bool enrolled;
        std::vector<std::string> bodies;
        bool visible;
    };
    for (const Case& given :
         {Case{true, {empty}, false}, Case{true, {one}, true}, Case{true, {one, empty}, true},
          Case{true, {one, "not JSON"}, true}, Case{false, {one}, false}}) {
        Start(given.enrolled);
        for (const std::string& body : given.bodies)
            stage->Receive(46, body);
        EXPECT_EQ(Entry("menu_live_channels").isVisibleTo(&Window()), given.visible) << given.bodies.back();
    }
}

TEST_F(Shell, LiveChannelsGoWithTheEnrolment) {
    Start(true);
    stage->Receive(46, R"({"liveChannelList": [{"id": 7}]})");
    Press("menu_live_channels");
    ASSERT_EQ(BodyPage(), static_cast<int>(MenuEntry::LiveChannels));
    ReceiveStatus(0);
    EXPECT_FALSE(Entry("menu_live_channels").isVisible());
    EXPECT_EQ(Find<UMenu>().Current(), 0);
    EXPECT_EQ(BodyPage(), 0);
}

/// True when somewhere in the picture stands a solid square of `side` pixels in exactly this colour.
bool HasSquare(const QImage& image, const QColor& color, int side) {
    for (int top = 0; top + side <= image.height(); ++top)
        for (int left = 0; left + side <= image.width(); ++left) {
            bool solid = true;
            for (int y = top; solid && y < top + side; ++y)
                for (int x = left; solid && x < left + side; ++x)
                    solid = image.pixelColor(x, y) == color;
            if (solid)
                return true;
        }
    return false;
}

TEST_F(Shell, HeaderShowsTheLinkInColourAndWords) {
    struct Case {
        int status;
        const char* color;
        const char* words;
    };
    for (const QString& theme : Theme::Names()) {
        Theme::Instance()->Apply(theme);
        Start(false);
        for (const Case& expected :
             {Case{0, "#57606A", "Not enrolled"}, Case{2, "#1A7F37", "Connected"},
              Case{4, "#CF222E", "Not connected"}, Case{3, "#CF222E", "Not connected"},
              Case{5, "#9A6700", "Connecting …"}, Case{99, "#9A6700", "Connecting …"}}) {
            ReceiveStatus(expected.status);
            Settle();
            const QImage header = Window().findChild<QWidget*>(QStringLiteral("header"))->grab().toImage();
            EXPECT_TRUE(HasSquare(header, QColor(QLatin1String(expected.color)), 10))
                << theme.toStdString() << ' ' << expected.status;
            EXPECT_EQ(Window().findChild<QLabel*>(QStringLiteral("statusWords"))->text(),
                      QString::fromUtf8(expected.words));
        }
    }
}

TEST_F(Shell, ALinkThatComesUpLeavesTheLauncher) {
    Start(false);
    ReceiveStatus(0);
    EXPECT_EQ(StackPage(), QStringLiteral("launcher"));
    ReceiveStatus(2);
    EXPECT_EQ(StackPage(), QStringLiteral("mainPage"));
    EXPECT_EQ(Window().LinkStatus(), IotStatus::Connected);
    ReceiveStatus(0);
    EXPECT_EQ(StackPage(), QStringLiteral("mainPage")) << "nobody is thrown out of a page in use";
}

TEST_F(Shell, MenuMarksWhatThereIsToKnow) {
    Start(true);
    const auto told = [&](const char* entry) { return !Entry(entry).accessibleDescription().isEmpty(); };
    EXPECT_FALSE(told("menu_network") || told("menu_settings"));
    ReceiveStatus(4);
    EXPECT_TRUE(told("menu_network"));
    ReceiveStatus(2);
    EXPECT_FALSE(told("menu_network"));

    stage->Receive(77, R"({"keyList": ["location"]})");
    EXPECT_TRUE(told("menu_settings"));
    stage->Receive(77, R"({"keyList": []})");
    EXPECT_FALSE(told("menu_settings"));
    stage->Receive(77, R"({"keyList": ["location"]})");
    ReceiveStatus(0);
    EXPECT_FALSE(told("menu_settings"));
}

TEST_F(Shell, PagesAreMadeOnFirstNeedAndKept) {
    Start(true);
    auto& body = Find<UBody>();
    const int network = static_cast<int>(MenuEntry::Network);
    EXPECT_EQ(body.Page(network), nullptr);
    Press("menu_network");
    QWidget* page = body.Page(network);
    ASSERT_TRUE(page);
    EXPECT_TRUE(body.IsSwitchPage(network));
    Press("menu_about");
    EXPECT_FALSE(body.IsSwitchPage(network));
    Find<UMenu>().SwitchTo(network);
    EXPECT_EQ(body.currentWidget(), page);
    for (const int none : {-1, MenuEntryCount, static_cast<int>(MenuEntry::Feedback)}) {
        body.SwitchPage(none);
        EXPECT_FALSE(body.IsSwitchPage(none));
        EXPECT_EQ(body.currentWidget(), page);
    }
}

TEST_F(Shell, MenuTellsOnlyOfChanges) {
    Start(true);
    auto& menu = Find<UMenu>();
    QSignalSpy changed(&menu, &UMenu::MenuChanged);
    menu.SwitchTo(3);
    menu.SwitchTo(3);
    menu.SwitchTo(-1);
    menu.SwitchTo(MenuEntryCount);
    menu.Select(5);
    ASSERT_EQ(changed.count(), 1);
    EXPECT_EQ(changed[0][0].toInt(), 3);
    Press("menu_settings");
    EXPECT_EQ(changed.count(), 2);
    EXPECT_EQ(changed[1][0].toInt(), 4);
}

TEST_F(Shell, FeedbackLeadsBackToWhereTheUserWas) {
    Start(true);
    Press("menu_about");
    Press("menu_feedback");
    EXPECT_EQ(StackPage(), QStringLiteral("feedbackPage"));
    QTest::mouseClick(Window().findChild<QWidget*>(QStringLiteral("feedbackPage"))->findChild<UBackButton*>(),
                      Qt::LeftButton);
    EXPECT_EQ(StackPage(), QStringLiteral("mainPage"));
    EXPECT_EQ(BodyPage(), static_cast<int>(MenuEntry::About));
    EXPECT_EQ(Find<UMenu>().Current(), static_cast<int>(MenuEntry::About));

    Start(false);
    Window().OpenFeedbackPage();
    Window().OpenFeedbackPage();
    QTest::mouseClick(Window().findChild<QWidget*>(QStringLiteral("feedbackPage"))->findChild<UBackButton*>(),
                      Qt::LeftButton);
    EXPECT_EQ(StackPage(), QStringLiteral("launcher"));
}

TEST_F(Shell, ToastsTellWhatHappened) {
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

TEST_F(Shell, PagesReachTheirWindowWithoutKnowingIt) {
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

TEST_F(Shell, NetworkPageOpensFromTheLauncherToo) {
    Start(false);
    Window().OpenNetworkPage();
    EXPECT_EQ(StackPage(), QStringLiteral("mainPage"));
    EXPECT_EQ(BodyPage(), static_cast<int>(MenuEntry::Network));
}

TEST_F(Shell, RoomsFollowTheLinkWhileTheyAreOpen) {
    Start(true);
    Press("menu_network");
    const auto shows = [&](const char* words) {
        Settle();
        for (const QLabel* label : Find<UBody>().currentWidget()->findChildren<QLabel*>())
            if (label->isVisible() && label->text() == QString::fromUtf8(words))
                return true;
        return false;
    };
    ReceiveStatus(2);
    EXPECT_TRUE(shows("Connected"));
    ReceiveStatus(5);
    EXPECT_TRUE(shows("Connecting …"));
    EXPECT_FALSE(shows("Connected"));
}

TEST_F(Shell, WindowIsWhiteUnlessTheThemeIsDark) {
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

TEST_F(Shell, NarrowWindowKeepsTheMenuAsIcons) {
    Start(true);
    const int wide = Find<UMenu>().width();
    Window().resize(700, 500);
    Settle();
    EXPECT_LT(Find<UMenu>().width(), wide / 2);
    Window().resize(1280, 720);
    Settle();
    EXPECT_EQ(Find<UMenu>().width(), wide);
}

} // namespace

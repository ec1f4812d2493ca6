// The front end's window in English and the light theme, fed by hand.
#include "app/MainWindow.h"
#include "app/Pages.h"
#include "app/UBody.h"
#include "app/UMenu.h"
#include "app/UMenuEntry.h"
#include "gallery/Scenes.h"
#include "pages/NetworkCheck.h"
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
#include <QScreen>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QSystemTrayIcon>
#include <QtTest>
#include <gtest/gtest.h>

namespace {

const std::string OneChannel = R"({"liveChannelList": [{"id": 7, "name": "News"}]})";

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
    Part& Find(const char* name = nullptr) {
        return *Window().findChild<Part*>(QString::fromLatin1(name));
    }
    void Click(QWidget& part) { QTest::mouseClick(&part, Qt::LeftButton); }
    void PressMenu(const char* name) {
        Click(Find<UMenuEntry>(name));
        WaitFor([] { return !NetworkCheck::OfApplication()->IsRunning(); }); // which its page begins
    }
    void ActivateTray(QSystemTrayIcon::ActivationReason reason = QSystemTrayIcon::Trigger) {
        emit Find<QSystemTrayIcon>().activated(reason);
    }
    /// Where the user is, as stack, menu and body show it.
    std::string Place() {
        const std::string shown = Find<QStackedWidget>("stack").currentWidget()->objectName().toStdString();
        const int page = Find<UMenu>().Current();
        EXPECT_TRUE(Find<UBody>().IsSwitchPage(page)) << "menu and body contradict each other";
        return shown == "mainPage" ? Pages()[static_cast<size_t>(page)].id : shown;
    }
    bool Shows(const QWidget& part, const char* words) {
        Settle();
        for (const QLabel* label : part.findChildren<QLabel*>())
            if (label->isVisible() && label->text() == QString::fromUtf8(words))
                return true;
        return false;
    }
    QString ShownToast() {
        for (const UToast* toast : Window().findChildren<UToast*>())
            if (!toast->ShownMessage().isEmpty())
                return toast->ShownMessage();
        return {};
    }

    std::unique_ptr<Stage> stage;
};

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

TEST_F(Shell, StartsWhereTheDeviceStandsAndNoLargerThanTheScreen) {
    for (const bool enrolled : {false, true}) {
        Start(enrolled);
        EXPECT_EQ(Place(), enrolled ? "enrolment" : "launcher");
        EXPECT_EQ(Window().windowTitle(), QStringLiteral("Velmora RYX"));
        EXPECT_FALSE(Window().windowIcon().isNull());
        EXPECT_TRUE(Find<QSystemTrayIcon>().isVisible());
        EXPECT_EQ(Find<QSystemTrayIcon>().toolTip(), QStringLiteral("Velmora RYX"));
        EXPECT_FALSE(Find<UMenuEntry>("menu_live_channels").isVisible());
    }
    const MainWindow window;
    const QSize screen = window.screen()->availableSize();
    EXPECT_EQ(window.width(), qMin(1280, screen.width()));
    EXPECT_LE(window.height(), qMin(720, screen.height()));
}

// Each walk ends where the last word says, whatever the way there.
TEST_F(Shell, OneKnowsWhereOneIs) {
    const struct {
        bool enrolled;
        std::vector<const char*> walk;
        const char* place;
    } cases[] = {
        {false, {"enrol"}, "enrolment"},
        {false, {"enrol", "menu_about", "close"}, "launcher"},
        {false, {"enrol", "menu_about", "close", "enrol"}, "enrolment"},
        {false, {"feedback", "feedback", "back"}, "launcher"},
        {false, {"feedback", "close"}, "launcher"},
        {false, {"network"}, "network"},
        {false, {"status 0"}, "launcher"},
        {false, {"status 2"}, "enrolment"},
        {false, {"status 3"}, "launcher"},
        {false, {"status 2", "close"}, "enrolment"},
        {false, {"feedback", "status 2"}, "feedbackPage"},
        {false, {"feedback", "status 2", "back"}, "enrolment"},
        {true, {"menu_about", "close"}, "about"},
        {true, {"menu_about", "menu_feedback"}, "feedbackPage"},
        {true, {"menu_about", "menu_feedback", "back"}, "about"},
        {true, {"menu_feedback", "network", "menu_feedback", "back"}, "network"},
        {true, {"menu_network", "status 0"}, "network"}, // nobody is thrown out of a page in use
        {true, {"menu_network", "status 0", "close"}, "launcher"},
    };
    for (const auto& row : cases) {
        Start(row.enrolled);
        std::string way;
        for (const std::string step : row.walk) {
            way += step + ", ";
            if (step.rfind("status", 0) == 0) {
                ReceiveStatus(step.back() - '0');
            } else if (step == "enrol") {
                Click(Find<QPushButton>("launcherEnrol"));
            } else if (step == "feedback") {
                Window().OpenFeedbackPage();
            } else if (step == "network") {
                Window().OpenNetworkPage();
            } else if (step == "back") {
                Click(*Find<QWidget>("feedbackPage").findChild<UBackButton*>());
            } else if (step == "close") {
                Click(Find<UExitButton>());
                EXPECT_FALSE(Window().isVisible());
                ActivateTray();
            } else {
                PressMenu(step.c_str());
            }
        }
        EXPECT_EQ(Place(), row.place) << way;
        EXPECT_TRUE(Window().isVisible());
    }
}

TEST_F(Shell, ReopenedTheKeyboardIsAtTheMenuWhereReturnOpensPages) {
    Start(true);
    PressMenu("menu_about");
    Click(Find<UExitButton>());
    ActivateTray();
    EXPECT_EQ(Window().focusWidget(), &Find<UMenuEntry>("menu_about"));
    Find<UMenuEntry>("menu_network").setFocus();
    QTest::keyClick(Window().focusWidget(), Qt::Key_Return);
    EXPECT_EQ(Place(), "network");
}

TEST_F(Shell, LiveChannelsShowOnceTheEnrolledDeviceHasSome) {
    const std::string empty = R"({"liveChannelList": []})";
    const struct {
        bool enrolled;
        std::vector<std::string> bodies;
        bool visible;
    } cases[] = {{true, {empty}, false},
                 {true, {OneChannel}, true},
                 {true, {OneChannel, empty}, true},
                 {true, {OneChannel, "not JSON"}, true},
                 {false, {OneChannel}, false}};
    for (const auto& given : cases) {
        Start(given.enrolled);
        for (const std::string& body : given.bodies)
            stage->Receive(46, body);
        EXPECT_EQ(Find<UMenuEntry>("menu_live_channels").isVisibleTo(&Window()), given.visible)
            << given.bodies.back();
    }
    Start(true);
    stage->Receive(46, OneChannel);
    PressMenu("menu_live_channels");
    ReceiveStatus(0);
    EXPECT_EQ(Place(), "live") << "a status says nothing of channels";
}

TEST_F(Shell, HeaderShowsTheLinkInColourAndWords) {
    const struct {
        bool linked;
        int status;
        const char* color;
        const char* words;
    } cases[] = {{true, 0, "#57606A", "Not enrolled"},         {true, 2, "#1A7F37", "Connected"},
                 {true, 4, "#CF222E", "Not connected"},        {true, 3, "#CF222E", "Not connected"},
                 {true, 5, "#9A6700", "Connecting …"},         {true, 99, "#9A6700", "Connecting …"},
                 {false, 2, "#CF222E", "Service not running"}, {true, 2, "#1A7F37", "Connected"}};
    for (const QString& theme : Theme::Names()) {
        Theme::Instance()->Apply(theme);
        Start(false);
        for (const auto& expected : cases) {
            AppContextData::Instance()->SetLinked(expected.linked);
            ReceiveStatus(expected.status);
            EXPECT_EQ(static_cast<int>(Window().LinkStatus()), expected.status);
            Settle();
            EXPECT_TRUE(HasSquare(Find<QWidget>("header").grab().toImage(),
                                  QColor(QLatin1String(expected.color)), 10))
                << theme.toStdString() << ' ' << expected.status;
            EXPECT_EQ(Find<QLabel>("statusWords").text(), QString::fromUtf8(expected.words));
        }
    }
}

TEST_F(Shell, ADeadServiceIsSeenEverywhereAtOnce) {
    Start(true);
    ReceiveStatus(2);
    PressMenu("menu_network");
    const QAction& tray = *Find<QSystemTrayIcon>().contextMenu()->actions().first();
    for (const bool linked : {false, true}) {
        AppContextData::Instance()->SetLinked(linked);
        EXPECT_EQ(Find<QLabel>("statusWords").text().contains(QStringLiteral("Service")), !linked);
        EXPECT_EQ(tray.text().contains(QStringLiteral("Service")), !linked);
        EXPECT_EQ(Shows(*Find<UBody>().currentWidget(), "Connected"), linked);
        EXPECT_EQ(Shows(*Find<UBody>().currentWidget(), "The service on this device is running."), linked);
        EXPECT_EQ(Find<UMenuEntry>("menu_network").accessibleDescription().isEmpty(), linked);
        EXPECT_EQ(Find<QLabel>("launcherNoService").isVisibleTo(&Find<QWidget>("launcher")), !linked);
    }
}

TEST_F(Shell, AStatusThatChangesNothingIsNotToldAgain) {
    Start(true);
    PressMenu("menu_network");
    ReceiveStatus(2);
    Settle();
    struct Watcher : QObject {
        bool eventFilter(QObject*, QEvent* event) override {
            updates += event->type() == QEvent::UpdateRequest || event->type() == QEvent::StyleChange;
            return false;
        }
        int updates = 0;
    } watcher;
    Window().installEventFilter(&watcher);
    QSignalSpy changes(&Window(), &RyxWindow::LinkStatusChanged);
    for (int i = 0; i < 10; ++i)
        ReceiveStatus(2);
    Settle();
    EXPECT_EQ(changes.count(), 0);
    EXPECT_EQ(watcher.updates, 0);
}

TEST_F(Shell, MenuMarksWhatTheOrganisationHolds) {
    Start(true);
    const auto told = [&] { return !Find<UMenuEntry>("menu_settings").accessibleDescription().isEmpty(); };
    EXPECT_FALSE(told());
    stage->Receive(77, R"({"keyList": ["location"]})");
    EXPECT_TRUE(told());
    stage->Receive(77, R"({"keyList": []})");
    EXPECT_FALSE(told());
    stage->Receive(77, R"({"keyList": ["location"]})");
    ReceiveStatus(0);
    EXPECT_FALSE(told());
}

TEST_F(Shell, PagesAreMadeOnFirstNeedAndKept) {
    Start(true);
    auto& body = Find<UBody>();
    const int network = PageIndex(PageId::Network);
    EXPECT_EQ(body.Page(network), nullptr);
    QSignalSpy changed(&Find<UMenu>(), &UMenu::MenuChanged);
    PressMenu("menu_network");
    QWidget* page = body.currentWidget();
    PressMenu("menu_about");
    for (const int index : {network, network, -1, static_cast<int>(Pages().size())})
        Find<UMenu>().SwitchTo(index);
    EXPECT_EQ(body.currentWidget(), page);
    EXPECT_EQ(changed.count(), 3) << "only changes are told";
    for (const int none : {-1, static_cast<int>(Pages().size()), PageIndex(PageId::Feedback)}) {
        body.SwitchPage(none);
        EXPECT_FALSE(body.IsSwitchPage(none));
        EXPECT_EQ(body.currentWidget(), page);
    }
}

TEST_F(Shell, TrayOpensOnSingleClickAloneAndItsMenuOpensWhatIsAskedFor) {
    Start(true);
    Window().hide();
    for (const auto reason : {QSystemTrayIcon::Unknown, QSystemTrayIcon::Context,
                              QSystemTrayIcon::DoubleClick, QSystemTrayIcon::MiddleClick}) {
        ActivateTray(reason);
        EXPECT_FALSE(Window().isVisible()) << reason;
    }
    Window().showMinimized();
    ActivateTray();
    EXPECT_TRUE(Window().isVisible());
    EXPECT_FALSE(Window().isMinimized());

    const QList<QAction*> actions = Find<QSystemTrayIcon>().contextMenu()->actions();
    ASSERT_EQ(actions.size(), 5); // state, line, open, messages, report
    EXPECT_FALSE(actions[0]->isEnabled());
    ReceiveStatus(4);
    EXPECT_EQ(actions[0]->text(), QStringLiteral("Link: Not connected"));
    for (const auto& [action, place] : {std::pair{actions[2], "enrolment"}, {actions[4], "feedbackPage"}}) {
        Window().hide();
        action->trigger();
        EXPECT_TRUE(Window().isVisible());
        EXPECT_EQ(Place(), place);
    }
    QSignalSpy messages(&Window(), &MainWindow::MessagesRequested);
    actions[3]->trigger();
    EXPECT_EQ(messages.count(), 1);
}

TEST_F(Shell, NoticesTellWhatHappenedAsPlainText) {
    Start(true);
    stage->Receive(74, "Staff <b>net</b>");
    EXPECT_EQ(ShownToast(),
              QString::fromUtf8("Unable to connect to “Staff <b>net</b>”. Please contact IT administrator."));
    Start(true);
    stage->Receive(75, "whatever");
    EXPECT_EQ(ShownToast(), QStringLiteral("The channel of this device was changed."));
    for (const QLabel* label : Window().findChildren<QLabel*>())
        if (label->objectName() != QLatin1String("stepNumber") &&
            label->objectName() != QLatin1String("agreementText")) { // the product's own words
            EXPECT_EQ(label->textFormat(), Qt::PlainText) << label->objectName().toStdString();
        }
    Start(true);
    Window().hide();
    stage->Receive(75);
    EXPECT_EQ(ShownToast(), QString()) << "nobody would see it";
    Window().show();
    QMetaObject::invokeMethod(&Find<QTimer>("waitingNoticesTimer"), "timeout");
    EXPECT_EQ(ShownToast().isEmpty(), QSystemTrayIcon::isSystemTrayAvailable()) << "it is told once";
}

TEST_F(Shell, PagesReachTheirWindowWithoutKnowingIt) {
    Start(true);
    QWidget& page = *Find<UBody>().currentWidget();
    QDialog dialog(&Window());
    auto* inDialog = new QLabel(&dialog);
    QWidget elsewhere;
    EXPECT_EQ(RyxWindow::Of(&page), &Window());
    EXPECT_EQ(RyxWindow::Of(inDialog), &Window());
    EXPECT_EQ(RyxWindow::Of(&elsewhere), nullptr);
    EXPECT_EQ(RyxWindow::Of(nullptr), nullptr);
    EXPECT_TRUE(RyxWindow::Of(&page)->MainController());

    RyxWindow::Of(&page)->BeginBinding(RyxWindow::BindAction::Unbind);
    EXPECT_TRUE(Find<ULoadingBar>().IsBusy());
    RyxWindow::Of(&page)->EndBinding();
    EXPECT_FALSE(Find<ULoadingBar>().IsBusy());

    PressMenu("menu_about");
    AppContextData::Instance()->SetDeviceName("Renamed");
    EXPECT_TRUE(Shows(Find<QWidget>("header"), "Renamed"));
    EXPECT_TRUE(Shows(*Find<UBody>().currentWidget(), "Renamed"));
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

TEST_F(Shell, WindowIsWhiteUnlessTheThemeIsDark) {
    Start(true);
    const auto corner = [&] {
        const QImage picture = Window().grab().toImage();
        return picture.pixelColor(picture.width() - 3, picture.height() - 3);
    };
    EXPECT_EQ(Window().styleSheet(),
              QStringLiteral("QWidget#MainWindow\n{\t\n\tbackground-color: rgb(255, 255, 255);\n}"));
    for (const char* theme : {"dark", "light"}) {
        Theme::Instance()->Apply(QString::fromLatin1(theme));
        EXPECT_EQ(corner(), Theme::Instance()->Color(QStringLiteral("window"))) << theme;
    }
    EXPECT_EQ(corner(), QColor(Qt::white));
}

} // namespace

#include "app/ShellFixture.h"
#include "app/URoomPage.h"
#include "widgets/UBackButton.h"

#include <QLabel>
#include <QSignalSpy>

namespace {

using Navigation = Shell;

TEST_F(Navigation, LiveChannelsShowOnceTheEnrolledDeviceHasSome) {
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

TEST_F(Navigation, LiveChannelsGoWithTheEnrolment) {
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

TEST_F(Navigation, HeaderShowsTheLinkInColourAndWords) {
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

TEST_F(Navigation, MenuMarksWhatThereIsToKnow) {
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

TEST_F(Navigation, PagesAreMadeOnFirstNeedAndKept) {
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

TEST_F(Navigation, MenuTellsOnlyOfChanges) {
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

TEST_F(Navigation, FeedbackLeadsBackToWhereTheUserWas) {
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

TEST_F(Navigation, NetworkPageOpensFromTheLauncherToo) {
    Start(false);
    Window().OpenNetworkPage();
    EXPECT_EQ(StackPage(), QStringLiteral("mainPage"));
    EXPECT_EQ(BodyPage(), static_cast<int>(MenuEntry::Network));
}

TEST_F(Navigation, RoomsFollowTheLinkWhileTheyAreOpen) {
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

TEST_F(Navigation, NarrowWindowKeepsTheMenuAsIcons) {
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

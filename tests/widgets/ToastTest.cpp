#include "platform/context/Theme.h"
#include "widgets/Announcements.h"
#include "widgets/UToast.h"

#include <QtTest>
#include <gtest/gtest.h>
#include <memory>

namespace {

class Toast : public testing::Test {
protected:
    void SetUp() override {
        Theme::Instance()->Apply(QStringLiteral("light"));
        window.resize(900, 600);
        window.show();
    }

    std::unique_ptr<UToast> Make(UToast::WhenBusy whenBusy = UToast::WhenBusy::Queue) {
        auto toast = std::make_unique<UToast>(&window, whenBusy);
        toast->SetDuration(60000);
        return toast;
    }
    static void Say(UToast& toast, const char* message) {
        toast.SetMessage(QString::fromLatin1(message));
        toast.show();
    }

    QWidget window;
};

TEST_F(Toast, OfOneWindowComeOneAfterTheOther) {
    const auto first = Make();
    const auto second = Make();
    Say(*first, "one");
    Say(*second, "two");
    Say(*first, "three");
    EXPECT_EQ(first->ShownMessage(), QStringLiteral("one"));
    EXPECT_FALSE(second->isVisible());

    first->hide();
    EXPECT_FALSE(first->isVisible());
    EXPECT_EQ(second->ShownMessage(), QStringLiteral("two"));
    second->hide();
    EXPECT_EQ(first->ShownMessage(), QStringLiteral("three"));
    first->hide();
    EXPECT_FALSE(first->isVisible() || second->isVisible());
}

TEST_F(Toast, GoesByItselfAndMakesRoomForTheNext) {
    const auto toast = Make();
    toast->SetDuration(1);
    Say(*toast, "one");
    toast->SetDuration(60000);
    Say(*toast, "two");
    ASSERT_EQ(toast->ShownMessage(), QStringLiteral("one"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return toast->ShownMessage() == QLatin1String("two"); }));
    EXPECT_TRUE(toast->isVisible());
}

TEST_F(Toast, ReplacesItsOwnMessageWhenToldSo) {
    const auto toast = Make(UToast::WhenBusy::Replace);
    const auto other = Make();
    Say(*toast, "Unable to bind.");
    Say(*toast, "error .");
    EXPECT_EQ(toast->ShownMessage(), QStringLiteral("error ."));
    toast->hide();
    EXPECT_FALSE(toast->isVisible());

    Say(*other, "other");
    Say(*toast, "waits");
    Say(*toast, "waits no more");
    EXPECT_EQ(other->ShownMessage(), QStringLiteral("other")); // another's message is never replaced
    other->hide();
    EXPECT_EQ(toast->ShownMessage(), QStringLiteral("waits no more"));
    toast->hide();
    EXPECT_FALSE(toast->isVisible());
}

TEST_F(Toast, OneThatIsDestroyedMakesRoom) {
    auto first = Make();
    const auto second = Make();
    Say(*first, "one");
    Say(*second, "two");
    first.reset();
    EXPECT_EQ(second->ShownMessage(), QStringLiteral("two"));
}

TEST_F(Toast, AnotherWindowHasAQueueOfItsOwn) {
    QWidget otherWindow;
    otherWindow.show();
    const auto here = Make();
    UToast there(&otherWindow);
    Say(*here, "here");
    Say(there, "there");
    EXPECT_TRUE(here->isVisible());
    EXPECT_TRUE(there.isVisible());
}

TEST_F(Toast, IsAnnouncedWhenItAppears) {
    const Announcements announcements;
    const auto first = Make();
    const auto second = Make();
    Say(*first, "one");
    Say(*second, "two");
    EXPECT_EQ(announcements.Heard(), QStringList{QStringLiteral("one")});
    first->hide();
    EXPECT_EQ(announcements.Heard(), (QStringList{QStringLiteral("one"), QStringLiteral("two")}));
    EXPECT_EQ(QAccessible::queryAccessibleInterface(second.get())->role(), QAccessible::AlertMessage);
}

TEST_F(Toast, StaysWithinTheWindowWhateverItsSize) {
    const auto toast = Make();
    const QString sentence =
        QStringLiteral("A message of several words that needs more than one line when it is narrow. ");
    toast->SetMessage(sentence.repeated(3));
    toast->show();
    for (const QSize& size : {QSize(900, 600), QSize(560, 340), QSize(1600, 900)}) {
        window.resize(size);
        QCoreApplication::processEvents();
        EXPECT_TRUE(window.rect().contains(toast->geometry())) << size.width();
        const int middle = toast->geometry().center().x();
        EXPECT_LE(qAbs(2 * middle - size.width()), 4);
    }
}

TEST_F(Toast, DoesNotTakeClicksFromWhatLiesBelow) {
    class Counter : public QWidget {
    public:
        using QWidget::QWidget;
        int presses = 0;
        void mousePressEvent(QMouseEvent*) override { ++presses; }
    } below(&window);
    below.resize(window.size());
    below.show();
    const auto toast = Make();
    Say(*toast, "one");
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, toast->geometry().center());
    EXPECT_EQ(below.presses, 1);
}

} // namespace

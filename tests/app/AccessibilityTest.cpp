#include "app/MainWindow.h"
#include "app/UMenu.h"
#include "app/WidgetWalk.h"
#include "gallery/Scenes.h"
#include "platform/context/LanguageHelper.h"
#include "platform/context/Theme.h"
#include "widgets/UAlert.h"
#include "widgets/UExitButton.h"

#include <QAccessible>
#include <QApplication>
#include <QRadioButton>
#include <QtTest>
#include <algorithm>
#include <gtest/gtest.h>

namespace {

constexpr int SmallestTarget = 44;

/// Every scene that is no popup, on stage and active.
class AllScenesAccessibility : public testing::TestWithParam<Scene> {
protected:
    void SetUp() override {
        Theme::Instance()->Apply(QStringLiteral("light"));
        LanguageHelper::Instance()->SetLanguage(QStringLiteral("en"));
    }
    void TearDown() override {
        stage.reset();
        LanguageHelper::Instance()->SetLanguage(QStringLiteral("en"));
    }

    QWidget& Play() {
        stage = std::make_unique<Stage>(GetParam().enrolled);
        GetParam().play(*stage);
        Settle();
        QWidget& subject = stage->Subject();
        subject.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&subject));
        return subject;
    }

    std::unique_ptr<Stage> stage;
};

TEST_P(AllScenesAccessibility, EveryControlHasNameRoleSizeAndTabStop) {
    QWidget& subject = Play();
    const QVector<QWidget*> controls = InteractiveWidgets(subject);
    EXPECT_EQ(controls.isEmpty(), GetParam().name == QLatin1String("messages-none")); // a sentence alone
    for (QWidget* control : controls) {
        QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(control);
        ASSERT_TRUE(accessible) << Describe(*control);
        EXPECT_FALSE(accessible->text(QAccessible::Name).isEmpty()) << Describe(*control);
        EXPECT_NE(accessible->role(), QAccessible::NoRole) << Describe(*control);
        EXPECT_NE(accessible->role(), QAccessible::Client) << Describe(*control);
        EXPECT_GE(control->width(), SmallestTarget) << Describe(*control);
        EXPECT_GE(control->height(), SmallestTarget) << Describe(*control);
    }
    const QVector<QWidget*> stops = TabStops(subject);
    for (QWidget* control : controls) {
        const auto* radio = qobject_cast<QRadioButton*>(control);
        const bool reachedByArrows = radio && !radio->isChecked();
        EXPECT_TRUE(reachedByArrows || stops.contains(control))
            << Describe(*control) << " is out of the keyboard's reach";
    }
}

// The strip at the top comes first, then the menu, then what stands beside it, and the digit keys last.
int Region(const QWidget& widget) {
    for (const QWidget* part = &widget; part; part = part->parentWidget()) {
        if (qobject_cast<const UExitButton*>(part) && qobject_cast<const MainWindow*>(part->parentWidget()))
            return 0;
        if (qobject_cast<const UMenu*>(part))
            return 1;
        if (part->objectName() == QLatin1String("keypad"))
            return 3;
    }
    return 2;
}

bool ComesAfter(const QWidget& root, const QWidget& earlier, const QWidget& later) {
    if (Region(earlier) != Region(later))
        return Region(earlier) < Region(later);
    const QRect a = PlaceIn(root, earlier), b = PlaceIn(root, later);
    const bool sameRow = a.center().y() < b.bottom() && b.center().y() < a.bottom();
    if (!sameRow)
        return b.top() > a.top();
    // What reads left to right in every language, such as digits, says so itself.
    const QWidget* parent = earlier.parentWidget();
    return parent->isRightToLeft() ? b.right() < a.right() : b.left() > a.left();
}

TEST_P(AllScenesAccessibility, TabFollowsTheReadingOrder) {
    for (const char* language : {"en", "ar"}) {
        SCOPED_TRACE(language);
        LanguageHelper::Instance()->SetLanguage(QString::fromLatin1(language));
        QWidget& subject = Play();
        if (subject.findChild<UAlert*>())
            return; // its buttons are a ring of their own
        if (GetParam().name == QLatin1String("lock-low") ||
            GetParam().name == QLatin1String("settings-dialog-low"))
            return; // two columns: the boxes, then the keys beside them
        QVector<QWidget*> stops = TabStops(subject);
        const auto first = std::find_if(stops.begin(), stops.end(), [&](const QWidget* candidate) {
            return std::all_of(stops.begin(), stops.end(), [&](const QWidget* other) {
                return other == candidate || ComesAfter(subject, *candidate, *other);
            });
        });
        ASSERT_EQ(first == stops.end(), stops.isEmpty());
        std::rotate(stops.begin(), first, stops.end());
        for (int i = 1; i < stops.size(); ++i)
            EXPECT_TRUE(ComesAfter(subject, *stops[i - 1], *stops[i]))
                << Describe(*stops[i - 1]) << " is followed by " << Describe(*stops[i]);
    }
}

TEST_P(AllScenesAccessibility, TheFocusIsVisible) {
    for (const QString& theme : Theme::Names()) {
        Theme::Instance()->Apply(theme);
        QWidget& subject = Play();
        for (QWidget* control : InteractiveWidgets(subject)) {
            if (subject.focusWidget())
                subject.focusWidget()->clearFocus();
            const QImage without = control->grab().toImage();
            control->setFocus(Qt::TabFocusReason);
            EXPECT_NE(control->grab().toImage(), without) << theme.toStdString() << ' ' << Describe(*control);
        }
    }
}

QVector<Scene> ScenesWithoutPopups() {
    QVector<Scene> scenes;
    for (const Scene& scene : AllScenes())
        if (scene.name != QLatin1String("tray-menu") && scene.name != QLatin1String("settings-language-list"))
            scenes.append(scene);
    return scenes;
}

std::string NameOf(const testing::TestParamInfo<Scene>& scene) {
    return QString(scene.param.name).replace(QLatin1Char('-'), QLatin1Char('_')).toStdString();
}

INSTANTIATE_TEST_SUITE_P(Scene, AllScenesAccessibility, testing::ValuesIn(ScenesWithoutPopups()), NameOf);

} // namespace

#include "app/MainWindow.h"
#include "app/WidgetWalk.h"
#include "gallery/Scenes.h"
#include "platform/context/LanguageHelper.h"
#include "platform/context/Theme.h"
#include "widgets/UElidedLabel.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <gtest/gtest.h>

namespace {

bool HasRoom(const QSize& needed, const QSize& given) {
    return needed.width() <= given.width() && needed.height() <= given.height();
}

std::string Needs(const QWidget& widget) {
    const QSize needed = widget.sizeHint();
    return QStringLiteral(" needs %1 x %2 and has %3 x %4")
        .arg(needed.width())
        .arg(needed.height())
        .arg(widget.width())
        .arg(widget.height())
        .toStdString();
}

void ExpectLabelFits(const QLabel& label) {
    if (label.wordWrap()) {
        EXPECT_LE(label.heightForWidth(label.width()), label.height()) << Describe(label);
        EXPECT_LE(label.minimumSizeHint().width(), label.width()) << Describe(label);
    } else {
        EXPECT_TRUE(HasRoom(label.sizeHint(), label.size())) << Describe(label) << Needs(label);
    }
}

// A scroll area may hide what lies below, but not what stands beside.
void ExpectWithinParents(const QWidget& widget) {
    bool scrolled = false;
    for (const QWidget* outer = &widget; outer && !outer->isWindow();) {
        outer = outer->parentWidget();
        const QRect place = PlaceIn(*outer, widget);
        EXPECT_GE(place.left(), 0) << Describe(widget) << " in " << Describe(*outer);
        EXPECT_LE(place.right(), outer->width()) << Describe(widget) << " in " << Describe(*outer);
        scrolled = scrolled || qobject_cast<const QAbstractScrollArea*>(outer->parentWidget());
        if (!scrolled) {
            EXPECT_GE(place.top(), 0) << Describe(widget) << " in " << Describe(*outer);
            EXPECT_LE(place.bottom(), outer->height()) << Describe(widget) << " in " << Describe(*outer);
        }
    }
}

void ExpectNothingCutOff(QWidget& subject) {
    for (const QLabel* label : subject.findChildren<QLabel*>()) {
        if (!label->isVisible() || label->text().isEmpty() || qobject_cast<const UElidedLabel*>(label))
            continue;
        ExpectLabelFits(*label);
        ExpectWithinParents(*label);
    }
    for (const QAbstractButton* button : subject.findChildren<QAbstractButton*>()) {
        if (!button->isVisible())
            continue;
        EXPECT_TRUE(HasRoom(button->sizeHint(), button->size())) << Describe(*button) << Needs(*button);
        ExpectWithinParents(*button);
    }
    for (const QComboBox* box : subject.findChildren<QComboBox*>())
        EXPECT_TRUE(!box->isVisible() || HasRoom(box->sizeHint(), box->size())) << Describe(*box);
    for (const QScrollArea* area : subject.findChildren<QScrollArea*>())
        EXPECT_TRUE(!area->isVisible() || area->horizontalScrollBar()->maximum() == 0) << Describe(*area);
}

class AllScenesTextFit : public testing::TestWithParam<LanguageHelper::Entry> {};

TEST_P(AllScenesTextFit, NothingIsCutOff) {
    Theme::Instance()->Apply(QStringLiteral("light"));
    LanguageHelper::Instance()->SetLanguage(GetParam().code);
    for (const Scene& scene : AllScenes()) {
        SCOPED_TRACE(scene.name.toStdString());
        Stage stage(scene.enrolled);
        scene.play(stage);
        Settle();
        QWidget& subject = stage.Subject();
        ExpectNothingCutOff(subject);
        if (&subject == &stage.Window()) {
            // What is left of 1280 x 720 at 200 %.
            SCOPED_TRACE("640 x 360");
            stage.Window().resize(640, 360);
            Settle();
            ExpectNothingCutOff(stage.Window());
        }
        if (subject.windowFlags().testFlag(Qt::Popup))
            subject.close();
    }
    LanguageHelper::Instance()->SetLanguage(QStringLiteral("en"));
}

const QVector<LanguageHelper::Entry> ShippedLanguages = LanguageHelper::Languages();

std::string NameOf(const testing::TestParamInfo<LanguageHelper::Entry>& language) {
    return language.param.code.toStdString();
}

INSTANTIATE_TEST_SUITE_P(Language, AllScenesTextFit, testing::ValuesIn(ShippedLanguages), NameOf);

} // namespace

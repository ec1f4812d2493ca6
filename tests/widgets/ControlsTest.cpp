#include "platform/context/Theme.h"
#include "widgets/UBackButton.h"
#include "widgets/UElidedLabel.h"
#include "widgets/UExitButton.h"
#include "widgets/ULoadingBar.h"
#include "widgets/ULoadingIndicator.h"

#include <QTextDocumentFragment>

namespace {

class Controls : public testing::Test {
protected:
    void SetUp() override { Theme::Instance()->Apply(QStringLiteral("light")); }
};

/// True when the widget looks different some frames later.
bool Moves(QWidget& widget) {
    const QImage before = widget.grab().toImage();
    return QTest::qWaitFor([&] { return widget.grab().toImage() != before; }, 2000);
}

TEST_F(Controls, ALoadingButtonTurnsTheGivenPictureAndStaysUsable) {
    UBackButton button;
    button.show();
    const qint64 resting = button.icon().cacheKey();
    QSignalSpy clicked(&button, &QPushButton::clicked);
    button.SetLoading(true);
    EXPECT_TRUE(Moves(button));
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_EQ(clicked.count(), 1);
    EXPECT_FALSE(button.accessibleDescription().isEmpty());
    button.SetLoading(false);
    EXPECT_EQ(button.icon().cacheKey(), resting);
    EXPECT_TRUE(button.accessibleDescription().isEmpty());

    for (const char* picture : {":/res/images/ic_32_loading red.svg", ":/res/images/ic_loading_white.png"}) {
        UTextButton plain, own;
        own.SetLoadingIcon(QString::fromLatin1(picture));
        for (UTextButton* turning : {&plain, &own}) {
            turning->resize(120, 48);
            turning->SetLoading(true);
        }
        EXPECT_FALSE(QIcon(QString::fromLatin1(picture)).pixmap(32, 32).isNull()) << picture;
        EXPECT_NE(plain.grab().toImage(), own.grab().toImage()) << picture;
    }
}

TEST_F(Controls, IndicatorsMoveOnlyWhileTheyAreAtWorkAndAnExitButtonTellsOfItsPress) {
    ULoadingIndicator indicator;
    indicator.show();
    EXPECT_TRUE(Moves(indicator));
    ULoadingBar bar;
    bar.resize(300, 4);
    bar.show();
    const QImage idle = bar.grab().toImage();
    bar.SetBusy(true);
    EXPECT_NE(bar.grab().toImage(), idle);
    EXPECT_TRUE(Moves(bar));
    bar.SetBusy(false);
    EXPECT_EQ(bar.grab().toImage(), idle);

    UExitButton button;
    QSignalSpy exited(&button, &UExitButton::Exited);
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_EQ(exited.count(), 1);
}

TEST_F(Controls, AnElidedLabelCutsAndKeepsTheWholeTextAtHand) {
    const QString name = QStringLiteral("Interactive <b>display</b> in the great lecture hall of R&D");
    UElidedLabel label;
    label.SetText(name);
    label.resize(label.sizeHint());
    label.show();
    EXPECT_EQ(label.text(), name);
    EXPECT_TRUE(label.toolTip().isEmpty());
    label.resize(120, label.height());
    EXPECT_NE(label.text(), name);
    EXPECT_LE(label.fontMetrics().horizontalAdvance(label.text()), 120);
    for (const QString& whole : {QTextDocumentFragment::fromHtml(label.toolTip()).toPlainText(),
                                 label.accessibleName(), label.Text()})
        EXPECT_EQ(whole, name);
}

} // namespace

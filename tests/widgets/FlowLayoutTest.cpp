#include "widgets/GestureScrollArea.h"
#include "widgets/QFlowLayout.h"

#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QStyle>
#include <QTouchDevice>
#include <QVBoxLayout>

namespace {

/// An item of a fixed size that counts how often it is asked for it.
struct Box : QSpacerItem {
    explicit Box(QSize size) : QSpacerItem(size.width(), size.height()) {}
    QSize sizeHint() const override { return ++asked, QSpacerItem::sizeHint(); }
    mutable int asked = 0;
};

struct Arrangement {
    QVector<QRect> places;
    int bottom = 0;
};

/// Where items belong: behind the one before, or on a new row below all others.
Arrangement Reference(const QVector<QSize>& sizes, const QRect& area, const QSize& gap, bool mirrored) {
    Arrangement result;
    QPoint next = area.topLeft();
    for (const QSize& size : sizes) {
        if (!result.places.isEmpty() && next.x() + size.width() > area.right() + 1)
            next = {area.left(), result.bottom + gap.height()};
        const int x = mirrored ? area.left() + area.right() + 1 - next.x() - size.width() : next.x();
        result.places.append({QPoint(x, next.y()), size});
        result.bottom = std::max(result.bottom, next.y() + size.height());
        next.rx() += size.width() + gap.width();
    }
    return result;
}

TEST(FlowLayout, FillsRowsAtEveryWidthInBothDirectionsInOnePass) {
    const QVector<QSize> sizes{{30, 10}, {30, 20}, {40, 8}, {150, 10}, {20, 30}, {20, 10}, {1, 1}, {60, 12}};
    for (const int space : {0, 7})
        for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            QWidget parent;
            parent.setLayoutDirection(direction);
            QFlowLayout& layout = *new QFlowLayout(&parent, 2 * space, space, 3 * space);
            EXPECT_EQ(layout.heightForWidth(100), 4 * space) << "without items";
            QVector<Box*> boxes;
            for (const QSize& size : sizes)
                layout.addItem(boxes.insert(boxes.end(), new Box(size))[0]);
            for (int width = 4 * space + 1; width < 450; ++width) {
                const QRect rect(10, 20, width, 90);
                const Arrangement expected =
                    Reference(sizes, rect.adjusted(2 * space, 2 * space, -2 * space, -2 * space),
                              {space, 3 * space}, direction == Qt::RightToLeft);
                for (Box* box : boxes)
                    *box = Box(box->minimumSize());
                const int height = layout.heightForWidth(width);
                for (const Box* box : boxes)
                    ASSERT_TRUE(box->geometry().isNull() && box->asked == 1) << "measuring moves nothing";
                layout.setGeometry(rect);
                ASSERT_EQ(height, expected.bottom + 2 * space - rect.top()) << width;
                for (int i = 0; i < boxes.size(); ++i) {
                    ASSERT_EQ(boxes[i]->geometry(), expected.places[i]) << "item " << i << " at " << width;
                    ASSERT_EQ(boxes[i]->asked, 2);
                }
            }
        }
}

TEST(FlowLayout, OwnsAndHandsOutItsItems) {
    QFlowLayout layout(nullptr, 3, 1, 1);
    auto* small = new Box({10, 10});
    layout.addItem(small);
    layout.addItem(new Box({40, 25}));
    EXPECT_EQ(layout.itemAt(-1), nullptr);
    EXPECT_EQ(layout.itemAt(2), nullptr);
    EXPECT_EQ(layout.minimumSize(), QSize(46, 31));
    EXPECT_EQ(layout.sizeHint(), layout.minimumSize());
    EXPECT_EQ(layout.takeAt(5), nullptr);
    const std::unique_ptr<QLayoutItem> taken(layout.takeAt(0));
    EXPECT_EQ(taken.get(), small);
    EXPECT_EQ(layout.count(), 1);
}

TEST(FlowLayout, SpacingOfMinusOneFollowsTheStyleOrTheLayoutAround) {
    QWidget parent, outer;
    const QStyle& style = *QApplication::style();
    const auto* layout = new QFlowLayout(&parent);
    EXPECT_EQ(layout->horizontalSpacing(),
              style.pixelMetric(QStyle::PM_LayoutHorizontalSpacing, nullptr, &parent));
    EXPECT_EQ(layout->verticalSpacing(),
              style.pixelMetric(QStyle::PM_LayoutVerticalSpacing, nullptr, &parent));

    QFlowLayout alone;
    alone.addItem(new Box({10, 10}));
    alone.addItem(new Box({10, 10}));
    alone.setGeometry({0, 0, 100, 100});
    EXPECT_EQ(alone.itemAt(1)->geometry().x(),
              10 + style.layoutSpacing(QSizePolicy::PushButton, QSizePolicy::PushButton, Qt::Horizontal));

    auto* column = new QVBoxLayout(&outer);
    column->setSpacing(17);
    auto* inner = new QFlowLayout;
    column->addLayout(inner);
    EXPECT_EQ(inner->horizontalSpacing(), 17);
    EXPECT_EQ(inner->verticalSpacing(), 17);
}

TEST(FlowLayout, HiddenWidgetsTakeNoPlaceButSpacersDo) {
    QWidget parent;
    auto* layout = new QFlowLayout(&parent, 0, 5, 5);
    QPushButton *first = new QPushButton, *second = new QPushButton;
    for (QPushButton* button : {first, second}) {
        button->setFixedSize(30, 10);
        layout->addWidget(button);
    }
    layout->addItem(new QSpacerItem(20, 10));
    parent.resize(200, 50);
    parent.show();
    first->hide();
    QCoreApplication::sendPostedEvents();
    layout->activate();
    EXPECT_EQ(second->x(), 0);
    EXPECT_EQ(layout->itemAt(2)->geometry().x(), 35);
}

TEST(GestureScrollArea, ScrollsWithTheFinger) {
    GestureScrollArea area;
    auto* content = new QLabel;
    content->setFixedSize(200, 4000);
    area.setWidget(content);
    area.resize(220, 300);
    area.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&area));

    QTouchDevice* screen = QTest::createTouchDevice();
    QWidget* viewport = area.viewport();
    QTest::touchEvent(viewport, screen).press(0, {100, 250}, viewport);
    for (int y = 240; y >= 60; y -= 20)
        QTest::touchEvent(viewport, screen).move(0, {100, y}, viewport);
    QTest::touchEvent(viewport, screen).release(0, {100, 60}, viewport);
    EXPECT_TRUE(QTest::qWaitFor([&] { return area.verticalScrollBar()->value() > 50; }));
}

} // namespace

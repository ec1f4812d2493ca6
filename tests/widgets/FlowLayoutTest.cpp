#include "widgets/GestureScrollArea.h"
#include "widgets/QFlowLayout.h"

#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QScroller>
#include <QStyle>
#include <QTouchDevice>
#include <QVBoxLayout>
#include <QtTest>
#include <gtest/gtest.h>

namespace {

/// An item of a fixed size that notes where it is put and how often it is asked for its size.
class Box : public QLayoutItem {
public:
    explicit Box(QSize size, int* asked = nullptr) : m_size(size), m_asked(asked) {}

    QSize sizeHint() const override {
        if (m_asked)
            ++*m_asked;
        return m_size;
    }
    QSize minimumSize() const override { return m_size; }
    QSize maximumSize() const override { return m_size; }
    Qt::Orientations expandingDirections() const override { return {}; }
    void setGeometry(const QRect& rect) override { m_rect = rect; }
    QRect geometry() const override { return m_rect; }
    bool isEmpty() const override { return false; }

private:
    QSize m_size;
    int* m_asked;
    QRect m_rect;
};

struct Case {
    const char* what;
    QRect area;
    int margin, hSpacing, vSpacing;
    int height;
    QVector<QSize> items;
    QVector<QPoint> places; // left to right
};

void PrintTo(const Case& arrangement, std::ostream* out) {
    *out << arrangement.what;
}

// clang-format off
const Case Cases[] = {
    {"no items measure to the margins", {0, 0, 100, 50}, 7, 5, 5, 14, {}, {}},
    {"one row", {0, 0, 100, 50}, 0, 5, 5, 20,
        {{30, 10}, {30, 20}}, {{0, 0}, {35, 0}}},
    {"an exact fit does not wrap", {0, 0, 100, 50}, 0, 5, 5, 10,
        {{30, 10}, {30, 10}, {30, 10}}, {{0, 0}, {35, 0}, {70, 0}}},
    {"one pixel less wraps", {0, 0, 99, 50}, 0, 5, 5, 25,
        {{30, 10}, {30, 10}, {30, 10}}, {{0, 0}, {35, 0}, {0, 15}}},
    {"a row is as high as its highest item", {0, 0, 100, 90}, 0, 4, 6, 44,
        {{40, 10}, {40, 30}, {40, 8}}, {{0, 0}, {44, 0}, {0, 36}}},
    {"items touch without spacing", {0, 0, 100, 90}, 0, 0, 0, 20,
        {{50, 10}, {50, 10}, {50, 10}}, {{0, 0}, {50, 0}, {0, 10}}},
    {"a wide item is alone on its row and keeps its width", {0, 0, 100, 90}, 0, 5, 5, 40,
        {{20, 10}, {150, 10}, {20, 10}}, {{0, 0}, {0, 15}, {0, 30}}},
    {"margins and an area that starts elsewhere", {10, 20, 100, 90}, 8, 5, 5, 41,
        {{60, 10}, {60, 10}}, {{18, 28}, {18, 43}}},
};
// clang-format on

class Arrangement : public testing::TestWithParam<Case> {};

TEST_P(Arrangement, PlacesItemsInBothDirections) {
    const Case& expected = GetParam();
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        QWidget parent;
        parent.setLayoutDirection(direction);
        auto* layout = new QFlowLayout(&parent, expected.margin, expected.hSpacing, expected.vSpacing);
        for (const QSize& size : expected.items)
            layout->addItem(new Box(size));

        EXPECT_EQ(layout->heightForWidth(expected.area.width()), expected.height);
        for (int i = 0; i < layout->count(); ++i)
            EXPECT_EQ(layout->itemAt(i)->geometry(), QRect()) << "measuring moved item " << i;

        layout->setGeometry(expected.area);
        const QRect inner =
            expected.area.adjusted(expected.margin, expected.margin, -expected.margin, -expected.margin);
        for (int i = 0; i < layout->count(); ++i) {
            QRect place(expected.places[i], expected.items[i]);
            if (direction == Qt::RightToLeft)
                place.moveLeft(inner.x() + inner.x() + inner.width() - place.x() - place.width());
            EXPECT_EQ(layout->itemAt(i)->geometry(), place) << "item " << i << " in direction " << direction;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(FlowLayout, Arrangement, testing::ValuesIn(Cases));

TEST(FlowLayout, OwnsAndHandsOutItsItems) {
    QFlowLayout layout(nullptr, 3, 1, 1);
    auto* small = new Box({10, 10});
    layout.addItem(small);
    layout.addItem(new Box({40, 25}));
    EXPECT_EQ(layout.count(), 2);
    EXPECT_EQ(layout.itemAt(0), small);
    EXPECT_EQ(layout.itemAt(-1), nullptr);
    EXPECT_EQ(layout.itemAt(2), nullptr);
    EXPECT_EQ(layout.minimumSize(), QSize(46, 31));
    EXPECT_EQ(layout.sizeHint(), layout.minimumSize());
    EXPECT_TRUE(layout.hasHeightForWidth());
    EXPECT_EQ(layout.expandingDirections(), Qt::Orientations());

    EXPECT_EQ(layout.takeAt(5), nullptr);
    const std::unique_ptr<QLayoutItem> taken(layout.takeAt(0));
    EXPECT_EQ(taken.get(), small);
    EXPECT_EQ(layout.count(), 1);
}

TEST(FlowLayout, SpacingOfMinusOneFollowsTheStyle) {
    QWidget parent;
    auto* layout = new QFlowLayout(&parent);
    EXPECT_EQ(layout->horizontalSpacing(),
              parent.style()->pixelMetric(QStyle::PM_LayoutHorizontalSpacing, nullptr, &parent));
    EXPECT_EQ(layout->verticalSpacing(),
              parent.style()->pixelMetric(QStyle::PM_LayoutVerticalSpacing, nullptr, &parent));

    QFlowLayout alone;
    EXPECT_EQ(alone.horizontalSpacing(), -1);
    alone.addItem(new Box({10, 10}));
    alone.addItem(new Box({10, 10}));
    alone.setGeometry({0, 0, 100, 100});
    const int gap = QApplication::style()->layoutSpacing(QSizePolicy::PushButton, QSizePolicy::PushButton,
                                                         Qt::Horizontal);
    EXPECT_EQ(alone.itemAt(1)->geometry().x(), 10 + gap);

    QWidget outer;
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
    auto* first = new QPushButton;
    auto* second = new QPushButton;
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

TEST(FlowLayout, OnePassAsksEachItemOnce) {
    int asked = 0;
    QFlowLayout layout(nullptr, 0, 2, 2);
    for (int i = 0; i < 500; ++i)
        layout.addItem(new Box({17 + i % 23, 9}, &asked));
    layout.heightForWidth(640);
    EXPECT_EQ(asked, 500);
    layout.setGeometry({0, 0, 640, 480});
    EXPECT_EQ(asked, 1000);
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

// One pass of QFlowLayout over its items, beside a bare loop that asks the same items for their sizes and
// moves them in rows; and ten times the items beside ten passes, to show that a pass is linear.

#include "support/PairedRun.h"
#include "widgets/QFlowLayout.h"

#include <QApplication>
#include <benchmark/benchmark.h>
#include <chrono>
#include <memory>
#include <vector>

namespace {

constexpr int Many = 10000;
constexpr int Few = Many / 10;
constexpr int Gap = 6;
const QRect Area(0, 0, 1200, 800);

class Chip : public QLayoutItem {
public:
    explicit Chip(int number) : m_size(60 + number % 37, 32) {}
    QSize sizeHint() const override { return m_size; }
    QSize minimumSize() const override { return m_size; }
    QSize maximumSize() const override { return m_size; }
    Qt::Orientations expandingDirections() const override { return {}; }
    void setGeometry(const QRect& rect) override { m_rect = rect; }
    QRect geometry() const override { return m_rect; }
    bool isEmpty() const override { return false; }

private:
    QSize m_size;
    QRect m_rect;
};

std::unique_ptr<QFlowLayout> MakeLayout(int items) {
    auto layout = std::make_unique<QFlowLayout>(nullptr, 0, Gap, Gap);
    for (int i = 0; i < items; ++i)
        layout->addItem(new Chip(i));
    return layout;
}

/// The same rows, without a layout.
void PlaceBare(const std::vector<std::unique_ptr<QLayoutItem>>& items) {
    QPoint place = Area.topLeft();
    int rowHeight = 0;
    for (const auto& item : items) {
        const QSize size = item->sizeHint();
        if (place.x() + size.width() > Area.width() && rowHeight > 0) {
            place = {Area.x(), place.y() + rowHeight + Gap};
            rowHeight = 0;
        }
        item->setGeometry({place, size});
        place.rx() += size.width() + Gap;
        rowHeight = std::max(rowHeight, size.height());
    }
}

double Microseconds(const std::function<void()>& work, int times) {
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < times; ++i)
        work();
    return std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - start).count() /
           times;
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const std::unique_ptr<QFlowLayout> many = MakeLayout(Many);
    const std::unique_ptr<QFlowLayout> few = MakeLayout(Few);
    std::vector<std::unique_ptr<QLayoutItem>> bare;
    bare.reserve(Many);
    for (int i = 0; i < Many; ++i)
        bare.push_back(std::make_unique<Chip>(i));

    const auto moveMany = [&] { many->setGeometry(Area); };
    const auto moveFew = [&] { few->setGeometry(Area); };
    const auto measureMany = [&] { benchmark::DoNotOptimize(many->heightForWidth(Area.width())); };
    const auto placeBare = [&] { PlaceBare(bare); };

    constexpr int Turns = 101, Times = 5;
    PrintHeading();
    Comparison move{"10,000 items moved / bare loop", "us", 0, 0, 0, 2.0, false};
    PrintRow(Compare(
        move, Turns, [&] { return Microseconds(moveMany, Times); },
        [&] { return Microseconds(placeBare, Times); }));
    Comparison measure{"10,000 items measured / bare loop", "us", 0, 0, 0, 2.0, false};
    PrintRow(Compare(
        measure, Turns, [&] { return Microseconds(measureMany, Times); },
        [&] { return Microseconds(placeBare, Times); }));
    Comparison linear{"10,000 items / 10 x 1,000 items", "us", 0, 0, 0, 1.2, false};
    PrintRow(Compare(
        linear, Turns, [&] { return Microseconds(moveMany, Times); },
        [&] { return Microseconds(moveFew, Times * 10) * 10; }));
}

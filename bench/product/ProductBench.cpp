// How quickly the front end is there, how quickly it locks and how much memory it takes, beside a Qt program
// that does nothing but show an empty window, on the same virtual screen.
#include "LockScreen.h"
#include "MainPage.h"
#include "support/PairedRun.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTextStream>
#include <chrono>
#include <cstdio>
#include <stdexcept>
#include <thread>

namespace {

using Clock = std::chrono::steady_clock;

constexpr char BareTitle[] = "Bare window";

double MillisecondsSince(Clock::time_point start) {
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

/// Looks often enough to tell a millisecond, and seldom enough to leave the processor to who is measured.
template <class Condition>
void Await(const char* what, Condition condition) {
    const auto start = Clock::now();
    while (!condition()) {
        if (MillisecondsSince(start) > 30000)
            throw std::runtime_error(std::string("this did not come: ") + what);
        std::this_thread::sleep_for(std::chrono::microseconds(500));
    }
}

QColor PixelAt(const Desktop& screen, const QPoint& place) {
    return screen.Screenshot(QRect(place, QSize(1, 1))).pixelColor(0, 0);
}

/// The virtual screen itself is black, and so is a window until it is painted.
bool IsPainted(const Desktop& screen, const char* title) {
    const auto window = screen.Find(title);
    return window && PixelAt(screen, window->place.center()) != QColor(Qt::black);
}

/// A figure of /proc/ID/smaps_rollup, in mebibytes.
double Memory(pid_t id, const char* figure) {
    QFile file(QStringLiteral("/proc/%1/smaps_rollup").arg(id));
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("the memory figures cannot be read");
    for (const QByteArray& line : file.readAll().split('\n'))
        if (line.startsWith(figure))
            return line.mid(static_cast<int>(qstrlen(figure))).trimmed().split(' ').front().toDouble() / 1024;
    throw std::runtime_error("there is no such memory figure");
}

/// Processor time of all threads so far.
double ProcessorMs(pid_t id) {
    double nanoseconds = 0;
    const QDir threads(QStringLiteral("/proc/%1/task").arg(id));
    for (const QString& thread : threads.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QFile file(threads.filePath(thread + QStringLiteral("/schedstat")));
        if (file.open(QIODevice::ReadOnly))
            nanoseconds += file.readAll().split(' ').front().toDouble();
    }
    return nanoseconds / 1e6;
}

class Bench {
public:
    Bench() {
        // The bare window gets the size that the product's has.
        RunningProduct product(m_screen);
        product.StartFrontEnd();
        Await("the main window", [&] { return IsPainted(m_screen, MainPage::Title); });
        const QSize size = m_screen.Find(MainPage::Title)->place.size();
        m_bareCommand = {RYX_BIN_DIR "/bare_window", std::to_string(size.width()),
                         std::to_string(size.height())};
    }

    void Run() {
        constexpr int startTurns = 15;
        PrintRow(Compare(
            {"start to painted window", "ms", 0, 0, 0, 1.5}, startTurns, [this] { return StartProduct(); },
            [this] { return StartBare(); }));
        constexpr int memoryTurns = 5;
        for (const char* figure : {"Pss:", "Rss:"})
            PrintRow(Compare(
                {std::string("memory, ") + figure, "MiB", 0, 0, 0, 1.5}, memoryTurns,
                [&] { return ProductMemory(figure); }, [&] { return BareMemory(figure); }));
        CompareLocks();
        CompareRest();
    }

private:
    double StartProduct() {
        RunningProduct product(m_screen);
        const auto start = Clock::now();
        product.StartFrontEnd();
        Await("the main window", [&] { return IsPainted(m_screen, MainPage::Title); });
        return MillisecondsSince(start);
    }

    void StartBareWindow(ChildProcess& bare) {
        bare.Start(m_bareCommand, {"DISPLAY=" + m_screen.Display(), "QT_QPA_PLATFORM", "WAYLAND_DISPLAY"});
        Await(BareTitle, [&] { return IsPainted(m_screen, BareTitle); });
    }

    double StartBare() {
        ChildProcess bare;
        const auto start = Clock::now();
        StartBareWindow(bare);
        return MillisecondsSince(start);
    }

    double ProductMemory(const char* figure) {
        RunningProduct product(m_screen);
        if (!product.StartBoth() || !MainPage(product).WaitForStatus(MainPage::Connected))
            throw std::runtime_error("the product did not start");
        return Memory(product.FrontEnd().Id(), figure);
    }

    double BareMemory(const char* figure) {
        ChildProcess bare;
        StartBareWindow(bare);
        return Memory(bare.Id(), figure);
    }

    /// From the command, to the service or to the bare program, to the painted screen.
    void CompareLocks() {
        ChildProcess bare;
        StartBareWindow(bare);
        RunningProduct product(m_screen);
        if (!product.StartBoth() || !MainPage(product).WaitForStatus(MainPage::Connected))
            throw std::runtime_error("the product did not start");
        const auto lock = [this](const auto& tell) {
            const auto isCovered = [this] { return PixelAt(m_screen, {0, 0}) == LockScreen::Background; };
            const auto start = Clock::now();
            tell("lock");
            Await("the lock", isCovered);
            const double time = MillisecondsSince(start);
            tell("unlock");
            Await("the lock's end", [&] { return !isCovered(); });
            return time;
        };
        constexpr int turns = 31;
        PrintRow(Compare(
            {"lock command to painted lock", "ms", 0, 0, 0, 1.5}, turns,
            [&] { return lock([&](const char* command) { product.Tell(command); }); },
            [&] { return lock([&](const char* command) { bare.Write(std::string(command) + '\n'); }); }));

        // Beside the painting of a window that its own program shows.
        product.Tell("lock");
        const LockScreen screenLock(product);
        Await("the lock", [&] { return screenLock.IsWhole(); });
        const auto restore = [&] {
            const auto window = m_screen.Find(LockScreen::Title);
            const auto start = Clock::now();
            m_screen.Hide(window.value());
            Await("the hidden lock", [this] { return PixelAt(m_screen, {0, 0}) == LockScreen::Background; });
            return MillisecondsSince(start);
        };
        const auto showBare = [&] {
            product.Tell("unlock");
            Await("the lock's end", [&] { return !screenLock.IsWhole(); });
            const double time = lock([&](const char* command) { bare.Write(std::string(command) + '\n'); });
            product.Tell("lock");
            Await("the lock", [&] { return screenLock.IsWhole(); });
            return time;
        };
        PrintRow(Compare({"foreign hide to covered again", "ms", 0, 0, 0, 12.5}, turns, restore, showBare));
    }

    /// What a lock costs while nothing happens, in percent of one core (aim: below 0.5).
    void CompareRest() {
        ChildProcess bare;
        StartBareWindow(bare);
        RunningProduct product(m_screen);
        if (!product.StartBoth())
            throw std::runtime_error("the product did not start");
        product.Tell("lock");
        Await("the lock", [&] { return LockScreen(product).IsWhole(); });
        const auto percent = [](pid_t id) {
            const double before = ProcessorMs(id);
            const auto start = Clock::now();
            std::this_thread::sleep_for(std::chrono::seconds(30));
            return (ProcessorMs(id) - before) / MillisecondsSince(start) * 100;
        };
        PrintRow(Compare(
            {"processor of a lock at rest, 30 s", "%", 0, 0, 0, 0}, 1,
            [&] { return percent(product.FrontEnd().Id()); }, [&] { return percent(bare.Id()); }));
    }

    Desktop m_screen;
    std::vector<std::string> m_bareCommand;
};

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    try {
        Bench().Run();
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}

// What the product is held against: an empty main window, and an empty window over the whole screen that
// comes and goes with the lines "lock" and "unlock" on standard input.
//
//   bare_window WIDTH HEIGHT
#include <QApplication>
#include <QMainWindow>
#include <QScreen>
#include <QSocketNotifier>
#include <cstdio>
#include <cstring>
#include <unistd.h>

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    if (argc != 3)
        return 2;
    QMainWindow window;
    window.setWindowTitle(QStringLiteral("Bare window"));
    window.resize(std::atoi(argv[1]), std::atoi(argv[2]));
    window.show();

    QWidget cover(nullptr, Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    cover.setWindowTitle(QStringLiteral("Bare lock"));
    cover.setStyleSheet(QStringLiteral("background-color: #1B2A3A"));
    QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, [&] {
        char line[64] = {};
        if (::read(STDIN_FILENO, line, sizeof line - 1) <= 0)
            return QCoreApplication::quit();
        cover.setGeometry(QGuiApplication::primaryScreen()->geometry());
        cover.setVisible(std::strncmp(line, "lock", 4) == 0);
    });
    return QApplication::exec();
}

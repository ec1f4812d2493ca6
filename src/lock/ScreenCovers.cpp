#include "lock/ScreenCovers.h"

#include "platform/application/WindowStack.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

ScreenCovers::ScreenCovers(int level) : m_level(level) {
    const auto watch = [this](QScreen* screen) {
        connect(screen, &QScreen::geometryChanged, this, &ScreenCovers::ScreensChanged);
    };
    for (QScreen* screen : QGuiApplication::screens())
        watch(screen);
    connect(qApp, &QGuiApplication::screenAdded, this, [this, watch](QScreen* screen) {
        watch(screen);
        emit ScreensChanged();
    });
    connect(qApp, &QGuiApplication::screenRemoved, this, &ScreenCovers::ScreensChanged);
    connect(qApp, &QGuiApplication::primaryScreenChanged, this, &ScreenCovers::ScreensChanged);
}

ScreenCovers::~ScreenCovers() = default;

QRect ScreenCovers::WholePlace(const QScreen& screen) {
    const bool isScaled = screen.devicePixelRatio() > 1;
    return screen.geometry().adjusted(0, 0, isScaled, isScaled);
}

void ScreenCovers::Show() {
    Hide();
    for (const QScreen* screen : QGuiApplication::screens()) {
        if (screen == QGuiApplication::primaryScreen())
            continue;
        auto cover =
            std::make_unique<QWidget>(nullptr, Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
                                                   Qt::WindowDoesNotAcceptFocus);
        cover->setObjectName(QStringLiteral("ScreenCover"));
        cover->setProperty("TopLevel", m_level);
        cover->setGeometry(WholePlace(*screen));
        WindowStack::Instance()->PushWindow(cover.get());
        cover->show();
        m_covers.push_back(std::move(cover));
    }
}

void ScreenCovers::Hide() {
    m_covers.clear();
}

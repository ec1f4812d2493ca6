#include "lock/ScreenCovers.h"

#include "lock/WindowKeeper.h"
#include "platform/application/WindowStack.h"

#include <QCloseEvent>
#include <QVariant>
#include <QWidget>
#include <algorithm>

namespace {

class CoverWindow : public QWidget {
public:
    CoverWindow()
        : QWidget(nullptr, Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
                               Qt::WindowDoesNotAcceptFocus) {
        setObjectName(QStringLiteral("ScreenCover"));
        setAttribute(Qt::WA_ShowWithoutActivating);
    }

protected:
    void closeEvent(QCloseEvent* event) override { event->ignore(); }
};

} // namespace

ScreenCovers::ScreenCovers(int level, const SystemWindows& system) : m_level(level), m_system(system) {}

ScreenCovers::~ScreenCovers() = default;

void ScreenCovers::Show(const QVector<QRect>& places) {
    const auto covers = [](const QRect& place) {
        return [&place](const Cover& cover) { return cover.keeper->Place() == place; };
    };
    for (const QRect& place : places)
        if (std::none_of(m_covers.begin(), m_covers.end(), covers(place)))
            m_covers.push_back(Make(place));
    m_covers.erase(
        std::remove_if(m_covers.begin(), m_covers.end(),
                       [&](const Cover& cover) { return !places.contains(cover.keeper->Place()); }),
        m_covers.end());
}

ScreenCovers::Cover ScreenCovers::Make(const QRect& place) {
    Cover cover;
    cover.window = std::make_unique<CoverWindow>();
    cover.window->setProperty("TopLevel", m_level);
    cover.keeper = std::make_unique<WindowKeeper>(*cover.window, m_system);
    connect(cover.keeper.get(), &WindowKeeper::Lost, this, &ScreenCovers::Lost);
    WindowStack::Instance()->PushWindow(cover.window.get());
    cover.keeper->Keep(place);
    cover.window->show();
    return cover;
}

void ScreenCovers::Hide() {
    m_covers.clear();
}

void ScreenCovers::Check() {
    for (const Cover& cover : m_covers)
        cover.keeper->Check();
}

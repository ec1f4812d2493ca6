#pragma once

#include <QTimer>
#include <QWidget>
#include <functional>
#include <utility>

/// Brings a widget up to date at once, and then after a moment for all that has changed meanwhile, while it
/// is seen: what a flood of messages does to a page must not hold up the message behind it, which may be a
/// lock. GUI thread.
class LateUpdate : public QTimer {
public:
    /// `show` is to be called by the widget's showEvent, too.
    LateUpdate(QWidget* widget, std::function<void()> show)
        : QTimer(widget), m_widget(widget), m_show(std::move(show)) {
        setObjectName(QStringLiteral("lateUpdate"));
        setSingleShot(true);
        setInterval(PauseMs);
        callOnTimeout(this, [this] {
            if (std::exchange(m_isAsked, false))
                Ask();
        });
    }

    void Ask() {
        m_isAsked = isActive();
        if (m_isAsked || !m_widget->isVisible())
            return;
        start();
        m_show();
    }

private:
    static constexpr int PauseMs = 100;

    QWidget* m_widget;
    std::function<void()> m_show;
    bool m_isAsked = false;
};

#include "platform/system/SystemInput.h"

#include "platform/system/x11/X11Connection.h"

#include <QTimer>
#include <xcb/screensaver.h>

namespace {

constexpr int TryAgainMs = 50;

class X11Input final : public SystemInput {
public:
    X11Input() {
        m_tryAgain.setInterval(TryAgainMs);
        QObject::connect(&m_tryAgain, &QTimer::timeout, [this] {
            if (!m_window || Grab(*m_window))
                m_tryAgain.stop();
        });
    }

    qint64 MillisecondsSinceInput() const override {
        const X11Connection* x11 = X11Connection::Get();
        if (!x11)
            return -1;
        const auto info = Own(xcb_screensaver_query_info_reply(
            x11->Server(), xcb_screensaver_query_info(x11->Server(), x11->Root()), nullptr));
        return info ? qint64{info->ms_since_user_input} : -1;
    }

protected:
    /// Keyboard and pointer may be another client's until it lets go, so it is tried until both are there.
    void TakeKeyboard(QWindow& window) const override {
        m_window = &window;
        if (!Grab(window) && X11Connection::Get())
            m_tryAgain.start();
    }

    void FreeKeyboard(QWindow& window) const override {
        m_tryAgain.stop();
        m_window = nullptr;
        window.setKeyboardGrabEnabled(false);
        window.setMouseGrabEnabled(false);
    }

private:
    static bool Grab(QWindow& window) {
        const bool keyboard = window.setKeyboardGrabEnabled(true);
        const bool pointer = window.setMouseGrabEnabled(true);
        return keyboard && pointer;
    }

    mutable QPointer<QWindow> m_window;
    mutable QTimer m_tryAgain;
};

} // namespace

const SystemInput& SystemInput::Native() {
    static const X11Input input;
    return input;
}

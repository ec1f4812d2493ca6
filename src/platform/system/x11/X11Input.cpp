#include "platform/system/SystemInput.h"

#include "platform/system/x11/X11Connection.h"

#include <xcb/screensaver.h>

namespace {

class X11Input final : public SystemInput {
public:
    qint64 MillisecondsSinceInput() const override {
        const X11Connection* x11 = X11Connection::Get();
        if (!x11)
            return -1;
        const auto info = Own(xcb_screensaver_query_info_reply(
            x11->Server(), xcb_screensaver_query_info(x11->Server(), x11->Root()), nullptr));
        return info ? qint64{info->ms_since_user_input} : -1;
    }

protected:
    void TakeKeyboard(QWindow& window) const override { window.setKeyboardGrabEnabled(true); }
    void FreeKeyboard(QWindow& window) const override { window.setKeyboardGrabEnabled(false); }
};

} // namespace

const SystemInput& SystemInput::Native() {
    static const X11Input input;
    return input;
}

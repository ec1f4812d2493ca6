#include "platform/system/SystemInput.h"
#include "platform/system/windows/AccessibilityKeys.h"
#include "platform/system/windows/KeyboardHook.h"

#include <windows.h>

namespace {

class WindowsInput final : public SystemInput {
public:
    qint64 MillisecondsSinceInput() const override {
        LASTINPUTINFO input{sizeof input, 0};
        if (!GetLastInputInfo(&input))
            return -1;
        // Both are counts of milliseconds that wrap after 49 days; so does their difference.
        return static_cast<DWORD>(GetTickCount() - input.dwTime);
    }

protected:
    void TakeKeyboard(QWindow&) const override {
        m_hook.Start();
        m_accessibility.HoldOff();
    }

    void FreeKeyboard(QWindow&) const override {
        m_hook.Stop();
        m_accessibility.Restore();
    }

private:
    mutable KeyboardHook m_hook;
    mutable AccessibilityKeys m_accessibility;
};

} // namespace

const SystemInput& SystemInput::Native() {
    static const WindowsInput input;
    return input;
}

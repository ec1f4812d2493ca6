#include "platform/system/SystemAppearance.h"

#include <windows.h>

namespace {

class WindowsAppearance final : public SystemAppearance {
public:
    std::optional<bool> IsTaskbarDark() const override {
        DWORD light = 1;
        DWORD size = sizeof light;
        RegGetValueW(HKEY_CURRENT_USER, L"Software\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize",
                     L"SystemUsesLightTheme", RRF_RT_REG_DWORD, nullptr, &light, &size);
        return light == 0;
    }
};

} // namespace

const SystemAppearance& SystemAppearance::Native() {
    static const WindowsAppearance appearance;
    return appearance;
}

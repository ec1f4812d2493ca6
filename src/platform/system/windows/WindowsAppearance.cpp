#include "platform/system/SystemAppearance.h"

#include <windows.h>

namespace {

/// A value of the user's personalisation, which is 1 as long as nobody has chosen.
bool IsZero(const wchar_t* name) {
    DWORD light = 1;
    DWORD size = sizeof light;
    RegGetValueW(HKEY_CURRENT_USER, L"Software\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize",
                 name, RRF_RT_REG_DWORD, nullptr, &light, &size);
    return light == 0;
}

class WindowsAppearance final : public SystemAppearance {
public:
    std::optional<bool> IsTaskbarDark() const override { return IsZero(L"SystemUsesLightTheme"); }
    std::optional<bool> AreProgramsDark() const override { return IsZero(L"AppsUseLightTheme"); }
};

} // namespace

const SystemAppearance& SystemAppearance::Native() {
    static const WindowsAppearance appearance;
    return appearance;
}

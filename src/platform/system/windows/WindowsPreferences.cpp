#include "platform/system/SystemPreferences.h"
#include "platform/system/windows/ComGuard.h"

#include <windows.h>

#include <QDir>
#include <shobjidl.h>
#include <wrl/client.h>

namespace {

constexpr UINT BroadcastMs = 5; // for each window

struct TimeFormat {
    const wchar_t* with12Hours;
    const wchar_t* with24Hours;
};
constexpr TimeFormat LongFormat{L"tt hh:mm:ss", L"HH:mm:ss"};
constexpr TimeFormat ShortFormat{L"tt hh:mm", L"HH:mm"};

class WindowsPreferences final : public SystemPreferences {
public:
    /// A format that cannot be set is no reason to keep the other one from the user.
    void SetHourFormat(HourFormat format) const override {
        const auto set = [format](LCTYPE type, const TimeFormat& formats) {
            SetLocaleInfoW(LOCALE_USER_DEFAULT, type,
                           format == HourFormat::Hours12 ? formats.with12Hours : formats.with24Hours);
        };
        set(LOCALE_STIMEFORMAT, LongFormat);
        set(LOCALE_SSHORTTIME, ShortFormat);
        DWORD_PTR answer = 0;
        SendMessageTimeoutW(HWND_BROADCAST, WM_SETTINGCHANGE, 0, 0, SMTO_ABORTIFHUNG, BroadcastMs, &answer);
    }

    QString DefaultWallpaper() const override {
        return QStringLiteral("C:\\Windows\\Web\\Wallpaper\\Windows\\img0.jpg");
    }

    void SetWallpaper(const QString& file, WallpaperPlacement placement,
                      const Failed& failed) const override {
        const ComGuard com(COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE);
        if (FAILED(com.Result()))
            return failed("SetWallpaper CoInitializeEx failed");
        Microsoft::WRL::ComPtr<IDesktopWallpaper> wallpaper; // released before the guard ends COM
        if (FAILED(CoCreateInstance(__uuidof(DesktopWallpaper), nullptr, CLSCTX_LOCAL_SERVER,
                                    IID_PPV_ARGS(&wallpaper))))
            return failed("SetWallpaper CoCreateInstance failed");
        if (FAILED(wallpaper->SetPosition(static_cast<DESKTOP_WALLPAPER_POSITION>(placement))))
            failed("SetWallpaper SetPosition failed");
        if (FAILED(wallpaper->SetWallpaper(nullptr, QDir::toNativeSeparators(file).toStdWString().c_str())))
            failed("SetWallpaper failed");
    }
};

} // namespace

const SystemPreferences& SystemPreferences::Native() {
    static const WindowsPreferences preferences;
    return preferences;
}

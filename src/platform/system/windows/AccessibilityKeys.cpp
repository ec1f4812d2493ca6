#include "platform/system/windows/AccessibilityKeys.h"

#include <glog/logging.h>
#include <utility>

namespace {

// The bits are the same for all features.
constexpr DWORD HotKeyFlags = SKF_HOTKEYACTIVE | SKF_CONFIRMHOTKEY | SKF_HOTKEYSOUND;
static_assert(HotKeyFlags == (FKF_HOTKEYACTIVE | FKF_CONFIRMHOTKEY | FKF_HOTKEYSOUND) &&
              HotKeyFlags == (TKF_HOTKEYACTIVE | TKF_CONFIRMHOTKEY | TKF_HOTKEYSOUND) &&
              HotKeyFlags == (MKF_HOTKEYACTIVE | MKF_CONFIRMHOTKEY | MKF_HOTKEYSOUND) &&
              HotKeyFlags == (HCF_HOTKEYACTIVE | HCF_CONFIRMHOTKEY | HCF_HOTKEYSOUND));

struct Feature {
    UINT get;
    UINT set;
    UINT size;
    DWORD quietly; // set along, so that nothing but the flags changes
};

constexpr std::array<Feature, 5> Features{{
    {SPI_GETSTICKYKEYS, SPI_SETSTICKYKEYS, sizeof(STICKYKEYS), 0},
    {SPI_GETFILTERKEYS, SPI_SETFILTERKEYS, sizeof(FILTERKEYS), 0},
    {SPI_GETTOGGLEKEYS, SPI_SETTOGGLEKEYS, sizeof(TOGGLEKEYS), 0},
    {SPI_GETMOUSEKEYS, SPI_SETMOUSEKEYS, sizeof(MOUSEKEYS), 0},
    {SPI_GETHIGHCONTRAST, SPI_SETHIGHCONTRAST, sizeof(HIGHCONTRASTW), HCF_OPTION_NOTHEMECHANGE},
}};

/// Every feature's settings begin alike.
union Settings {
    STICKYKEYS head;
    FILTERKEYS filter;
    TOGGLEKEYS toggle;
    MOUSEKEYS mouse;
    HIGHCONTRASTW contrast;
};

} // namespace

DWORD AccessibilityKeys::Exchange(std::size_t index, DWORD flags) const {
    const Feature& feature = Features[index];
    Settings settings{};
    settings.head.cbSize = feature.size;
    if (!m_system(feature.get, feature.size, &settings, 0))
        return flags;
    const DWORD before = settings.head.dwFlags & HotKeyFlags;
    settings.head.dwFlags = (settings.head.dwFlags & ~HotKeyFlags) | flags | feature.quietly;
    if (before != flags && !m_system(feature.set, feature.size, &settings, 0)) {
        LOG_FIRST_N(WARNING, 1) << "AccessibilityKeys " << feature.set << " error " << GetLastError();
    }
    return before;
}

void AccessibilityKeys::HoldOff() {
    if (std::exchange(m_areHeldOff, true))
        return;
    for (std::size_t i = 0; i < Features.size(); ++i)
        m_before[i] = Exchange(i, 0);
}

void AccessibilityKeys::Restore() {
    if (!std::exchange(m_areHeldOff, false))
        return;
    for (std::size_t i = 0; i < Features.size(); ++i)
        Exchange(i, m_before[i]);
}

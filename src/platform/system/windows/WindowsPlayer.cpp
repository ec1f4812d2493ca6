#include "platform/system/SystemPlayer.h"

#include <QDesktopServices>
#include <QUrl>
#include <windows.h>

#include <shlwapi.h>

namespace {

class WindowsPlayer final : public SystemPlayer {
public:
    bool Open(const QUrl& address) const override {
        // For a kind of address that it does not know, the shell would offer its store.
        const std::wstring scheme = address.scheme().toStdWString();
        DWORD length = 0;
        const HRESULT found = AssocQueryStringW(ASSOCF_IS_PROTOCOL, ASSOCSTR_COMMAND, scheme.c_str(), L"open",
                                                nullptr, &length);
        return SUCCEEDED(found) && QDesktopServices::openUrl(address);
    }
};

} // namespace

const SystemPlayer& SystemPlayer::Native() {
    static const WindowsPlayer player;
    return player;
}

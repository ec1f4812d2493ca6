#include "platform/system/SystemPlayer.h"

#include <QDesktopServices>
#include <QUrl>
#include <gio/gio.h>

namespace {

class UnixPlayer final : public SystemPlayer {
public:
    bool Open(const QUrl& address) const override {
        // Qt starts the desktop's opener, which fails without a word when there is no program.
        GAppInfo* program = g_app_info_get_default_for_uri_scheme(address.scheme().toUtf8().constData());
        if (!program)
            return false;
        g_object_unref(program);
        return QDesktopServices::openUrl(address);
    }
};

} // namespace

const SystemPlayer& SystemPlayer::Native() {
    static const UnixPlayer player;
    return player;
}

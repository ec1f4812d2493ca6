#include "platform/system/SystemPlayer.h"

#include <QUrl>
#include <gio/gio.h>

namespace {

class UnixPlayer final : public SystemPlayer {
public:
    bool Open(const QUrl& address) const override {
        // Qt would start the desktop's opener, which fails without a word when there is no program.
        GAppInfo* program = g_app_info_get_default_for_uri_scheme(address.scheme().toUtf8().constData());
        if (!program)
            return false;
        QByteArray text = address.toEncoded();
        GList addresses{text.data(), nullptr, nullptr};
        const bool isStarted = g_app_info_launch_uris(program, &addresses, nullptr, nullptr);
        g_object_unref(program);
        return isStarted;
    }
};

} // namespace

const SystemPlayer& SystemPlayer::Native() {
    static const UnixPlayer player;
    return player;
}

#include "platform/link/PipeTrust.h"

#include "platform/system/SystemPipe.h"

#include <algorithm>

QString PipeTrust::Refusal(const PipePeer& server, const QStringList& trusted) {
    const auto isTrusted = [&trusted](const QString& account) { return trusted.contains(account); };
    if (server.owner.isEmpty())
        return QStringLiteral("nobody knows whom it belongs to");
    if (!isTrusted(server.owner))
        return QStringLiteral("it belongs to ") + server.owner;
    if (!server.accounts)
        return server.inSystemSession
                   ? QString()
                   : QStringLiteral("its process hides its account, in the session of a user");
    return std::any_of(server.accounts->begin(), server.accounts->end(), isTrusted)
               ? QString()
               : QStringLiteral("its process runs as ") + server.accounts->join(QStringLiteral(", "));
}

#include "app/StatusLook.h"

#include <QCoreApplication>

StatusLook StatusLook::Of(IotStatus status) {
    const auto tr = [](const char* key) { return QCoreApplication::translate("StatusLook", key); };
    switch (status) {
    case IotStatus::Connected:
        return {QStringLiteral("connected"), QStringLiteral("link_connected"), tr("status_connected")};
    case IotStatus::Connecting:
        return {QStringLiteral("connecting"), QStringLiteral("link_connecting"), tr("status_connecting")};
    case IotStatus::Disconnected:
        return {QStringLiteral("disconnected"), QStringLiteral("link_disconnected"),
                tr("status_disconnected")};
    case IotStatus::NotEnrolled:
        break;
    }
    return {QStringLiteral("notEnrolled"), QStringLiteral("link_not_enrolled"), tr("status_not_enrolled")};
}

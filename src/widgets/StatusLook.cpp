#include "widgets/StatusLook.h"

#include "platform/application/RyxWindow.h"
#include "platform/context/AppContextData.h"
#include "platform/context/Text.h"

StatusLook StatusLook::Of(IotStatus reported) {
    if (!AppContextData::Instance()->Linked())
        return {QStringLiteral("disconnected"), QStringLiteral("service"), Text("status_no_service")};
    switch (reported) {
    case IotStatus::Connected:
        return {QStringLiteral("connected"), QStringLiteral("link_connected"), Text("status_connected")};
    case IotStatus::Connecting:
        return {QStringLiteral("connecting"), QStringLiteral("link_connecting"), Text("status_connecting")};
    case IotStatus::Disconnected:
        return {QStringLiteral("disconnected"), QStringLiteral("link_disconnected"),
                Text("status_disconnected")};
    case IotStatus::NotEnrolled:
        break;
    }
    return {QStringLiteral("notEnrolled"), QStringLiteral("link_not_enrolled"), Text("status_not_enrolled")};
}

StatusLook StatusLook::InWindowOf(const QWidget* part) {
    const RyxWindow* window = RyxWindow::Of(part);
    return Of(window ? window->KnownLinkStatus() : IotStatus::NotEnrolled);
}

#include "enroll/UEnrollToast.h"

#include "platform/application/RyxWindow.h"
#include "platform/application/WindowStack.h"

UEnrollToast::UEnrollToast(QWidget* window) : UToast(window, WhenBusy::Replace) {}

UEnrollToast* UEnrollToast::Of(QWidget* widget) {
    QWidget* window = widget->window();
    auto* toast = window->findChild<UEnrollToast*>(QString(), Qt::FindDirectChildrenOnly);
    return toast ? toast : new UEnrollToast(window);
}

void UEnrollToast::Tell(Kind kind, const QString& text) {
    QWidget* window = parentWidget();
    RyxWindow* shell = RyxWindow::Of(window);
    const bool isSeen = window->isVisible() && !window->isMinimized() && !WindowStack::Instance()->Highest();
    if (shell && !isSeen) {
        shell->Notify(kind, text);
        return;
    }
    SetKind(kind);
    SetMessage(text);
    show();
}

#include "platform/application/RyxWindow.h"

#include "platform/link/ControllerBase.h"

#include <QCoreApplication>
#include <QMap>
#include <QVariant>

RyxWindow::RyxWindow(QWidget* parent) : QWidget(parent) {
    // A plain QWidget would not paint the background that a style sheet gives it.
    setAttribute(Qt::WA_StyledBackground);
}

RyxWindow* RyxWindow::Of(const QWidget* widget) {
    for (QWidget* candidate = const_cast<QWidget*>(widget); candidate; candidate = candidate->parentWidget())
        if (auto* window = qobject_cast<RyxWindow*>(candidate))
            return window;
    return nullptr;
}

void RyxWindow::IotStatusChanged(IotStatus status) {
    if (status == m_linkStatus)
        return;
    m_linkStatus = status;
    if (IsKnownIotStatus(static_cast<int>(status)))
        m_knownLinkStatus = status;
    emit LinkStatusChanged(status);
}

ControllerBase* RyxWindow::MainController() const {
    const QVariant controllers = QCoreApplication::instance()->property("controllers");
    return controllers.value<QMap<QString, ControllerBase*>>().value(QStringLiteral("ryx"));
}

void RyxWindow::BeginBinding(BindAction action) {
    m_binding = true;
    emit BindingBegan(action);
}

void RyxWindow::EndBinding() {
    if (!m_binding)
        return;
    m_binding = false;
    emit BindingEnded();
}

#include "widgets/AccessibleRole.h"

#include <QAccessibleWidget>
#include <QVariant>
#include <QWidget>
#include <utility>

namespace {

AnnouncementObserver s_observer = nullptr;

constexpr char RoleProperty[] = "accessibleRole";

QAccessibleInterface* MakeInterface(const QString& /*className*/, QObject* object) {
    auto* widget = qobject_cast<QWidget*>(object);
    const QVariant role = object ? object->property(RoleProperty) : QVariant();
    if (!widget || !role.isValid())
        return nullptr;
    return new QAccessibleWidget(widget, static_cast<QAccessible::Role>(role.toInt()));
}

} // namespace

void SetAccessibleRole(QWidget* widget, QAccessible::Role role) {
    static const bool installed = [] {
        QAccessible::installFactory(MakeInterface);
        return true;
    }();
    Q_UNUSED(installed)
    widget->setProperty(RoleProperty, static_cast<int>(role));
}

void AnnounceAlert(QWidget* widget) {
    QAccessibleEvent event(widget, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
    if (s_observer)
        s_observer(widget);
}

AnnouncementObserver ObserveAnnouncements(AnnouncementObserver observer) {
    return std::exchange(s_observer, observer);
}

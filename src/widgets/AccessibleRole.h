#pragma once

#include <QAccessible>

class QWidget;

/// Gives a widget that has no better accessible interface the role that assistive technology names it by.
/// Name and description are those of the widget. GUI thread.
void SetAccessibleRole(QWidget* widget, QAccessible::Role role);

/// Makes screen readers speak up about `widget`: they say its name and description.
void AnnounceAlert(QWidget* widget);

/// Hears of every AnnounceAlert, also where no screen reader runs; null, as at first, for nobody. Returns the
/// observer before.
using AnnouncementObserver = void (*)(QWidget* widget);
AnnouncementObserver ObserveAnnouncements(AnnouncementObserver observer);

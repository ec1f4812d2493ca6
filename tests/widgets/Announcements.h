#pragma once

#include "widgets/AccessibleRole.h"

#include <QStringList>
#include <QWidget>

/// What a screen reader is told to say while this lives.
class Announcements {
public:
    Announcements() {
        s_heard.clear();
        m_previous = ObserveAnnouncements([](QWidget* widget) {
            s_heard.append(QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name));
        });
    }
    ~Announcements() { ObserveAnnouncements(m_previous); }
    Announcements(const Announcements&) = delete;
    Announcements& operator=(const Announcements&) = delete;

    /// Names of the objects announced, in order.
    QStringList Heard() const { return s_heard; }

private:
    inline static QStringList s_heard;
    AnnouncementObserver m_previous;
};

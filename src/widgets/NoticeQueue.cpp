#include "widgets/NoticeQueue.h"

#include <QWidget>
#include <algorithm>

NoticeQueue* NoticeQueue::Of(QWidget* window, const QString& kind) {
    const QString name = QStringLiteral("NoticeQueue_") + kind;
    for (QObject* child : window->children())
        if (child->objectName() == name)
            return static_cast<NoticeQueue*>(child);
    auto* queue = new NoticeQueue(window);
    queue->setObjectName(name);
    return queue;
}

NoticeQueue::NoticeQueue(QWidget* window) : QObject(window) {}

void NoticeQueue::Add(QWidget* notice, std::function<void()> present) {
    m_waiting.append({notice, std::move(present)});
    connect(notice, &QObject::destroyed, this, &NoticeQueue::Forget, Qt::UniqueConnection);
    PresentNext();
}

void NoticeQueue::Finish(QWidget* notice) {
    if (!notice || m_current != notice)
        return;
    m_current = nullptr;
    PresentNext();
}

// A widget says that it is destroyed while guarded pointers to it still hold.
void NoticeQueue::Forget(const QObject* notice) {
    Withdraw(notice);
    if (m_current == notice)
        m_current = nullptr;
    PresentNext();
}

void NoticeQueue::Withdraw(const QObject* notice) {
    m_waiting.erase(std::remove_if(m_waiting.begin(), m_waiting.end(),
                                   [&](const Entry& entry) { return entry.notice == notice; }),
                    m_waiting.end());
}

bool NoticeQueue::IsWaiting(const QWidget* notice) const {
    return std::any_of(m_waiting.begin(), m_waiting.end(),
                       [&](const Entry& entry) { return entry.notice == notice; });
}

void NoticeQueue::PresentNext() {
    while (!m_current && !m_waiting.isEmpty()) {
        const Entry next = m_waiting.takeFirst();
        m_current = next.notice;
        if (m_current)
            next.present();
    }
}

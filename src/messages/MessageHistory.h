#pragma once

#include "messages/Message.h"

#include <QObject>
#include <vector>

/// The last messages, also those of earlier starts: kept in one file that is the user's own. GUI thread.
class MessageHistory : public QObject {
    Q_OBJECT

public:
    static constexpr int Most = 50;

    /// Reads `file`, if it is there. One that cannot be read is set aside.
    explicit MessageHistory(const QString& file);

    /// The oldest first.
    const std::vector<Message>& Messages() const { return m_messages; }
    /// Null when it is not there any more; valid until the next change.
    const Message* Find(int id) const;

    /// Takes a message; returns its id. The oldest one may lose its place to it, first of those that are not
    /// new any more, last of the emergencies; never `shown`.
    int Add(Message message, int shown = 0);
    void Remove(int id);
    void SetState(int id, MessageState state);
    void SetSavedAs(int id, const QString& path);

signals:
    void Changed();
    /// The message is not there any more.
    void Removed(int id);

private:
    template <class Change>
    void Update(int id, Change change);
    void Read();
    void Write() const;

    QString m_file;
    std::vector<Message> m_messages;
    int m_lastId = 0;
};

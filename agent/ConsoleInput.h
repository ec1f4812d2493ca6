#pragma once

#include <QObject>
#include <memory>
#include <string>

/// Reads standard input line by line, on a thread of its own because reading cannot be interrupted; the
/// signals are emitted on the thread that made the object.
class ConsoleInput : public QObject {
    Q_OBJECT

public:
    ConsoleInput();
    ~ConsoleInput() override;

    void Start();

signals:
    void LineRead(const std::string& line);
    /// Standard input has ended.
    void Ended();

private:
    struct Link;
    std::shared_ptr<Link> m_link;
};

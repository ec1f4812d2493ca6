#pragma once

#include <QObject>
#include <string>

/// A program that can be started again and again.
class Program : public QObject {
    Q_OBJECT

public:
    /// While it does not run.
    virtual void Start() = 0;
    /// Ends it, with some seconds to do so by itself where that can be asked for. Returns how it
    /// ended, or an empty text when it did not run; no signal follows.
    virtual std::string End() = 0;

signals:
    void Started(qint64 processId);
    /// `how` goes on after "the program".
    void Ended(const std::string& how);
};

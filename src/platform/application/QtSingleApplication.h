#pragma once

#include <QApplication>
#include <QLocalServer>
#include <QLockFile>
#include <QPointer>
#include <memory>

class QLocalSocket;
class QWidget;

/// An application of which one instance runs per user session; later ones can send it a text and end.
/// The first to be constructed is the one that listens. Running is only what answers, or whose lock file
/// names a process that lives: whatever else keeps the lock file from being taken is no reason not to start.
/// GUI thread.
class QtSingleApplication : public QApplication {
    Q_OBJECT

public:
    QtSingleApplication(const QString& id, int& argc, char** argv);
    ~QtSingleApplication() override;

    /// True when another process of this session is the running instance.
    bool isRunning() const { return m_isRunning; }

    /// What kept this instance from being the only one for certain, for the log, which is not open when it
    /// happens; empty when nothing did.
    const QString& StartProblem() const { return m_startProblem; }

    /// Sends `message` to the running instance; false when it is another account's or did not take it within
    /// `timeoutMs`.
    bool sendMessage(const QString& message, int timeoutMs);

    /// The window that stands for the application; with `activateOnMessage` it comes to the front, if it
    /// is on screen, whenever an empty message arrives.
    void setActivationWindow(QWidget* window, bool activateOnMessage);
    QWidget* activationWindow() const { return m_window; }

signals:
    void messageReceived(const QString& message);

private:
    /// When the lock file, in `folder`, could not be taken.
    bool IsAnotherRunning(const QString& folder);
    bool Answers() const;
    /// Connects to the running instance, if it is this account's own, and lets it come to the foreground.
    bool Connect(QLocalSocket& socket) const;
    void Listen();
    void Accept();

    QString m_serverName;
    bool m_isRunning = false;
    QString m_startProblem;
    std::unique_ptr<QLockFile> m_lock;
    std::unique_ptr<QLocalServer> m_server;
    QPointer<QWidget> m_window;
    bool m_activateOnMessage = false;
};

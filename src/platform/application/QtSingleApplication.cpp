#include "platform/application/QtSingleApplication.h"

#include "platform/link/PipeTrust.h"
#include "platform/system/SystemPipe.h"
#include "platform/system/SystemSession.h"
#include "platform/system/SystemWindows.h"

#include <QDataStream>
#include <QDeadlineTimer>
#include <QDir>
#include <QFileInfo>
#include <QLocalSocket>
#include <QThread>
#include <QWidget>
#include <glog/logging.h>

namespace {

constexpr char Acknowledgement = '\x06';
constexpr int MaxMessageBytes = 1024 * 1024;
constexpr unsigned long ConnectPauseMs = 50;

} // namespace

QtSingleApplication::QtSingleApplication(const QString& id, int& argc, char** argv)
    : QApplication(argc, argv) {
    // Account and session in the name: instances of other users and sessions do not meet.
    const SystemSession& session = SystemSession::Native();
    m_serverName = session.OwnName(QStringLiteral("%1-%2-%3")
                                       .arg(id)
                                       .arg(qHash(SystemPipe::Native().CurrentAccount()), 0, 16)
                                       .arg(session.SessionId()));
    // Where the name is a path, beside that.
    const QString lockPath = QDir::temp().filePath(m_serverName + QStringLiteral(".lock"));
    m_lock = std::make_unique<QLockFile>(lockPath);
    m_lock->setStaleLockTime(0); // held as long as its process lives, however long
    const QFileInfo file(lockPath);
    if (file.exists() && !file.isFile()) { // reading it could take for ever
        m_startProblem = QStringLiteral("finds something else where its lock file stands: ") + lockPath;
        m_isRunning = Answers();
    } else {
        m_isRunning = !m_lock->tryLock() && IsAnotherRunning(file.path());
    }
    if (!m_isRunning)
        Listen();
}

QtSingleApplication::~QtSingleApplication() = default;

bool QtSingleApplication::IsAnotherRunning(const QString& folder) {
    const QLockFile::LockError error = m_lock->error();
    qint64 owner = 0;
    QString host;
    QString program;
    if (error == QLockFile::LockFailedError && m_lock->getLockInfo(&owner, &host, &program)) {
        // The lock of a process that has ended is taken by QLockFile itself. Process numbers are used again:
        // that of an instance that was killed may be this very process's.
        if (owner != applicationPid())
            return true;
        if (m_lock->removeStaleLockFile() && m_lock->tryLock())
            return false;
    }
    if (Answers())
        return true;
    if (error == QLockFile::LockFailedError && m_lock->removeStaleLockFile() && m_lock->tryLock())
        m_startProblem = QStringLiteral("replaced a damaged lock file");
    else
        m_startProblem = error == QLockFile::PermissionError ? QStringLiteral("may not write its lock file")
                                                             : QStringLiteral("cannot write its lock file");
    m_startProblem += QStringLiteral(" in ") + folder;
    return false;
}

bool QtSingleApplication::Answers() const {
    QLocalSocket socket;
    return Connect(socket);
}

bool QtSingleApplication::Connect(QLocalSocket& socket) const {
    const SystemPipe& system = SystemPipe::Native();
    const qintptr pipe = system.Open(m_serverName, [&system](const PipePeer& server) {
        if (!PipeTrust::Refusal(server, system.OwnAccounts()).isEmpty())
            return false;
        SystemWindows::Native().GiveForegroundTo(server.process);
        return true;
    });
    return pipe != -1 && socket.setSocketDescriptor(pipe);
}

void QtSingleApplication::Listen() {
    QLocalServer::removeServer(m_serverName); // what a crashed instance left
    m_server = std::make_unique<QLocalServer>();
    m_server->setSocketOptions(QLocalServer::UserAccessOption);
    connect(m_server.get(), &QLocalServer::newConnection, this, &QtSingleApplication::Accept);
    if (!m_server->listen(m_serverName))
        m_startProblem += QStringLiteral("; cannot listen: ") + m_server->errorString();
}

bool QtSingleApplication::sendMessage(const QString& message, int timeoutMs) {
    if (!isRunning())
        return false;
    const QDeadlineTimer deadline(timeoutMs);
    const auto left = [&deadline] { return static_cast<int>(deadline.remainingTime()); };

    QLocalSocket socket;
    while (!Connect(socket)) { // it is just starting, or busy with others
        if (deadline.hasExpired())
            return false;
        QThread::msleep(ConnectPauseMs);
    }
    // One block, seen off: a named pipe has one write under way at a time, and waiting to read starts none.
    QByteArray block;
    QDataStream stream(&block, QIODevice::WriteOnly);
    stream << message.toUtf8();
    socket.write(block);
    while (socket.bytesToWrite() > 0)
        if (!socket.waitForBytesWritten(left()))
            return false;
    while (socket.bytesAvailable() == 0)
        if (!socket.waitForReadyRead(left()))
            return false;
    char answer = 0;
    return socket.getChar(&answer) && answer == Acknowledgement;
}

void QtSingleApplication::setActivationWindow(QWidget* window, bool activateOnMessage) {
    m_window = window;
    m_activateOnMessage = activateOnMessage;
}

void QtSingleApplication::Accept() {
    QLocalSocket* socket = m_server->nextPendingConnection();
    connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
    connect(socket, &QLocalSocket::readyRead, this, [this, socket] {
        if (socket->bytesAvailable() > MaxMessageBytes) {
            LOG(WARNING) << "QtSingleApplication drops a message of more than " << MaxMessageBytes
                         << " bytes";
            return socket->abort();
        }
        QDataStream stream(socket);
        QByteArray message;
        stream.startTransaction();
        stream >> message;
        if (!stream.commitTransaction())
            return;
        socket->putChar(Acknowledgement);
        socket->flush();
        emit messageReceived(QString::fromUtf8(message));
        if (m_activateOnMessage && message.isEmpty() && m_window && m_window->isVisible()) {
            m_window->setWindowState(m_window->windowState() & ~Qt::WindowMinimized);
            m_window->raise();
            m_window->activateWindow();
        }
    });
}

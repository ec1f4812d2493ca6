#include "platform/system/SystemSession.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSharedMemory>
#include <QSocketNotifier>
#include <QStandardPaths>
#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <fstream>
#include <glog/logging.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

int signalPipe = -1; // into which the handler writes: hardly anything else is allowed to it

void OnSignal(int number) {
    const int error = errno;
    const char byte = static_cast<char>(number);
    [[maybe_unused]] const ssize_t written = ::write(signalPipe, &byte, 1); // a full pipe tells enough
    errno = error;
}

class UnixSession final : public SystemSession {
public:
    quint32 SessionId() const override { return qEnvironmentVariable("XDG_SESSION_ID").toUInt(); }

    void InitializeCom() const override {}

    /// Qt's OpenGL support costs a third of the start and half of the memory; widgets draw without it.
    void PrepareApplication() const override {
        if (!qEnvironmentVariableIsSet("QT_XCB_GL_INTEGRATION"))
            qputenv("QT_XCB_GL_INTEGRATION", "none");
    }

    void ResetVariables() const override {}

    /// What the loader goes by was read before the program has begun.
    void RestrictLibraries() const override {}

    bool KeepPrivate(const QString& file) const override {
        return ::chmod(file.toLocal8Bit().constData(), S_IRUSR | S_IWUSR) == 0;
    }

    bool OpenShared(QFile& file) const override {
        return file.open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }

    bool MarkFromInternet(const QString&) const override { return true; }

    QString OwnName(const QString& name) const override {
        QString folder = qEnvironmentVariable("XDG_RUNTIME_DIR");
        if (QFileInfo(folder).ownerId() != ::getuid()) {
            folder = UserDataFolder();
            QDir().mkpath(folder);
        }
        return QDir(folder).filePath(name);
    }

    /// A segment outlives a process that was killed; the last one to detach takes it away.
    void ReleaseOrphanedSharedMemory(const QString& nativeKey) const override {
        QSharedMemory probe;
        probe.setNativeKey(nativeKey);
        if (probe.attach(QSharedMemory::ReadOnly))
            probe.detach();
    }

    QString ConfigurationFolder() const override { return QStringLiteral("/etc/velmora-ryx"); }

    QString SharedLogFolder() const override { return {}; }

    QString UserDataFolder() const override {
        return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
               QStringLiteral("/velmora-ryx");
    }

    bool IsEnding(bool wasAskedToSave) const override { return wasAskedToSave; }

    void QuitOnSignals() const override {
        std::array<int, 2> ends{};
        if (::pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0)
            return;
        signalPipe = ends[1];
        auto* notifier = new QSocketNotifier(ends[0], QSocketNotifier::Read, qApp);
        QObject::connect(notifier, &QSocketNotifier::activated, qApp, [end = ends[0]] {
            char number = 0;
            if (::read(end, &number, 1) == 1)
                LOG(INFO) << "UnixSession::QuitOnSignals signal " << static_cast<int>(number);
            QCoreApplication::quit();
        });
        struct sigaction action {};
        action.sa_handler = &OnSignal;
        action.sa_flags = SA_RESTART;
        for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
            struct sigaction before {};
            if (::sigaction(number, nullptr, &before) == 0 && before.sa_handler != SIG_IGN) // as nohup wants
                ::sigaction(number, &action, nullptr);
        }
    }

    void OnQuitRequested(QObject&, const std::function<void()>&) const override {}

    std::string BootId() const override {
        std::string id;
        std::ifstream file("/proc/sys/kernel/random/boot_id");
        std::getline(file, id);
        return id;
    }

    /// Nothing keeps a user from ending a process of their own here, and one that leaves no core dump cannot
    /// be examined after a crash.
    void ProtectProcess() const override {}

    void ProtectThread() const override {}

    std::string ToAnsi(const std::wstring& text) const override {
        return QString::fromStdWString(text).toLocal8Bit().toStdString();
    }

    QString FromAnsi(const std::string& text) const override { return QString::fromLocal8Bit(text.c_str()); }

private:
    std::string DescribeResult(std::int32_t) const override { return {}; }
};

} // namespace

const SystemSession& SystemSession::Native() {
    static const UnixSession session;
    return session;
}

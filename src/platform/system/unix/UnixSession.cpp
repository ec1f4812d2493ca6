#include "platform/system/SystemSession.h"

#include <QDir>
#include <QSharedMemory>
#include <QStandardPaths>
#include <fstream>
#include <sys/stat.h>
#include <unistd.h>

namespace {

class UnixSession final : public SystemSession {
public:
    quint32 SessionId() const override { return qEnvironmentVariable("XDG_SESSION_ID").toUInt(); }

    void InitializeCom() const override {}

    /// Qt's OpenGL support costs a third of the start and half of the memory; widgets draw without it.
    void PrepareApplication() const override {
        if (!qEnvironmentVariableIsSet("QT_XCB_GL_INTEGRATION"))
            qputenv("QT_XCB_GL_INTEGRATION", "none");
    }

    /// What the loader goes by was read before the program has begun.
    void RestrictLibraries() const override {}

    bool KeepPrivate(const QString& file) const override {
        return ::chmod(file.toLocal8Bit().constData(), S_IRUSR | S_IWUSR) == 0;
    }

    bool OpenShared(QFile& file) const override {
        return file.open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }

    bool MarkFromInternet(const QString&) const override { return true; }

    /// Shared memory is keyed by a file here; the user's number keeps users apart.
    QString SharedMemoryKey(const QString& name) const override {
        return QDir::temp().filePath(QStringLiteral("%1-%2").arg(name).arg(::getuid()));
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

private:
    std::string DescribeResult(std::int32_t) const override { return {}; }
};

} // namespace

const SystemSession& SystemSession::Native() {
    static const UnixSession session;
    return session;
}

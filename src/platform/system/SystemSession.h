#pragma once

#include <QFile>
#include <QString>
#include <functional>
#include <stdexcept>
#include <string>

/// A failed system call's HRESULT with its description.
class HResultError : public std::runtime_error {
public:
    HResultError(const std::string& operation, std::int32_t result);
    std::int32_t Result() const { return m_result; }

private:
    std::int32_t m_result;
};

/// The user session this process runs in, and the places the system gives it. Any thread.
class SystemSession {
public:
    virtual ~SystemSession() = default;

    /// Number of the user session; 0 where the system has no such number.
    virtual quint32 SessionId() const = 0;

    /// Makes the process ready for COM: it gets a multithreaded apartment, which every thread that does not
    /// say otherwise works in and which stays until the process ends; the calling thread keeps the choice of
    /// an apartment of its own. Throws HResultError; does nothing where there is no COM.
    virtual void InitializeCom() const = 0;

    /// Before the application object is made: leaves out what Qt would load and this program never uses.
    virtual void PrepareApplication() const = 0;

    /// Sets the variables by which the system finds its own folders to what they are, whatever a user has set
    /// them to.
    virtual void ResetVariables() const = 0;

    /// From now on libraries come from the program's own folder and the system's alone, and none from another
    /// machine, where the system can see to that.
    virtual void RestrictLibraries() const = 0;

    /// Lets nobody but this user and the administrators open the file; false when that fails.
    virtual bool KeepPrivate(const QString& file) const = 0;

    /// Opens the file for reading without a buffer; others may write to it, rename it and remove it
    /// meanwhile.
    virtual bool OpenShared(QFile& file) const = 0;

    /// Marks the file as one from the internet, so that the system warns of it before it runs; true where the
    /// system knows no such mark.
    virtual bool MarkFromInternet(const QString& file) const = 0;

    /// The native name, of a shared-memory segment or a pipe, of what this user has one of; where names are
    /// files', in a folder that no other user writes.
    virtual QString OwnName(const QString& name) const = 0;

    /// Frees a segment that a crashed process left behind, where the system does not do so by itself.
    virtual void ReleaseOrphanedSharedMemory(const QString& nativeKey) const = 0;

    /// Folder of the agent platform's configuration, shared by all users.
    virtual QString ConfigurationFolder() const = 0;

    /// Folder in which an administrator may let all users keep their log files; empty where there is none.
    virtual QString SharedLogFolder() const = 0;

    /// Folder of what the program keeps for this user alone; it may not exist yet.
    virtual QString UserDataFolder() const = 0;

    /// Whether the session ends, and not only something that says so. `wasAskedToSave`: the session manager
    /// has asked this program for its state, which is all there is to go by where the system cannot tell.
    virtual bool IsEnding(bool wasAskedToSave) const = 0;

    /// Where the system ends programs with signals (SIGTERM, SIGINT, SIGHUP): lets them quit the application
    /// as any other request does, so that nothing is left behind. Main thread, after the application's start.
    virtual void QuitOnSignals() const = 0;

    /// Calls `quit` from the event loop when an administrator's installer asks this process to end, as long
    /// as `context` lives. Nobody asks where the system lets an installer replace files that are in use. GUI
    /// thread.
    virtual void OnQuitRequested(QObject& context, const std::function<void()>& quit) const = 0;

    /// The same text from one start of the system to the next, and never again; empty when it cannot be told.
    virtual std::string BootId() const = 0;

    /// Where the system can: other programs of the user may neither end this process nor look or write into
    /// it, and the system starts it again, hidden, after a crash. Main thread; what fails is logged.
    virtual void ProtectProcess() const = 0;

    /// The same for the calling thread; the main thread has it from ProtectProcess.
    virtual void ProtectThread() const = 0;

    /// `text` in the code page that the C library's file functions expect.
    virtual std::string ToAnsi(const std::wstring& text) const = 0;
    virtual QString FromAnsi(const std::string& text) const = 0;

    static const SystemSession& Native();

protected:
    /// The system's own words for `result`; empty when it has none.
    friend class HResultError;
    virtual std::string DescribeResult(std::int32_t result) const = 0;
};

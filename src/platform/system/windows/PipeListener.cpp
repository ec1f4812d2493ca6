#include "platform/system/windows/PipeListener.h"

#include "platform/system/windows/AccessList.h"
#include "platform/system/windows/PipeName.h"
#include "platform/system/windows/ProcessAccount.h"

#include <glog/logging.h>

namespace {

constexpr DWORD BufferSize = 64 * 1024;
constexpr int RetryMs = 1000;
constexpr int WaitingInstances = 4;

// It belongs to the account that serves it. Everything for the system, the administrators and the owner;
// reading and writing data for who is logged on, which is GENERIC_READ, FILE_WRITE_DATA and
// FILE_WRITE_ATTRIBUTES; nothing from the network.
constexpr char PipeAccess[] =
    "O:%1D:P(D;;FA;;;NU)(D;;FA;;;AN)(A;;FA;;;SY)(A;;FA;;;BA)(A;;FA;;;OW)(A;;0x12018b;;;IU)";

} // namespace

PipeInstance::PipeInstance(const QString& pipeName, const std::function<void(qintptr)>& connected)
    : m_name(PipeName(pipeName)),
      m_connected(connected),
      m_event(CreateEventW(nullptr, TRUE, FALSE, nullptr)),
      m_notifier(m_event.get()) {
    QObject::connect(&m_notifier, &QWinEventNotifier::activated, &m_retry, [this] { Take(); });
    m_retry.setSingleShot(true);
    QObject::connect(&m_retry, &QTimer::timeout, &m_retry, [this] { Offer(0); });
}

PipeInstance::~PipeInstance() {
    m_notifier.setEnabled(false);
    DWORD bytes = 0;
    if (m_waiting && CancelIo(m_waiting.get())) // the system writes into m_overlapped until then
        GetOverlappedResult(m_waiting.get(), &m_overlapped, &bytes, TRUE);
}

DWORD PipeInstance::Offer(DWORD flags) {
    const QString owner = AccountsOfProcess(GetCurrentProcessId()).value_or(QStringList()).value(0);
    const auto access = MakeAccessList(QString::fromLatin1(PipeAccess).arg(owner).toStdWString().c_str());
    SECURITY_ATTRIBUTES security{sizeof security, access.get(), FALSE};
    const HANDLE pipe =
        access
            ? CreateNamedPipeW(m_name.c_str(), PIPE_ACCESS_DUPLEX | FILE_FLAG_OVERLAPPED | flags,
                               PIPE_TYPE_BYTE | PIPE_READMODE_BYTE | PIPE_WAIT | PIPE_REJECT_REMOTE_CLIENTS,
                               PIPE_UNLIMITED_INSTANCES, BufferSize, BufferSize, 0, &security)
            : INVALID_HANDLE_VALUE;
    if (pipe == INVALID_HANDLE_VALUE) {
        const DWORD error = GetLastError();
        LOG(ERROR) << "PipeInstance::Offer error " << error;
        if (flags == 0)
            m_retry.start(RetryMs);
        return error;
    }
    m_waiting.reset(pipe);
    m_overlapped = {};
    m_overlapped.hEvent = m_event.get();
    // One that was quicker has come already, and may have gone again: its end is read from the pipe.
    if (!ConnectNamedPipe(pipe, &m_overlapped) && GetLastError() != ERROR_IO_PENDING)
        SetEvent(m_event.get());
    return ERROR_SUCCESS;
}

void PipeInstance::Take() {
    ResetEvent(m_event.get());
    const HANDLE client = m_waiting.release();
    if (!client)
        return;
    Offer(0);
    m_connected(reinterpret_cast<qintptr>(client));
}

PipeListener::PipeListener(const QString& pipeName, const std::function<void(qintptr)>& connected) {
    for (int i = 0; i < WaitingInstances; ++i)
        m_instances.push_back(std::make_unique<PipeInstance>(pipeName, connected));
}

DWORD PipeListener::Begin() {
    DWORD error = m_instances.front()->Offer(FILE_FLAG_FIRST_PIPE_INSTANCE);
    for (auto next = m_instances.begin() + 1; next != m_instances.end() && error == ERROR_SUCCESS; ++next)
        error = (*next)->Offer(0);
    return error;
}

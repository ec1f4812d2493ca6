#include "platform/system/SystemDrives.h"

#include <QObject>
#include <array>
#include <glog/logging.h>
#include <utility>

#include <windows.h>

#include <dbt.h>
#include <winioctl.h>

namespace {

constexpr int Letters = 26;
constexpr int FirstLetter = 2; // A and B are floppy disks
constexpr wchar_t ClassName[] = L"RyxDriveWatch";

/// What the system's messages have told of the drives, beyond what a look at them shows.
struct Messages {
    std::array<quint64, Letters> arrivals{};
    DWORD arrived = 0; ///< since the program has been running
    DWORD gone = 0;    ///< although the letter, as a card reader's, may still be there
};

Messages& Told() {
    static Messages messages;
    return messages;
}

wchar_t LetterOf(int drive) {
    return static_cast<wchar_t>(L'A' + drive);
}

bool IsOnUsb(int drive) {
    const wchar_t path[] = {L'\\', L'\\', L'.', L'\\', LetterOf(drive), L':', 0};
    const HANDLE device =
        CreateFileW(path, 0, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr);
    if (device == INVALID_HANDLE_VALUE)
        return false;
    STORAGE_PROPERTY_QUERY query{};
    query.PropertyId = StorageDeviceProperty;
    STORAGE_DEVICE_DESCRIPTOR answer{};
    DWORD size = 0;
    const BOOL isTold = DeviceIoControl(device, IOCTL_STORAGE_QUERY_PROPERTY, &query, sizeof query, &answer,
                                        sizeof answer, &size, nullptr);
    CloseHandle(device);
    return isTold && answer.BusType == BusTypeUsb;
}

/// Sticks are removable, USB hard disks are fixed as those built in are.
bool IsPluggedIn(int drive) {
    const wchar_t root[] = {LetterOf(drive), L':', L'\\', 0};
    switch (GetDriveTypeW(root)) {
    case DRIVE_REMOVABLE:
        return true;
    case DRIVE_FIXED:
        return (Told().arrived >> drive & 1) || IsOnUsb(drive);
    default:
        return false;
    }
}

/// The window that the system's messages come to: they go to top-level windows, shown or not.
class DriveWatch final : public SystemDrives::Watch {
public:
    explicit DriveWatch(std::function<void()> changed);
    ~DriveWatch() override;
    bool IsUsable() const { return m_window != nullptr; }

private:
    static LRESULT CALLBACK HandleMessage(HWND window, UINT message, WPARAM what, LPARAM data);
    static void Note(WPARAM what, const DEV_BROADCAST_VOLUME& volume);

    std::function<void()> m_changed;
    QObject m_context;
    HWND m_window = nullptr;
};

DriveWatch::DriveWatch(std::function<void()> changed) : m_changed(std::move(changed)) {
    const HINSTANCE program = GetModuleHandleW(nullptr);
    WNDCLASSW kind{};
    kind.lpfnWndProc = HandleMessage;
    kind.hInstance = program;
    kind.lpszClassName = ClassName;
    RegisterClassW(&kind); // which fails when it is registered already
    m_window = CreateWindowExW(WS_EX_TOOLWINDOW, ClassName, L"", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr,
                               program, nullptr);
    if (m_window)
        SetWindowLongPtrW(m_window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    else
        LOG(ERROR) << "DriveWatch::DriveWatch CreateWindowExW failed with " << GetLastError();
}

DriveWatch::~DriveWatch() {
    if (m_window)
        DestroyWindow(m_window);
}

// The sender waits for the answer: who is told looks later.
LRESULT CALLBACK DriveWatch::HandleMessage(HWND window, UINT message, WPARAM what, LPARAM data) {
    auto* watch = reinterpret_cast<DriveWatch*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (message != WM_DEVICECHANGE || !watch)
        return DefWindowProcW(window, message, what, data);
    const auto* device = reinterpret_cast<const DEV_BROADCAST_HDR*>(data);
    const bool isOfDevice = what == DBT_DEVICEARRIVAL || what == DBT_DEVICEREMOVECOMPLETE;
    if (isOfDevice && device && device->dbch_devicetype == DBT_DEVTYP_VOLUME)
        Note(what, *reinterpret_cast<const DEV_BROADCAST_VOLUME*>(data));
    QMetaObject::invokeMethod(&watch->m_context, watch->m_changed, Qt::QueuedConnection);
    return TRUE;
}

void DriveWatch::Note(WPARAM what, const DEV_BROADCAST_VOLUME& volume) {
    if (volume.dbcv_flags & DBTF_NET)
        return;
    Messages& told = Told();
    if (what == DBT_DEVICEREMOVECOMPLETE) {
        told.gone |= volume.dbcv_unitmask;
        told.arrived &= ~volume.dbcv_unitmask;
        return;
    }
    told.gone &= ~volume.dbcv_unitmask;
    told.arrived |= volume.dbcv_unitmask;
    for (std::size_t drive = 0; drive < told.arrivals.size(); ++drive)
        told.arrivals[drive] += volume.dbcv_unitmask >> drive & 1;
}

class WindowsDrives final : public SystemDrives {
public:
    QVector<SystemDrive> Drives() const override {
        QVector<SystemDrive> drives;
        const DWORD present = GetLogicalDrives() & ~Told().gone;
        for (int drive = FirstLetter; drive < Letters; ++drive)
            if ((present >> drive & 1) && IsPluggedIn(drive))
                drives.append({QString(QChar(LetterOf(drive))) + QStringLiteral(":/"),
                               Told().arrivals[static_cast<std::size_t>(drive)]});
        return drives;
    }

    std::unique_ptr<Watch> WatchDrives(std::function<void()> changed) const override {
        auto watch = std::make_unique<DriveWatch>(std::move(changed));
        if (!watch->IsUsable())
            return nullptr;
        return watch;
    }
};

} // namespace

const SystemDrives& SystemDrives::Native() {
    static const WindowsDrives drives;
    return drives;
}

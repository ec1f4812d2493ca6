// What only Windows has to do: the calls whose effect another program can see.
#include "platform/ProductConstants.h"
#include "platform/system/SystemInput.h"
#include "platform/system/SystemSession.h"
#include "platform/system/SystemWindows.h"
#include "platform/system/windows/ProcessAccount.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QTemporaryFile>
#include <QWidget>
#include <QtTest>
#include <gtest/gtest.h>
#include <thread>
#include <vector>

#include <windows.h>

#include <aclapi.h>
#include <objbase.h>

namespace {

LONG ExtendedStyle(const QWidget& window) {
    return GetWindowLongW(reinterpret_cast<HWND>(window.winId()), GWL_EXSTYLE);
}

/// The process that the service `name` runs in; 0 when it does not run.
DWORD ProcessOfService(const wchar_t* name) {
    const SC_HANDLE manager = OpenSCManagerW(nullptr, nullptr, SC_MANAGER_CONNECT);
    const SC_HANDLE service = OpenServiceW(manager, name, SERVICE_QUERY_STATUS);
    SERVICE_STATUS_PROCESS status{};
    DWORD size = 0;
    QueryServiceStatusEx(service, SC_STATUS_PROCESS_INFO, reinterpret_cast<BYTE*>(&status), sizeof status,
                         &size);
    CloseServiceHandle(service);
    CloseServiceHandle(manager);
    return status.dwProcessId;
}

/// Runs `act` on a thread that has not met COM yet.
template <class Act>
void OnFreshThread(Act act) {
    std::thread(act).join();
}

} // namespace

TEST(WindowsWindows, RaisesToTheTopmostBandAndNothingElse) {
    QWidget window;
    window.setGeometry(40, 50, 300, 200);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    ASSERT_EQ(ExtendedStyle(window) & WS_EX_TOPMOST, 0);
    const HWND foreground = GetForegroundWindow();
    const QRect geometry = window.geometry();

    SystemWindows::Native().RaiseTopmost(window.winId());

    EXPECT_EQ(ExtendedStyle(window) & WS_EX_TOPMOST, WS_EX_TOPMOST);
    EXPECT_EQ(GetForegroundWindow(), foreground);
    QCoreApplication::processEvents();
    EXPECT_EQ(window.geometry(), geometry);
}

TEST(WindowsWindows, AHiddenWindowIsMadeOffTheTaskbarAndGetsItsStyleBack) {
    const LONG taskbar = WS_EX_APPWINDOW | WS_EX_TOOLWINDOW;
    struct Window : QWidget {
        void showEvent(QShowEvent*) override { shownWith = ExtendedStyle(*this); }
        LONG shownWith = 0;
    } window;
    SetWindowLongW(reinterpret_cast<HWND>(window.winId()), GWL_EXSTYLE,
                   ExtendedStyle(window) | WS_EX_APPWINDOW);
    const LONG before = ExtendedStyle(window);
    ASSERT_EQ(before & taskbar, WS_EX_APPWINDOW);

    SystemWindows::Native().CreateHidden(window);
    EXPECT_EQ(window.shownWith & taskbar, WS_EX_TOOLWINDOW);
    EXPECT_EQ(ExtendedStyle(window), before);
    EXPECT_FALSE(IsWindowVisible(reinterpret_cast<HWND>(window.winId())));
}

TEST(WindowsInput, InputEndsTheIdleTime) {
    const SystemInput& input = SystemInput::Native();
    ASSERT_TRUE(QTest::qWaitFor([&] { return input.MillisecondsSinceInput() > 300; }));
    INPUT move{};
    move.type = INPUT_MOUSE;
    move.mi.dx = 1;
    move.mi.dwFlags = MOUSEEVENTF_MOVE;
    ASSERT_EQ(SendInput(1, &move, sizeof move), 1u);
    EXPECT_TRUE(QTest::qWaitFor([&] { return input.MillisecondsSinceInput() < 300; }));
}

APTTYPE Apartment() {
    APTTYPE type{};
    APTTYPEQUALIFIER qualifier{};
    EXPECT_EQ(CoGetApartmentType(&type, &qualifier), S_OK);
    return type;
}

TEST(WindowsSession, ComIsMultithreadedForTheProcessAndSingleThreadedForTheGui) {
    OnFreshThread([] {
        EXPECT_NO_THROW(SystemSession::Native().InitializeCom());
        EXPECT_EQ(Apartment(), APTTYPE_MTA) << "the process's, although the thread has given its own up";
    });
    OnFreshThread([] { EXPECT_EQ(Apartment(), APTTYPE_MTA); });
    const APTTYPE gui = Apartment();
    EXPECT_TRUE(gui == APTTYPE_MAINSTA || gui == APTTYPE_STA) << gui;

    QGuiApplication::clipboard()->setText(QStringLiteral("Grüße, 漢字"));
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("Grüße, 漢字"));

    OnFreshThread([] {
        ASSERT_EQ(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED), S_OK);
        try {
            SystemSession::Native().InitializeCom();
            FAIL() << "a thread of another COM model was taken";
        } catch (const HResultError& error) {
            EXPECT_EQ(error.Result(), static_cast<std::int32_t>(RPC_E_CHANGED_MODE));
            EXPECT_NE(std::string(error.what()).find("CoInitializeEx failed with 0x80010106: "),
                      std::string::npos)
                << error.what();
        }
        CoUninitialize();
    });
}

TEST(WindowsSession, APrivateFileIsForItsOwnerAndTheAdministratorsAlone) {
    QTemporaryFile file;
    ASSERT_TRUE(file.open());
    ASSERT_TRUE(SystemSession::Native().KeepPrivate(file.fileName()));
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    PACL list = nullptr;
    ASSERT_EQ(GetNamedSecurityInfoW(const_cast<wchar_t*>(file.fileName().toStdWString().c_str()),
                                    SE_FILE_OBJECT, DACL_SECURITY_INFORMATION, nullptr, nullptr, &list,
                                    nullptr, &descriptor),
              ERROR_SUCCESS);
    ASSERT_TRUE(list);
    for (DWORD i = 0; i < list->AceCount; ++i) {
        void* entry = nullptr;
        ASSERT_TRUE(GetAce(list, i, &entry));
        const PSID account = &static_cast<ACCESS_ALLOWED_ACE*>(entry)->SidStart;
        EXPECT_FALSE(IsWellKnownSid(account, WinWorldSid) || IsWellKnownSid(account, WinBuiltinUsersSid) ||
                     IsWellKnownSid(account, WinAuthenticatedUserSid));
    }
    LocalFree(descriptor);
}

TEST(WindowsSession, AnsiTextIsInTheCodePageOfFileFunctions) {
    const std::wstring wide = L"C:\\logs\\Gr\u00FCn";
    const std::string ansi = SystemSession::Native().ToAnsi(wide);
    wchar_t back[64] = {};
    MultiByteToWideChar(CP_ACP, 0, ansi.c_str(), -1, back, 64);
    EXPECT_EQ(back, wide);
}

TEST(WindowsSession, ABootIsNamedByItsTime) {
    FILETIME now{};
    GetSystemTimeAsFileTime(&now);
    const quint64 seconds = ((quint64{now.dwHighDateTime} << 32) | now.dwLowDateTime) / 10'000'000;
    const quint64 boot = std::stoull(SystemSession::Native().BootId());
    EXPECT_LE(boot, seconds);
    EXPECT_GT(boot, seconds - 3600ull * 24 * 365);
}

// The rights of the same user, who is no administrator.
TEST(WindowsSession, AProtectedProcessIsClosedToItsUsersOtherPrograms) {
    constexpr DWORD closed[] = {PROCESS_TERMINATE,  PROCESS_VM_WRITE,      PROCESS_VM_READ,
                                PROCESS_DUP_HANDLE, PROCESS_CREATE_THREAD, PROCESS_SUSPEND_RESUME};
    SystemSession::Native().ProtectProcess();
    bool isAsked = false;
    QObject context;
    SystemSession::Native().OnQuitRequested(context, [&isAsked] { isAsked = true; });
    const std::string quit = Product::QuitEvent + std::to_string(GetCurrentProcessId());
    BYTE administrators[SECURITY_MAX_SID_SIZE];
    DWORD size = sizeof administrators;
    ASSERT_TRUE(CreateWellKnownSid(WinBuiltinAdministratorsSid, nullptr, administrators, &size));
    SID_AND_ATTRIBUTES disabled{administrators, 0};
    HANDLE own = nullptr, restricted = nullptr;
    ASSERT_TRUE(OpenProcessToken(GetCurrentProcess(), TOKEN_ALL_ACCESS, &own));
    ASSERT_TRUE(
        CreateRestrictedToken(own, DISABLE_MAX_PRIVILEGE, 1, &disabled, 0, nullptr, 0, nullptr, &restricted));
    ASSERT_TRUE(ImpersonateLoggedOnUser(restricted));
    for (const DWORD right : closed)
        EXPECT_FALSE(OpenProcess(right, FALSE, GetCurrentProcessId())) << right;
    EXPECT_FALSE(OpenThread(THREAD_TERMINATE, FALSE, GetCurrentThreadId()));
    EXPECT_FALSE(OpenThread(THREAD_SUSPEND_RESUME, FALSE, GetCurrentThreadId()));
    EXPECT_TRUE(OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, GetCurrentProcessId()));
    EXPECT_FALSE(OpenEventA(EVENT_MODIFY_STATE, FALSE, quit.c_str()));
    EXPECT_FALSE(OpenEventA(WRITE_DAC, FALSE, quit.c_str()));
    RevertToSelf();
    EXPECT_TRUE(SetEvent(OpenEventA(EVENT_MODIFY_STATE, FALSE, quit.c_str())));
    EXPECT_TRUE(QTest::qWaitFor([&isAsked] { return isAsked; }));
}

TEST(WindowsPipe, AccountOfAProcess) {
    wchar_t user[256];
    DWORD size = 256;
    ASSERT_TRUE(GetUserNameW(user, &size));
    const PipePeer own = AccountOfToken(GetCurrentProcessId());
    EXPECT_EQ(own.account.section(QLatin1Char('\\'), -1), QString::fromWCharArray(user));
    EXPECT_FALSE(own.isSystem);
    EXPECT_TRUE(AccountOfToken(0).account.isEmpty());
    EXPECT_TRUE(AccountOfService(GetCurrentProcessId()).account.isEmpty());
}

TEST(WindowsPipe, AccountOfAServiceIsKnownWithoutItsToken) {
    const DWORD process = ProcessOfService(L"PlugPlay");
    ASSERT_NE(process, 0u);
    const PipePeer peer = AccountOfService(process);
    EXPECT_EQ(peer.account, QStringLiteral("LocalSystem"));
    EXPECT_TRUE(peer.isSystem);
}

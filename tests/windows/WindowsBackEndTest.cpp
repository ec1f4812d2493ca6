// What only Windows has to do: the calls whose effect another program can see.
#include "platform/ProductConstants.h"
#include "platform/link/PipeTrust.h"
#include "platform/system/SystemInput.h"
#include "platform/system/SystemPipe.h"
#include "platform/system/SystemService.h"
#include "platform/system/SystemSession.h"
#include "platform/system/SystemWindows.h"
#include "platform/system/windows/AccessList.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QTemporaryDir>
#include <QTemporaryFile>
#include <QWidget>
#include <QtTest>
#include <gtest/gtest.h>
#include <map>
#include <thread>
#include <vector>

#include <windows.h>

#include <aclapi.h>
#include <objbase.h>

namespace {

LONG ExtendedStyle(const QWidget& window) {
    return GetWindowLongW(reinterpret_cast<HWND>(window.winId()), GWL_EXSTYLE);
}

/// A token of this user without the rights of an administrator.
HANDLE TokenWithoutAdministrators() {
    BYTE administrators[SECURITY_MAX_SID_SIZE];
    DWORD size = sizeof administrators;
    CreateWellKnownSid(WinBuiltinAdministratorsSid, nullptr, administrators, &size);
    SID_AND_ATTRIBUTES disabled{administrators, 0};
    HANDLE own = nullptr, restricted = nullptr;
    OpenProcessToken(GetCurrentProcess(), TOKEN_ALL_ACCESS, &own);
    CreateRestrictedToken(own, DISABLE_MAX_PRIVILEGE, 1, &disabled, 0, nullptr, 0, nullptr, &restricted);
    return restricted;
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
    RECT before{}, after{}; // the system's own word: Qt hears of what the window manager does later
    GetWindowRect(reinterpret_cast<HWND>(window.winId()), &before);

    SystemWindows::Native().RaiseTopmost(window.winId());

    EXPECT_EQ(ExtendedStyle(window) & WS_EX_TOPMOST, WS_EX_TOPMOST);
    EXPECT_EQ(GetForegroundWindow(), foreground);
    GetWindowRect(reinterpret_cast<HWND>(window.winId()), &after);
    EXPECT_TRUE(EqualRect(&before, &after));
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
    ASSERT_TRUE(ImpersonateLoggedOnUser(TokenWithoutAdministrators()));
    for (const DWORD right : closed)
        EXPECT_FALSE(OpenProcess(right, FALSE, GetCurrentProcessId())) << right;
    EXPECT_FALSE(OpenThread(THREAD_TERMINATE, FALSE, GetCurrentThreadId()));
    EXPECT_FALSE(OpenThread(THREAD_SUSPEND_RESUME, FALSE, GetCurrentThreadId()));
    EXPECT_TRUE(OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, GetCurrentProcessId()));
    EXPECT_FALSE(OpenEventA(EVENT_MODIFY_STATE, FALSE, quit.c_str()));
    RevertToSelf();
    EXPECT_TRUE(SetEvent(OpenEventA(EVENT_MODIFY_STATE, FALSE, quit.c_str())));
    EXPECT_TRUE(QTest::qWaitFor([&isAsked] { return isAsked; }));
}

TEST(WindowsPipe, ItsOwnerIsToldWhoeverItIs) {
    for (const wchar_t* owner : {L"S-1-5-18", L"S-1-5-32-544", L"S-1-5-21-1-2-3-1001"}) {
        const auto access = MakeAccessList((std::wstring(L"O:") + owner + L"D:(A;;FA;;;WD)").c_str());
        ASSERT_TRUE(access);
        SECURITY_ATTRIBUTES security{sizeof security, access.get(), FALSE};
        const HANDLE pipe =
            CreateNamedPipeW(L"\\\\.\\pipe\\ryx-owner", PIPE_ACCESS_DUPLEX, 0, 1, 0, 0, 0, &security);
        ASSERT_NE(pipe, INVALID_HANDLE_VALUE) << GetLastError();
        QString told;
        SystemPipe::Native().Open(QStringLiteral("ryx-owner"), [&told](const PipePeer& server) {
            told = server.owner;
            return false;
        });
        EXPECT_EQ(told, QString::fromWCharArray(owner));
        CloseHandle(pipe);
    }
}

// The system's own answer from the pipe's access list.
TEST(WindowsPipe, ItsUsersMayReadAndWriteItAndNotServeItBesides) {
    QString problem;
    const auto listener = SystemService::Native().Listen(
        QStringLiteral("ryx-access"), [](qintptr) {}, problem);
    ASSERT_TRUE(listener) << problem.toStdString();
    const qintptr pipe =
        SystemPipe::Native().Open(QStringLiteral("ryx-access"), [](const PipePeer&) { return true; });
    PSECURITY_DESCRIPTOR access = nullptr;
    ASSERT_EQ(
        GetSecurityInfo(reinterpret_cast<HANDLE>(pipe), SE_KERNEL_OBJECT,
                        OWNER_SECURITY_INFORMATION | GROUP_SECURITY_INFORMATION | DACL_SECURITY_INFORMATION,
                        nullptr, nullptr, nullptr, nullptr, &access),
        DWORD{ERROR_SUCCESS});
    HANDLE user = nullptr;
    ASSERT_TRUE(DuplicateToken(TokenWithoutAdministrators(), SecurityIdentification, &user));
    for (const auto& [right, allowed] : std::map<DWORD, bool>{{FILE_GENERIC_READ, true},
                                                              {FILE_WRITE_DATA, true},
                                                              {FILE_WRITE_ATTRIBUTES, true},
                                                              {FILE_CREATE_PIPE_INSTANCE, false},
                                                              {FILE_GENERIC_WRITE, false}}) {
        GENERIC_MAPPING mapping{FILE_GENERIC_READ, FILE_GENERIC_WRITE, FILE_GENERIC_EXECUTE, FILE_ALL_ACCESS};
        PRIVILEGE_SET privileges{};
        DWORD size = sizeof privileges, granted = 0;
        BOOL mayDoIt = FALSE;
        EXPECT_TRUE(AccessCheck(access, user, right, &mapping, &privileges, &size, &granted, &mayDoIt))
            << GetLastError();
        EXPECT_EQ(mayDoIt != FALSE, allowed) << std::hex << right;
    }
    LocalFree(access);
    CloseHandle(reinterpret_cast<HANDLE>(pipe));
}

TEST(WindowsService, AProgramInASessionGetsAnEnvironmentOfItsOwn) {
    const QTemporaryDir folder;
    const QString lines = QDir::toNativeSeparators(folder.filePath(QStringLiteral("a b.txt")));
    qputenv("QT_PLUGIN_PATH", "C:\\mine");
    int code = -1;
    QString problem;
    const auto program = SystemService::Native().StartInSession(
        WTSGetActiveConsoleSessionId(), QStringLiteral("C:/windows/system32/cmd.exe"),
        {QStringLiteral("/c"), QStringLiteral("set>"), lines, QStringLiteral("&exit"), QStringLiteral("5")},
        [&code](quint32 exitCode) { code = static_cast<int>(exitCode); }, problem);
    ASSERT_TRUE(program) << problem.toStdString();
    EXPECT_TRUE(QTest::qWaitFor([&code] { return code == 5; })) << code;
    QFile file(lines);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray environment = file.readAll();
    EXPECT_TRUE(environment.contains("\nPATH=") && environment.contains("\nUSERPROFILE="))
        << environment.data();
    EXPECT_FALSE(environment.contains("QT_PLUGIN_PATH"));
}

TEST(WindowsService, TheSystemStartsTheAgentAndEndsIt) {
    // Wine's services do not get the path to libraries; by the way, the server of the pipe is the child of
    // one.
    const QTemporaryDir folder;
    QFile batch(QDir::toNativeSeparators(folder.filePath(QStringLiteral("service.bat"))));
    ASSERT_TRUE(batch.open(QIODevice::WriteOnly));
    batch.write("@set PATH=" + qgetenv("PATH") + "\r\n@\"" +
                QCoreApplication::applicationDirPath().toLocal8Bit() +
                "/ryx-agent.exe\" --service --pipe ryx-service-test\r\n");
    batch.close();
    const std::wstring command = L"cmd.exe /c " + batch.fileName().toStdWString();
    const SC_HANDLE manager = OpenSCManagerW(nullptr, nullptr, SC_MANAGER_ALL_ACCESS);
    const SC_HANDLE service =
        CreateServiceW(manager, L"ryx-service-test", nullptr, SERVICE_ALL_ACCESS, SERVICE_WIN32_OWN_PROCESS,
                       SERVICE_DEMAND_START, SERVICE_ERROR_NORMAL, command.c_str(), nullptr, nullptr, nullptr,
                       nullptr, nullptr);
    ASSERT_TRUE(service) << GetLastError();
    SERVICE_STATUS_PROCESS status{};
    const auto becomes = [&](DWORD state) {
        return QTest::qWaitFor(
            [&] {
                DWORD size = 0;
                QueryServiceStatusEx(service, SC_STATUS_PROCESS_INFO, reinterpret_cast<BYTE*>(&status),
                                     sizeof status, &size);
                return status.dwCurrentState == state;
            },
            20000);
    };
    EXPECT_TRUE(StartServiceW(service, 0, nullptr)) << GetLastError();
    EXPECT_TRUE(becomes(SERVICE_RUNNING)) << status.dwCurrentState << ' ' << status.dwWin32ExitCode;
    PipePeer server;
    SystemPipe::Native().Open(QStringLiteral("ryx-service-test"), [&server](const PipePeer& peer) {
        server = peer;
        return false;
    });
    EXPECT_NE(server.process, 0u);
    EXPECT_EQ(PipeTrust::Refusal(server, SystemPipe::Native().OwnAccounts()), QString());
    SERVICE_STATUS control{};
    EXPECT_TRUE(ControlService(service, SERVICE_CONTROL_STOP, &control));
    EXPECT_TRUE(becomes(SERVICE_STOPPED));
    EXPECT_EQ(status.dwWin32ExitCode, 0u);
    DeleteService(service);
    CloseServiceHandle(service);
    CloseServiceHandle(manager);
}

// What only Windows has to do: the calls whose effect another program can see.
#include "platform/system/SystemInput.h"
#include "platform/system/SystemSession.h"
#include "platform/system/SystemWindows.h"
#include "platform/system/windows/ProcessAccount.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QTemporaryFile>
#include <QWidget>
#include <QtTest>
#include <algorithm>
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

void SendKey(WORD key, bool down) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.dwFlags = down ? 0 : KEYEVENTF_KEYUP;
    SendInput(1, &input, sizeof input);
}

/// Presses the keys one after the other, then releases them.
void PressTogether(const std::vector<WORD>& keys) {
    for (const WORD key : keys)
        SendKey(key, true);
    std::for_each(keys.rbegin(), keys.rend(), [](WORD key) { SendKey(key, false); });
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

TEST(WindowsInput, AHeldKeyboardKeepsTheShellsKeysAndOnlyThose) {
    struct Window : QWidget {
        bool event(QEvent* event) override {
            if (event->type() != QEvent::KeyPress)
                return QWidget::event(event);
            keys.push_back(static_cast<QKeyEvent*>(event)->nativeVirtualKey());
            return true;
        }
        std::vector<DWORD> keys;
    } window;
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    const std::vector<std::vector<WORD>> forShell{
        {VK_LWIN},       {VK_LWIN, 'D'}, {VK_MENU, VK_TAB}, {VK_MENU, VK_ESCAPE}, {VK_CONTROL, VK_ESCAPE},
        {VK_LAUNCH_APP1}};
    // The D is a letter like any other when the Windows key has never gone down.
    const std::vector<DWORD> seenWhileHeld{'D', VK_MENU, VK_MENU, VK_CONTROL, '5'};
    const auto pressAll = [&] {
        window.keys.clear();
        for (const std::vector<WORD>& combination : forShell)
            PressTogether(combination);
        PressTogether({'5'});
        return QTest::qWaitFor([&] { return !window.keys.empty() && window.keys.back() == '5'; });
    };

    SystemInput::Native().HoldKeyboard(*window.windowHandle());
    ASSERT_TRUE(pressAll());
    EXPECT_EQ(window.keys, seenWhileHeld);
    SystemInput::Native().ReleaseKeyboard(*window.windowHandle());
    ASSERT_TRUE(pressAll());
    EXPECT_GT(window.keys.size(), seenWhileHeld.size());

    // A Windows key that is already down counts, and comes up again.
    window.keys.clear();
    SendKey(VK_LWIN, true);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !window.keys.empty(); }));
    SystemInput::Native().HoldKeyboard(*window.windowHandle());
    PressTogether({'D'});
    SendKey(VK_LWIN, false);
    PressTogether({'5'});
    EXPECT_TRUE(QTest::qWaitFor([&] { return window.keys.back() == '5'; }));
    SystemInput::Native().ReleaseKeyboard(*window.windowHandle());
    EXPECT_EQ(window.keys, (std::vector<DWORD>{VK_LWIN, '5'}));
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

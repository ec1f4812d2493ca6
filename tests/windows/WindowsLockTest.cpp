// What a lock needs of Windows, against a foreign program: its window, its keys, the foreground.
#include "platform/system/SystemInput.h"
#include "platform/system/SystemWindows.h"
#include "platform/system/windows/AccessibilityKeys.h"
#include "platform/system/windows/KeyFilter.h"

#include <QElapsedTimer>
#include <QKeyEvent>
#include <QProcess>
#include <QSignalSpy>
#include <QWidget>
#include <QtTest>
#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <vector>

#include <windows.h>

#include <tpcshrd.h>

namespace {

const SystemWindows& windows = SystemWindows::Native();

/// A foreign program that does `act` to the window titled "Cover" and is ended with the object.
class Attack {
public:
    explicit Attack(const char* act) {
        m_process.start(QCoreApplication::applicationDirPath() + QStringLiteral("/attack.exe"),
                        {QLatin1String(act), QStringLiteral("Cover")});
        EXPECT_TRUE(QTest::qWaitFor([this] { return Output().contains("done"); }, 10000)) << act;
    }
    ~Attack() {
        m_process.kill();
        m_process.waitForFinished();
    }
    const QByteArray& Output() { return m_output += m_process.readAllStandardOutput(); }

private:
    QProcess m_process;
    QByteArray m_output;
};

class Cover : public QWidget {
public:
    Cover() : QWidget(nullptr, Qt::FramelessWindowHint) {
        setWindowTitle(QStringLiteral("Cover"));
        windows.PrepareCover(*this, Qt::black);
        show();
        windows.Restore(winId(), place);
        EXPECT_TRUE(QTest::qWaitForWindowExposed(this));
    }
    ~Cover() override { windows.Unguard(winId()); }

    bool IsWhole(int withinMs) const {
        SystemWindows::Facts whole;
        whole.place = place;
        return QTest::qWaitFor([&] { return windows.FactsOf(winId()) == whole; }, withinMs);
    }

    const QRect place{100, 50, 800, 600};
    std::vector<DWORD> keys;

protected:
    bool event(QEvent* event) override {
        if (event->type() != QEvent::KeyPress)
            return QWidget::event(event);
        keys.push_back(static_cast<QKeyEvent*>(event)->nativeVirtualKey());
        return true;
    }
};

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

/// Accessibility settings that only the test sees, by the number that reads them; the next one writes them.
std::map<UINT, STICKYKEYS> accessibility;

BOOL WINAPI FakeParameters(UINT action, UINT size, void* data, UINT) {
    auto& settings = *static_cast<STICKYKEYS*>(data); // which all of them begin like
    EXPECT_EQ(settings.cbSize, size);
    const auto read = accessibility.find(action);
    if (read != accessibility.end())
        settings.dwFlags = read->second.dwFlags;
    else
        accessibility.at(action - 1).dwFlags = settings.dwFlags & ~DWORD{HCF_OPTION_NOTHEMECHANGE};
    return TRUE;
}

} // namespace

TEST(WindowsCover, WhatAForeignProgramDoesIsUndone) {
    QWidget foster;
    foster.setWindowTitle(QStringLiteral("Velmora RYX"));
    foster.show();
    for (const char* act :
         {"hide", "hide-in-place", "minimise", "force-minimise", "system-minimise", "maximise", "move",
          "shrink", "disable", "freeze", "region", "untop", "bottom", "adopt", "own", "close"}) {
        Cover cover;
        ASSERT_TRUE(cover.IsWhole(2000)) << "before " << act;
        {
            const Attack attack(act);
            EXPECT_TRUE(QTest::qWaitFor([&] { return !cover.IsWhole(0); }, 2000)) << act << " does nothing";
            windows.Restore(cover.winId(), cover.place);
            EXPECT_TRUE(cover.IsWhole(2000)) << act << " unguarded";
        }
        cover.show(); // Qt has hidden what it was asked to close
        windows.Guard(cover.winId(), cover.place, [&] { windows.Restore(cover.winId(), cover.place); });
        windows.Restore(cover.winId(), cover.place);
        const Attack attack(act);
        // Of a new owner nobody tells.
        if (qstrcmp(act, "own") == 0)
            windows.Restore(cover.winId(), cover.place);
        EXPECT_TRUE(cover.IsWhole(2000)) << act;
        EXPECT_TRUE(cover.isVisible()) << act;
    }
}

TEST(WindowsCover, AGuardRefusesWhatItIsAskedAndTheEndOfASessionThatDoesNotEnd) {
    Cover cover;
    const HWND handle = reinterpret_cast<HWND>(cover.winId());
    // Wine keeps styles from other processes, so that this one plays the foreigner.
    const auto makeTransparent = [handle] {
        SetWindowLongW(handle, GWL_EXSTYLE, GetWindowLongW(handle, GWL_EXSTYLE) | WS_EX_LAYERED);
    };
    makeTransparent();
    EXPECT_FALSE(windows.FactsOf(cover.winId())->whole);
    windows.Restore(cover.winId(), cover.place);
    QSignalSpy end(qApp, &QCoreApplication::aboutToQuit);
    windows.Guard(cover.winId(), cover.place, [] {});
    makeTransparent();
    for (const char* act : {"minimise", "force-minimise", "maximise"})
        const Attack attack(act);
    EXPECT_TRUE(cover.IsWhole(0));
    EXPECT_EQ(SendMessageW(handle, WM_TABLET_QUERYSYSTEMGESTURESTATUS, 0, 0), 0x10019);
    SendMessageW(handle, WM_ENDSESSION, TRUE, 0);
    const Attack attack("end-session");
    QCoreApplication::processEvents();
    EXPECT_EQ(end.count(), 0);
}

TEST(WindowsCover, TakesTheForegroundFromAProgramThatHangs) {
    Cover cover;
    const Attack attack("hang");
    const HWND handle = reinterpret_cast<HWND>(cover.winId());
    ASSERT_NE(GetForegroundWindow(), handle);
    QElapsedTimer time;
    time.start();
    windows.Activate(cover);
    EXPECT_LT(time.elapsed(), 500);
    EXPECT_EQ(GetForegroundWindow(), handle);
    EXPECT_TRUE(QTest::qWaitForWindowActive(&cover));
}

TEST(KeyFilter, LetsPassWhatAPadTakesAndNothingWithAModifier) {
    const std::set<unsigned> allowed{VK_BACK,
                                     VK_TAB,
                                     VK_RETURN,
                                     VK_SPACE,
                                     VK_ESCAPE,
                                     VK_LEFT,
                                     VK_UP,
                                     VK_RIGHT,
                                     VK_DOWN,
                                     VK_SHIFT,
                                     VK_LSHIFT,
                                     VK_RSHIFT,
                                     VK_CAPITAL,
                                     VK_NUMLOCK,
                                     VK_SCROLL,
                                     VK_VOLUME_MUTE,
                                     VK_VOLUME_DOWN,
                                     VK_VOLUME_UP,
                                     VK_PACKET,
                                     '0',
                                     '1',
                                     '2',
                                     '3',
                                     '4',
                                     '5',
                                     '6',
                                     '7',
                                     '8',
                                     '9',
                                     VK_NUMPAD0,
                                     VK_NUMPAD1,
                                     VK_NUMPAD2,
                                     VK_NUMPAD3,
                                     VK_NUMPAD4,
                                     VK_NUMPAD5,
                                     VK_NUMPAD6,
                                     VK_NUMPAD7,
                                     VK_NUMPAD8,
                                     VK_NUMPAD9};
    for (unsigned key = 0; key < 256; ++key) {
        EXPECT_EQ(KeyFilter().Passes(key, true, false), allowed.count(key) == 1) << key;
        EXPECT_FALSE(KeyFilter().Passes(key, true, true)) << key;
        EXPECT_TRUE(KeyFilter().Passes(key, false, true)) << key;
    }
    for (const unsigned modifier :
         {VK_CONTROL, VK_LCONTROL, VK_RCONTROL, VK_MENU, VK_LMENU, VK_RMENU, VK_LWIN, VK_RWIN}) {
        KeyFilter filter;
        EXPECT_FALSE(filter.Passes(modifier, true, false)) << modifier;
        EXPECT_FALSE(filter.Passes('5', true, false)) << modifier;
        EXPECT_TRUE(filter.Passes(modifier, false, false)) << modifier;
        EXPECT_TRUE(filter.Passes('5', true, false)) << modifier;
        filter.Passes(modifier, true, false);
        filter.ForgetModifiers();
        EXPECT_TRUE(filter.Passes('5', true, false)) << modifier;
    }
}

// With a system of the test's own: Wine keeps no such settings.
TEST(AccessibilityKeys, AreHeldOffAndGivenBackWithWhatElseHasChanged) {
    constexpr DWORD hotKey = SKF_HOTKEYACTIVE | SKF_CONFIRMHOTKEY, on = SKF_STICKYKEYSON,
                    other = SKF_INDICATOR;
    for (const UINT feature :
         {SPI_GETSTICKYKEYS, SPI_GETFILTERKEYS, SPI_GETTOGGLEKEYS, SPI_GETMOUSEKEYS, SPI_GETHIGHCONTRAST})
        accessibility[feature].dwFlags = hotKey | on;
    const auto expectAll = [](DWORD flags) {
        for (auto& [feature, settings] : accessibility)
            EXPECT_EQ(settings.dwFlags, flags) << feature;
    };
    {
        AccessibilityKeys keys(FakeParameters);
        keys.HoldOff();
        keys.HoldOff();
        expectAll(on);
        for (auto& [feature, settings] : accessibility)
            settings.dwFlags = on | other;
        keys.Restore();
        expectAll(hotKey | on | other);
        keys.HoldOff();
        expectAll(on | other);
    }
    expectAll(hotKey | on | other);
}

TEST(WindowsInput, AHeldKeyboardHasThePadsKeysAndNobodyElsesUntilItIsReleased) {
    Cover cover;
    windows.Activate(cover);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&cover));
    Attack other("hot-key");
    const auto pressAll = [&] {
        cover.keys.clear();
        for (const std::vector<WORD>& keys : std::vector<std::vector<WORD>>{{VK_LWIN},
                                                                            {VK_LWIN, 'D'},
                                                                            {VK_MENU, VK_TAB},
                                                                            {VK_MENU, VK_ESCAPE},
                                                                            {VK_CONTROL, VK_ESCAPE},
                                                                            {VK_LAUNCH_APP1},
                                                                            {VK_SNAPSHOT},
                                                                            {VK_SLEEP},
                                                                            {VK_F4},
                                                                            {VK_CONTROL, VK_MENU, 'K'},
                                                                            {'5'}})
            PressTogether(keys);
        return QTest::qWaitFor([&] { return !cover.keys.empty() && cover.keys.back() == '5'; });
    };

    SystemInput::Native().HoldKeyboard(*cover.windowHandle());
    ASSERT_TRUE(pressAll());
    EXPECT_EQ(cover.keys, std::vector<DWORD>{'5'});
    SystemInput::Native().HoldKeyboard(*cover.windowHandle()); // as the lock does each second
    ASSERT_TRUE(pressAll());
    EXPECT_EQ(cover.keys, std::vector<DWORD>{'5'});
    EXPECT_FALSE(other.Output().contains("hot key"));

    SystemInput::Native().ReleaseKeyboard(*cover.windowHandle());
    ASSERT_TRUE(pressAll());
    EXPECT_GT(cover.keys.size(), 5u);
    EXPECT_TRUE(QTest::qWaitFor([&] { return other.Output().contains("hot key"); }));

    // A Windows key that is already down counts, and comes up again.
    cover.keys.clear();
    SendKey(VK_LWIN, true);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !cover.keys.empty(); }));
    SystemInput::Native().HoldKeyboard(*cover.windowHandle());
    PressTogether({'4'});
    SendKey(VK_LWIN, false);
    PressTogether({'5'});
    EXPECT_TRUE(QTest::qWaitFor([&] { return cover.keys.back() == '5'; }));
    SystemInput::Native().ReleaseKeyboard(*cover.windowHandle());
    EXPECT_EQ(cover.keys, (std::vector<DWORD>{VK_LWIN, '5'}));
}

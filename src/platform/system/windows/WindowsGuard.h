#pragma once

#include <QAbstractNativeEventFilter>
#include <QRect>
#include <functional>
#include <unordered_map>

#include <windows.h>

/// Sees every message to the program's windows before Qt does. Of what other programs do to a guarded window
/// it refuses what the system asks for, and tells of the rest. GUI thread.
class WindowsGuard final : public QAbstractNativeEventFilter {
public:
    static WindowsGuard& Instance();

    /// `changed` is called from the event loop, once for all changes since the last call.
    void Guard(HWND window, const QRect& place, const std::function<void()>& changed);
    void Unguard(HWND window);

    /// The color of what nobody paints of the window while it is guarded.
    void SetBackground(HWND window, COLORREF color);

    /// While it lives, what happens to guarded windows is the program's own doing.
    class OwnAct {
    public:
        OwnAct() { ++Instance().m_ownActs; }
        ~OwnAct() { --Instance().m_ownActs; }
        OwnAct(const OwnAct&) = delete;
        OwnAct& operator=(const OwnAct&) = delete;
    };

    bool nativeEventFilter(const QByteArray& type, void* message, long* result) override;

private:
    struct Guarded {
        QRect place;
        std::function<void()> changed;
        bool isToBeTold = false;
    };

    WindowsGuard() = default;
    bool IsGuarded(HWND window) const { return m_ownActs == 0 && m_windows.count(window) > 0; }
    static LRESULT CALLBACK RefuseMinMax(int code, WPARAM window, LPARAM data);
    bool Refuses(const MSG& message, const QRect& place, LRESULT& answer) const;
    void Erase(HWND window, HDC canvas) const;
    void Tell(HWND window);

    HHOOK m_hook = nullptr;
    std::unordered_map<HWND, Guarded> m_windows;
    std::unordered_map<HWND, COLORREF> m_backgrounds;
    int m_ownActs = 0;
};

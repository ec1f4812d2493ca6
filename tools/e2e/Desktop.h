#pragma once

#include "ChildProcess.h"

#include <QImage>
#include <QPoint>
#include <QRect>
#include <QString>
#include <memory>
#include <optional>
#include <string>
#include <vector>

struct _XDisplay;

/// A window of a program on the desktop.
struct DesktopWindow {
    unsigned long id = 0;
    std::string title;
    QRect place;           ///< on the screen, without the window manager's frame
    bool viewable = false; ///< it and everything it lies in is mapped
};

/// An X server's screen as a person before it has it: looks at windows and pixels, moves the mouse, presses
/// keys. The input events are the server's own, so that programs cannot tell them from real ones.
class Desktop {
public:
    /// Uses the display named `display`; with an empty name starts a virtual screen and a window manager,
    /// which end with this object. Throws std::runtime_error when there is no such display.
    explicit Desktop(const std::string& display = {});
    ~Desktop();

    /// The display's name, for the programs that are to appear on it.
    const std::string& Display() const { return m_name; }
    QSize Size() const;

    /// The programs' windows with a title, the lowest first.
    std::vector<DesktopWindow> Windows() const;
    /// The topmost window with this title that is viewable.
    std::optional<DesktopWindow> Find(const std::string& title) const;
    /// Title of the topmost window that is viewable and lies on the screen; empty when there is none.
    std::string TopmostTitle() const;
    bool WaitForWindow(const std::string& title) const;
    bool WaitForNoWindow(const std::string& title) const;

    /// Whether any window has appeared since the last call, however briefly.
    bool HasAnyAppeared();

    QImage Screenshot() const { return Screenshot({{0, 0}, Size()}); }
    QImage Screenshot(const QRect& part) const;

    void Click(const QPoint& place);
    void MoveMouse(const QPoint& place);
    /// Types characters that have a key, alone or with Shift held.
    void Type(const std::string& text);
    /// Presses and releases a key by its X name, such as "Return", with others held down.
    void Press(const std::string& key, const std::vector<std::string>& held = {});

    /// The text that another program would paste now; empty when there is none.
    std::string ClipboardText() const;

    /// Asks a window to close, as the window manager's close button does.
    void Close(const DesktopWindow& window);
    /// Asks the window manager to activate a window, as a task bar does.
    void Activate(const DesktopWindow& window);

    /// Takes a window off the screen, as any other client may.
    void Hide(const DesktopWindow& window);

    /// Lifts a window as its own program does that wants to be above, but not the focus.
    void Raise(const DesktopWindow& window);

    /// Shows a plain window of this program, which the window manager keeps above others if `onTop`; its id.
    unsigned long ShowWindow(const std::string& title, const QRect& place, bool onTop);
    void DestroyWindow(unsigned long window);

private:
    void StartScreen();
    void StartWindowManager();
    void AddWindows(unsigned long parent, std::vector<DesktopWindow>& windows) const;
    std::string Title(unsigned long window) const;
    /// A window's property of one number.
    std::optional<unsigned long> Property(unsigned long window, const char* name, unsigned long type) const;
    unsigned long AtomOf(const char* name) const;
    void SendToRoot(unsigned long window, const char* message, long first, long second, long third);
    void Key(const std::string& name, bool down);

    std::string m_name;
    ChildProcess m_screen;
    ChildProcess m_windowManager;
    _XDisplay* m_display = nullptr;
};

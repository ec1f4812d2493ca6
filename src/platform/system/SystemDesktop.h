#pragma once

#include <QRect>
#include <QString>
#include <functional>
#include <optional>
#include <qwindowdefs.h>
#include <string>
#include <vector>

/// The windows of all programs on the desktop. As it stands it knows none. Any thread; a window may go while
/// it is asked about.
class SystemDesktop {
public:
    struct Style {
        bool isChild = false;
        bool isDisabled = false;
    };
    struct ExStyle {
        bool takesNoActivation = false;
        bool isToolWindow = false;
    };

    /// A watch that runs; null: none.
    using Watch = void*;

    virtual ~SystemDesktop() = default;

    /// From now on `shown` is called for each top-level window that another program shows, as often as it is
    /// shown: by this thread's event loop or on a thread of the watch's own, and perhaps once more when the
    /// watch has ended. A process has one watch at a time. Null when the system refuses.
    virtual Watch WatchShown(const std::function<void(WId window)>& /*shown*/) const { return nullptr; }
    /// On the thread that began it.
    virtual void EndWatch(Watch /*watch*/) const {}

    /// Asks the window to close and waits until its program has handled that, which may be never.
    virtual void Close(WId /*window*/) const {}
    /// Asks it without waiting.
    virtual void RequestClose(WId /*window*/) const {}

    /// The top-level window of class `className` next behind `after`, or the first one behind 0; 0: none.
    virtual WId NextWindow(const char* /*className*/, WId /*after*/) const { return 0; }
    /// Every top-level window, the topmost first; nothing when that fails.
    virtual std::optional<std::vector<WId>> TopLevelWindows() const { return std::vector<WId>(); }
    /// The system's number for what has just failed on this thread.
    virtual quint32 LastError() const { return 0; }

    virtual quint32 ProcessOf(WId /*window*/) const { return 0; }
    /// Whether it lies in no other window.
    virtual bool IsOwnRoot(WId /*window*/) const { return false; }
    virtual Style GetWindowStyle(WId /*window*/) const { return {}; }
    virtual ExStyle GetWindowExStyle(WId /*window*/) const { return {}; }
    bool IsChildWindow(WId window) const { return GetWindowStyle(window).isChild; }
    /// Whether it is the desktop itself or the shell's.
    virtual bool IsDesktopOrShell(WId /*window*/) const { return false; }
    /// At most 255 characters of 8 bits.
    virtual std::string ClassOf(WId /*window*/) const { return {}; }
    /// The name of the window's class in full; empty when it has none.
    virtual QString GetWindowClassName(WId /*window*/) const { return {}; }
    /// Empty when it has none.
    virtual QString GetWindowTitle(WId /*window*/) const { return {}; }
    /// In physical pixels of the whole desktop; nothing when it cannot be read.
    virtual std::optional<QRect> GetWindowGeometry(WId /*window*/) const { return std::nullopt; }
    /// Whether the system hides it although it is shown, as on another virtual desktop.
    virtual bool IsCloaked(WId /*window*/) const { return false; }
    virtual bool IsVisible(WId /*window*/) const { return false; }
    virtual bool IsEnabled(WId /*window*/) const { return false; }

    static const SystemDesktop& Native();
};

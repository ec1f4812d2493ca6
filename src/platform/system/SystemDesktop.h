#pragma once

#include <QSize>
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
        bool takesNoActivation = false;
        bool isToolWindow = false;
    };

    virtual ~SystemDesktop() = default;

    /// The top-level window of class `className` next behind `after`, or the first one behind 0; 0: none.
    virtual WId NextWindow(const char* /*className*/, WId /*after*/) const { return 0; }
    /// Every top-level window; nothing when that fails.
    virtual std::optional<std::vector<WId>> TopLevelWindows() const { return std::vector<WId>(); }
    /// The system's number for what has just failed on this thread.
    virtual quint32 LastError() const { return 0; }

    virtual quint32 ProcessOf(WId /*window*/) const { return 0; }
    /// Whether it lies in no other window.
    virtual bool IsOwnRoot(WId /*window*/) const { return false; }
    virtual Style StyleOf(WId /*window*/) const { return {}; }
    /// Whether it is the desktop itself or the shell's.
    virtual bool IsDesktopOrShell(WId /*window*/) const { return false; }
    /// At most 255 characters of 8 bits.
    virtual std::string ClassOf(WId /*window*/) const { return {}; }
    /// In device pixels; nothing when it cannot be read.
    virtual std::optional<QSize> SizeOf(WId /*window*/) const { return std::nullopt; }
    /// Whether the system hides it although it is shown, as on another virtual desktop.
    virtual bool IsCloaked(WId /*window*/) const { return false; }
    virtual bool IsVisible(WId /*window*/) const { return false; }

    static const SystemDesktop& Native();
};

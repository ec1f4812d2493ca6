#pragma once

#include <optional>

/// How the desktop looks where Qt does not know. GUI thread.
class SystemAppearance {
public:
    virtual ~SystemAppearance() = default;

    /// Whether the task bar, and the tray in it, is dark; empty where it looks as the other windows do.
    /// May change at any time, unannounced.
    virtual std::optional<bool> IsTaskbarDark() const = 0;

    /// Whether the user wants programs to be dark; empty where Qt's own palette tells. May change likewise.
    virtual std::optional<bool> AreProgramsDark() const = 0;

    static const SystemAppearance& Native();
};

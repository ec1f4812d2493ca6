#pragma once

/// Start-up steps that the platform offers to its programs. GUI thread, after the application object.
class AppHelper {
public:
    /// Applies the style sheet of the configured theme.
    static void InitQss();
    /// Installs the configured language, or the system's.
    static void InitLanguage();
    /// Hands the configuration to those who work by it: device context and pipe link.
    static void LoadConfig();
};

#pragma once

class QString;

/// Start-up steps that the platform offers to its programs, and what the user chooses above the machine's
/// configuration. GUI thread, after the application object.
class AppHelper {
public:
    /// Applies the style sheet of the chosen or configured theme, and the chosen size of text.
    static void InitQss();
    /// Installs the chosen or configured language, or the system's.
    static void InitLanguage();
    /// Hands the configuration to those who work by it: device context and pipe link.
    static void LoadConfig();

    /// Each takes effect at once, and is remembered for this user; false when it could not be.
    static bool ChooseLanguage(const QString& code);
    static bool ChooseTheme(const QString& name);
    static bool ChooseTextSize(int percent);
};

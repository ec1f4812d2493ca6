#pragma once

#include <QString>
#include <functional>
#include <string>

enum class HourFormat { Hours12, Hours24 };

/// Where a picture lies on the screen; the numbers are those of Windows.
enum class WallpaperPlacement { Center = 0, Fit = 3, Fill = 4 };

/// What the organisation chooses for the user's desktop. GUI thread.
class SystemPreferences {
public:
    /// Is told what has failed, on any thread.
    using Failed = std::function<void(const std::string& what)>;

    virtual ~SystemPreferences() = default;

    /// Changes how clocks show the time, and lets the other programs know.
    virtual void SetHourFormat(HourFormat format) const = 0;

    /// The picture of a desktop that nobody has chosen one for; empty where there is none.
    virtual QString DefaultWallpaper() const = 0;

    /// Shows the picture `file` on all screens. Returns before it is done where that may take long.
    virtual void SetWallpaper(const QString& file, WallpaperPlacement placement,
                              const Failed& failed) const = 0;

    static const SystemPreferences& Native();
};

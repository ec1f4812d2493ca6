#include "platform/system/SystemPreferences.h"

#include <QThreadPool>
#include <QUrl>
#include <gio/gio.h>
#include <glog/logging.h>
#include <memory>
#include <utility>
#include <vector>

namespace {

template <class Object, void (*release)(Object*)>
struct Release {
    void operator()(Object* object) const { release(object); }
};
void ReleaseSettings(GSettings* settings) {
    g_object_unref(settings);
}

/// One group of the desktop's settings.
class DesktopSettings {
public:
    explicit DesktopSettings(const char* name) {
        // Settings of a schema that is not there would end the process.
        if (GSettingsSchemaSource* source = g_settings_schema_source_get_default())
            m_schema.reset(g_settings_schema_source_lookup(source, name, TRUE));
        if (m_schema)
            m_settings.reset(g_settings_new_full(m_schema.get(), nullptr, nullptr));
    }

    bool Exists() const { return m_settings != nullptr; }

    /// A key that this desktop does not know is left out.
    void Set(const char* key, const char* value) {
        if (g_settings_schema_has_key(m_schema.get(), key))
            g_settings_set_string(m_settings.get(), key, value);
    }

private:
    std::unique_ptr<GSettingsSchema, Release<GSettingsSchema, g_settings_schema_unref>> m_schema;
    std::unique_ptr<GSettings, Release<GSettings, ReleaseSettings>> m_settings;
};

using Values = std::vector<std::pair<const char*, QByteArray>>;

/// Sets what is there, in the order of the calls and on a thread of its own: the desktop's service for
/// settings may be slow, and the end of the program does not wait for it.
void Set(const char* schema, const Values& values, const SystemPreferences::Failed& failed) {
    static QThreadPool* const worker = [] {
        auto* pool = new QThreadPool;
        pool->setMaxThreadCount(1);
        return pool;
    }();
    worker->start([schema, values, failed] {
        DesktopSettings settings(schema);
        if (!settings.Exists())
            return failed(std::string("this desktop has no settings ") + schema);
        for (const auto& [key, value] : values)
            settings.Set(key, value.constData());
        g_settings_sync();
    });
}

class UnixPreferences final : public SystemPreferences {
public:
    void SetHourFormat(HourFormat format) const override {
        Set("org.gnome.desktop.interface", {{"clock-format", format == HourFormat::Hours12 ? "12h" : "24h"}},
            [](const std::string& what) { LOG(INFO) << "UnixPreferences::SetHourFormat " << what; });
    }

    QString DefaultWallpaper() const override { return {}; }

    void SetWallpaper(const QString& file, WallpaperPlacement placement,
                      const Failed& failed) const override {
        const QByteArray address = QUrl::fromLocalFile(file).toEncoded();
        const QByteArray options = placement == WallpaperPlacement::Fit      ? "scaled"
                                   : placement == WallpaperPlacement::Center ? "centered"
                                                                             : "zoom";
        Set("org.gnome.desktop.background",
            {{"picture-options", options}, {"picture-uri", address}, {"picture-uri-dark", address}},
            [failed](const std::string& what) { failed("SetWallpaper failed, " + what); });
    }
};

} // namespace

const SystemPreferences& SystemPreferences::Native() {
    static const UnixPreferences preferences;
    return preferences;
}

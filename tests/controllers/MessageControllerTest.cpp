// Clock and wallpaper, from the message to what is asked of the system.
#include "controllers/MessageController.h"
#include "platform/context/AppConfigData.h"
#include "support/LogCapture.h"

#include <QSignalSpy>

namespace {

struct RecordedPreferences : SystemPreferences {
    void SetHourFormat(HourFormat format) const override {
        calls += format == HourFormat::Hours12 ? "12" : "24";
    }
    QString DefaultWallpaper() const override { return usual; }
    void SetWallpaper(const QString& file, WallpaperPlacement placement,
                      const Failed& failed) const override {
        calls += QFileInfo(file).fileName().toStdString() + std::to_string(static_cast<int>(placement));
        failed("SetWallpaper SetPosition failed");
    }
    mutable std::string calls;
    QString usual;
};

class Messages : public testing::Test {
protected:
    void SetUp() override {
        AppConfigData::Instance()->dataFolder = folder.path().toStdString();
        QFile(Path("a.png")).open(QIODevice::WriteOnly);
    }
    QString Path(const char* name) const { return folder.filePath(QString::fromLatin1(name)); }

    const QTemporaryDir folder;
    RecordedPreferences preferences;
    LogCapture log;
};

TEST_F(Messages, OnlyAnExplicitZeroIsTheTwelveHourClock) {
    const struct {
        const char* body;
        const char* clock;
    } cases[] = {{R"({"hourFormatSetting": 0})", "12"},
                 {R"({"hourFormatSetting": 1})", "24"},
                 {R"({"mode": 0})", "12"},
                 {R"({"hourFormatSetting": 2, "mode": 0})", "24"},
                 {R"({"hourFormatSetting": null})", "24"},
                 {"{}", "24"},
                 {"", "24"},
                 {"{broken", "24"}};
    MessageController controller(preferences);
    for (const auto& row : cases) {
        preferences.calls.clear();
        controller.OnPipeDataReceived(PipeKey::TimeFormatSetting, row.body);
        EXPECT_EQ(preferences.calls, row.clock) << row.body;
    }
}

TEST_F(Messages, TheWallpaperIsALocalFileOrTheDefaultOne) {
    const std::string there = Path("a.png").toStdString();
    const std::string gone = Path("gone.png").toStdString();
    const auto body = [](const std::string& path, int placement) {
        return R"({"wallpaperMode": 1, "displayMode": )" + std::to_string(placement) +
               R"(, "fileInfoParams": {"url": "https://a.example/b.png", "path": ")" + path + "\"}}";
    };
    const struct {
        std::string body;
        QString usual;
        std::string calls, line;
    } cases[] = {{body(there, 1), {}, "a.png3", "SetWallpaper SetPosition failed"},
                 {body(there, 2), {}, "a.png0", "failed"},
                 {body(there, 0), {}, "a.png4", "failed"},
                 {body(there, 9), {}, "a.png4", "failed"},
                 {body(gone, 1), Path("a.png"), "", "SetWallpaper failed, file not exists: " + gone},
                 {body("", 2), Path("a.png"), "a.png0", "failed"},
                 {"{broken", Path("a.png"), "a.png4", "failed"},
                 {"{}", Path("gone.png"), "", "SetWallpaper failed, file not exists: " + gone},
                 {"{}", {}, "", "changes nothing"}};
    MessageController controller(preferences);
    QSignalSpy set(&controller, &MessageController::WallpaperSet);
    for (const auto& row : cases) {
        preferences.calls.clear();
        preferences.usual = row.usual;
        set.clear();
        controller.OnPipeDataReceived(PipeKey::WallpaperSetting, row.body);
        EXPECT_EQ(preferences.calls, row.calls) << row.body;
        EXPECT_EQ(set.isEmpty(), row.calls.empty()) << row.body;
        EXPECT_NE(log.Text().find(row.line), std::string::npos) << row.body;
    }
    EXPECT_EQ(log.Count("MessageController::ProcessDeviceSettingWallpaper "), 9) << log.Text();
}

TEST_F(Messages, OnlyWhatBringsSomethingIsTold) {
    const std::pair<const char*, int> cases[] = {
        {R"({"text": "a", "operationId": 1})", 1},
        {R"({"fileInfoParams": {"url": "https://a/b"}, "jobStatus": false})", 0},
        {R"({"text": " "})", 0}};
    MessageController controller(preferences);
    for (const auto& [body, count] : cases) {
        QSignalSpy came(&controller, &MessageController::MessageCame);
        controller.OnPipeDataReceived(PipeKey::MessageFile, body);
        EXPECT_EQ(came.count(), count) << body;
    }
}

} // namespace

// The picker over a scripted desktop: what is picked, what is refused, and what goes to the service.
#include "platform/application/WindowStack.h"
#include "platform/context/AppConfigData.h"
#include "platform/context/LanguageHelper.h"
#include "platform/context/Theme.h"
#include "platform/link/PipeClientService.h"
#include "platform/system/SystemDesktop.h"
#include "platform/system/SystemProcesses.h"
#include "platform/system/SystemPrograms.h"
#include "popups/PopupPicker.h"
#include "support/FakeService.h"
#include "widgets/UToast.h"

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>
#include <future>
#include <gtest/gtest.h>
#include <numeric>

namespace {

struct FakeSystem : SystemDesktop, SystemProcesses, SystemPrograms {
    struct Window {
        QString path, title, className;
        QRect place;
        quint32 process = 1;
        bool visible = true, enabled = true, noActivation = false;
    };

    PopupSystem Facts() const { return {*this, *this, *this}; }
    const Window& Of(WId id) const { return windows.at(id - 1); }

    std::optional<std::vector<WId>> TopLevelWindows() const override {
        std::vector<WId> all(windows.size());
        std::iota(all.begin(), all.end(), 1);
        return all;
    }
    quint32 ProcessOf(WId id) const override { return static_cast<quint32>(id); }
    QString GetProcessFilePath(quint32 process) const override { return Of(process).path; }
    QString GetWindowTitle(WId id) const override { return Of(id).title; }
    QString GetWindowClassName(WId id) const override { return Of(id).className; }
    std::optional<QRect> GetWindowGeometry(WId id) const override {
        return Of(id).place.isNull() ? std::nullopt : std::make_optional(Of(id).place);
    }
    ExStyle GetWindowExStyle(WId id) const override { return {Of(id).noActivation, false}; }
    bool IsVisible(WId id) const override { return Of(id).visible; }
    bool IsEnabled(WId id) const override { return Of(id).enabled; }
    QString GetProductName(const QString&) const override { return QStringLiteral("Player"); }
    QString GetSubjectName(const QString& file) const override {
        if (file.startsWith(QLatin1String("//slow/")))
            std::shared_future<void>(answer).wait();
        return QStringLiteral("Example Software Ltd.");
    }

    std::vector<Window> windows; // the topmost first
    std::promise<void> release;
    std::shared_future<void> answer = release.get_future().share();
};

const QRect Place(200, 150, 300, 200);

struct Picker : testing::Test {
    Picker() {
        LanguageHelper::Instance()->SetLanguage(QStringLiteral("en"));
        Theme::Instance()->Apply(QStringLiteral("light"));
        AppConfigData::Instance()->dataFolder = folder.path().toStdString();
        link.SetServer(service.Address());
        link.Start();
        EXPECT_TRUE(QTest::qWaitFor([this] { return link.IsConnected() && service.IsConnected(); }));
        QFile program(player);
        EXPECT_TRUE(program.open(QIODevice::WriteOnly));
        EXPECT_TRUE(picker.Start());
    }
    ~Picker() override { link.Stop(); }
    static QWidget* Find(const char* name) {
        for (QWidget* widget : QApplication::allWidgets())
            if (widget->objectName() == QLatin1String(name) && widget->isVisible())
                return widget;
        return nullptr;
    }
    static QPushButton* Button(const char* name) { return qobject_cast<QPushButton*>(Find(name)); }
    UPopupBlockMask& Mask() { return *qobject_cast<UPopupBlockMask*>(Find("UPopupBlockMask")); }
    /// Clicks; what it led to: "picks", "refuses" or "nothing".
    std::string Click(const QPoint& point = Place.center()) {
        QTest::mouseClick(&Mask(), Qt::LeftButton, {}, point);
        if (!Find("pickerPreview"))
            return "nothing";
        const auto refusal = [] {
            const auto* text = qobject_cast<QLabel*>(Find("pickerText"));
            return text && text->text() == QLatin1String("This window cannot be reported");
        };
        EXPECT_TRUE(QTest::qWaitFor([&] { return Button("reportButton") || refusal(); }, 10000));
        return Button("reportButton") ? "picks" : "refuses";
    }
    static void Fire(const char* name) {
        for (QWidget* mask : QApplication::topLevelWidgets())
            if (auto* timer = mask->findChild<QTimer*>(QLatin1String(name)); timer && timer->isActive())
                QMetaObject::invokeMethod(timer, "timeout");
    }
    QString TempFiles() {
        return QDir(folder.filePath(QStringLiteral("temp"))).entryList(QDir::Files).join(QLatin1Char(' '));
    }
    static QString Toast() {
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (auto* toast = qobject_cast<UToast*>(widget); toast && toast->isVisible()) {
                EXPECT_EQ(toast->grab().toImage().pixelColor(toast->width() / 2, 1),
                          Theme::Instance()->Color(QStringLiteral("toast")));
                return toast->ShownMessage();
            }
        return {};
    }
    UploadPopupsParams Reported() {
        const FrameDecoder::Frame frame = service.Receive();
        EXPECT_EQ(frame.key, PipeKey::PopupBlockResult);
        UploadPopupsParams report;
        report.ReadFromString(frame.body);
        return report;
    }

    QTemporaryDir folder;
    const QString player = folder.filePath(QStringLiteral("player.exe"));
    FakeSystem system;
    FakeService service;
    PipeClientService& link = *PipeClientService::Instance();
    std::string key = "key of ";
    PopupPicker picker{system.Facts(), [this](const QString& path, const Cancellation&) {
                           uploads += QImage(path).size() == QSize(32, 32) ? "icon " : "window ";
                           return key.empty() ? key : key + std::to_string(++keys);
                       }};
    std::string uploads;
    int keys = 0;
};

TEST_F(Picker, TakesTheTopmostWindowUnderTheClickThatMayBeReported) {
    const QRect screen = Mask().Place();
    const struct {
        const char* what;
        std::vector<FakeSystem::Window> windows;
        const char* expected;
    } cases[] = {
        {"nothing there", {}, "nothing"},
        {"beside the click", {{player, {}, {}, {0, 0, 100, 100}}}, "nothing"},
        {"a full-screen one alone", {{player, {}, {}, screen}}, "nothing"},
        {"behind a full-screen one", {{player, {}, {}, screen}, {player, {}, {}, Place}}, "picks"},
        {"above a full-screen part",
         {{player, {}, {}, Place}, {player, {}, QStringLiteral("Progman"), screen}},
         "picks"},
        {"behind what is not to be picked",
         {{player, {}, QStringLiteral("Edit"), Place, 1, false},
          {player, {}, QStringLiteral("Edit"), Place, 1, true, false},
          {player, {}, QStringLiteral("Edit"), Place, 1, true, true, true},
          {{}, {}, QStringLiteral("Edit"), Place},
          {player, {}, QStringLiteral("Edit"), {}},
          {player, {}, {}, Place}},
         "picks"},
        {"a part in front",
         {{player, {}, QStringLiteral("tooltips_class32"), Place}, {player, {}, {}, Place}},
         "refuses"},
    };
    for (const auto& test : cases) {
        SCOPED_TRACE(test.what);
        ASSERT_TRUE(picker.Start());
        system.windows = test.windows;
        EXPECT_EQ(Click(), test.expected);
    }
    picker.Close();
    EXPECT_EQ(TempFiles(), QString());
}

TEST(PickableWindow, RefusesPartsAndTheSystemsOwnSoftware) {
    const OwnPublisher own{QStringLiteral("-own.exe"), {QStringLiteral("Own Ltd.")}};
    struct Case {
        const char* path;
        const char* className;
        const char* product;
        const char* signer;
        bool refused;
    };
    std::vector<Case> cases{
        {"D:\\a.exe", "Window", "", "", false},
        {"D:\\a.exe", "edit", "", "", false}, // exact case
        {"D:\\a.exe", "sopyUi", "", "", true},
        {"D:\\a.exe", "ApplicationFrameWindow", "", "", false},
        {"D:/EXPLORER.exe", "ApplicationFrameWindow", "", "", true},
        {"D:/explorer.exe", "Window", "", "", false},
        {"c:\\WindowsTools\\a.exe", "Window", "", "", true},
        {"D:\\WINDOWS\\a.exe", "Window", "", "", false},
        {"c:\\program files\\windowsapps\\a.exe", "Window", "", "", true},
        {"D:\\a.exe", "Window", "microsoft® WINDOWS® Operating System", "", true},
        {"D:/devenv.exe", "Window", "", "", true},
        {"D:/Devenv.exe", "Window", "", "", false},
        {"D:/ScriptedSandbox64.exe", "Window", "", "", true},
        {"D:/spyxx.exe", "Window", "", "", true},
        {"D:/spyxx_amd64.exe", "Window", "", "", true},
        {"D:\\flash.exe", "FLASH", "FLASH", "", false},
        {"D:\\tool-own.exe", "Window", "", "", true},
        {"D:\\a.exe", "Window", "", "Own Ltd.", true},
        {"D:\\a.exe", "Window", "", "Other Ltd.", false},
    };
    QFile file(QStringLiteral(RYX_PART_CLASSES));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    QList<QByteArray> parts = file.readAll().trimmed().split('\n');
    for (const QByteArray& part : parts)
        cases.push_back({"D:\\a.exe", part.constData(), "", "", true});
    EXPECT_EQ(cases.size(), 19U + 53U);
    for (const Case& test : cases) {
        PickableWindow window;
        window.process = 7;
        window.path = QString::fromUtf8(test.path);
        window.className = QString::fromUtf8(test.className);
        const ProgramFacts facts{QString::fromUtf8(test.product), QString::fromUtf8(test.signer)};
        EXPECT_EQ(window.IsRefused(facts, own, 1), test.refused) << test.path << ' ' << test.className;
        EXPECT_TRUE(window.IsRefused(facts, own, 7));
        window.path = QStringLiteral("D:\\a.exe");
        EXPECT_EQ(window.IsRefused({facts.product, {}}, {}, 1), window.IsPart() || *test.product == 'm');
    }
}

TEST_F(Picker, ReportsWithPicturesAndTellsTheAnswer) {
    const struct {
        const char* what;
        bool uploads;
        const char* answer; // null: none
        const char* toast;
    } cases[] = {
        {"taken", true, R"({"code": "0"})", "Reported successfully"},
        {"refused, nothing uploaded", false, R"({"code": "1"})", "Failed to report"},
        {"an answer that is none", true, "0", "Failed to report"},
        {"an answer that comes too late", true, nullptr, "Failed to report"},
        {"taken again", true, R"({"code": "0"})", "Reported successfully"},
    };
    system.windows = {{player, QStringLiteral("Offer"), QStringLiteral("OfferWindow"), Place}};
    for (const auto& test : cases) {
        SCOPED_TRACE(test.what);
        ASSERT_TRUE(picker.Start());
        keys = 0;
        key = test.uploads ? "key of " : "";
        ASSERT_EQ(Click(), "picks");
        ASSERT_EQ(Click(), "picks"); // again: the files of the first pick go
        Button("reportButton")->click();
        EXPECT_FALSE(Find("UPopupBlockMask"));
        const UploadPopupsParams report = Reported();
        EXPECT_EQ(report.appName + '|' + report.popName + '|' + report.popClassName + '|' +
                      report.popProductName + '|' + report.popSignName,
                  "player.exe|Offer|OfferWindow|Player|Example Software Ltd.");
        EXPECT_EQ(report.type, 0);
        EXPECT_EQ(report.appFileKey.empty(), !test.uploads);
        EXPECT_EQ(TempFiles(), QString());
        if (!test.answer)
            Fire("popupReplyTimer");
        EXPECT_FALSE(picker.Start()) << "the answer to the report before may still come";
        link.Deliver(PipeKey::PopupBlockResult, test.answer ? test.answer : R"({"code": "0"})");
        EXPECT_EQ(Toast(), QLatin1String(test.toast));
    }
}

TEST_F(Picker, LeavesAProgramBehindWhoseFileCannotBeReadInTime) {
    system.windows = {{QStringLiteral("//slow/player.exe"), {}, {}, Place}};
    QTest::mouseClick(&Mask(), Qt::LeftButton, {}, Place.center());
    EXPECT_FALSE(Button("reportButton"));
    Fire("pickerLookLimit");
    EXPECT_TRUE(Button("reportButton"));
    system.windows = {{player, {}, {}, Place}};
    EXPECT_EQ(Click(), "picks");
    Button("reportButton")->click();
    EXPECT_EQ(Reported().popSignName, "Example Software Ltd.");
    system.release.set_value();
}

TEST_F(Picker, ClosesOnEscapeAndBelowALockAndLeavesNoFile) {
    system.windows = {{player, {}, {}, Place}};
    QWidget lock;
    lock.setProperty("TopLevel", 6);
    for (const bool byLock : {false, true}) {
        ASSERT_TRUE(picker.Start());
        ASSERT_EQ(Click(), "picks");
        EXPECT_NE(TempFiles(), QString());
        if (byLock)
            lock.show();
        else
            QTest::keyClick(&Mask(), Qt::Key_Escape);
        EXPECT_FALSE(Find("UPopupBlockMask"));
        EXPECT_EQ(TempFiles(), QString());
    }
}

} // namespace

#include "app/MainWindow.h"
#include "feedback/AttachmentStrip.h"
#include "feedback/LogFilesDialog.h"
#include "feedback/UFeedback.h"
#include "gallery/Scenes.h"
#include "platform/context/AppConfigData.h"
#include "platform/context/Text.h"
#include "widgets/UAlert.h"
#include "widgets/UBackButton.h"
#include "widgets/UToast.h"

#include <QDir>
#include <QDragEnterEvent>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMimeData>
#include <QProgressBar>
#include <QPushButton>
#include <QTextEdit>
#include <QThread>
#include <algorithm>

namespace {

LogReportOutcome Outcome(bool ok, WebError error) {
    LogReportOutcome outcome;
    outcome.ok = ok;
    outcome.step = ReportStep::Send;
    outcome.error = error;
    outcome.message = QStringLiteral("feedback is closed for maintenance");
    return outcome;
}

/// The page with something written on it, and nobody behind it: an upload does what the file's name says, a
/// report what the scene says.
class FeedbackStage {
public:
    explicit FeedbackStage(Stage& stage)
        : m_window(stage.Window()), m_page(*stage.Window().findChild<UFeedback*>()) {
        m_page.SetBackend({Upload, {}});
        stage.Receive(2, R"({"status": 2})");
        m_window.OpenFeedbackPage();
        Write(QStringLiteral("The picture on the display freezes when a second computer is connected."));
    }

    void Write(const QString& text) {
        m_page.findChild<QTextEdit*>(QStringLiteral("description"))->setPlainText(text);
    }

    void Email(const QString& text) { m_page.findChild<QLineEdit*>(QStringLiteral("email"))->setText(text); }

    void Attach(const QStringList& names) {
        auto* strip = m_page.findChild<AttachmentStrip*>();
        const QDir folder = Folder(QStringLiteral("ryx-scenes-files"));
        QStringList paths;
        for (const QString& name : names) {
            QFile file(folder.filePath(name));
            if (file.open(QIODevice::WriteOnly))
                file.resize(name.startsWith(QLatin1String("empty")) ? 0 : 1400000 + 97000 * name.size());
            paths.append(file.fileName());
        }
        paths.append(QDir::tempPath()); // no file
        strip->AddFiles(paths);
        WaitFor([&] {
            const auto failing = names.filter(QStringLiteral("fail")).size();
            const auto good = names.filter(QStringLiteral("good")).size();
            return strip->Failed().size() == failing && strip->Uploaded().size() == size_t(good) &&
                   HasProgress(names.size() > 5);
        });
    }

    void EndsWith(const LogReportOutcome& outcome) {
        m_page.SetBackend({Upload, [outcome](auto&&...) { return outcome; }});
    }

    void NeverEnds() {
        m_page.SetBackend({Upload, [](auto&&, const Cancellation& cancellation, const ProgressMeter& meter) {
                               meter.Set(55);
                               WaitUntilCancelled(cancellation);
                               LogReportOutcome cancelled;
                               cancelled.error = WebError::Cancelled;
                               return cancelled;
                           }});
    }

    /// Lets the report fail, and the user save it under a name in the file dialog.
    void Save(const std::function<ReportArchive::Result(const Cancellation&)>& save) {
        const auto fail = [](auto&&...) { return Outcome(false, WebError::Unreachable); };
        m_page.SetBackend({Upload, fail, [save](auto&&, const TaskControl& control) {
                               control.Tell(3, 4);
                               return save(control.cancellation);
                           }});
        Submit(true);
        for (auto* button : m_window.findChildren<QPushButton*>())
            if (button->isVisible() && button->text() == Text("feedback_save"))
                button->click();
        auto* dialog = m_page.findChild<QFileDialog*>();
        emit dialog->fileSelected(QStringLiteral("/reports/RYXREPORT-20260302101500.zip"));
        delete dialog;
    }

    void Submit(bool waitForEnd = false) {
        bool ended = !waitForEnd;
        QObject context;
        QObject::connect(&m_page, &UFeedback::LogReported, &context, [&ended] { ended = true; });
        Press("submitButton");
        WaitFor([&] { return ended; });
    }

    void Press(const char* button) { m_window.findChild<QPushButton*>(QString::fromLatin1(button))->click(); }

    bool Asks() const {
        const auto alerts = m_window.findChildren<UAlert*>();
        return std::any_of(alerts.begin(), alerts.end(), [](auto* alert) { return alert->isVisible(); });
    }

    bool HasProgress(bool expected) const {
        const auto bars = m_page.findChildren<QProgressBar*>();
        return expected == std::any_of(bars.begin(), bars.end(), [](auto* bar) { return bar->value() > 0; });
    }

    void WaitForNotice() const {
        WaitFor([this] {
            const auto toasts = m_window.findChildren<UToast*>();
            return std::any_of(toasts.begin(), toasts.end(), [](auto* toast) { return toast->isVisible(); });
        });
    }

    void DragFileOver() {
        QMimeData file;
        file.setUrls({QUrl::fromLocalFile(QDir::temp().filePath(QStringLiteral("photo.png")))});
        QDragEnterEvent event({50, 50}, Qt::CopyAction, &file, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&m_page, &event);
    }

    void OpenAgain() {
        m_page.hide();
        m_page.show();
    }

    void GoBack() { m_page.findChild<UBackButton*>()->click(); }

    /// Nothing has to be scrolled.
    void MakeHigh() { m_window.resize(1280, 1080); }

    /// An empty folder of the scenes' own.
    static QDir Folder(const QString& name) {
        QDir folder(QDir::temp().filePath(name));
        folder.removeRecursively();
        folder.mkpath(QStringLiteral("."));
        return folder;
    }

    static void WaitUntilCancelled(const Cancellation& cancellation) {
        while (!cancellation.IsCancelled())
            QThread::msleep(5);
    }

private:
    static FeedbackBackend::Upload Upload(const QString& path, const TaskControl& control) {
        if (path.contains(QLatin1String("fail")))
            return {{}, WebError::Unreachable};
        control.Tell(42, 100);
        if (!path.contains(QLatin1String("good")))
            WaitUntilCancelled(control.cancellation);
        FeedbackBackend::Upload upload;
        upload.file.url = "https://files.example.com/1";
        upload.size = QFileInfo(path).size();
        return upload;
    }

    MainWindow& m_window;
    UFeedback& m_page;
};

Scene On(const char* name, const std::function<void(FeedbackStage&)>& play) {
    return {QStringLiteral("feedback-") + QLatin1String(name), true, [play](Stage& stage) {
                FeedbackStage page(stage);
                play(page);
            }};
}

void MakeLogs(const QVector<int>& lengths = {100, 3000, 40}) {
    const QDir folder = FeedbackStage::Folder(QStringLiteral("ryx-scenes-log"));
    AppConfigData::Instance()->logFolder = folder.path().toStdString();
    const QByteArray line = "I20260302 10:15:00.000000  4711 MainController.cpp:52] MainController::"
                            "OnConnectChanged connected\n";
    for (const int lines : lengths)
        if (QFile file(folder.filePath(QStringLiteral("1-User.20260302-10150%1.4711").arg(lines % 7)));
            file.open(QIODevice::WriteOnly))
            file.write(line.repeated(lines));
}

} // namespace

QVector<Scene> FeedbackScenes() {
    const QStringList mixed{QStringLiteral("photo of the display that is good.png"),
                            QStringLiteral("recording.mp4"),
                            QStringLiteral("fails.log"),
                            QStringLiteral("second recording.mp4"),
                            QStringLiteral("a third recording with a name that goes on and on and on.mp4"),
                            QStringLiteral("empty.txt")};
    return {
        On("filled", [](FeedbackStage& page) { page.Email(QStringLiteral("teacher@school.example")); }),
        On("over-limit",
           [](FeedbackStage& page) { page.Write(QStringLiteral("It happens each time. ").repeated(60)); }),
        On("email-error",
           [](FeedbackStage& page) {
               page.Email(QStringLiteral("teacher+fault@school"));
               page.Submit();
           }),
        On("attachments",
           [mixed](FeedbackStage& page) {
               page.Attach(mixed);
               page.MakeHigh();
           }),
        On("without",
           [](FeedbackStage& page) {
               page.Attach({QStringLiteral("good.png"), QStringLiteral("fails.log"),
                            QStringLiteral("fails again.log")});
               page.Submit();
           }),
        On("running",
           [](FeedbackStage& page) {
               page.Attach({QStringLiteral("good.png")});
               page.NeverEnds();
               page.Submit();
               WaitFor([&] { return page.HasProgress(true); });
           }),
        On("sent",
           [](FeedbackStage& page) {
               page.EndsWith(Outcome(true, WebError::None));
               page.Submit(true);
           }),
        On("failed",
           [](FeedbackStage& page) {
               page.EndsWith(Outcome(false, WebError::Unreachable));
               page.Submit(true);
           }),
        On("refused",
           [](FeedbackStage& page) {
               page.EndsWith(Outcome(false, WebError::Refused));
               page.Submit(true);
           }),
        On("not-configured",
           [](FeedbackStage& page) {
               page.EndsWith(Outcome(false, WebError::NotConfigured));
               page.Submit(true);
           }),
        On("not-packed",
           [](FeedbackStage& page) {
               page.EndsWith({});
               page.Submit(true);
           }),
        On("saving",
           [](FeedbackStage& page) {
               page.Save([](const Cancellation& cancellation) {
                   FeedbackStage::WaitUntilCancelled(cancellation);
                   return ReportArchive::Result::Failed;
               });
               WaitFor([&] { return page.HasProgress(true); });
           }),
        On("replace",
           [](FeedbackStage& page) {
               page.Save([](auto&&) { return ReportArchive::Result::Exists; });
               WaitFor([&] { return page.Asks(); });
           }),
        On("not-saved",
           [](FeedbackStage& page) {
               page.Save([](auto&&) { return ReportArchive::Result::Failed; });
               WaitFor([&] { return page.Asks(); });
           }),
        On("saved",
           [](FeedbackStage& page) {
               page.Save([](auto&&) { return ReportArchive::Result::Saved; });
               page.WaitForNotice();
           }),
        On("cancelled",
           [](FeedbackStage& page) {
               page.NeverEnds();
               page.Submit();
               page.Press("cancelButton");
               page.WaitForNotice();
           }),
        On("goes-on",
           [](FeedbackStage& page) {
               page.NeverEnds();
               page.Submit();
               page.GoBack();
               page.WaitForNotice();
           }),
        On("drop", [](FeedbackStage& page) { page.DragFileOver(); }),
        On("leave", [](FeedbackStage& page) { page.GoBack(); }),
        On("crashed",
           [](FeedbackStage& page) {
               MakeLogs();
               QFile(QDir(QString::fromStdString(AppConfigData::Instance()->logFolder))
                         .filePath(QStringLiteral("1-Crash.20260302-101502.4711.txt")))
                   .open(QIODevice::WriteOnly);
               page.OpenAgain();
               page.MakeHigh();
           }),
        On("log-files",
           [](FeedbackStage& page) {
               MakeLogs();
               page.Press("logFilesButton");
           }),
        On("log-files-none",
           [](FeedbackStage& page) {
               MakeLogs({});
               page.Press("logFilesButton");
           }),
        On("log-view-unreadable",
           [](FeedbackStage& page) {
               MakeLogs();
               page.Press("logFilesButton");
               FeedbackStage::Folder(QStringLiteral("ryx-scenes-log"));
               page.Press("logFileOpen");
           }),
        On("log-view-end",
           [](FeedbackStage& page) {
               MakeLogs({3000});
               page.Press("logFilesButton");
               page.Press("logFileOpen");
           }),
        On("log-view",
           [](FeedbackStage& page) {
               MakeLogs();
               page.Press("logFilesButton");
               page.Press("logFileOpen");
           }),
    };
}

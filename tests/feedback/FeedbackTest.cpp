// The page of the log report as its user has it, with scripted uploads and reports behind it.
#include "feedback/AttachmentStrip.h"
#include "feedback/FeedbackForm.h"
#include "feedback/UFeedback.h"
#include "platform/application/RyxWindow.h"
#include "platform/context/AppConfigData.h"
#include "platform/context/AppContextData.h"
#include "platform/context/EmailAddress.h"
#include "platform/context/LanguageHelper.h"
#include "platform/context/Theme.h"
#include "support/StandInWeb.h"
#include "widgets/UAlert.h"
#include "widgets/UBackButton.h"

#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QTextEdit>
#include <QVBoxLayout>
#include <array>
#include <atomic>

namespace {

/// Uploads and reports wait until the test lets them go on, or are cancelled.
struct Scripted {
    FeedbackBackend Backend() {
        return {
            [this](const QString& path, const TaskControl& control) {
                const int now = ++running;
                most = std::max<int>(most, now);
                FeedbackBackend::Upload upload;
                while (!control.IsCancelled() && !uploadsGoOn.tryAcquire(1, 5)) {
                }
                --running;
                ++uploads;
                upload.file.name = QFileInfo(path).fileName().toStdString();
                upload.error = path.contains(QLatin1String("fail")) ? WebError::Refused : WebError::None;
                return upload;
            },
            [this](const LogReportRequest& request, const Cancellation& cancellation, const ProgressMeter&) {
                ++reports;
                last = request;
                if (request.email == QLatin1String("throw@b.c"))
                    throw std::runtime_error("thrown");
                while (!cancellation.IsCancelled() && !reportsGoOn.tryAcquire(1, 5)) {
                }
                LogReportOutcome outcome = next;
                if (cancellation.IsCancelled())
                    outcome.error = WebError::Cancelled;
                return outcome;
            }};
    }

    QSemaphore uploadsGoOn, reportsGoOn;
    std::atomic_int running{0}, most{0}, uploads{0}, reports{0};
    LogReportRequest last;
    LogReportOutcome next;
};

struct Window : RyxWindow {
    void Notify(NoticeKind, const QString& text) override { notices.append(text); }
    void OpenNetworkPage() override {}
    void OpenEnrolmentPage() override {}
    QStringList notices;
};

class Feedback : public testing::Test {
protected:
    void SetUp() override {
        Theme::Instance()->Apply(QStringLiteral("light"));
        LanguageHelper::Instance()->SetLanguage(QStringLiteral("en"));
        AppConfigData::Instance()->dataFolder = folder.filePath(QStringLiteral("data")).toStdString();
        AppConfigData::Instance()->logFolder = folder.filePath(QStringLiteral("log")).toStdString();
        AppContextData::Instance()->SetContextText("the context");
        page = new UFeedback;
        page->SetBackend(script.Backend());
        (new QVBoxLayout(&window))->addWidget(page);
        window.show();
        QObject::connect(page, &UFeedback::Left, &window, [this] { ++left; });
        QObject::connect(page, &UFeedback::LogReported, &window, [this](const QString& message, bool ok) {
            told.append(message + QLatin1Char(ok ? '+' : '-'));
        });
    }

    template <class Part>
    Part& Find(const char* name = nullptr) {
        return *page->findChild<Part*>(QString::fromLatin1(name));
    }
    void Write(const QString& text) { Find<QTextEdit>("description").setPlainText(text); }
    bool CanSubmit() { return Find<QPushButton>("submitButton").isEnabled(); }
    void Submit() { Find<QPushButton>("submitButton").click(); }
    AttachmentStrip& Strip() { return Find<AttachmentStrip>(); }
    QString Make(const QString& name, qint64 size = 10) {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.resize(size));
        return file.fileName();
    }
    template <class Condition>
    static bool Comes(Condition condition) {
        return QTest::qWaitFor(condition, 10000);
    }
    void Attach(const QStringList& names, int released = 0) {
        QStringList paths;
        for (const QString& name : names)
            paths.append(Make(name));
        script.uploadsGoOn.release(released);
        Strip().AddFiles(paths);
        EXPECT_TRUE(Comes([&] { return released == 0 || !Strip().IsPending(); }));
    }
    /// The alert on screen.
    UAlert* Alert() {
        for (auto* alert : window.findChildren<UAlert*>())
            if (alert->isVisible())
                return alert;
        return nullptr;
    }
    std::string AlertSays() { return Alert() ? Alert()->accessibleDescription().toStdString() : "no alert"; }
    /// Presses the alert's button with this text.
    void Answer(const char* text) {
        for (auto* button : Alert()->findChildren<QPushButton*>())
            if (button->text() == QString::fromUtf8(text))
                return button->click();
        ADD_FAILURE() << "no button " << text;
    }
    void EndReport(bool ok, ReportStep step = ReportStep::Send, WebError error = WebError::Unreachable) {
        const int before = told.size();
        const QString message = step == ReportStep::Send ? QStringLiteral("words") : QString();
        const QString said = error == WebError::Refused ? QString(301, QLatin1Char('w')) : QString();
        script.next = {ok, message, step, ok ? WebError::None : error, said, {}};
        script.reportsGoOn.release();
        EXPECT_TRUE(Comes([&] { return told.size() > before; }));
    }

    const QTemporaryDir folder;
    Scripted script;
    Window window;
    UFeedback* page = nullptr;
    int left = 0;
    QStringList told;
};

TEST_F(Feedback, WhatIsWrittenOpensSubmitAndIsNeverCut) {
    const struct {
        QString text;
        bool submit, tooLong, scrolls;
        const char* counter;
    } cases[] = {{{}, false, false, false, "0/300"},
                 {QStringLiteral(" \n\t"), false, false, false, "3/300"},
                 {QString(300, QLatin1Char('x')), true, false, false, "300/300"},
                 {QString(301, QLatin1Char('x')), true, true, false, "301/300"},
                 {QStringLiteral("x\n").repeated(20), true, false, true, "40/300"},
                 {QString::fromUtf8("🙂"), true, false, false, "1/300"}};
    window.resize(900, 700);
    for (const auto& row : cases) {
        SCOPED_TRACE(row.counter);
        Write(row.text);
        EXPECT_EQ(CanSubmit(), row.submit);
        const auto& counter = Find<QLabel>("characterCounter");
        EXPECT_EQ(counter.text(), QLatin1String(row.counter));
        EXPECT_EQ(counter.property("charToLong"), QVariant(row.tooLong));
        EXPECT_EQ(Find<QTextEdit>("description").verticalScrollBarPolicy(),
                  row.scrolls ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
    }
    Write(QString(301, QLatin1Char('x')));
    Submit();
    EndReport(true);
    EXPECT_EQ(script.last.description.size(), 301);
}

TEST_F(Feedback, AWrongAddressIsToldAndNothingIsSent) {
    for (const char* good : {"a@b.c", "A.b_c-9@x_y-z.co.uk", "._-@_.-"})
        EXPECT_TRUE(IsEmailAddress(QLatin1String(good))) << good;
    for (const char* bad :
         {"", "a", "a@b", "a+b@c.d", "a@b.", "@b.c", "a@b.c\n", " a@b.c", "a@b..c", "a@b.c,d@e.f"})
        EXPECT_FALSE(IsEmailAddress(QLatin1String(bad))) << bad;
    Write(QStringLiteral("x"));
    Find<QLineEdit>("email").setText(QStringLiteral("a@b"));
    Submit();
    EXPECT_EQ(Find<QLineEdit>("email").property("error"), QVariant(true));
    Find<QLineEdit>("email").setText(QStringLiteral("a@b.c"));
    EXPECT_EQ(Find<QLineEdit>("email").property("error"), QVariant(false));
    EXPECT_EQ(script.reports, 0);
    Submit();
    EndReport(true);
    EXPECT_EQ(script.last.email, QStringLiteral("a@b.c"));
    EXPECT_EQ(script.last.identity, "the context");
}

TEST_F(Feedback, WhatIsNotAttachedIsToldWithItsReason) {
    window.resize(1280, 700);
    const auto& refusals = *Strip().findChild<QLabel*>(QStringLiteral("fieldError"));
    const QString good = Make(QStringLiteral("good"));
    const struct {
        QStringList paths;
        const char* words;
    } cases[] = {{{Make(QStringLiteral("huge"), AttachmentFile::MostBytes + 1)},
                  "“huge” was not attached: it is larger than 50 MB."},
                 {{folder.path()}, "it is a folder."},
                 {{folder.filePath(QString::fromUtf8("no\u202Egnp.exe"))},
                  "“no\uFFFDgnp.exe” was not attached: it cannot be read."},
                 {{Make(QStringLiteral("void"), 0)}, "the file is empty."},
                 {{good, folder.path() + QStringLiteral("/./good")},
                  "“good” was not attached: it is attached already."}};
    for (const auto& row : cases) {
        Strip().AddFiles(row.paths);
        EXPECT_TRUE(Comes([&] { return refusals.text().contains(QString::fromUtf8(row.words)); }))
            << row.words << "\n"
            << refusals.text().toStdString();
    }
    Strip().AddFiles({Make(QStringLiteral("largest"), AttachmentFile::MostBytes), folder.path()});
    QStringList many;
    for (int i = 0; i < 15; ++i)
        many.append(QStringLiteral("file%1").arg(i));
    Attach(many);
    EXPECT_TRUE(
        Comes([&] { return refusals.text().contains(QStringLiteral("there are 9 attachments already.")); }));
    EXPECT_TRUE(refusals.text().contains(QStringLiteral("it is a folder."))) << "of the files before";
    EXPECT_TRUE(Comes([&] { return refusals.visibleRegion().boundingRect() == refusals.rect(); }));
    EXPECT_TRUE(refusals.text().contains(QStringLiteral("file12, file13, and file14.")));
    EXPECT_EQ(Strip().Paths().size(), 9);
    EXPECT_EQ(script.most, 2) << "two are uploaded at a time";
    EXPECT_TRUE(Comes([&] { return Strip().findChildren<AttachmentItem*>().last()->y() > 200; }))
        << "the chips wrap onto rows";
}

TEST_F(Feedback, AnAttachmentIsCancelledRetriedAndRemovedOnItsOwn) {
    Write(QStringLiteral("x"));
    Attach({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("fails"), QStringLiteral("d")});
    EXPECT_FALSE(CanSubmit());
    EXPECT_TRUE(Comes([&] { return Strip().Paths().size() == 4 && script.running == 2; }));
    const auto items = Strip().findChildren<AttachmentItem*>();
    const auto press = [&](int item, const char* button) {
        items[item]->findChild<QPushButton*>(QString::fromLatin1(button))->click();
    };
    press(0, "attachmentAgain"); // cancels
    press(1, "attachmentRemove");
    EXPECT_EQ(Strip().Failed(), QStringList{QStringLiteral("a")});
    EXPECT_EQ(Strip().Paths().size(), 3);
    script.uploadsGoOn.release(10);
    EXPECT_TRUE(Comes([&] { return !Strip().IsPending(); }));
    EXPECT_EQ(Strip().Failed().join(QLatin1Char(' ')), QStringLiteral("a fails"));
    press(0, "attachmentAgain"); // tries once more
    EXPECT_TRUE(Comes([&] { return !Strip().IsPending(); }));

    Submit();
    EXPECT_NE(AlertSays().find("fails"), std::string::npos) << AlertSays();
    Answer("Back");
    EXPECT_EQ(script.reports, 0);
    Submit();
    Answer("Send without");
    EndReport(true);
    ASSERT_EQ(script.last.attachments.size(), 2U);
    EXPECT_EQ(script.last.attachments[0].name + script.last.attachments[1].name, "ad");
}

TEST_F(Feedback, AFailedReportIsRetriedAsItIsAndASentOneIsGone) {
    Write(QStringLiteral("It freezes"));
    Attach({QStringLiteral("a")}, 1);
    Find<QPushButton>("submitButton").setFocus();
    Submit();
    Write(QStringLiteral("later words")); // whatever changes it meanwhile
    Submit();
    page->OnSubmitRetry();
    EndReport(false, ReportStep::Upload, WebError::TimedOut);
    EXPECT_EQ(script.last.description, QStringLiteral("It freezes"));
    EXPECT_NE(AlertSays().find("did not answer in time"), std::string::npos) << AlertSays();
    const std::string refused = "The service says: " + std::string(300, 'w') + '\n';
    for (const auto& [step, error, words] :
         {std::tuple{ReportStep::Pack, WebError::None, "could not be packed"},
          {ReportStep::Send, WebError::Refused, refused.c_str()},
          {ReportStep::Address, WebError::None, "Something went wrong"}}) {
        Answer("Try again");
        EndReport(false, step, error);
        EXPECT_NE(AlertSays().find(words), std::string::npos) << AlertSays();
    }
    Answer("Save report …");
    auto* dialog = page->findChild<QFileDialog*>();
    emit dialog->fileSelected(Make(QStringLiteral("saved.zip")));
    delete dialog;
    EXPECT_FALSE(CanSubmit()) << "while it is saved";
    EXPECT_EQ(window.focusWidget(), &Find<QPushButton>("cancelButton")) << "none of the window's";
    page->hide();
    EXPECT_TRUE(Comes([&] { return CanSubmit(); }));
    EXPECT_EQ(window.focusWidget(), &Find<QPushButton>("submitButton"));
    EXPECT_FALSE(Alert()) << "over another page";
    EXPECT_EQ(window.notices.size(), 1);
    page->show();
    EXPECT_TRUE(Comes([&] { return AlertSays().find("saved.zip") != std::string::npos; }));
    Answer("Replace");
    EXPECT_TRUE(Comes([&] { return window.notices.size() == 2; }));
    EXPECT_GT(QFileInfo(folder.filePath(QStringLiteral("saved.zip"))).size(), 100);
    Find<QLineEdit>("email").setText(QStringLiteral("throw@b.c"));
    Submit();
    EXPECT_TRUE(Comes([&] { return AlertSays().find("Something went wrong") != std::string::npos; }));
    Find<QLineEdit>("email").clear();
    LanguageHelper::Instance()->SetLanguage(QStringLiteral("de"));
    Answer("Erneut senden");
    LanguageHelper::Instance()->SetLanguage(QStringLiteral("en"));
    EXPECT_TRUE(Find<QTextEdit>("description").isReadOnly());
    EndReport(true);
    EXPECT_EQ(script.uploads, 1);
    EXPECT_EQ(script.reports, 6);
    EXPECT_EQ(told.join(QLatin1Char(' ')), QStringLiteral("- - words- - - words+"));
    EXPECT_TRUE(Strip().IsEmpty() && Find<QTextEdit>("description").toPlainText().isEmpty());
    EXPECT_FALSE(CanSubmit());
    Answer("OK");
    EXPECT_EQ(left, 1);
}

/// The page as it is delivered, with the stand-in web service behind it.
struct FeedbackAtService : Feedback, StandInWeb {};

TEST_F(FeedbackAtService, EveryFaultEndsWithItsMessageAndLeavesNoArchive) {
    settings.silence = std::chrono::milliseconds(300);
    RyxWebClient::Instance()->Configure(settings);
    page->SetBackend({});
    QDir(folder.path()).mkdir(QStringLiteral("log"));
    Make(QStringLiteral("log/1-User"));
    Write(QStringLiteral("x"));
    for (const auto& row : {std::array{"policy", "wrong", "could not be understood"},
                            {"upload", "503", "The service says: told to fail"},
                            {"notice", "gone", "could not be reached"},
                            {"log", "slow 5", "did not answer in time"},
                            {"url", "redirect http://localhost:1", "is not allowed"},
                            {"feedback", "half", "may send it twice"}}) {
        const std::string endpoint = std::string("web ") + row[0];
        Tell(endpoint + ' ' + row[1]);
        Alert() ? Answer("Try again") : Submit();
        EXPECT_TRUE(Comes([&] { return AlertSays().find(row[2]) != std::string::npos; })) << AlertSays();
        EXPECT_TRUE(QDir(folder.filePath(QStringLiteral("data/temp"))).isEmpty(QDir::Files)) << endpoint;
        Tell(endpoint + " ok");
    }
}

TEST_F(Feedback, LeavingAsksOnlyForWhatWouldBeLost) {
    auto& back = Find<UBackButton>();
    back.click();
    Write(QStringLiteral("  "));
    back.click();
    EXPECT_EQ(left, 2);
    Write(QStringLiteral("x"));
    back.click();
    Answer("Keep writing");
    EXPECT_EQ(left, 2);
    EXPECT_TRUE(CanSubmit());

    Submit(); // goes on without the user, who hears of it
    back.click();
    EXPECT_EQ(left, 3);
    page->hide();
    EndReport(false);
    EXPECT_FALSE(Alert());
    ASSERT_EQ(window.notices.size(), 2);
    page->show();
    EXPECT_NE(AlertSays().find("may send it twice"), std::string::npos) << AlertSays();
    Answer("Close");
    back.click();
    Answer("Discard");
    EXPECT_EQ(left, 4);
    EXPECT_FALSE(CanSubmit());
}

TEST_F(Feedback, CancelAndTheEndOfThePageEndWhatRuns) {
    Write(QStringLiteral("x"));
    Submit();
    Find<QPushButton>("cancelButton").click();
    EXPECT_TRUE(Comes([&] { return !told.isEmpty(); }));
    EXPECT_FALSE(Alert());
    EXPECT_TRUE(CanSubmit());
    Attach({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
    EXPECT_TRUE(Comes([&] { return script.running == 2; }));
    QElapsedTimer time;
    time.start();
    delete page;
    EXPECT_LT(time.elapsed(), 2000);
    EXPECT_EQ(script.running, 0);
}

TEST_F(Feedback, FilesAndPicturesAreTakenFromClipboardAndDrop) {
    auto& box = Find<QTextEdit>("description");
    const auto paste = [&box](QMimeData* data) {
        QApplication::clipboard()->setMimeData(data);
        box.paste();
    };
    auto* both = new QMimeData;
    both->setText(QStringLiteral("a table"));
    both->setImageData(QImage(2, 2, QImage::Format_RGB32));
    paste(both);
    EXPECT_EQ(box.toPlainText(), QStringLiteral("a table"));
    auto* picture = new QMimeData;
    picture->setImageData(QImage(2, 2, QImage::Format_RGB32));
    paste(picture);
    EXPECT_TRUE(Comes([&] { return Strip().Paths().size() == 1; }));
    const QString path = Strip().Paths().first();
    EXPECT_TRUE(path.startsWith(folder.path()) && !QImage(path).isNull()) << path.toStdString();

    QMimeData file;
    file.setUrls({QUrl::fromLocalFile(Make(QStringLiteral("dropped")))});
    for (const auto type : {QEvent::DragEnter, QEvent::Drop}) {
        QDropEvent drop({50, 50}, Qt::MoveAction | Qt::CopyAction, &file, Qt::LeftButton, Qt::NoModifier,
                        type);
        QDragEnterEvent enter({50, 50}, Qt::MoveAction | Qt::CopyAction, &file, Qt::LeftButton,
                              Qt::NoModifier);
        QDropEvent& event = type == QEvent::Drop ? drop : enter;
        QApplication::sendEvent(page, &event);
        EXPECT_TRUE(event.isAccepted());
        EXPECT_EQ(event.dropAction(), Qt::CopyAction) << "a move would take the file from the user";
    }
    EXPECT_TRUE(Comes([&] { return Strip().Paths().size() == 2; }));
    script.uploadsGoOn.release(2);
    EXPECT_TRUE(Comes([&] { return !Strip().IsPending(); }));
    Strip().Clear();
    EXPECT_TRUE(Comes([&] { return !QFileInfo::exists(path); })) << "a picture's file goes with it";
}

} // namespace

// The administrator's messages as their reader sees them, from the body of the message on.
#include "messages/UMessageFileDialog.h"
#include "messages/UMessageList.h"
#include "platform/application/WindowStack.h"
#include "platform/context/LanguageHelper.h"
#include "platform/context/Theme.h"
#include "widgets/Announcements.h"

#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextBlock>
#include <QTextBrowser>

namespace {

class MessageDialog : public testing::Test {
protected:
    void SetUp() override {
        Theme::Instance()->Apply(QStringLiteral("light"));
        LanguageHelper::Instance()->SetLanguage(QStringLiteral("en"));
        Restart();
    }

    /// A new start of the program, with what the old one has kept.
    void Restart() {
        dialog.reset();
        files.reset();
        history = std::make_unique<MessageHistory>(folder.filePath(QStringLiteral("messages.json")));
        files = std::make_unique<MessageFiles>(*history, folder.filePath(QStringLiteral("files")), 1000);
        dialog = std::make_unique<UMessageFileDialog>(*history, *files);
        dialog->ShowUnread();
    }
    void Send(const std::string& body) {
        MessageRequest request;
        request.ReadFromString(body);
        dialog->SetDataRequest(request, request.fileInfoParams);
    }
    void PassSeconds(int seconds) {
        for (auto* timer = dialog->findChild<QTimer*>(QStringLiteral("messageTimer")); seconds > 0; --seconds)
            if (timer->isActive())
                QMetaObject::invokeMethod(timer, "timeout");
    }
    /// As the user does who has seen the message.
    void Close() {
        PassSeconds(1);
        dialog->close();
    }
    /// The text on screen; "-" when there is no window.
    std::string Shown() const {
        auto* text = dialog->findChild<QTextBrowser*>();
        return dialog->isVisible() ? text->toPlainText().toStdString() : "-";
    }
    template <class Part = QLabel>
    Part& Find(const char* name) const {
        return *dialog->findChild<Part*>(QLatin1String(name));
    }
    std::string States() const {
        std::string states;
        for (const Message& message : history->Messages())
            states += "nrw"[static_cast<int>(message.state)];
        return states;
    }

    const QTemporaryDir folder;
    std::unique_ptr<MessageHistory> history;
    std::unique_ptr<MessageFiles> files;
    std::unique_ptr<UMessageFileDialog> dialog;
};

TEST_F(MessageDialog, WhatIsThereDecidesWhatABodyIs) {
    const struct {
        const char* body;
        const char* text;
        const char* title = "Message from your administrator";
        bool closable = true;
        bool hasFile = false;
    } cases[] = {
        {R"({"jobStatus": true, "operationRight": true, "text": "a", "playDuration": 0})", "a"},
        {R"({"jobStatus": true, "operationRight": false, "text": "<b>b</b>"})", "<b>b</b>",
         "Message from your administrator", false},
        {R"({"jobStatus": true, "text": "c", "fileInfoParams": {"name": "x.pdf"}})", "c"},
        {R"({"text": "d", "fileInfoParams": {}})", "d", "Emergency"},
        {R"({"jobStatus": null, "operationRight": null, "text": "e"})", "e", "Emergency"},
        {R"({"fileInfoParams": {"url": "ftp://a/f", "name": "f"}})", "", "Message from your administrator",
         true, true},
        {R"({"text": "g", "fileInfoParams": {"url": "ftp://a/g"}})", "g", "Emergency", true, true},
    };
    int operation = 0;
    for (const auto& row : cases) {
        MessageRequest request;
        request.ReadFromString(row.body);
        request.operationId = ++operation;
        const Announcements announcements;
        dialog->SetDataRequest(request, request.fileInfoParams);
        EXPECT_EQ(Shown(), row.text) << row.body;
        EXPECT_EQ(dialog->windowTitle(), QLatin1String(row.title)) << row.body;
        EXPECT_EQ(announcements.Heard(), QStringList(dialog->windowTitle()));
        EXPECT_EQ(Find<QWidget>("messageFileName").isVisible(), row.hasFile) << row.body;
        EXPECT_EQ(Find<QPushButton>("okButton").isVisible(), row.closable) << row.body;
        QTest::keyClick(dialog.get(), Qt::Key_Escape);
        EXPECT_EQ(Shown(), row.text) << "it has just come";
        PassSeconds(1);
        QTest::keyClick(dialog.get(), Qt::Key_Escape);
        EXPECT_EQ(dialog->isVisible(), !row.closable) << row.body;
        dialog->close();
        EXPECT_EQ(dialog->isVisible(), !row.closable) << row.body;
        Send(R"({"jobStatus": false, "operationId": )" + std::to_string(operation) + '}');
        EXPECT_FALSE(dialog->isVisible()) << row.body;
    }
    EXPECT_EQ(States(), "wwwwwww");
}

TEST_F(MessageDialog, TheyWaitForTheirTurnAndEmergenciesDoNot) {
    Send(R"({"operationId": 1, "jobStatus": true, "text": "one", "playDuration": 2, "loopTime": 2})");
    Send(R"({"operationId": 2, "jobStatus": true, "text": "two"})");
    EXPECT_EQ(Shown(), "one");
    EXPECT_EQ(Find("messageCount").text(), QStringLiteral("1 more"));
    Send(R"({"operationId": 3, "text": "fire"})");
    Send(R"({"operationId": 4, "text": "flood"})");
    EXPECT_EQ(Shown(), "fire");
    EXPECT_EQ(Find("messageCount").text(), QStringLiteral("3 more"));
    PassSeconds(5);                                    // without a duration they stay
    Send(R"({"operationId": 4, "jobStatus": false})"); // in the queue
    Find<QPushButton>("okButton").click();
    EXPECT_EQ(Shown(), "one");
    PassSeconds(2); // its first showing
    EXPECT_EQ(Shown(), "two");
    Send(R"({"operationId": 2, "jobStatus": true, "text": "too"})"); // instead
    EXPECT_EQ(Shown(), "one");
    PassSeconds(1);
    EXPECT_EQ(Shown(), "one");
    PassSeconds(1);
    EXPECT_EQ(Shown(), "too");
    EXPECT_EQ(States(), "rrwn");
    Send(R"({"operationId": 2, "jobStatus": false})"); // on screen
    EXPECT_EQ(Shown(), "-");
}

TEST_F(MessageDialog, UnderALockNothingIsShownAndNoTimePasses) {
    QWidget lock;
    lock.setProperty("TopLevel", 4);
    WindowStack::Instance()->PushWindow(&lock);
    Send(R"({"jobStatus": true, "text": "before", "playDuration": 2})");
    lock.show();
    PassSeconds(9);
    EXPECT_EQ(Shown(), "before");
    lock.hide();
    dialog->showMinimized();
    PassSeconds(1);
    EXPECT_FALSE(dialog->isMinimized());
    PassSeconds(2);
    EXPECT_EQ(Shown(), "-");
    lock.show();
    Send(R"({"jobStatus": true, "text": "during"})");
    PassSeconds(9);
    EXPECT_EQ(Shown(), "-");
    lock.hide();
    PassSeconds(1);
    EXPECT_EQ(Shown(), "during");
    EXPECT_TRUE(dialog->testAttribute(Qt::WA_ShowWithoutActivating));
}

TEST_F(MessageDialog, TheLastFiftyAreKeptAndAnUnreadOneIsShownAfterARestart) {
    for (int i = 0; i < 52; ++i) {
        Send(R"({"jobStatus": true, "text": "no. )" + std::to_string(i) + "\"}");
        if (i < 51)
            Close();
    }
    EXPECT_EQ(history->Messages().size(), 50u);
    EXPECT_EQ(history->Messages().front().text, QStringLiteral("no. 2"));
    Send(R"({"jobStatus": true, "operationRight": false, "text": "مرحبا 123 😀", "operationId": 9})");
    Restart();
    EXPECT_EQ(Shown(), "no. 51");
    UMessageList list(*history);
    QObject::connect(&list, &UMessageList::Chosen, dialog.get(), &UMessageFileDialog::ShowAgain);
    auto* rows = list.findChild<QListWidget*>();
    ASSERT_EQ(rows->count(), 50);
    EXPECT_TRUE(rows->item(0)->text().contains(QStringLiteral("New\nمرحبا 123 😀")));
    EXPECT_TRUE(rows->item(5)->text().contains(QStringLiteral("Read\nno. 47")));
    emit rows->itemActivated(rows->item(5));
    EXPECT_EQ(Shown(), "no. 47");
    Send(R"({"text": "fire"})");
    EXPECT_EQ(Shown(), "fire");
    Close();
    emit rows->itemActivated(rows->item(2)); // which waits
    for (const char* next : {"no. 51", "no. 47", "مرحبا 123 😀"}) {
        EXPECT_EQ(Shown(), next);
        Close();
    }
    Message old;
    old.state = MessageState::Read;
    for (int i = 0; i < 60; ++i)
        history->Add(old);
    EXPECT_EQ(Shown(), "مرحبا 123 😀") << "what was not read is kept";
    Send(R"({"text": "flood"})");
    for (int i = 0; i < 60; ++i)
        Send(R"({"jobStatus": true, "text": "x"})");
    EXPECT_EQ(Shown(), "flood");
    Close();
    EXPECT_EQ(Shown(), "مرحبا 123 😀");
    Send(R"({"operationId": 9, "jobStatus": false})");
    EXPECT_TRUE(rows->item(49)->text().contains(QStringLiteral("Withdrawn")));
}

TEST_F(MessageDialog, AnAddressIsFollowedOnlyAfterAllOfItWasShown) {
    Send(
        R"({"text": "See https://a.example/x?y=1, (HTTP://B.example) file:///etc/passwd javascript:x https://bücher.example/a. 看https://c.example/d。谢"})");
    QStringList addresses;
    const QTextDocument* document = dialog->findChild<QTextBrowser*>()->document();
    for (auto part = document->begin().begin(); !part.atEnd(); ++part)
        if (part.fragment().charFormat().isAnchor())
            addresses.append(part.fragment().charFormat().anchorHref());
    EXPECT_EQ(addresses.join(QLatin1Char(' ')),
              QStringLiteral("https://a.example/x?y=1 http://b.example "
                             "https://xn--bcher-kva.example/a https://c.example/d"));
    auto& panel = Find<QWidget>("messageAddress");
    for (const char* address : {"file:///etc/passwd", "https://a.example/x?y=1"}) {
        EXPECT_FALSE(panel.isVisible());
        emit dialog->findChild<QTextBrowser*>()->anchorClicked(QUrl(QLatin1String(address)));
    }
    EXPECT_TRUE(panel.isVisible());
    EXPECT_EQ(dialog->findChild<QPlainTextEdit*>()->toPlainText(), QStringLiteral("https://a.example/x?y=1"));
}

} // namespace

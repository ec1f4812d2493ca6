#include "gallery/Scenes.h"
#include "messages/MessageText.h"
#include "messages/UMessageFileDialog.h"
#include "messages/UMessageList.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>
#include <QUuid>

namespace {

const char* const LongText =
    "The fire drill begins at ten. Leave the building by the nearest stairs, take nothing with you, and meet "
    "your class at the playing field.\n\nThe plan of all ways out: "
    "https://plans.school.example/exits/2026\n\n"
    "يبدأ التمرين في الساعة 10:00 ويستمر 15 دقيقة.\n\n<b>Markup</b> is text like any other. 😀";

/// The dialog with a history, and no web service behind it.
class MessageStage {
public:
    void Send(const std::string& text, bool isEmergency = false, bool mayBeClosed = true, int operation = 0) {
        MessageRequest request;
        request.operationId = operation;
        if (!isEmergency)
            request.operationRight = mayBeClosed;
        request.text = text;
        m_dialog.SetDataRequest(request, {});
    }
    /// A file with this name; `there`: it is on the device already.
    void SendFile(const std::string& name, bool there, bool isPicture = false) {
        Message message;
        message.received = QDateTime::currentDateTime();
        message.file.name = name;
        message.file.url = "http://files.invalid/" + name;
        message.text = isPicture ? QString() : QStringLiteral("The timetable of the coming term.");
        if (there) {
            message.savedAs = m_folder.filePath(QString::fromStdString(name));
            if (isPicture)
                Picture().save(message.savedAs, "PNG");
            else
                QFile(message.savedAs).open(QIODevice::WriteOnly);
        }
        m_history.Add(message);
        m_dialog.ShowUnread();
        WaitFor([&] {
            const MessageFile file = m_files.Of(m_history.Messages().back().id);
            return file.stage != MessageFile::Stage::Loading && file.picture.isNull() != isPicture;
        });
    }
    /// A file of which nearly one half is there, and no more comes.
    void SendEndlessFile(const std::string& name) {
        QObject::connect(&m_server, &QTcpServer::newConnection, [this] {
            m_server.nextPendingConnection()->write("HTTP/1.1 200 OK\r\nContent-Length: 1000\r\n\r\n" +
                                                    QByteArray(420, 'x'));
        });
        m_server.listen(QHostAddress::LocalHost);
        MessageRequest request;
        request.jobStatus = true;
        request.fileInfoParams.name = name;
        request.fileInfoParams.url = "http://127.0.0.1:" + std::to_string(m_server.serverPort());
        m_dialog.SetDataRequest(request, request.fileInfoParams);
        WaitFor([this] { return m_files.Of(m_history.Messages().back().id).percent > 0; });
    }
    UMessageFileDialog& Dialog() { return m_dialog; }
    MessageHistory& History() { return m_history; }

private:
    static QImage Picture() {
        QImage image(1600, 900, QImage::Format_RGB32);
        QLinearGradient sky(0, 0, 0, 900);
        sky.setColorAt(0, QColor("#2456D6"));
        sky.setColorAt(1, QColor("#E6EDFC"));
        QPainter(&image).fillRect(image.rect(), sky);
        return image;
    }
    static QDir MakeFolder() {
        const QDir folder(QDir::temp().filePath(QStringLiteral("ryx-scenes-messages/") +
                                                QUuid::createUuid().toString(QUuid::WithoutBraces)));
        folder.mkpath(QStringLiteral("."));
        return folder;
    }

    QTcpServer m_server;
    const QDir m_folder = MakeFolder();
    MessageHistory m_history{m_folder.filePath(QStringLiteral("messages.json"))};
    MessageFiles m_files{m_history, m_folder.path(), 1000000};
    UMessageFileDialog m_dialog{m_history, m_files};
};

Scene Dialog(const char* name, const std::function<void(MessageStage&)>& play) {
    return {QLatin1String(name), true, [play](Stage& stage) {
                auto messages = std::make_shared<MessageStage>();
                play(*messages);
                stage.ShowWindow(messages->Dialog(), messages);
            }};
}

} // namespace

QVector<Scene> MessageScenes() {
    return {
        Dialog("message", [](MessageStage& stage) { stage.Send(LongText); }),
        Dialog("message-queue",
               [](MessageStage& stage) {
                   stage.Send("One.");
                   stage.Send("Two.");
                   stage.Send("Please leave the building.", true);
               }),
        Dialog("message-kept-open",
               [](MessageStage& stage) { stage.Send("The exam goes on until noon.", false, false); }),
        Dialog("message-address",
               [](MessageStage& stage) {
                   stage.Send(LongText);
                   emit stage.Dialog().findChild<MessageText*>()->AddressChosen(
                       QUrl(QStringLiteral("https://plans.school.example/exits/2026")));
               }),
        Dialog("message-picture",
               [](MessageStage& stage) { stage.SendFile("playing field.png", true, true); }),
        Dialog("message-file", [](MessageStage& stage) { stage.SendFile("timetable.pdf", true); }),
        Dialog("message-file-loading", [](MessageStage& stage) { stage.SendEndlessFile("timetable.pdf"); }),
        Dialog("message-program", [](MessageStage& stage) { stage.SendFile("setup.exe", true); }),
        Dialog("message-file-failed", [](MessageStage& stage) { stage.SendFile("timetable.pdf", false); }),
        {QStringLiteral("messages-none"), true,
         [](Stage& stage) {
             auto history = std::make_shared<MessageHistory>(QString());
             auto list = std::make_shared<UMessageList>(*history);
             list->show();
             stage.ShowWindow(*list,
                              std::make_shared<std::pair<decltype(history), decltype(list)>>(history, list));
         }},
        {QStringLiteral("messages"), true, [](Stage& stage) {
             auto messages = std::make_shared<MessageStage>();
             messages->Send("The library closes at six today.");
             messages->Send("The network is being repaired.", false, true, 7);
             QMetaObject::invokeMethod(messages->Dialog().findChild<QTimer*>(QStringLiteral("messageTimer")),
                                       "timeout");
             messages->Dialog().close();
             messages->Send(LongText);
             MessageRequest withdrawal;
             withdrawal.operationId = 7;
             withdrawal.jobStatus = false;
             messages->Dialog().SetDataRequest(withdrawal, {});
             messages->Dialog().hide();
             auto list = std::make_shared<UMessageList>(messages->History());
             list->show();
             stage.ShowWindow(
                 *list, std::make_shared<std::pair<decltype(messages), decltype(list)>>(messages, list));
         }}};
}

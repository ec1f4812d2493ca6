// Shows pop-ups as programs do that nobody wants: ryx-popups [--rules] [COMMAND...]
// Each argument is a command; more are read from standard input, one on a line:
//
//   closes, asks, refuses, hangs    shows a pop-up that, when it is asked to close, does so, asks "Save
//                                   changes?", stays, or hangs with the whole program
//   closes COUNT                    shows so many of them; the others can be counted, too
//   closes: TITLE                   shows one with this title instead of "Pop-up that closes"
//   quit
//
// Prints "shown TITLE", "asked TITLE after N ms" when it is asked to close so long after it was first seen,
// and "closed TITLE". --rules prints a policy (key 50), with a rule for each kind that matches its pop-ups,
// and ends.
#include "ConsoleInput.h"
#include "NativePopup.h"
#include "entity/AppEntities.h"
#include "platform/system/SystemDesktop.h"
#include "platform/system/SystemPrograms.h"

#include <QApplication>
#include <QCloseEvent>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QLabel>
#include <QMessageBox>
#include <QRegularExpression>
#include <QThread>
#include <QVBoxLayout>
#include <QWindow>
#include <iostream>

namespace {

const QStringList Kinds{QStringLiteral("closes"), QStringLiteral("asks"), QStringLiteral("refuses"),
                        QStringLiteral("hangs")};
constexpr int Places = 12; // in a row, then over the first ones again
constexpr int PlaceStep = 40;

void Say(const QString& line) {
    std::cout << line.toStdString() << std::endl;
}

class Popup : public QWidget {
public:
    explicit Popup(const QString& kind) : m_kind(kind) {
        setAttribute(Qt::WA_DeleteOnClose);
        setAttribute(Qt::WA_ShowWithoutActivating);
        setWindowTitle(QStringLiteral("Pop-up that ") + kind);
        (new QVBoxLayout(this))->addWidget(new QLabel(QStringLiteral("You have won!")));
    }

    void Show(int place) {
        setGeometry(100 + place * PlaceStep, 100 + place * PlaceStep, 320, 160);
        winId();
        windowHandle()->installEventFilter(this);
        show();
        NativePopup::TellShown(winId());
        Say(QStringLiteral("shown ") + windowTitle());
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Expose && !m_seen.isValid())
            m_seen.start();
        return QWidget::eventFilter(watched, event);
    }

protected:
    bool nativeEvent(const QByteArray& type, void* message, long* result) override {
        if (!NativePopup::IsCloseRequest(type, message))
            return QWidget::nativeEvent(type, message, result);
        close();
        *result = 0;
        return true;
    }

    void closeEvent(QCloseEvent* event) override {
        Say(QStringLiteral("asked %1 after %2 ms")
                .arg(windowTitle())
                .arg(m_seen.isValid() ? double(m_seen.nsecsElapsed()) / 1e6 : 0));
        if (m_kind == QLatin1String("hangs"))
            for (;;)
                QThread::sleep(60);
        if (m_kind == QLatin1String("refuses") || (m_kind == QLatin1String("asks") && !IsAllowed()))
            return event->ignore();
        Say(QStringLiteral("closed ") + windowTitle());
    }

private:
    bool IsAllowed() {
        const auto answer =
            QMessageBox::question(this, QStringLiteral("Pop-ups"), QStringLiteral("Save changes?"),
                                  QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
        return answer != QMessageBox::Cancel;
    }

    QString m_kind;
    QElapsedTimer m_seen;
};

void PrintRules() {
    const QFileInfo program(QCoreApplication::applicationFilePath());
    SyncPopupsParams policy;
    policy.popStatus = true;
    for (const QString& kind : Kinds) {
        Popup popup(kind);
        PopupsTypeParams rule;
        rule.appName = program.fileName().toStdString();
        rule.popName = popup.windowTitle().toStdString();
        rule.popClassName = SystemDesktop::Native().GetWindowClassName(popup.winId()).toStdString();
        rule.popProductName = SystemPrograms::Native().GetProductName(program.filePath()).toStdString();
        policy.popupsDetails.push_back(rule);
    }
    Say(QString::fromStdString(policy.WriteToString()));
}

void Follow(const QString& line) {
    const QString words = line.section(QLatin1Char(':'), 0, 0);
    const QString kind = words.section(QLatin1Char(' '), 0, 0);
    if (kind == QLatin1String("quit"))
        return QCoreApplication::quit();
    if (!Kinds.contains(kind))
        return Say(QStringLiteral("no such command: ") + line);
    const QString title = line.section(QLatin1Char(':'), 1).trimmed();
    const int count = words.section(QLatin1Char(' '), 1).toInt();
    for (int i = 0; i < qMax(1, count); ++i) {
        auto* popup = new Popup(kind);
        if (!title.isEmpty())
            popup->setWindowTitle(title);
        popup->Show(i % Places);
    }
}

} // namespace

int main(int argc, char** argv) {
    std::ios::sync_with_stdio(false); // reading must not hold up what ends the program
    std::cin.tie(nullptr);
    QApplication application(argc, argv);
    QStringList commands = application.arguments().mid(1);
    if (commands.removeAll(QStringLiteral("--rules")) > 0) {
        PrintRules();
        return 0;
    }
    if (!commands.filter(QRegularExpression(QStringLiteral("^-"))).isEmpty()) {
        Say(QStringLiteral("ryx-popups [--rules] [closes|asks|refuses|hangs [COUNT][: TITLE]]... [quit]"));
        return 2;
    }
    application.setQuitOnLastWindowClosed(!commands.isEmpty());
    for (const QString& command : commands)
        Follow(command);
    ConsoleInput input;
    QObject::connect(&input, &ConsoleInput::LineRead,
                     [](const std::string& line) { Follow(QString::fromStdString(line)); });
    input.Start();
    return QApplication::exec();
}

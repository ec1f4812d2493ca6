#include "app/MainWindow.h"
#include "app/ULauncher.h"
#include "enroll/EnrollView.h"
#include "gallery/Scenes.h"
#include "lock/UBodyEnrollUnModal.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>

namespace {

void Set(Stage& stage, const char* edit, const char* text) {
    stage.Window().findChild<QLineEdit*>(QLatin1String(edit))->setText(QString::fromUtf8(text));
}

void Press(Stage& stage, const char* button) {
    stage.Window().findChild<QPushButton*>(QLatin1String(button))->click();
}

void Fill(Stage& stage) {
    Set(stage, "schoolCode", "A1B2C3");
    Set(stage, "adminAccount", "admin@school.example");
    Set(stage, "deviceName", "Lecture hall 3");
    for (const char* tag : {"second floor", "physics"}) {
        Set(stage, "tagField", tag);
        Press(stage, "tagAddButton");
    }
    stage.Window().findChild<QCheckBox*>(QStringLiteral("agreementBox"))->setChecked(true);
}

/// A scene of the form of a device that is not enrolled.
Scene Form(const QString& name, const std::function<void(Stage&)>& play) {
    return {QStringLiteral("enrol-") + name, false, [play](Stage& stage) {
                stage.Window().findChild<ULauncher*>()->EnrolRequested();
                Settle();
                play(stage);
            }};
}

/// A scene of the page of a device that is enrolled, with this status of its link.
Scene Enrolled(const QString& name, int status, const std::function<void(Stage&)>& play) {
    return {QStringLiteral("enrol-") + name, true, [status, play](Stage& stage) {
                stage.Receive(2, "{\"status\": " + std::to_string(status) + "}");
                Settle();
                play(stage);
            }};
}

Scene Refused(const QString& name, const char* code) {
    return Form(name, [code](Stage& stage) {
        stage.ConnectLink();
        Fill(stage);
        Press(stage, "bindButton");
        stage.Receive(3, std::string(R"({"binding": true, "result": false, "code": ")") + code + "\"}");
    });
}

} // namespace

QVector<Scene> EnrollPageScenes() {
    return {
        Form(QStringLiteral("form"), Fill),
        Form(QStringLiteral("form-end"),
             [](Stage& stage) {
                 Fill(stage);
                 Settle();
                 stage.Window().findChild<EnrollView*>()->ScrollToEnd();
             }),
        Form(QStringLiteral("form-two-fields"),
             [](Stage& stage) {
                 Press(stage, "nameSwitch");
                 Set(stage, "devicePrefix", "Lecture hall ");
                 Set(stage, "deviceSuffix", "3");
             }),
        Form(QStringLiteral("form-wrong"),
             [](Stage& stage) {
                 Set(stage, "schoolCode", "A1B2C3D");
                 Set(stage, "adminAccount", "admin+1@school");
                 for (const char* edit : {"schoolCode", "adminAccount", "deviceName", "schoolCode"})
                     stage.Window().findChild<QLineEdit*>(QLatin1String(edit))->setFocus();
             }),
        Form(QStringLiteral("form-not-agreed"),
             [](Stage& stage) {
                 Fill(stage);
                 stage.Window().findChild<QCheckBox*>(QStringLiteral("agreementBox"))->setChecked(false);
                 Press(stage, "bindButton");
             }),
        Form(QStringLiteral("waits"),
             [](Stage& stage) {
                 stage.ConnectLink();
                 Fill(stage);
                 Press(stage, "bindButton");
             }),
        Refused(QStringLiteral("refused"), "r_802001"),
        Refused(QStringLiteral("no-network"), "net_error"),
        Enrolled(QStringLiteral("disconnected"), 4, [](Stage&) {}),
        Enrolled(QStringLiteral("connect"), 4, [](Stage& stage) { Press(stage, "bindButton"); }),
        Enrolled(QStringLiteral("connecting"), 5, [](Stage&) {}),
        Enrolled(QStringLiteral("unenrol"), 2, [](Stage& stage) { Press(stage, "bindButton"); }),
        Enrolled(QStringLiteral("unenrolling"), 2,
                 [](Stage& stage) {
                     Press(stage, "bindButton");
                     auto* prompt = stage.Window().findChild<UBodyEnrollUnModal*>();
                     prompt->hide();
                     stage.Window().BeginBinding(RyxWindow::BindAction::Unbind);
                     emit prompt->UnEnrollingState();
                 }),
    };
}

#include "app/MainWindow.h"
#include "enroll/UBodyEnrollModal.h"
#include "enroll/UBodyEnrollPermissionsModal.h"
#include "enroll/UBodyEnrollTags.h"
#include "enroll/UBodyEnrollTip.h"
#include "enroll/UBodyEnrollUsbAlert.h"
#include "gallery/Scenes.h"
#include "lock/UBodyEnrollUnModal.h"
#include "widgets/UTextLabel.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

const std::vector<std::string> SomeTags{"second floor", "physics", "touch display", "in loan until summer"};

/// A sheet with the window's background, for parts of a page.
QVBoxLayout* Sheet(Stage& stage) {
    QWidget& sheet = stage.Show(std::make_unique<QWidget>());
    sheet.setObjectName(QStringLiteral("MainWindow"));
    sheet.setAttribute(Qt::WA_StyledBackground);
    sheet.resize(720, 360);
    auto* column = new QVBoxLayout(&sheet);
    column->setContentsMargins(32, 32, 32, 32);
    return column;
}

Scene Tags(const QString& name, const std::vector<std::string>& tags, const QString& typed, bool editable) {
    return {name, true, [=](Stage& stage) {
                QVBoxLayout* column = Sheet(stage);
                auto* area = new UBodyEnrollTags;
                area->ChangeTags(tags);
                area->SetAllEditAble(editable);
                column->addWidget(area);
                column->addStretch();
                column->addWidget(new QCheckBox(QStringLiteral("…")));
                stage.Subject().show();
                area->findChild<QLineEdit*>()->setText(typed);
                if (!typed.isEmpty())
                    area->OnAddTagSgl(typed);
            }};
}

void ShowTip(Stage& stage) {
    QVBoxLayout* column = Sheet(stage);
    column->addStretch();
    auto* agreement = new QCheckBox(QCoreApplication::translate("Scenes", "launcher_button"));
    column->addWidget(agreement);
    QWidget& sheet = stage.Subject();
    sheet.show();
    Settle();
    (new UBodyEnrollTip(&sheet))->ShowAt(agreement, 3600 * 1000);
}

Scene Unenrol(const QString& name, int wrongPasswords) {
    return {name, true, [wrongPasswords](Stage& stage) {
                auto* dialog = new UBodyEnrollUnModal(&stage.Window());
                dialog->show();
                for (int i = 0; i < wrongPasswords; ++i)
                    dialog->findChild<QPushButton*>(QStringLiteral("okButton"))->click();
            }};
}

Scene Permissions(const QString& name, const std::vector<std::string>& granted, const QSize& size) {
    return {name, true, [=](Stage& stage) {
                stage.Window().resize(size);
                Settle();
                auto* dialog = new UBodyEnrollPermissionsModal(&stage.Window());
                dialog->SetPermissions(granted);
                dialog->show();
                dialog->EnrollSuccessfullyToast();
            }};
}

} // namespace

QVector<Scene> EnrollScenes() {
    return {
        {QStringLiteral("enroll-failed"), false,
         [](Stage& stage) {
             auto* dialog = new UBodyEnrollModal(&stage.Window());
             dialog->setTitle("status_no_service");
             dialog->setContent("launcher_sentence");
             dialog->setOkText("menu_network");
             dialog->setCancelText("launcher_button");
             dialog->show();
         }},
        Permissions(QStringLiteral("enroll-permissions"), {"location", "screen", "remoteControl"},
                    {1280, 720}),
        Permissions(QStringLiteral("enroll-permissions-none"), {"location"}, {1280, 720}),
        Permissions(QStringLiteral("enroll-permissions-low"), {"screen"}, {640, 360}),
        Tags(QStringLiteral("enroll-tags"), SomeTags, {}, true),
        Tags(QStringLiteral("enroll-tags-none"), {}, {}, true),
        Tags(QStringLiteral("enroll-tags-refused"), SomeTags, QStringLiteral("physics"), true),
        Tags(QStringLiteral("enroll-tags-enrolled"), SomeTags, {}, false),
        {QStringLiteral("enroll-tip"), false, ShowTip},
        {QStringLiteral("enroll-usb-alert"), false,
         [](Stage& stage) {
             auto* alert = new UBodyEnrollUsbAlert(&stage.Window());
             alert->SetFile(QStringLiteral("E:/Enrollment hall 3.json"));
             alert->show();
         }},
        Unenrol(QStringLiteral("enroll-unenrol"), 0),
        Unenrol(QStringLiteral("enroll-unenrol-error"), 1),
    };
}

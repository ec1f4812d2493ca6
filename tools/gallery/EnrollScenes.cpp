#include "app/MainWindow.h"
#include "enroll/UBodyEnrollPermissionsModal.h"
#include "enroll/UBodyEnrollTags.h"
#include "enroll/UBodyEnrollUsbAlert.h"
#include "gallery/Scenes.h"
#include "lock/UBodyEnrollUnModal.h"
#include "platform/context/AppContextData.h"
#include "platform/context/DevicePermissions.h"

#include <QCheckBox>
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

Scene Permissions(const QString& name, const std::vector<std::string>& granted, const QSize& size) {
    return {name, true, [=](Stage& stage) {
                stage.Window().resize(size);
                Settle();
                AppContextData::Instance()->SetPermissionList(granted);
                auto* dialog =
                    new UBodyEnrollPermissionsModal(&stage.Window(), *DevicePermissions::OfApplication());
                dialog->show();
                dialog->EnrollSuccessfullyToast();
            }};
}

} // namespace

QVector<Scene> EnrollScenes() {
    return {
        Permissions(QStringLiteral("enroll-permissions"), {"location", "screen", "remoteControl"},
                    {1280, 720}),
        Permissions(QStringLiteral("enroll-permissions-none"), {"location"}, {1280, 720}),
        Permissions(QStringLiteral("enroll-permissions-low"), {"screen"}, {640, 360}),
        Tags(QStringLiteral("enroll-tags"), SomeTags, {}, true),
        Tags(QStringLiteral("enroll-tags-none"), {}, {}, true),
        Tags(QStringLiteral("enroll-tags-refused"), SomeTags, QStringLiteral("physics"), true),
        Tags(QStringLiteral("enroll-tags-enrolled"), SomeTags, {}, false),
        {QStringLiteral("enroll-usb-alert"), false,
         [](Stage& stage) {
             auto* alert = new UBodyEnrollUsbAlert(&stage.Window());
             alert->SetFile(QStringLiteral("E:/Enrollment hall 3.json"));
             alert->show();
         }},
        {QStringLiteral("enroll-unenrol-error"), true,
         [](Stage& stage) {
             auto* dialog = new UBodyEnrollUnModal(&stage.Window());
             dialog->show();
             dialog->findChild<QPushButton*>(QStringLiteral("okButton"))->click();
         }},
    };
}

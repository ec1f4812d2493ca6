#include "gallery/ControlSheet.h"

#include "platform/context/Theme.h"
#include "widgets/QFlowLayout.h"
#include "widgets/ThemeIcon.h"
#include "widgets/UBackButton.h"
#include "widgets/UExitButton.h"
#include "widgets/UIconLabel.h"
#include "widgets/ULoadingBar.h"
#include "widgets/ULoadingIndicator.h"
#include "widgets/UTextButton.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDir>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>

namespace {

QString Text(const char* key) {
    return QCoreApplication::translate("ControlSheet", key);
}

QLayout* Buttons() {
    auto* row = new QHBoxLayout;
    row->setSpacing(12);
    const auto add = [&](UTextButton::Look look, const char* key) {
        auto* button = new UTextButton(look);
        button->setText(Text(key));
        row->addWidget(button);
        return button;
    };
    add(UTextButton::Look::Primary, "launcher_button");
    add(UTextButton::Look::Secondary, "button_ok");
    add(UTextButton::Look::Plain, "Open");
    add(UTextButton::Look::Danger, "menu_enrolment");
    add(UTextButton::Look::Primary, "status_connecting")->SetLoading(true);
    add(UTextButton::Look::Primary, "button_ok")->setEnabled(false);
    row->addWidget(new UBackButton);
    row->addWidget(new UExitButton);
    row->addStretch();
    return row;
}

QLayout* Fields() {
    auto* row = new QHBoxLayout;
    row->setSpacing(12);
    const auto add = [&](const char* key) {
        auto* field = new QLineEdit(Text(key));
        field->setAccessibleName(Text(key));
        row->addWidget(field);
        return field;
    };
    add("fact_device_name");
    Theme::SetProperty(add("fact_administrator"), "error", true);
    add("fact_organisation")->setEnabled(false);
    auto* choice = new QComboBox;
    choice->addItems({Text("settings_theme_light"), Text("settings_theme_dark")});
    choice->setAccessibleName(Text("settings_theme"));
    row->addWidget(choice);
    auto* check = new QCheckBox(Text("lock_show_password"));
    check->setChecked(true);
    row->addWidget(check);
    row->addWidget(new QCheckBox(Text("button_ok")));
    auto* radio = new QRadioButton(Text("settings_theme_light"));
    radio->setChecked(true);
    row->addWidget(radio);
    row->addWidget(new QRadioButton(Text("settings_theme_dark")));
    return row;
}

QLayout* Icons() {
    auto* icons = new QFlowLayout(nullptr, 0, 20, 16);
    for (const QString& file : QDir(QStringLiteral(":/res/icons")).entryList(QDir::Files, QDir::Name))
        icons->addWidget(new UIconLabel(32, file.section(QLatin1Char('.'), 0, 0), QStringLiteral("text")));
    for (const QString& file : QDir(QStringLiteral(":/res/icons")).entryList(QDir::Files, QDir::Name))
        icons->addWidget(new UIconLabel(16, file.section(QLatin1Char('.'), 0, 0), QStringLiteral("accent")));
    return icons;
}

} // namespace

ControlSheet::ControlSheet() {
    setObjectName(QStringLiteral("MainWindow")); // the window's background, and nothing else
    setAttribute(Qt::WA_StyledBackground);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(24, 24, 24, 24);
    column->setSpacing(24);
    column->addLayout(Buttons());
    column->addLayout(Fields());
    auto* text = new QPlainTextEdit(Text("launcher_sentence"));
    text->setAccessibleName(Text("log_report_title"));
    text->setTabChangesFocus(true);
    text->setMaximumHeight(100);
    column->addWidget(text);
    auto* busy = new ULoadingBar;
    busy->SetBusy(true);
    column->addWidget(busy);
    column->addWidget(new ULoadingIndicator, 0, Qt::AlignLeading);
    column->addLayout(Icons());
    column->addStretch();
}

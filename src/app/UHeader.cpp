#include "app/UHeader.h"

#include "platform/context/MachineHelper.h"
#include "platform/context/Theme.h"
#include "widgets/AccessibleRole.h"
#include "widgets/UElidedLabel.h"
#include "widgets/UIconLabel.h"
#include "widgets/ULoadingBar.h"
#include "widgets/UThemePicture.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

UHeader::UHeader(QWidget* parent)
    : QWidget(parent),
      m_deviceName(new UElidedLabel),
      m_organisation(new UElidedLabel),
      m_chip(new QFrame),
      m_dot(new QFrame),
      m_statusIcon(new UIconLabel(20)),
      m_statusWords(new QLabel),
      m_end(new QWidget),
      m_busy(new ULoadingBar) {
    setAttribute(Qt::WA_StyledBackground);
    m_deviceName->setObjectName(QStringLiteral("headerDeviceName"));
    m_organisation->setObjectName(QStringLiteral("headerOrganisation"));
    m_chip->setObjectName(QStringLiteral("statusChip"));
    m_dot->setObjectName(QStringLiteral("statusDot"));
    m_dot->setFixedSize(18, 18);
    m_statusWords->setObjectName(QStringLiteral("statusWords"));
    m_statusWords->setTextFormat(Qt::PlainText);
    SetAccessibleRole(m_chip, QAccessible::StatusBar);

    auto* chip = new QHBoxLayout(m_chip);
    m_chip->setMinimumHeight(42);
    chip->setContentsMargins(12, 0, 16, 0);
    chip->setSpacing(10);
    chip->addWidget(m_dot);
    chip->addWidget(m_statusIcon);
    chip->addWidget(m_statusWords);

    auto* names = new QVBoxLayout;
    names->setSpacing(1);
    names->addStretch();
    names->addWidget(m_deviceName);
    names->addWidget(m_organisation);
    names->addStretch();

    auto* logo = new UThemePicture(QStringLiteral("logo"), {40, 40});
    logo->setFixedSize(40, 40);
    auto* row = new QHBoxLayout;
    row->setContentsMargins(20, 8, 16, 4);
    row->setSpacing(14);
    row->addWidget(logo);
    row->addLayout(names, 1);
    row->addWidget(m_chip, 0, Qt::AlignVCenter);
    row->addWidget(m_end);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addLayout(row, 1);
    column->addWidget(m_busy);
    setFixedHeight(76);
    ReserveEnd(0);
    connect(AppContextData::Instance(), &AppContextData::Changed, this, &UHeader::OnContextChanged);
    ShowLook();
    UpdateDeviceInfo();
}

void UHeader::OnContextChanged(AppContextData::Field field) {
    switch (field) {
    case AppContextData::Field::Linked:
        ShowLook();
        break;
    case AppContextData::Field::Enrolled:
    case AppContextData::Field::SchoolCode:
    case AppContextData::Field::DeviceName:
        UpdateDeviceInfo();
        break;
    default:
        break;
    }
}

void UHeader::UpdateStatus(int status) {
    if (!IsKnownIotStatus(status))
        return;
    m_status = static_cast<IotStatus>(status);
    ShowLook();
}

void UHeader::SetBusy(bool busy) {
    m_busy->SetBusy(busy);
}

void UHeader::ReserveEnd(int width) {
    m_end->setVisible(width > 0);
    m_end->setFixedWidth(width);
}

void UHeader::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange) {
        ShowLook();
        UpdateDeviceInfo();
    }
    QWidget::changeEvent(event);
}

void UHeader::ShowLook() {
    const StatusLook look = StatusLook::Of(m_status);
    if (look == m_look)
        return;
    m_look = look;
    Theme::SetProperty(m_dot, "state", look.property);
    m_statusIcon->SetIcon(look.icon, QStringLiteral("text"));
    m_statusWords->setText(look.words);
    m_chip->setAccessibleName(tr("header_status_name").arg(look.words));
}

void UHeader::UpdateDeviceInfo() {
    m_deviceName->SetText(QString::fromStdString(MachineHelper::GetDeviceName()));
    const QString organisation = AppContextData::Instance()->Enrolled()
                                     ? QString::fromStdString(MachineHelper::GetOrganisationName())
                                     : tr("header_no_organisation");
    m_organisation->SetText(organisation);
    m_organisation->setVisible(!organisation.isEmpty());
}

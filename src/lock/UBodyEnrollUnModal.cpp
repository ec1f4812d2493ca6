#include "lock/UBodyEnrollUnModal.h"

#include "entity/EnrollEntities.h"
#include "lock/PasswordPrompt.h"
#include "platform/application/RyxWindow.h"
#include "platform/context/AppContextData.h"
#include "platform/link/ControllerBase.h"
#include "widgets/AccessibleRole.h"

#include <QEvent>

UBodyEnrollUnModal::UBodyEnrollUnModal(QWidget* page, const Clock& clock)
    : UOverlay(page), m_page(page), m_prompt(new PasswordPrompt(clock)) {
    Initialization();
    InitConnect();
    LanguageChanges();
}

void UBodyEnrollUnModal::Initialization() {
    setObjectName(QStringLiteral("UBodyUnbindModal"));
    m_prompt->setObjectName(QStringLiteral("UBodyEnrollUnModal"));
    m_prompt->AcceptUnbindPassword();
    SetCard(m_prompt);
    HideWith(m_page);
}

void UBodyEnrollUnModal::InitConnect() {
    connect(m_prompt, &PasswordPrompt::Confirmed, this, &UBodyEnrollUnModal::OnConfirmed);
    connect(m_prompt, &PasswordPrompt::Closed, this, &QWidget::hide);
    connect(AppContextData::Instance(), &AppContextData::Changed, this, [this](AppContextData::Field field) {
        if (field == AppContextData::Field::Enrolled && !AppContextData::Instance()->Enrolled())
            hide();
    });
    if (const RyxWindow* window = RyxWindow::Of(m_page))
        connect(window, &RyxWindow::LinkStatusChanged, this, [this](IotStatus status) {
            if (IsKnownIotStatus(static_cast<int>(status)) && status != IotStatus::Connected)
                hide();
        });
}

// The request holds code and account alone: it is no binding.
void UBodyEnrollUnModal::OnConfirmed() {
    hide();
    const AppContextData& context = *AppContextData::Instance();
    DeviceBindingParam request;
    request.code = context.SchoolCode();
    request.email = context.AdminAccount();
    bool isSent = false;
    if (RyxWindow* window = RyxWindow::Of(m_page)) {
        window->BeginBinding(RyxWindow::BindAction::Unbind);
        ControllerBase* controller = window->MainController();
        isSent = controller && controller->Send(PipeKey::Binding, request);
    }
    emit UnEnrollingState();
    if (!isSent)
        emit NotSent();
}

void UBodyEnrollUnModal::LanguageChanges() {
    const QString title = tr("view_register_windows_title_unbind_state");
    setAccessibleName(title);
    m_prompt->SetTexts(
        {title, tr("unbind_lock_tip"), tr("view_lock_tip") + QLatin1Char(' ') + tr("view_lock_tip_2")});
}

void UBodyEnrollUnModal::Presented() {
    AnnounceAlert(this);
}

void UBodyEnrollUnModal::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        LanguageChanges();
    UOverlay::changeEvent(event);
}

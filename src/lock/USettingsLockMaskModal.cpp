#include "lock/USettingsLockMaskModal.h"

#include "lock/PasswordPrompt.h"
#include "platform/application/WindowStack.h"
#include "platform/link/ControllerBase.h"
#include "widgets/UCentredArea.h"

#include <QEvent>
#include <QShortcut>
#include <QVariant>
#include <QVBoxLayout>

namespace {

constexpr int TopLevel = 4;

} // namespace

USettingsLockMaskModal::USettingsLockMaskModal(ControllerBase& controller, const Clock& clock,
                                               const SystemWindows& windows, const SystemInput& input)
    : m_controller(controller), m_clock(clock), m_windows(windows), m_input(input) {
    setObjectName(QStringLiteral("USettinsLockMaskModal"));
}

void USettingsLockMaskModal::Initialization() {
    setWindowFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    setAttribute(Qt::WA_StyledBackground);
    setProperty("TopLevel", TopLevel);
    setProperty("lockLook", true);
    m_prompt = new PasswordPrompt(m_clock);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(new UCentredArea(m_prompt));
    m_cover = std::make_unique<TopmostCover>(*this, TopmostCover::Keyboard::Share, m_windows, m_input);
}

void USettingsLockMaskModal::InitConnect() {
    connect(m_prompt, &PasswordPrompt::Confirmed, this, &USettingsLockMaskModal::OnConfirmed);
    connect(m_prompt, &PasswordPrompt::Closed, this, &QWidget::hide);
    connect(m_cover.get(), &TopmostCover::Lost, this, &QWidget::hide);
    // What a cover is told to close is refused, whoever tells it; the user's key is meant.
    const auto* close = new QShortcut(Qt::ALT + Qt::Key_F4, this);
    connect(close, &QShortcut::activated, this, &QWidget::hide);
}

void USettingsLockMaskModal::OnConfirmed() {
    hide();
    m_controller.Send(PipeKey::SettingsLockUnlock);
}

void USettingsLockMaskModal::LanguageChanges() {
    const QString title = tr("app_lock_view_title").arg(tr("menu_settings"));
    setWindowTitle(title);
    m_prompt->SetTexts({title, tr("app_lock_view_content"), tr("app_lock_view_tip")});
}

void USettingsLockMaskModal::BringForward() {
    if (!m_prompt) {
        Initialization();
        InitConnect();
        LanguageChanges();
    }
    TopmostCover::ClosePopups();
    const bool isBelow = WindowStack::Instance()->NextAbove(this) != nullptr;
    setAttribute(Qt::WA_ShowWithoutActivating, isBelow);
    if (!isVisible()) {
        show();
    } else if (!isBelow) {
        m_cover->Raise();
        activateWindow();
    }
}

void USettingsLockMaskModal::setVisible(bool visible) {
    if (!visible && m_cover)
        m_cover->Release();
    QWidget::setVisible(visible);
}

void USettingsLockMaskModal::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    m_cover->Cover();
}

void USettingsLockMaskModal::hideEvent(QHideEvent* event) {
    m_cover->Uncover();
    QWidget::hideEvent(event);
}

void USettingsLockMaskModal::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange && m_prompt)
        LanguageChanges();
    QWidget::changeEvent(event);
}

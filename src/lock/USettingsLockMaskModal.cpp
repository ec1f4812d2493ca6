#include "lock/USettingsLockMaskModal.h"

#include "lock/PasswordPrompt.h"
#include "platform/application/WindowStack.h"
#include "platform/link/ControllerBase.h"
#include "widgets/UCentredArea.h"

#include <QShortcut>
#include <QShowEvent>
#include <QVBoxLayout>
#include <QVariant>
#include <glog/logging.h>

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
}

void USettingsLockMaskModal::MakeCover() {
    m_cover = std::make_unique<TopmostCover>(*this, TopmostCover::Keyboard::Share, m_windows, m_input);
    connect(m_cover.get(), &TopmostCover::Lost, this, &USettingsLockMaskModal::OnLost, Qt::QueuedConnection);
}

// Another program has destroyed one of the windows: they are made anew.
void USettingsLockMaskModal::OnLost() {
    LOG(WARNING) << "USettingsLockMaskModal::OnLost another program has destroyed the mask";
    hide();
    m_cover.reset();
    destroy();
    BringForward();
}

void USettingsLockMaskModal::InitConnect() {
    connect(m_prompt, &PasswordPrompt::Confirmed, this, &USettingsLockMaskModal::OnConfirmed);
    connect(m_prompt, &PasswordPrompt::Closed, this, &QWidget::hide);
    // On Windows a guarded window refuses to be told to close, whoever tells it; the user's key is meant.
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
    if (!m_cover)
        MakeCover();
    TopmostCover::ClosePopups();
    setAttribute(Qt::WA_ShowWithoutActivating, WindowStack::Instance()->NextAbove(this) != nullptr);
    if (isVisible())
        m_cover->Cover();
    else
        show();
}

void USettingsLockMaskModal::setVisible(bool visible) {
    if (!visible && m_cover)
        m_cover->Release();
    QWidget::setVisible(visible);
}

void USettingsLockMaskModal::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (!event->spontaneous())
        m_cover->Cover();
}

void USettingsLockMaskModal::hideEvent(QHideEvent* event) {
    if (!event->spontaneous())
        m_cover->Uncover();
    QWidget::hideEvent(event);
}

void USettingsLockMaskModal::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange && m_prompt)
        LanguageChanges();
    QWidget::changeEvent(event);
}

#include "lock/UDeviceScreenLock.h"

#include "entity/SettingsEntities.h"
#include "platform/ProductConstants.h"
#include "platform/context/AppContextData.h"
#include "platform/context/RyxPath.h"
#include "platform/context/Theme.h"
#include "platform/link/PipeClientService.h"
#include "platform/security/LogText.h"
#include "platform/system/SystemSession.h"
#include "ui_UDeviceScreenLock.h"

#include <QCloseEvent>
#include <glog/logging.h>

namespace {

constexpr int TopLevel = 6;
constexpr int BackMs = 30000;
constexpr int UnlockCheckMs = 1000;
constexpr int RelockIdleSeconds = 1200;
constexpr int LowestWithKeysBelow = 680;

} // namespace

UDeviceScreenLock::UDeviceScreenLock(const Clock& clock, const SystemWindows& windows,
                                     const SystemInput& input)
    : m_clock(clock),
      m_ui(std::make_unique<Ui::UDeviceScreenLock>()),
      m_windows(windows),
      m_marker(QString::fromStdWString(RyxPath::GetUserDataDir()) + QStringLiteral("/lock.json"),
               SystemSession::Native().BootId(), clock),
      m_idleTimer(input, this) {
    Initialization();
    m_cover = std::make_unique<TopmostCover>(*this, TopmostCover::Keyboard::Hold, windows, input);
    InitConnect();
}

UDeviceScreenLock::~UDeviceScreenLock() = default;

void UDeviceScreenLock::Initialization() {
    setWindowFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    setAttribute(Qt::WA_StyledBackground);
    setProperty("TopLevel", TopLevel);
    setProperty("lockLook", true);
    m_ui->setupUi(this);
    m_ui->rows->setSizeConstraint(QLayout::SetNoConstraint); // the screen decides
    m_ui->enterPasswordButton->setDefault(true);
    m_backTimer.setObjectName(QStringLiteral("backTimer"));
    m_backTimer.setSingleShot(true);
    m_backTimer.setInterval(BackMs);
    m_unlockTimer.setObjectName(QStringLiteral("unlockTimer"));
    m_unlockTimer.setInterval(UnlockCheckMs);
    UpdateTexts();
    ShowMessageView();
}

void UDeviceScreenLock::InitConnect() {
    PipeClientService::Instance()->Subscribe(this, &UDeviceScreenLock::OnPipeDataReceived);
    connect(m_ui->enterPasswordButton, &QPushButton::clicked, this, &UDeviceScreenLock::ShowPasswordView);
    connect(m_ui->passwordPart, &PasswordPad::Used, this, [this] { m_backTimer.start(); });
    connect(m_ui->passwordPart, &PasswordPad::Completed, this, &UDeviceScreenLock::OnPasswordCompleted);
    connect(m_cover.get(), &TopmostCover::Lost, this, &UDeviceScreenLock::Lost);
    connect(AppContextData::Instance(), &AppContextData::Changed, this, &UDeviceScreenLock::UpdateNotes);
    connect(&m_backTimer, &QTimer::timeout, this, &UDeviceScreenLock::ShowMessageView);
    connect(&m_unlockTimer, &QTimer::timeout, this, &UDeviceScreenLock::OnUnlockTimer);
    connect(&m_idleTimer, &IdleTimer::Timeout, this, &UDeviceScreenLock::OnIdle);
}

void UDeviceScreenLock::OnPipeDataReceived(PipeKey key, const std::string& body) {
    switch (key) {
    case PipeKey::ScreenLock:
        ProcessLock(body);
        break;
    case PipeKey::ScreenLockReset:
        Release();
        break;
    case PipeKey::ScreenUnlock:
        m_marker.Remove();
        hide();
        break;
    case PipeKey::UnlockPasswordUpdate:
        LOG(INFO) << "UDeviceScreenLock::OnPipeDataReceived Unlock password update: " << body;
        if (!body.empty())
            AppContextData::Instance()->SetUnlockPassword(body);
        break;
    default:
        break;
    }
}

void UDeviceScreenLock::ProcessLock(const std::string& body) {
    DeviceScreenLock lock;
    lock.ReadFromString(body);
    LOG(INFO) << "UDeviceScreenLock::ProcessLock Screen lock still time: " << LogText(lock.endAt);
    const std::optional<EndTime> end = EndTime::Parse(lock.endAt);
    if (!end) {
        LOG(WARNING) << "UDeviceScreenLock::ProcessLock ignores an end that is no time of day";
        return;
    }
    if (end->HasPassed(m_clock))
        return;
    m_end = *end;
    UpdateUI();
    m_idleTimer.Stop();
}

void UDeviceScreenLock::Resume() {
    const std::optional<EndTime> end = m_marker.Read();
    if (!end)
        return;
    LOG(INFO) << "UDeviceScreenLock::Resume locks as before the program ended";
    m_end = *end;
    UpdateUI();
}

void UDeviceScreenLock::Release() {
    m_end = {};
    m_ui->passwordPart->Clear();
    m_marker.Remove();
    hide();
    m_idleTimer.Stop();
}

void UDeviceScreenLock::UpdateUI() {
    UpdateTexts();
    ShowMessageView();
    TopmostCover::ClosePopups();
    m_marker.Write(m_end);
    show();
}

void UDeviceScreenLock::UpdateTexts() {
    const QString product = QString::fromLatin1(Product::Name);
    m_ui->messageLabel->setText(
        m_end.IsSet() ? tr("remote_x_screen_lock_msg").arg(product, QString::fromStdString(m_end.Text()))
                      : tr("remote_x_screen_lock_msg_without_time").arg(product));
    m_ui->enterPasswordButton->setText(tr("remote_x_btn_enter_pwd"));
    m_ui->passwordTitle->setText(tr("lock_password_title"));
    setWindowTitle(tr("lock_window_title"));
    UpdateNotes();
}

void UDeviceScreenLock::UpdateNotes() {
    // Digits are compared with what the service sends. A hash kept in a file of the user's would be a way in.
    const bool waits = AppContextData::Instance()->UnlockPassword().empty();
    m_ui->waitLabel->setText(tr("lock_waits_for_service"));
    m_ui->waitLabel->setVisible(waits && !m_ui->passwordPart->isHidden());
    m_ui->cannotHoldLabel->setText(tr("lock_cannot_hold"));
    m_ui->cannotHoldLabel->setVisible(!m_windows.CanCover());
}

void UDeviceScreenLock::ShowMessageView() {
    m_backTimer.stop();
    m_ui->passwordPart->Reset();
    m_ui->messagePart->show();
    m_ui->passwordTitlePart->hide();
    m_ui->passwordPart->hide();
    m_ui->enterPasswordButton->setFocus();
    UpdateNotes();
}

void UDeviceScreenLock::ShowPasswordView() {
    m_ui->messagePart->hide();
    m_ui->passwordTitlePart->show();
    m_ui->passwordPart->show();
    m_ui->passwordPart->FocusBox(0);
    m_backTimer.start();
    UpdateNotes();
}

void UDeviceScreenLock::OnPasswordCompleted() {
    if (m_ui->passwordPart->GetPasswordHash() != AppContextData::Instance()->UnlockPassword()) {
        m_ui->passwordPart->StartInvalidPasswordAnimation();
        m_ui->passwordPart->Clear();
        m_ui->passwordPart->FocusBox(0);
        m_backTimer.start();
        return;
    }
    m_marker.Remove();
    hide();
    PipeClientService::Instance()->Send(PipeKey::ScreenUnlock);
    if (m_end.IsSet())
        m_idleTimer.Start(RelockIdleSeconds);
}

void UDeviceScreenLock::OnUnlockTimer() {
    if (m_end.HasPassed(m_clock))
        Release();
    if (!isVisible() && !m_end.IsSet())
        m_unlockTimer.stop();
}

void UDeviceScreenLock::OnIdle() {
    if (m_end.IsSet() && !m_end.HasPassed(m_clock))
        UpdateUI();
}

void UDeviceScreenLock::setVisible(bool visible) {
    if (!visible && m_cover)
        m_cover->Release();
    QWidget::setVisible(visible);
}

void UDeviceScreenLock::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (event->spontaneous())
        return;
    m_cover->Raise();
    emit VisibleChanged(true);
    m_cover->Cover();
    m_unlockTimer.start();
    LOG_IF(WARNING, !m_windows.CanCover()) << "UDeviceScreenLock::showEvent the desktop lets no window stay "
                                              "above all others: the lock cannot hold";
}

void UDeviceScreenLock::hideEvent(QHideEvent* event) {
    if (event->spontaneous()) // somebody else's hiding ends no lock
        return;
    m_ui->passwordPart->Clear();
    m_backTimer.stop();
    m_cover->Uncover();
    emit VisibleChanged(false);
    QWidget::hideEvent(event);
}

// A small screen at a large scale has few pixels to speak of.
void UDeviceScreenLock::resizeEvent(QResizeEvent* event) {
    const bool low = height() < LowestWithKeysBelow;
    m_ui->passwordPart->SetLow(low);
    m_ui->rows->setSpacing(low ? 8 : 24);
    m_ui->rows->setContentsMargins(low ? 16 : 48, low ? 8 : 32, low ? 16 : 48, low ? 8 : 32);
    m_ui->messageRows->setSpacing(low ? 16 : 40);
    m_ui->lockIcon->setVisible(!low);
    Theme::SetProperty(m_ui->messageLabel, "low", low);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest); // or what is painted first jumps
    QWidget::resizeEvent(event);
}

void UDeviceScreenLock::closeEvent(QCloseEvent* event) {
    event->ignore();
}

void UDeviceScreenLock::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        UpdateTexts();
    QWidget::changeEvent(event);
}

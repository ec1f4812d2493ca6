#include "lock/UDeviceScreenLock.h"

#include "entity/SettingsEntities.h"
#include "platform/application/WindowStack.h"
#include "platform/context/AppContextData.h"
#include "platform/context/ProductConstants.h"
#include "platform/link/PipeClientService.h"
#include "ui_UDeviceScreenLock.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QWindow>
#include <glog/logging.h>

namespace {

constexpr int TopLevel = 6;
constexpr int BackMs = 30000;
constexpr int UnlockCheckMs = 1000;
constexpr int RelockIdleSeconds = 1200;

} // namespace

UDeviceScreenLock::UDeviceScreenLock(const Clock& clock, const SystemDesktop& desktop)
    : m_clock(clock),
      m_desktop(desktop),
      m_ui(std::make_unique<Ui::UDeviceScreenLock>()),
      m_idleTimer(desktop, this) {
    Initialization();
    InitConnect();
}

UDeviceScreenLock::~UDeviceScreenLock() = default;

void UDeviceScreenLock::Initialization() {
    setWindowFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    setAttribute(Qt::WA_StyledBackground);
    setProperty("TopLevel", TopLevel);
    m_ui->setupUi(this);
    m_ui->enterPasswordButton->setDefault(true);
    m_backTimer.setObjectName(QStringLiteral("backTimer"));
    m_backTimer.setSingleShot(true);
    m_backTimer.setInterval(BackMs);
    m_unlockTimer.setObjectName(QStringLiteral("unlockTimer"));
    m_unlockTimer.setInterval(UnlockCheckMs);
    UpdateTexts();
    ShowMessageView();
    WindowStack::Instance()->PushWindow(this);
}

void UDeviceScreenLock::InitConnect() {
    PipeClientService::Instance()->Subscribe(this, &UDeviceScreenLock::OnPipeDataReceived);
    connect(m_ui->enterPasswordButton, &QPushButton::clicked, this, &UDeviceScreenLock::ShowPasswordView);
    connect(m_ui->passwordPart, &PasswordPad::Used, this, &UDeviceScreenLock::OnPadUsed);
    connect(m_ui->passwordPart, &PasswordPad::Completed, this, &UDeviceScreenLock::OnPasswordCompleted);
    connect(&m_backTimer, &QTimer::timeout, this, &UDeviceScreenLock::ShowMessageView);
    connect(&m_unlockTimer, &QTimer::timeout, this, &UDeviceScreenLock::OnUnlockTimer);
    connect(&m_idleTimer, &IdleTimer::Timeout, this, &UDeviceScreenLock::OnIdle);
    connect(&m_covers, &ScreenCovers::ScreensChanged, this, [this] {
        if (isVisible())
            CoverScreens();
    });
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
        hide();
        break;
    case PipeKey::UnlockPasswordUpdate:
        LOG(INFO) << "UDeviceScreenLock::OnPipeDataReceived Unlock password update: " << body;
        if (!body.empty())
            AppContextData::Instance()->unlockPassword = body;
        break;
    default:
        break;
    }
}

void UDeviceScreenLock::ProcessLock(const std::string& body) {
    DeviceScreenLock lock;
    lock.ReadFromString(body);
    LOG(INFO) << "UDeviceScreenLock::ProcessLock Screen lock still time: " << lock.endAt;
    if (!lock.endAt.empty() && m_clock.Now().toString(QStringLiteral("HH:mm")).toStdString() >= lock.endAt)
        return;
    m_endAt = lock.endAt;
    UpdateUI();
    m_idleTimer.Stop();
}

void UDeviceScreenLock::Release() {
    m_endAt.clear();
    m_ui->passwordPart->Clear();
    hide();
    m_idleTimer.Stop();
}

bool UDeviceScreenLock::IsBeforeEnd() const {
    return m_clock.Now().toString(QStringLiteral("HH:mm")).toStdString() < m_endAt;
}

void UDeviceScreenLock::UpdateUI() {
    UpdateTexts();
    ShowMessageView();
    show();
}

void UDeviceScreenLock::UpdateTexts() {
    const QString product = QString::fromLatin1(Product::Name);
    m_ui->messageLabel->setText(
        m_endAt.empty() ? tr("remote_x_screen_lock_msg_without_time").arg(product)
                        : tr("remote_x_screen_lock_msg").arg(product, QString::fromStdString(m_endAt)));
    m_ui->enterPasswordButton->setText(tr("remote_x_btn_enter_pwd"));
    m_ui->passwordTitle->setText(tr("lock_password_title"));
    setWindowTitle(tr("lock_window_title"));
}

void UDeviceScreenLock::ShowMessageView() {
    m_backTimer.stop();
    m_ui->passwordPart->Clear();
    m_ui->messagePart->show();
    m_ui->passwordTitlePart->hide();
    m_ui->passwordPart->hide();
    m_ui->enterPasswordButton->setFocus();
}

void UDeviceScreenLock::ShowPasswordView() {
    m_ui->messagePart->hide();
    m_ui->passwordTitlePart->show();
    m_ui->passwordPart->show();
    m_ui->passwordPart->FocusBox(0);
    m_backTimer.start();
}

void UDeviceScreenLock::OnPadUsed() {
    m_backTimer.start();
}

void UDeviceScreenLock::OnPasswordCompleted() {
    if (m_ui->passwordPart->GetPasswordHash() != AppContextData::Instance()->unlockPassword) {
        m_ui->passwordPart->StartInvalidPasswordAnimation();
        m_ui->passwordPart->Clear();
        m_ui->passwordPart->FocusBox(0);
        m_backTimer.start();
        return;
    }
    hide();
    PipeClientService::Instance()->Send(PipeKey::ScreenUnlock);
    if (!m_endAt.empty())
        m_idleTimer.Start(RelockIdleSeconds);
}

void UDeviceScreenLock::OnUnlockTimer() {
    if (!m_endAt.empty() && !IsBeforeEnd())
        Release();
    // Nobody tells of another program's window that has come above without taking the focus.
    if (isVisible())
        WindowStack::Instance()->Restack();
    else if (m_endAt.empty())
        m_unlockTimer.stop();
}

void UDeviceScreenLock::OnIdle() {
    if (!m_endAt.empty() && IsBeforeEnd())
        UpdateUI();
}

void UDeviceScreenLock::CoverScreens() {
    setGeometry(ScreenCovers::WholePlace(*QGuiApplication::primaryScreen()));
    m_covers.Show();
    m_desktop.RaiseTopmost(winId());
    m_desktop.HoldKeyboard(*windowHandle(), true);
}

void UDeviceScreenLock::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    m_desktop.RaiseTopmost(winId());
    emit VisibleChanged(true);
    CoverScreens();
    m_unlockTimer.start();
    activateWindow();
}

void UDeviceScreenLock::hideEvent(QHideEvent* event) {
    m_ui->passwordPart->Clear();
    m_backTimer.stop();
    m_covers.Hide();
    m_desktop.HoldKeyboard(*windowHandle(), false);
    emit VisibleChanged(false);
    QWidget::hideEvent(event);
}

void UDeviceScreenLock::closeEvent(QCloseEvent* event) {
    event->ignore();
}

void UDeviceScreenLock::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        UpdateTexts();
    // Another program took the focus: fetch it back, and with it the keyboard that could switch windows.
    if (event->type() == QEvent::ActivationChange && isVisible()) {
        if (isActiveWindow())
            m_desktop.HoldKeyboard(*windowHandle(), true);
        else
            QTimer::singleShot(0, this, [this] {
                if (isVisible())
                    activateWindow();
            });
    }
    QWidget::changeEvent(event);
}

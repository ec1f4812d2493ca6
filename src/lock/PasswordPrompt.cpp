#include "lock/PasswordPrompt.h"

#include "lock/PasswordPad.h"
#include "platform/context/AppContextData.h"
#include "widgets/AccessibleRole.h"
#include "widgets/UTextButton.h"
#include "widgets/UTextLabel.h"

#include <QKeyEvent>
#include <QVBoxLayout>

namespace {

constexpr int LockOutCheckMs = 500;
constexpr int NarrowWidth = 528; // the boxes, and what stands around them
constexpr int WideWidth = 856;   // the digit keys beside them
constexpr int MostWidth = 920;

} // namespace

PasswordPrompt::PasswordPrompt(const Clock& clock, QWidget* parent)
    : QFrame(parent),
      m_attempts(clock),
      m_columns(new QBoxLayout(QBoxLayout::TopToBottom, this)),
      m_title(new UTextLabel("promptTitle")),
      m_content(new UTextLabel("promptContent")),
      m_pad(new PasswordPad),
      m_statusLabel(new UTextLabel("promptStatus")),
      m_tip(new UTextLabel("promptTip")),
      m_close(new UTextButton),
      m_ok(new UTextButton(UTextButton::Look::Primary)) {
    Initialization();
    InitConnect();
    LanguageChanges();
}

void PasswordPrompt::Initialization() {
    setMinimumWidth(NarrowWidth);
    setMaximumWidth(MostWidth);
    m_close->setObjectName(QStringLiteral("closeButton"));
    m_ok->setObjectName(QStringLiteral("okButton"));
    m_lockOutTimer.setObjectName(QStringLiteral("lockOutTimer"));
    m_lockOutTimer.setInterval(LockOutCheckMs);

    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(12);
    buttons->addStretch();
    buttons->addWidget(m_close);
    buttons->addWidget(m_ok);

    auto* column = new QVBoxLayout;
    column->setSpacing(12);
    column->addWidget(m_title);
    column->addWidget(m_content);
    column->addWidget(m_pad);
    column->addWidget(m_statusLabel);
    column->addWidget(m_tip);
    column->addStretch();
    column->addLayout(buttons);

    m_columns->setContentsMargins(28, 24, 28, 24);
    m_columns->setSpacing(32);
    m_columns->addLayout(column, 1);
    m_columns->addWidget(m_pad->TakeKeypad(), 0, Qt::AlignCenter);
}

void PasswordPrompt::InitConnect() {
    connect(m_pad, &PasswordPad::Completed, this, [this] { m_ok->setFocus(); });
    connect(m_ok, &QPushButton::clicked, this, &PasswordPrompt::OnButtonOkClicked);
    connect(m_close, &QPushButton::clicked, this, &PasswordPrompt::OnButtonCloseClicked);
    connect(&m_lockOutTimer, &QTimer::timeout, this, &PasswordPrompt::OnTimer);
}

void PasswordPrompt::SetTexts(const Texts& texts) {
    m_title->setText(texts.title);
    m_content->setText(texts.content);
    m_tip->setText(texts.tip);
    m_tip->setVisible(!texts.tip.isEmpty());
    setAccessibleName(texts.title);
}

void PasswordPrompt::HandleConfirm() {
    if (m_attempts.IsLockedOut())
        return;
    if (m_pad->GetPasswordHash() == AppContextData::Instance()->UnlockPassword()) {
        m_pad->Clear();
        emit Confirmed();
        return;
    }
    SetStatus(Status::Wrong);
    CheckForceInputPassword(true);
    // A lock-out that begins here is not released by time alone: the user has to come back for that.
    m_lockOutTimer.stop();
    m_pad->Clear();
    FocusStart();
    AnnounceStatus();
}

void PasswordPrompt::CheckForceInputPassword(bool wrongAttempt) {
    switch (m_attempts.Check(wrongAttempt)) {
    case PasswordAttempts::Verdict::Free:
        m_lockOutTimer.stop();
        break;
    case PasswordAttempts::Verdict::Counting:
        break;
    case PasswordAttempts::Verdict::LockedOut:
        m_pad->Clear();
        m_pad->SetUsable(false);
        SetStatus(Status::LockedOut);
        if (!m_lockOutTimer.isActive())
            m_lockOutTimer.start();
        break;
    case PasswordAttempts::Verdict::Released:
        m_pad->SetUsable(true);
        m_pad->FocusBox(0);
        SetStatus(Status::None);
        m_lockOutTimer.stop();
        break;
    }
}

void PasswordPrompt::OnTimer() {
    CheckForceInputPassword(false);
}

void PasswordPrompt::FocusStart() {
    if (m_attempts.IsLockedOut())
        m_close->setFocus(); // all that is left to do
    else
        m_pad->FocusFirstEmpty();
}

void PasswordPrompt::Clear() {
    m_lockOutTimer.stop();
    m_pad->Reset();
}

void PasswordPrompt::SetStatus(Status status) {
    m_status = status;
    LanguageChanges();
}

void PasswordPrompt::AnnounceStatus() {
    if (m_status != Status::None)
        AnnounceAlert(m_statusLabel);
}

void PasswordPrompt::LanguageChanges() {
    m_close->setText(tr("view_register_windows_button_cancel"));
    m_ok->setText(tr("view_lock_button_connect"));
    m_statusLabel->setText(m_status == Status::Wrong       ? tr("view_lock_password_error")
                           : m_status == Status::LockedOut ? tr("view_lock_password_lock_tip")
                                                           : QString());
}

void PasswordPrompt::showEvent(QShowEvent* event) {
    QFrame::showEvent(event);
    if (event->spontaneous())
        return;
    SetStatus(Status::None);
    m_pad->Clear();
    CheckForceInputPassword(false);
    FocusStart();
    AnnounceStatus();
}

void PasswordPrompt::hideEvent(QHideEvent* event) {
    if (!event->spontaneous())
        Clear();
    QFrame::hideEvent(event);
}

void PasswordPrompt::resizeEvent(QResizeEvent* event) {
    m_columns->setDirection(width() < WideWidth ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    QFrame::resizeEvent(event);
}

void PasswordPrompt::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!event->isAutoRepeat())
            (m_close->hasFocus() ? m_close : m_ok)->click();
        break;
    case Qt::Key_Escape:
        m_close->click();
        break;
    case Qt::Key_Backspace:
        m_pad->EraseDigit();
        break;
    default:
        QFrame::keyPressEvent(event);
    }
}

void PasswordPrompt::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        LanguageChanges();
    QFrame::changeEvent(event);
}

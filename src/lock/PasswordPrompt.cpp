#include "lock/PasswordPrompt.h"

#include "lock/PasswordPad.h"
#include "platform/context/AppContextData.h"
#include "widgets/AccessibleRole.h"
#include "widgets/UTextButton.h"
#include "widgets/UTextLabel.h"

#include <QKeyEvent>
#include <QVBoxLayout>
#include <algorithm>
#include <iterator>

namespace {

constexpr int LockOutCheckMs = 500;
constexpr int MostWidth = 920;

/// How the prompt stands in a window that has so much room.
struct Form {
    QSize room;
    int width; ///< at least
    QBoxLayout::Direction direction;
    bool low; ///< small boxes and keys
};
constexpr Form Forms[]{{{904, 460}, 856, QBoxLayout::LeftToRight, false}, // the keys beside the boxes
                       {{576, 760}, 528, QBoxLayout::TopToBottom, false},
                       {{620, 0}, 572, QBoxLayout::LeftToRight, true},
                       {{0, 0}, 340, QBoxLayout::TopToBottom, true}};

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
    connect(m_pad, &PasswordPad::Used, this, [this] { m_isAnswered = false; });
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

// A hash is never empty, as a password is that the service has not set.
bool PasswordPrompt::IsRight() const {
    const AppContextData& context = *AppContextData::Instance();
    const std::string hash = m_pad->GetPasswordHash();
    return hash == context.UnlockPassword() || (m_acceptsUnbindPassword && hash == context.UnbindPassword());
}

void PasswordPrompt::HandleConfirm() {
    if (m_attempts.IsLockedOut())
        return;
    if (IsRight()) {
        m_pad->Clear();
        emit Confirmed();
        return;
    }
    SetStatus(Status::Wrong);
    CheckForceInputPassword(true);
    // A lock-out that begins here is not released by time alone: the user has to come back for that.
    m_lockOutTimer.stop();
    m_pad->Clear();
    m_isAnswered = true;
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
        SetUsable(false);
        SetStatus(Status::LockedOut);
        if (!m_lockOutTimer.isActive())
            m_lockOutTimer.start();
        break;
    case PasswordAttempts::Verdict::Released:
        SetUsable(true);
        m_pad->FocusBox(0);
        SetStatus(Status::None);
        m_lockOutTimer.stop();
        break;
    }
}

void PasswordPrompt::OnTimer() {
    CheckForceInputPassword(false);
}

void PasswordPrompt::SetUsable(bool usable) {
    m_pad->SetUsable(usable);
    m_ok->setEnabled(usable);
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
    window()->installEventFilter(this);
    Arrange();
    m_isAnswered = false;
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

bool PasswordPrompt::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize && watched == window())
        Arrange();
    return QFrame::eventFilter(watched, event);
}

// A small screen at a large scale has few pixels to speak of.
void PasswordPrompt::Arrange() {
    const QSize room = window()->size();
    const Form& form = *std::find_if(std::begin(Forms), std::end(Forms), [&](const Form& candidate) {
        return candidate.room.width() <= room.width() && candidate.room.height() <= room.height();
    });
    setMinimumWidth(form.width);
    m_columns->setDirection(form.direction);
    m_pad->SetLow(form.low);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest); // or what is painted first jumps
}

void PasswordPrompt::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        // A key that is held is one attempt, and leaves nothing that has just begun.
        if (!event->isAutoRepeat() && !m_isAnswered && !m_attempts.IsLockedOut())
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

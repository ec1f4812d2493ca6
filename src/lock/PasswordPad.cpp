#include "lock/PasswordPad.h"

#include "platform/context/Theme.h"
#include "platform/security/PasswordHelper.h"

#include <QApplication>
#include <QCheckBox>
#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPropertyAnimation>
#include <QPushButton>
#include <QVariant>

namespace {

constexpr char IndexProperty[] = "PasswordIndex";
constexpr int ShakeMs = 100;
constexpr int ShakeLoops = 2;
constexpr int ShakeWidth = 14;

/// The digit that a key types, in whatever script, as the password has it; null when it types none.
QChar DigitOf(const QString& text) {
    const int value = text.size() == 1 ? text[0].digitValue() : -1;
    return value < 0 ? QChar() : QLatin1Char(static_cast<char>('0' + value));
}

} // namespace

PasswordPad::PasswordPad(QWidget* parent) : QFrame(parent) {
    Initialization();
    LanguageChanges();
}

void PasswordPad::Initialization() {
    m_passwordArea = new QFrame(this);
    m_passwordArea->setObjectName(QStringLiteral("passwordArea"));
    m_passwordArea->setLayoutDirection(Qt::LeftToRight); // digits read left to right in every language
    auto* boxes = new QHBoxLayout(m_passwordArea);
    boxes->setContentsMargins(ShakeWidth, 0, ShakeWidth, 0);
    boxes->setSpacing(12);
    for (int i = 0; i < Digits; ++i) {
        auto* box = new QLineEdit(m_passwordArea);
        box->setProperty(IndexProperty, i);
        box->setProperty("passwordBox", true);
        box->setMaxLength(1);
        box->setAlignment(Qt::AlignCenter);
        box->setEchoMode(QLineEdit::Password);
        box->setContextMenuPolicy(Qt::NoContextMenu);
        box->setAttribute(Qt::WA_InputMethodEnabled, false);
        box->installEventFilter(this);
        boxes->addWidget(box);
        m_boxes[static_cast<std::size_t>(i)] = box;
    }
    setFocusProxy(m_boxes.front());

    m_viewPassword = new QCheckBox(this);
    m_viewPassword->setObjectName(QStringLiteral("viewPasswordCheckBox"));
    connect(m_viewPassword, &QCheckBox::toggled, this, &PasswordPad::OnButtonViewPasswordClicked);
    connect(m_viewPassword, &QCheckBox::clicked, this, &PasswordPad::OnAreaPressed);

    auto* entry = new QVBoxLayout;
    entry->setSpacing(24);
    entry->addWidget(m_passwordArea, 0, Qt::AlignHCenter);
    entry->addWidget(m_viewPassword, 0, Qt::AlignHCenter);
    m_parts = new QBoxLayout(QBoxLayout::TopToBottom, this);
    m_parts->setSpacing(24);
    m_parts->addLayout(entry);
    CreateKeypad();
    m_parts->addWidget(m_keypad, 0, Qt::AlignCenter);
}

void PasswordPad::CreateKeypad() {
    m_keypad = new QWidget(this);
    m_keypad->setObjectName(QStringLiteral("keypad"));
    m_keypad->setLayoutDirection(Qt::LeftToRight);
    auto* grid = new QGridLayout(m_keypad);
    grid->setSpacing(12);
    const auto add = [&](const QString& text, int row, int column) {
        auto* key = new QPushButton(text, m_keypad);
        key->setProperty("passwordKey", true);
        key->setFocusPolicy(Qt::TabFocus); // a press leaves the focus in the boxes
        grid->addWidget(key, row, column);
        return key;
    };
    for (const int digit : {1, 2, 3, 4, 5, 6, 7, 8, 9, 0}) { // the order in which Tab reaches them
        const int place = digit == 0 ? 10 : digit - 1;
        auto* key = add(QString::number(digit), place / 3, place % 3);
        connect(key, &QPushButton::clicked, this,
                [this, digit] { TypeDigit(CurrentBox(), QLatin1Char(static_cast<char>('0' + digit))); });
    }
    auto* erase = add(QStringLiteral("\u232b"), 3, 2);
    connect(erase, &QPushButton::clicked, this, &PasswordPad::EraseDigit);
    m_erase = erase;
}

QWidget* PasswordPad::TakeKeypad() {
    m_keypad->setParent(nullptr);
    return m_keypad;
}

void PasswordPad::SetLow(bool low) {
    m_parts->setDirection(low ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    const int gap = low ? 6 : 12;
    m_passwordArea->layout()->setSpacing(gap);
    m_keypad->layout()->setSpacing(gap);
    for (QLineEdit* box : m_boxes)
        Theme::SetProperty(box, "low", low);
    for (QPushButton* key : m_keypad->findChildren<QPushButton*>())
        Theme::SetProperty(key, "low", low);
}

void PasswordPad::LanguageChanges() {
    m_viewPassword->setText(tr("lock_show_password"));
    m_erase->setAccessibleName(tr("lock_erase_digit"));
    for (int i = 0; i < Digits; ++i)
        m_boxes[static_cast<std::size_t>(i)]->setAccessibleName(tr("lock_digit_name").arg(i + 1));
}

void PasswordPad::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        LanguageChanges();
    QFrame::changeEvent(event);
}

QString PasswordPad::GetPassword() const {
    QString password;
    for (const QLineEdit* box : m_boxes)
        password += box->text();
    return password;
}

std::string PasswordPad::GetPasswordHash() const {
    return PasswordHelper::HashVelmoraPassword(GetPassword().toStdString());
}

void PasswordPad::Clear() {
    for (QLineEdit* box : m_boxes) {
        box->clear();
        box->clearFocus();
    }
}

void PasswordPad::Reset() {
    Clear();
    m_viewPassword->setChecked(false);
}

void PasswordPad::FocusBox(int index) {
    m_boxes[static_cast<std::size_t>(index)]->setFocus();
}

void PasswordPad::FocusFirstEmpty() {
    for (QLineEdit* box : m_boxes)
        if (box->text().isEmpty())
            return box->setFocus();
}

int PasswordPad::CurrentBox() const {
    for (int i = 0; i < Digits; ++i)
        if (m_boxes[static_cast<std::size_t>(i)]->hasFocus())
            return i;
    for (int i = 0; i < Digits; ++i)
        if (m_boxes[static_cast<std::size_t>(i)]->text().isEmpty())
            return i;
    return Digits - 1;
}

void PasswordPad::TypeDigit(int box, QChar digit) {
    m_boxes[static_cast<std::size_t>(box)]->setText(digit);
    if (box + 1 < Digits)
        FocusBox(box + 1);
    emit Used();
    if (box + 1 == Digits)
        emit Completed();
}

void PasswordPad::Erase(int box) {
    m_boxes[static_cast<std::size_t>(box)]->clear();
    if (box > 0)
        FocusBox(box - 1);
    emit Used();
}

void PasswordPad::EraseDigit() {
    if (m_passwordArea->isAncestorOf(QApplication::focusWidget())) {
        Erase(CurrentBox());
        return;
    }
    const int last = qMax(0, GetPassword().size() - 1);
    m_boxes[static_cast<std::size_t>(last)]->clear();
    FocusBox(last);
    emit Used();
}

void PasswordPad::SetUsable(bool usable) {
    m_passwordArea->setEnabled(usable);
    m_viewPassword->setEnabled(usable);
    m_keypad->setEnabled(usable);
}

void PasswordPad::OnButtonViewPasswordClicked() {
    for (QLineEdit* box : m_boxes)
        box->setEchoMode(m_viewPassword->isChecked() ? QLineEdit::Normal : QLineEdit::Password);
}

void PasswordPad::OnAreaPressed() {
    FocusFirstEmpty();
    emit Used();
}

void PasswordPad::mousePressEvent(QMouseEvent* event) {
    OnAreaPressed();
    QFrame::mousePressEvent(event);
}

bool PasswordPad::eventFilter(QObject* watched, QEvent* event) {
    const QVariant index = watched->property(IndexProperty);
    if (!index.isValid())
        return QFrame::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick: // a box is a place in the area, and not one to be chosen
        OnAreaPressed();
        return true;
    case QEvent::KeyPress:
        return OnKeyPressed(index.toInt(), static_cast<QKeyEvent&>(*event));
    default:
        return QFrame::eventFilter(watched, event);
    }
}

bool PasswordPad::OnKeyPressed(int box, QKeyEvent& key) {
    switch (key.key()) {
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        return false;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Escape:
        key.ignore(); // for whoever holds the pad
        return true;
    case Qt::Key_Backspace:
        Erase(box);
        return true;
    default:
        if (const QChar digit = DigitOf(key.text()); !digit.isNull())
            TypeDigit(box, digit);
        return true; // nothing else belongs into a box, pasting included
    }
}

void PasswordPad::StartInvalidPasswordAnimation() {
    if (m_shaking)
        return;
    m_shaking = true;
    const QPoint rest = m_passwordArea->pos();
    auto* shake = new QPropertyAnimation(m_passwordArea, "pos", this);
    shake->setDuration(ShakeMs);
    shake->setLoopCount(ShakeLoops);
    shake->setEasingCurve(QEasingCurve::InOutQuad);
    shake->setStartValue(rest);
    shake->setKeyValueAt(0.25, rest - QPoint(ShakeWidth, 0));
    shake->setKeyValueAt(0.75, rest + QPoint(ShakeWidth, 0));
    shake->setEndValue(rest);
    connect(shake, &QPropertyAnimation::finished, this, [this] { m_shaking = false; });
    shake->start(QAbstractAnimation::DeleteWhenStopped);
}

#pragma once

#include <QFrame>
#include <array>

class QBoxLayout;
class QCheckBox;
class QKeyEvent;
class QLineEdit;

/// Six single-character boxes for a password of digits, the choice to show them, and digit keys for
/// displays without a keyboard. Every dialog that asks for the password holds one, and gets Return and
/// Escape from it. GUI thread.
class PasswordPad : public QFrame {
    Q_OBJECT

public:
    static constexpr int Digits = 6;

    explicit PasswordPad(QWidget* parent = nullptr);

    /// The boxes' texts in order; shorter than six characters while boxes are empty.
    QString GetPassword() const;
    /// The hash of GetPassword, as the service knows passwords.
    std::string GetPasswordHash() const;

    /// Empties the boxes and takes the focus away from them.
    void Clear();
    /// As at every first look: no digits, and none to be shown.
    void Reset();
    void FocusBox(int index);
    void FocusFirstEmpty();
    /// Takes back the digit of the box in use, or the last one when the focus is elsewhere,
    /// and leads there.
    void EraseDigit();

    /// Whether boxes and digit keys can be used; at first they can.
    void SetUsable(bool usable);

    /// The digit keys, for a dialog that puts them elsewhere than below the boxes; Tab reaches them there.
    QWidget* TakeKeypad();

    /// Places the digit keys beside the boxes instead of below, where there is little height.
    void SetLow(bool low);

    /// Shakes the boxes: the password was wrong.
    void StartInvalidPasswordAnimation();

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    /// The user did something here: typed, erased, pressed, showed or hid the password.
    void Used();
    /// The last box got its digit.
    void Completed();

protected:
    void changeEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    void Initialization();
    void CreateKeypad();
    void OnButtonViewPasswordClicked();
    void LanguageChanges();
    void OnAreaPressed();
    /// True when the box itself does not get the key.
    bool OnKeyPressed(int box, QKeyEvent& key);
    void TypeDigit(int box, QChar digit);
    void Erase(int box);
    int CurrentBox() const;

    std::array<QLineEdit*, Digits> m_boxes{};
    QBoxLayout* m_parts = nullptr;
    QFrame* m_passwordArea = nullptr;
    QCheckBox* m_viewPassword = nullptr;
    QWidget* m_keypad = nullptr;
    QWidget* m_erase = nullptr;
    bool m_shaking = false;
};

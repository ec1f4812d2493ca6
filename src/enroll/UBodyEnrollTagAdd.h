#pragma once

#include <QFrame>

class QLineEdit;
class UTextButton;

/// Takes in one tag: Return in the field adds it, and so does the button. GUI thread.
///
/// The frame's look follows its properties: "enable" (it can be used), "input" (the field has the focus),
/// "error" (the text was refused) and "normal" (none of these).
class UBodyEnrollTagAdd : public QFrame {
    Q_OBJECT

public:
    explicit UBodyEnrollTagAdd(QWidget* parent = nullptr);

    void SetEnable(bool enable);
    void SetError(bool error);
    /// Empties the field, which keeps the focus for the next tag.
    void Clear();
    void FocusField();

signals:
    /// The user wants this tag, trimmed and possibly empty.
    void AddTagSgl(const QString& tag);
    /// The text is another one than that which was refused.
    void Edited();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void Add();
    void LanguageChanges();
    void UpdateLook();

    QLineEdit* m_field;
    UTextButton* m_add;
    bool m_error = false;
};

#pragma once

#include <QFrame>

class QLabel;
class QLineEdit;
class QVBoxLayout;

/// One question of the enrolment form: its name, the line to answer it in, and below that what is wrong with
/// the answer. The style sheet knows a wrong answer by the property "error". GUI thread.
class EnrollField : public QFrame {
    Q_OBJECT

public:
    /// How the answer is written: code and e-mail address read left to right in every language.
    enum class Script { OfLanguage, LeftToRight };

    /// `name` is the line's object name.
    EnrollField(const char* name, Script script);

    QLineEdit& Edit() const { return *m_edit; }
    QString Text() const;
    virtual void SetText(const QString& text);

    /// In the language in use.
    void SetTexts(const QString& label, const QString& placeholder);

    /// Says what is wrong; an empty text takes that back.
    void SetError(const QString& error);
    /// The mark of a wrong answer alone, without words.
    void MarkError(bool error);
    void ClearError() { SetError({}); }

    virtual void SetEditAble(bool editable);

    /// Gives the line to answer in the keyboard.
    virtual void FocusAnswer();

    /// Every line of the question.
    QList<QLineEdit*> Edits() const;

protected:
    QLineEdit* AddEdit(const char* name, Script script);
    /// Puts the layout in place of the one line.
    void SetAnswer(QLayout* answer);

private:
    QVBoxLayout* m_column; // label, answer, error
    QLabel* m_label;
    QLineEdit* m_edit;
    QLabel* m_error;
};

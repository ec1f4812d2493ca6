#pragma once

#include "feedback/FeedbackBackend.h"

#include <QWidget>

class AttachmentStrip;
class DescriptionBox;
class QLabel;
class QLineEdit;

/// What the user fills in to report a problem: description, attachments, address for questions.
class FeedbackForm : public QWidget {
    Q_OBJECT

public:
    static constexpr int CharacterLimit = 300;

    explicit FeedbackForm(const FeedbackBackend& backend, QWidget* parent = nullptr);

    QString Description() const;
    QString Email() const;
    AttachmentStrip& Attachments() const { return *m_attachments; }

    /// Whether there is something to send, and nothing is still on its way.
    bool IsComplete() const;
    /// Whether leaving the form would lose something.
    bool HoldsSomething() const;
    /// Looks at the e-mail address; says what is wrong with it and returns false, if anything is.
    bool CheckEmail();

    void Clear();
    /// While locked, everything stays as it is.
    void SetLocked(bool locked);

signals:
    /// Description, e-mail or attachments are others than before.
    void Changed();
    /// The user is through and presses Enter.
    void Submitted();

protected:
    void changeEvent(QEvent* event) override;

private:
    void OnDescriptionChanged();
    void ShowEmailError(bool wrong);
    void Retranslate();

    QLabel* m_descriptionTitle;
    DescriptionBox* m_description;
    QLabel* m_counter;
    AttachmentStrip* m_attachments;
    QLabel* m_emailTitle;
    QLineEdit* m_email;
    QLabel* m_emailError;
    bool m_emailIsWrong = false;
};

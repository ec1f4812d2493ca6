#pragma once

#include "enroll/EnrollField.h"

class QBoxLayout;
class UTextButton;

/// The question for the device's name: one line for the whole name or, as the user likes, one for its
/// beginning and one for its end. GUI thread.
class EnrollNameField : public EnrollField {
    Q_OBJECT

public:
    EnrollNameField();

    /// The name as it is sent.
    QString Name() const;

    /// The page of one line, with this name.
    void SetText(const QString& name) override;
    /// The page of two lines; an empty part leaves what is there.
    void SetParts(const QString& prefix, const QString& suffix);

    void SetEditAble(bool editable) override;
    void FocusAnswer() override;
    void LanguageChanges();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void ShowParts(bool parts);

    bool m_parts = false;
    QBoxLayout* m_row; // one below the other where there is no room
    QLineEdit* m_prefix;
    QLineEdit* m_suffix;
    UTextButton* m_switch;
};

#pragma once

#include "widgets/UOverlay.h"

#include <QByteArray>

class QLabel;
class UIconButton;
class UTextButton;

/// Tells that the service cannot be reached, and offers the network page and another try. Escape closes it
/// and tries nothing; it goes with its page. GUI thread.
///
/// Each use sets all four texts anew, and knows by what it opened the dialog for what OnOk has to repeat.
class UBodyEnrollModal : public UOverlay {
    Q_OBJECT

public:
    explicit UBodyEnrollModal(QWidget* page);

    /// Each takes a translation key (QT_TR_NOOP) and shows its text in the language in use, also after that
    /// has changed.
    void setTitle(const char* key);
    void setContent(const char* key);
    /// The button that leads to the network page.
    void setOkText(const char* key);
    /// The button that tries again; it stands where others cancel.
    void setCancelText(const char* key);

signals:
    /// Try again. It comes from the button in the cancel position, after the dialog has gone.
    void OnOk();
    /// The user has closed the dialog, which has gone.
    void OnClose();

protected:
    void Presented() override;
    void Dismiss() override;
    void changeEvent(QEvent* event) override;

private:
    void Initialization();
    void InitConnect();
    void LanguageChanges();

    QByteArray m_titleKey, m_contentKey, m_okKey, m_cancelKey;
    QLabel* m_title;
    QLabel* m_content;
    UIconButton* m_close;
    UTextButton* m_cancel;
    UTextButton* m_ok;
};

#pragma once

#include "widgets/UOverlay.h"

#include <functional>

class QLabel;
class QPlainTextEdit;
class UTextButton;

/// Shows a long text that is the same in every language, over its window, and goes when it is closed.
class UTextDialog : public UOverlay {
    Q_OBJECT

public:
    /// Title and sentence are translation keys. With a name for its file the text is a record, which is read
    /// from its end, can be copied and saved.
    UTextDialog(const char* title, const char* sentence, const QString& text, const QString& fileName,
                QWidget* parent);

protected:
    void Presented() override;
    void Dismiss() override;
    void changeEvent(QEvent* event) override;

private:
    void Retranslate();

    const char* m_titleKey;
    const char* m_sentenceKey;
    QLabel* m_title;
    QLabel* m_sentence;
    QPlainTextEdit* m_view;
    UTextButton* m_close;
};

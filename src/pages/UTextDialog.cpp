#include "pages/UTextDialog.h"

#include "pages/UTextExport.h"
#include "widgets/AccessibleRole.h"
#include "widgets/UTextButton.h"
#include "widgets/UTextLabel.h"

#include <QEvent>
#include <QPlainTextEdit>
#include <QVBoxLayout>

namespace {

constexpr int CardWidth = 860;
constexpr int ViewHeight = 400;

class TextView : public QPlainTextEdit {
public:
    QSize sizeHint() const override { return {CardWidth, ViewHeight}; }
};

} // namespace

UTextDialog::UTextDialog(const char* title, const char* sentence, const QString& text,
                         const QString& fileName, QWidget* parent)
    : UOverlay(parent),
      m_titleKey(title),
      m_sentenceKey(sentence),
      m_title(new UTextLabel("dialogTitle")),
      m_sentence(new UTextLabel("dialogContent")),
      m_view(new TextView),
      m_close(new UTextButton(UTextButton::Look::Primary)) {
    setObjectName(QStringLiteral("textDialog"));
    m_view->setObjectName(QStringLiteral("textView"));
    m_view->setReadOnly(true);
    m_view->setTabChangesFocus(true);
    m_view->setLayoutDirection(Qt::LeftToRight); // as its text is, in every language
    m_view->setPlainText(text);
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(12);
    if (!fileName.isEmpty()) {
        m_view->setLineWrapMode(QPlainTextEdit::NoWrap); // its columns stay below each other
        m_view->moveCursor(QTextCursor::End);            // where the latest is
        buttons->addWidget(new UTextExport([text] { return text; }, fileName));
    }
    buttons->addStretch();
    buttons->addWidget(m_close);
    QVBoxLayout* column = MakeCard(CardWidth);
    column->addWidget(m_title);
    column->addWidget(m_sentence);
    column->addWidget(m_view, 1);
    column->addLayout(buttons);
    connect(m_close, &QPushButton::clicked, this, &UTextDialog::Dismiss);
    Retranslate();
}

void UTextDialog::Presented() {
    m_view->setFocus(Qt::PopupFocusReason);
    m_view->ensureCursorVisible();
    AnnounceAlert(this);
}

void UTextDialog::Dismiss() {
    hide();
    deleteLater();
}

void UTextDialog::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        Retranslate();
    UOverlay::changeEvent(event);
}

void UTextDialog::Retranslate() {
    m_title->setText(tr(m_titleKey));
    m_sentence->setText(tr(m_sentenceKey));
    m_view->setAccessibleName(m_title->text());
    m_close->setText(tr("button_ok"));
    setAccessibleName(m_title->text());
}

#include "popups/PopupWindowsDialog.h"

#include "platform/context/ShownText.h"
#include "popups/ProgramIcon.h"
#include "widgets/AccessibleRole.h"
#include "widgets/UTextButton.h"
#include "widgets/UTextLabel.h"

#include <QEvent>
#include <QVBoxLayout>

namespace {

constexpr int CardWidth = 600;
constexpr int TextWidth = 440;

} // namespace

PopupWindowsDialog::PopupWindowsDialog(const std::vector<PickableWindow>& windows, QWidget* parent)
    : UOverlay(parent),
      m_title(new UTextLabel("dialogTitle")),
      m_none(new UTextLabel("dialogContent")),
      m_cancel(new UTextButton) {
    setObjectName(QStringLiteral("popupWindowsDialog"));
    QVBoxLayout* column = MakeCard(CardWidth);
    column->addWidget(m_title);
    column->addWidget(m_none);
    for (const PickableWindow& window : windows) {
        auto* button = new UTextButton;
        button->setObjectName(QStringLiteral("popupWindow"));
        button->setIcon(ProgramIcon::Shown(window.path));
        const QString name =
            ShownText(window.title.isEmpty() ? window.FileName()
                                             : window.FileName() + QStringLiteral(" – ") + window.title);
        button->setText(button->fontMetrics()
                            .elidedText(name, Qt::ElideRight, TextWidth)
                            .replace(QLatin1Char('&'), QStringLiteral("&&")));
        button->setAccessibleName(name);
        connect(button, &QPushButton::clicked, this, [this, window] {
            Dismiss();
            emit Chosen(window);
        });
        column->addWidget(button);
        if (!m_first)
            m_first = button;
    }
    m_none->setVisible(!m_first);
    column->addSpacing(12);
    column->addWidget(m_cancel, 0, Qt::AlignTrailing);
    connect(m_cancel, &QPushButton::clicked, this, &PopupWindowsDialog::Dismiss);
    Retranslate();
}

void PopupWindowsDialog::Presented() {
    (m_first ? m_first : m_cancel)->setFocus(Qt::PopupFocusReason);
    AnnounceAlert(this);
}

void PopupWindowsDialog::Dismiss() {
    hide();
    deleteLater();
}

void PopupWindowsDialog::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        Retranslate();
    UOverlay::changeEvent(event);
}

void PopupWindowsDialog::Retranslate() {
    m_title->setText(tr("popups_windows_title"));
    m_none->setText(tr("popups_windows_none"));
    m_cancel->setText(tr("file_publish_cancel"));
    setAccessibleName(m_title->text());
}

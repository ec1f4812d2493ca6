#include "widgets/UExitButton.h"

#include "widgets/ThemeIcon.h"

#include <QEvent>

UExitButton::UExitButton(QWidget* parent) : QPushButton(parent) {
    setIcon(ThemeIcon::Get(QStringLiteral("close")));
    setIconSize({24, 24});
    connect(this, &QPushButton::clicked, this, &UExitButton::Exited);
    Retranslate();
}

void UExitButton::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        Retranslate();
    QPushButton::changeEvent(event);
}

void UExitButton::Retranslate() {
    setAccessibleName(tr("button_close"));
    setToolTip(tr("button_close"));
}

#include "widgets/UBackButton.h"

#include "widgets/ThemeIcon.h"

#include <QEvent>

UBackButton::UBackButton(QWidget* parent) : UTextButton(Look::Plain, parent) {
    setIcon(ThemeIcon::Get(QStringLiteral("back")));
    Retranslate();
}

void UBackButton::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        Retranslate();
    UTextButton::changeEvent(event);
}

void UBackButton::Retranslate() {
    setText(tr("button_back"));
}

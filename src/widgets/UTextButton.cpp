#include "widgets/UTextButton.h"

#include "platform/context/Theme.h"

#include <QMetaEnum>
#include <QMouseEvent>
#include <QTimerEvent>

UTextButton::UTextButton(QWidget* parent) : UTextButton(Look::Secondary, parent) {}

UTextButton::UTextButton(Look look, QWidget* parent) : QPushButton(parent) {
    setIconSize({32, 24}); // the icon, and a gap before the text
    SetLook(look);
}

void UTextButton::SetLook(Look look) {
    const char* name = QMetaEnum::fromType<Look>().valueToKey(static_cast<int>(look));
    Theme::SetProperty(this, "look", QString::fromLatin1(name));
    m_spinner.SetColorToken(look == Look::Primary  ? QStringLiteral("accentText")
                            : look == Look::Danger ? QStringLiteral("dangerText")
                                                   : QStringLiteral("text"));
}

void UTextButton::SetLoading(bool loading) {
    if (m_loading == loading)
        return;
    m_loading = loading;
    if (loading) {
        m_restingIcon = icon();
        setIcon(m_spinner.Icon());
        m_spinner.Start(this);
    } else {
        m_spinner.Stop();
        setIcon(m_restingIcon);
    }
    setAccessibleDescription(loading ? tr("loading") : QString());
}

void UTextButton::mouseDoubleClickEvent(QMouseEvent* event) {
    event->accept();
}

void UTextButton::timerEvent(QTimerEvent* event) {
    if (m_spinner.Tick(event->timerId()))
        update();
    else
        QPushButton::timerEvent(event);
}

void UTextButton::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange && m_loading)
        setAccessibleDescription(tr("loading"));
    QPushButton::changeEvent(event);
}

#include "enroll/UBodyEnrollTagItem.h"

#include "platform/context/Theme.h"
#include "widgets/UElidedLabel.h"
#include "widgets/UIconButton.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QVariant>

namespace {

constexpr int TextMargin = 14;
constexpr int MostTextWidth = 340; // what may be typed fits; what the service sends may be longer

} // namespace

UBodyEnrollTagItem::UBodyEnrollTagItem(const QString& tag, QWidget* parent)
    : QFrame(parent),
      m_text(new UElidedLabel),
      m_remove(
          new UIconButton("tagRemoveButton", QStringLiteral("close"), 18, QStringLiteral("accentSoftText"))) {
    setObjectName(QStringLiteral("DeviceTagsItem"));
    m_text->SetText(tag);
    m_text->setMaximumWidth(MostTextWidth);
    auto* row = new QHBoxLayout(this);
    row->setSpacing(0);
    row->addWidget(m_text);
    row->addWidget(m_remove);
    connect(m_remove, &QPushButton::clicked, this, [this] { emit RemoveItem(this); });
    LanguageChanges();
    SetEnable(true);
}

QWidget* UBodyEnrollTagItem::FocusPlace() const {
    return m_remove;
}

QString UBodyEnrollTagItem::Tag() const {
    return m_text->Text();
}

void UBodyEnrollTagItem::SetEnable(bool enable) {
    Theme::SetProperty(this, "enable", enable);
    Theme::SetProperty(m_text, "enable", enable); // whose rule its own change alone brings up to date
    m_remove->setVisible(enable);
    UpdateMargins();
}

// The button has room of its own around its cross. Layouts mirror all but their margins.
void UBodyEnrollTagItem::UpdateMargins() {
    const int end = property("enable").toBool() ? 0 : TextMargin;
    layout()->setContentsMargins(isRightToLeft() ? end : TextMargin, 0, isRightToLeft() ? TextMargin : end,
                                 0);
}

void UBodyEnrollTagItem::LanguageChanges() {
    m_remove->SetName(tr("tag_remove").arg(m_text->Text()));
}

void UBodyEnrollTagItem::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        LanguageChanges();
    else if (event->type() == QEvent::LayoutDirectionChange)
        UpdateMargins();
    QFrame::changeEvent(event);
}

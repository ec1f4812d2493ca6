#include "widgets/UIconLabel.h"

#include "widgets/AccessibleRole.h"
#include "widgets/ThemeIcon.h"

#include <QPainter>

UIconLabel::UIconLabel(int size, QWidget* parent) : QWidget(parent) {
    setFixedSize(size, size);
    SetAccessibleRole(this, QAccessible::Graphic);
}

UIconLabel::UIconLabel(int size, const QString& icon, const QString& colorToken, QWidget* parent)
    : UIconLabel(size, parent) {
    SetIcon(icon, colorToken);
}

void UIconLabel::SetIcon(const QString& icon, const QString& colorToken) {
    m_icon = icon;
    m_colorToken = colorToken;
    update();
}

void UIconLabel::paintEvent(QPaintEvent*) {
    if (m_icon.isEmpty())
        return;
    QPainter painter(this);
    ThemeIcon::Get(m_icon, m_colorToken).paint(&painter, rect());
}

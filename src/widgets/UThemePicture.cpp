#include "widgets/UThemePicture.h"

#include "platform/context/Theme.h"
#include "widgets/AccessibleRole.h"

#include <QPainter>
#include <QSvgRenderer>

UThemePicture::UThemePicture(const QString& name, const QSize& preferredSize, QWidget* parent)
    : QWidget(parent), m_name(name), m_preferredSize(preferredSize) {
    SetAccessibleRole(this, QAccessible::Graphic);
}

void UThemePicture::paintEvent(QPaintEvent*) {
    QSvgRenderer drawing(QStringLiteral(":/res/%1/images/%2.svg").arg(Theme::Instance()->Name(), m_name));
    QRectF place(QPointF(), QSizeF(drawing.defaultSize()).scaled(size(), Qt::KeepAspectRatio));
    place.moveCenter(QRectF(rect()).center());
    QPainter painter(this);
    drawing.render(&painter, place);
}

#include "widgets/ThemeIcon.h"

#include "platform/context/Theme.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>
#include <glog/logging.h>

namespace {

bool PointsInReadingDirection(const QString& name) {
    return name == QLatin1String("back") || name == QLatin1String("chevron");
}

// All drawings are black; black is where the colour goes.
QByteArray Colored(const QString& name, const QColor& color) {
    QFile file(QStringLiteral(":/res/icons/%1.svg").arg(name));
    if (!file.open(QIODevice::ReadOnly))
        LOG(ERROR) << "There is no icon " << name.toStdString();
    return file.readAll().replace("\"#000\"", '"' + color.name().toLatin1() + '"');
}

void Paint(QPainter& painter, const QRectF& rect, const QString& name, const QColor& color) {
    const QRectF square = ThemeIcon::Square(rect);
    painter.save();
    if (PointsInReadingDirection(name) && QGuiApplication::isRightToLeft()) {
        painter.translate(square.center().x() * 2, 0);
        painter.scale(-1, 1);
    }
    QSvgRenderer(Colored(name, color)).render(&painter, square);
    painter.restore();
}

class Engine : public QIconEngine {
public:
    Engine(const QString& name, const ThemeIcon::Colors& colors) : m_name(name), m_colors(colors) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
        // By way of the cache: reading the drawing again for every paint would be felt.
        const qreal scale = painter->device()->devicePixelRatioF();
        QPixmap picture = pixmap(rect.size() * scale, mode, state);
        picture.setDevicePixelRatio(scale);
        painter->drawPixmap(rect.topLeft(), picture);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        const QColor color = Color(mode, state);
        const QString key = QStringLiteral("ryx/%1/%2/%3x%4/%5")
                                .arg(m_name, color.name())
                                .arg(size.width())
                                .arg(size.height())
                                .arg(QGuiApplication::isRightToLeft());
        QPixmap pixmap;
        if (!QPixmapCache::find(key, &pixmap)) {
            pixmap = QPixmap(size);
            pixmap.fill(Qt::transparent);
            QPainter painter(&pixmap);
            Paint(painter, QRectF(QPointF(), size), m_name, color);
            painter.end();
            QPixmapCache::insert(key, pixmap);
        }
        return pixmap;
    }

    QIconEngine* clone() const override { return new Engine(*this); }

private:
    QColor Color(QIcon::Mode mode, QIcon::State state) const {
        const QString& token = mode == QIcon::Disabled ? m_colors.disabled
                               : state == QIcon::On    ? m_colors.checked
                                                       : m_colors.normal;
        return Theme::Instance()->Color(token);
    }

    QString m_name;
    ThemeIcon::Colors m_colors;
};

} // namespace

QRectF ThemeIcon::Square(const QRectF& rect) {
    const qreal side = qMin(rect.width(), rect.height());
    QRectF square(0, 0, side, side);
    square.moveCenter(rect.center());
    if (rect.width() > rect.height())
        square.moveLeft(QGuiApplication::isRightToLeft() ? rect.right() - side : rect.left());
    return square;
}

QIcon ThemeIcon::Get(const QString& name, const Colors& colors) {
    return QIcon(new Engine(name, colors));
}

QIcon ThemeIcon::Get(const QString& name, const QString& colorToken) {
    return Get(name, Colors{colorToken, colorToken, QStringLiteral("textDisabled")});
}

#include "widgets/Spinner.h"

#include "platform/context/Theme.h"
#include "widgets/ThemeIcon.h"

#include <QIconEngine>
#include <QObject>
#include <QPainter>

namespace {

constexpr int TickMs = 33;
constexpr int DegreesPerTick = 12;

} // namespace

class Spinner::Engine : public QIconEngine {
public:
    explicit Engine(std::shared_ptr<const State> state) : m_state(std::move(state)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode, QIcon::State) override {
        Spinner::Paint(*m_state, *painter, rect);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode, QIcon::State) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        Spinner::Paint(*m_state, painter, QRectF(QPointF(), size));
        return pixmap;
    }

    QIconEngine* clone() const override { return new Engine(*this); }

private:
    std::shared_ptr<const State> m_state;
};

Spinner::Spinner(const QString& colorToken) : m_state(std::make_shared<State>()) {
    m_state->colorToken = colorToken;
}

void Spinner::Start(QObject* owner) {
    m_timer.start(TickMs, owner);
}

void Spinner::Stop() {
    m_timer.stop();
}

bool Spinner::Tick(int timerId) {
    if (timerId != m_timer.timerId())
        return false;
    m_state->degrees = (m_state->degrees + DegreesPerTick) % 360;
    return true;
}

void Spinner::Paint(QPainter& painter, const QRectF& rect) const {
    Paint(*m_state, painter, rect);
}

QIcon Spinner::Icon() const {
    return QIcon(new Engine(m_state));
}

void Spinner::Paint(const State& state, QPainter& painter, const QRectF& rect) {
    const QRectF square = ThemeIcon::Square(rect);
    const qreal side = square.width();
    painter.save();
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.translate(square.center());
    painter.rotate(state.degrees);
    if (!state.picture.isNull()) {
        state.picture.paint(&painter, QRectF(-side / 2, -side / 2, side, side).toRect());
    } else {
        const qreal width = qMax(2.0, side / 9);
        const qreal radius = side / 2 - width;
        const QRectF circle(-radius, -radius, 2 * radius, 2 * radius);
        QColor color = Theme::Instance()->Color(state.colorToken);
        QColor track = color;
        track.setAlphaF(0.25);
        painter.setPen(QPen(track, width));
        painter.drawEllipse(circle);
        painter.setPen(QPen(color, width, Qt::SolidLine, Qt::RoundCap));
        painter.drawArc(circle, 90 * 16, -100 * 16);
    }
    painter.restore();
}

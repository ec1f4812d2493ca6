#include "enroll/UBodyEnrollTip.h"

#include "widgets/AccessibleRole.h"
#include "widgets/UTextLabel.h"

#include <QEvent>
#include <QPainter>
#include <QSvgRenderer>
#include <QVBoxLayout>
#include <array>

namespace {

constexpr int MostTextWidth = 420;
// Of the image: the corners, which keep their size, and the arrow in the one at the lower leading edge.
constexpr QMargins Corners(48, 16, 16, 28);
constexpr int ArrowTip = 28;

/// Draws the image as large as `place`: its corners keep their size, and what is between them is stretched.
void DrawStretched(QPainter& painter, QSvgRenderer& image, const QRect& place) {
    const QSize natural = image.defaultSize();
    const auto cuts = [](int size, int first, int last) {
        return std::array<int, 4>{0, first, size - last, size};
    };
    const auto fromX = cuts(natural.width(), Corners.left(), Corners.right());
    const auto fromY = cuts(natural.height(), Corners.top(), Corners.bottom());
    const auto toX = cuts(place.width(), Corners.left(), Corners.right());
    const auto toY = cuts(place.height(), Corners.top(), Corners.bottom());
    for (std::size_t y = 0; y < 3; ++y) {
        for (std::size_t x = 0; x < 3; ++x) {
            const QRect from(fromX[x], fromY[y], fromX[x + 1] - fromX[x], fromY[y + 1] - fromY[y]);
            const QRect to(toX[x], toY[y], toX[x + 1] - toX[x], toY[y + 1] - toY[y]);
            painter.save();
            painter.setClipRect(to);
            painter.translate(to.topLeft());
            painter.scale(qreal(to.width()) / from.width(), qreal(to.height()) / from.height());
            painter.translate(-from.topLeft());
            image.render(&painter, QRectF(QPointF(), natural));
            painter.restore();
        }
    }
}

} // namespace

UBodyEnrollTip::UBodyEnrollTip(QWidget* page)
    : QWidget(page), m_page(page), m_text(new UTextLabel("tipText")) {
    setObjectName(QStringLiteral("UTip"));
    setAttribute(Qt::WA_TransparentForMouseEvents); // what it lies over can still be pressed
    SetAccessibleRole(this, QAccessible::AlertMessage);
    m_gone.setObjectName(QStringLiteral("tipTimer"));
    m_gone.setSingleShot(true);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 12, 20, 12 + Corners.bottom() - Corners.top());
    layout->addWidget(m_text);
    connect(&m_gone, &QTimer::timeout, this, &QWidget::hide);
    connect(page, &QObject::destroyed, this, &QObject::deleteLater); // it may be over the page's window
    page->installEventFilter(this);
    LanguageChanges();
    hide();
}

void UBodyEnrollTip::ShowAt(QWidget* anchor, int milliseconds) {
    m_anchor = anchor;
    QWidget* window = m_page->window();
    if (parentWidget() != window)
        setParent(window);
    // Whatever of these moves or changes its size may move the anchor.
    for (QWidget* around = anchor; around; around = around == window ? nullptr : around->parentWidget())
        around->installEventFilter(this);
    Place();
    show();
    raise();
    m_gone.start(milliseconds);
    AnnounceAlert(this);
}

bool UBodyEnrollTip::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_page && event->type() == QEvent::Hide && !event->spontaneous())
        hide();
    else if (!isHidden() && (event->type() == QEvent::Move || event->type() == QEvent::Resize))
        Place();
    return QWidget::eventFilter(watched, event);
}

// Above the anchor, with the arrow on its leading end; within the window in every case.
void UBodyEnrollTip::Place() {
    if (!m_anchor)
        return;
    const QRect area = parentWidget()->rect();
    ensurePolished();
    m_text->ensurePolished();
    const int margins = layout()->contentsMargins().left() + layout()->contentsMargins().right();
    const int widest = qMin(MostTextWidth, area.width() - margins);
    m_text->setFixedWidth(qMax(1, qMin(widest, m_text->fontMetrics().horizontalAdvance(m_text->text()) + 4)));
    const int width = m_text->width() + margins;
    resize(width, layout()->totalHeightForWidth(width));
    const QRect anchor(m_anchor->mapTo(parentWidget(), QPoint()), m_anchor->size());
    const int towards = qMin(anchor.width(), anchor.height()) / 2;
    const int left =
        isRightToLeft() ? anchor.right() - towards + ArrowTip - width : anchor.left() + towards - ArrowTip;
    move(qBound(0, left, area.width() - width), qBound(0, anchor.top() - height(), area.height() - height()));
}

void UBodyEnrollTip::paintEvent(QPaintEvent*) {
    QSvgRenderer image(QStringLiteral(":/res/images/EnrollTip.svg"));
    QPainter painter(this);
    if (isRightToLeft()) {
        painter.translate(width(), 0);
        painter.scale(-1, 1);
    }
    DrawStretched(painter, image, rect());
}

void UBodyEnrollTip::LanguageChanges() {
    m_text->setText(tr("error_tip_uncheck_privacy"));
    setAccessibleName(m_text->text());
    if (!isHidden())
        Place();
}

void UBodyEnrollTip::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        LanguageChanges();
    else if (event->type() == QEvent::LayoutDirectionChange && !isHidden())
        Place();
    QWidget::changeEvent(event);
}

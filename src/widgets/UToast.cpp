#include "widgets/UToast.h"

#include "platform/application/WindowStack.h"
#include "platform/context/Theme.h"
#include "widgets/AccessibleRole.h"
#include "widgets/NoticeQueue.h"
#include "widgets/UIconLabel.h"
#include "widgets/UTextLabel.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <array>
#include <utility>

namespace {

constexpr int MaximumTextWidth = 560;
constexpr int DistanceToEdge = 32;
constexpr int IconSize = 24;
constexpr int LevelOnScreen = 1; // what must not be covered is above
constexpr std::array<const char*, 4> KindNames{"Info", "Success", "Warning", "Error"};

// Slow readers read some fifteen characters a second, and need a moment to notice the toast.
int ReadingTimeMs(const QString& message) {
    return qBound(4000, 2500 + message.size() * 65, 12000);
}

} // namespace

UToast::UToast(QWidget* parent, WhenBusy whenBusy)
    : QFrame(parent),
      m_whenBusy(whenBusy),
      m_owner(parent),
      m_icon(new UIconLabel(IconSize, this)),
      m_text(new UTextLabel("toastText", this)) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(20, 14, 24, 14);
    row->setSpacing(14);
    row->addWidget(m_icon, 0, Qt::AlignTop);
    row->addWidget(m_text, 1);
    SetAccessibleRole(this, QAccessible::AlertMessage);
    m_gone.setSingleShot(true);
    connect(&m_gone, &QTimer::timeout, this, &QWidget::hide);
    QFrame::setVisible(false);
}

UToast::~UToast() = default;

QString UToast::ShownMessage() const {
    return isHidden() ? QString() : m_text->text();
}

void UToast::setVisible(bool visible) {
    if (visible) {
        Request();
        return;
    }
    m_gone.stop();
    const bool wasShown = !isHidden();
    QFrame::setVisible(false);
    if (wasShown && m_queue)
        m_queue->Finish(this);
}

void UToast::StandOnScreen(const QRect& area) {
    m_area = area;
    if (isWindow() && property("TopLevel").isValid())
        return;
    setParent(nullptr);
    setWindowFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
                   Qt::WindowDoesNotAcceptFocus);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_TranslucentBackground);
    setProperty("TopLevel", LevelOnScreen);
    WindowStack::Instance()->PushWindow(this);
}

void UToast::Request() {
    if (!m_owner && m_area.isNull())
        return;
    QWidget* window = m_area.isNull() ? m_owner->window() : this;
    if (m_area.isNull() && parentWidget() != window)
        setParent(window);
    NoticeQueue* queue = NoticeQueue::Of(window, QStringLiteral("toast"));
    m_queue = queue;
    const Notice notice = m_next;
    if (m_whenBusy == WhenBusy::Replace) {
        queue->Withdraw(this);
        m_waiting.clear();
        if (!isHidden()) {
            Present(notice);
            return;
        }
    }
    if (ShownMessage() == notice.message)
        return m_gone.start();
    if (m_waiting.contains(notice.message))
        return;
    m_waiting.append(notice.message);
    queue->Add(this, [this, notice] { Present(notice); });
}

void UToast::Present(const Notice& notice) {
    const char* kind = KindNames[static_cast<size_t>(notice.kind)];
    m_icon->SetIcon(QString::fromLatin1(kind).toLower(), QStringLiteral("toast") + QLatin1String(kind));
    m_waiting.removeOne(notice.message);
    m_text->setText(notice.message);
    setAccessibleName(notice.message);
    m_onPress = notice.action;
    // A toast is in nobody's way: what lies under it can still be pressed.
    setAttribute(Qt::WA_TransparentForMouseEvents, !m_onPress);
    setCursor(m_onPress ? Qt::PointingHandCursor : Qt::ArrowCursor);
    if (parentWidget()) {
        parentWidget()->removeEventFilter(this);
        parentWidget()->installEventFilter(this);
    }
    QFrame::setVisible(true);
    Place();
    raise();
    m_gone.start(m_duration > 0 ? m_duration : ReadingTimeMs(notice.message));
    AnnounceAlert(this);
}

void UToast::Place() {
    const QRect area = parentWidget() ? parentWidget()->rect() : m_area;
    ensurePolished();
    m_text->ensurePolished();
    const QFontMetrics metrics = m_text->fontMetrics();
    const int widest = qMin(MaximumTextWidth, area.width() - 2 * DistanceToEdge - IconSize - 58);
    m_text->setFixedWidth(qMax(1, qMin(widest, metrics.horizontalAdvance(m_text->text()) + 4)));
    layout()->activate();
    const int height = layout()->hasHeightForWidth()
                           ? layout()->totalHeightForWidth(layout()->totalSizeHint().width())
                           : sizeHint().height();
    resize(layout()->totalSizeHint().width(), height);
    move(area.left() + (area.width() - width()) / 2,
         area.top() + area.height() - this->height() - DistanceToEdge);
}

bool UToast::eventFilter(QObject* watched, QEvent* event) {
    if (watched == parentWidget() && event->type() == QEvent::Resize && !isHidden())
        Place();
    return QFrame::eventFilter(watched, event);
}

void UToast::changeEvent(QEvent* event) {
    QFrame::changeEvent(event);
    if (event->type() == QEvent::StyleChange && !isHidden())
        Place();
}

// Qt itself paints no background in a window that can be seen through.
void UToast::paintEvent(QPaintEvent* event) {
    if (isWindow()) {
        QStyleOption option;
        option.initFrom(this);
        QPainter painter(this);
        style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
    }
    QFrame::paintEvent(event);
}

void UToast::mouseReleaseEvent(QMouseEvent*) {
    const std::function<void()> onPress = std::exchange(m_onPress, {});
    hide();
    if (onPress)
        onPress();
}

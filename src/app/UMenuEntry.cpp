#include "app/UMenuEntry.h"

#include "platform/context/Theme.h"
#include "widgets/ThemeIcon.h"

#include <QAccessibleWidget>
#include <QStyleOptionButton>
#include <QStylePainter>

namespace {

constexpr int Height = 52;
constexpr int Padding = 16;
constexpr int IconSize = 24;
constexpr int MarkSize = 18;
constexpr int CompactMarkSize = 14;
constexpr int Gap = 14;

// To assistive technology the menu is a list of tabs of which one is selected.
class Accessible : public QAccessibleWidget {
public:
    explicit Accessible(UMenuEntry* entry) : QAccessibleWidget(entry, QAccessible::PageTab) {}

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.selectable = true;
        state.selected = static_cast<QPushButton*>(widget())->isChecked();
        return state;
    }
    QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString& name) override {
        if (name == pressAction())
            static_cast<QPushButton*>(widget())->click();
    }
};

QAccessibleInterface* MakeInterface(const QString&, QObject* object) {
    auto* entry = qobject_cast<UMenuEntry*>(object);
    return entry ? new Accessible(entry) : nullptr;
}

} // namespace

UMenuEntry::UMenuEntry(const QString& icon, QWidget* parent) : QPushButton(parent), m_icon(icon) {
    static const bool accessible = [] {
        QAccessible::installFactory(MakeInterface);
        return true;
    }();
    Q_UNUSED(accessible)
    setCheckable(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

// Not auto-exclusive: Tab would then stop at the selected entry alone.
void UMenuEntry::nextCheckState() {
    setChecked(true);
}

void UMenuEntry::SetCompact(bool compact) {
    m_compact = compact;
    UpdateToolTip();
    updateGeometry();
    update();
}

void UMenuEntry::SetName(const QString& name) {
    m_name = name;
    setAccessibleName(name);
    UpdateToolTip();
    updateGeometry();
    update();
}

void UMenuEntry::SetMark(const QString& icon, const QString& meaning) {
    if (m_mark == icon && m_markMeaning == meaning)
        return;
    m_mark = icon;
    m_markMeaning = meaning;
    setAccessibleDescription(meaning);
    UpdateToolTip();
    update();
}

void UMenuEntry::UpdateToolTip() {
    setToolTip(m_markMeaning.isEmpty() ? (m_compact ? m_name : QString())
                                       : QStringLiteral("%1: %2").arg(m_name, m_markMeaning));
}

// Room for the mark is always kept, so that the menu does not change its width when one comes.
QSize UMenuEntry::sizeHint() const {
    if (m_compact)
        return {Height, Height};
    ensurePolished();
    return {Padding + IconSize + Gap + fontMetrics().horizontalAdvance(m_name) + Gap + MarkSize + Padding,
            Height};
}

void UMenuEntry::paintEvent(QPaintEvent*) {
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    painter.drawControl(QStyle::CE_PushButtonBevel, option);

    const auto place = [&](const QRect& logical) {
        return QStyle::visualRect(layoutDirection(), rect(), logical);
    };
    const QString token = isChecked() ? QStringLiteral("accentSoftText") : QStringLiteral("text");
    const int iconX = m_compact ? (width() - IconSize) / 2 : Padding;
    ThemeIcon::Get(m_icon, token)
        .paint(&painter, place({iconX, (height() - IconSize) / 2, IconSize, IconSize}));
    if (isChecked()) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(Theme::Instance()->Color(QStringLiteral("accent")));
        painter.drawRoundedRect(place({5, 15, 4, height() - 30}), 2, 2);
    }
    if (!m_mark.isEmpty()) {
        const QRect mark =
            m_compact ? QRect(width() - CompactMarkSize - 3, 3, CompactMarkSize, CompactMarkSize)
                      : QRect(width() - Padding - MarkSize, (height() - MarkSize) / 2, MarkSize, MarkSize);
        ThemeIcon::Get(m_mark, token).paint(&painter, place(mark));
    }
    if (!m_compact) {
        const int textX = Padding + IconSize + Gap;
        const QRect area(textX, 0, width() - textX - Padding - MarkSize - Gap, height());
        painter.setPen(Theme::Instance()->Color(token));
        painter.drawText(place(area), Qt::AlignVCenter | Qt::AlignLeading | Qt::TextSingleLine, m_name);
    }
}

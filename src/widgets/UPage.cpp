#include "widgets/UPage.h"

#include "widgets/GestureScrollArea.h"
#include "widgets/UBackButton.h"
#include "widgets/UIconLabel.h"
#include "widgets/UTextLabel.h"

#include <QEvent>
#include <QScrollBar>
#include <QVBoxLayout>

namespace {

constexpr int ContentWidth = 860;
constexpr int Margin = 32;
constexpr int NarrowMargin = 16;
constexpr int NarrowWidth = 600;

} // namespace

UPage::UPage(const QString& icon, QWidget* parent)
    : QWidget(parent),
      m_back(new UBackButton),
      m_title(new UTextLabel("pageTitle")),
      m_sentence(new UTextLabel("pageSentence")),
      m_content(new QVBoxLayout),
      m_scroll(new GestureScrollArea),
      m_margins(nullptr) {
    m_back->hide();
    m_content->setSpacing(16);
    connect(m_back, &QPushButton::clicked, this, &UPage::BackRequested);

    auto* title = new QHBoxLayout;
    title->setSpacing(14);
    title->addWidget(new UIconLabel(32, icon, QStringLiteral("accent")));
    title->addWidget(m_title, 1);

    auto* body = new QWidget;
    body->setObjectName(QStringLiteral("pageContent"));
    body->setMaximumWidth(ContentWidth);
    auto* column = new QVBoxLayout(body);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(16);
    column->addWidget(m_back, 0, Qt::AlignLeading);
    column->addLayout(title);
    column->addWidget(m_sentence);
    column->addSpacing(4);
    column->addLayout(m_content);
    column->addStretch();

    auto* ground = new QWidget;
    ground->setObjectName(QStringLiteral("pageBackground"));
    m_margins = new QHBoxLayout(ground);
    m_margins->addWidget(body);
    m_scroll->setWidget(ground);
    m_scroll->setWidgetResizable(true);
    m_scroll->setFocusPolicy(Qt::NoFocus);
    connect(m_scroll->verticalScrollBar(), &QScrollBar::rangeChanged, this, &UPage::UpdateMargins);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_scroll, 1);
}

void UPage::ShowBackButton() {
    m_back->show();
    setFocusProxy(m_back);
}

void UPage::SetTitle(const QString& title) {
    m_title->setText(title);
    setAccessibleName(title);
}

void UPage::SetSentence(const QString& sentence) {
    m_sentence->setText(sentence);
}

void UPage::SetFooter(QWidget* widget) {
    widget->setMaximumWidth(ContentWidth);
    auto* footer = new QFrame;
    footer->setObjectName(QStringLiteral("pageFooter"));
    m_footerMargins = new QHBoxLayout(footer);
    m_footerMargins->addWidget(widget);
    layout()->addWidget(footer);
    UpdateMargins();
}

void UPage::ScrollToEnd() {
    m_scroll->verticalScrollBar()->setValue(m_scroll->verticalScrollBar()->maximum());
}

// The footer keeps below what is scrolled, and so does not reach below the scroll bar.
void UPage::UpdateMargins() {
    const int margin = width() < NarrowWidth ? NarrowMargin : Margin;
    m_margins->setContentsMargins(margin, margin, margin, margin);
    if (!m_footerMargins)
        return;
    const QScrollBar* bar = m_scroll->verticalScrollBar();
    const int barWidth = bar->maximum() > 0 ? bar->sizeHint().width() : 0;
    m_footerMargins->setContentsMargins(margin + (isRightToLeft() ? barWidth : 0), NarrowMargin,
                                        margin + (isRightToLeft() ? 0 : barWidth), NarrowMargin);
}

void UPage::resizeEvent(QResizeEvent* event) {
    UpdateMargins();
    QWidget::resizeEvent(event);
}

void UPage::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LayoutDirectionChange)
        UpdateMargins();
    QWidget::changeEvent(event);
}

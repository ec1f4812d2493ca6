#include "widgets/UFactsPage.h"

#include "platform/application/RyxWindow.h"
#include "platform/context/AppContextData.h"
#include "widgets/GestureScrollArea.h"
#include "widgets/UBackButton.h"
#include "widgets/UIconLabel.h"
#include "widgets/UTextLabel.h"

#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <utility>

namespace {

constexpr int ContentWidth = 860;
constexpr int Margin = 32;
constexpr int NarrowMargin = 16;
constexpr int NarrowWidth = 600;

} // namespace

UFactsPage::UFactsPage(PageContent content, QWidget* parent)
    : QWidget(parent),
      m_content(std::move(content)),
      m_margins(nullptr),
      m_back(new UBackButton),
      m_icon(new UIconLabel(32)),
      m_title(new UTextLabel("pageTitle")),
      m_sentence(new UTextLabel("pageSentence")),
      m_card(new QFrame),
      m_rows(new QGridLayout(m_card)),
      m_own(new QVBoxLayout),
      m_note(new UTextLabel("pageNote")) {
    m_card->setObjectName(QStringLiteral("card"));
    m_rows->setContentsMargins(24, 12, 24, 12);
    m_rows->setHorizontalSpacing(16);
    m_rows->setVerticalSpacing(0);
    m_rows->setColumnStretch(1, 2);
    m_rows->setColumnStretch(2, 5);
    m_own->setSpacing(16);
    m_back->hide();
    connect(m_back, &QPushButton::clicked, this, &UFactsPage::BackRequested);

    auto* title = new QHBoxLayout;
    title->setSpacing(14);
    title->addWidget(m_icon);
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
    column->addWidget(m_card);
    column->addLayout(m_own);
    column->addWidget(m_note);
    column->addStretch();

    auto* page = new QWidget;
    page->setObjectName(QStringLiteral("pageBackground"));
    auto* centred = new QHBoxLayout(page);
    centred->addWidget(body);
    m_margins = centred;
    auto* scroll = new GestureScrollArea;
    scroll->setWidget(page);
    scroll->setWidgetResizable(true);
    scroll->setFocusPolicy(Qt::NoFocus);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(scroll);
    Retranslate();
}

void UFactsPage::AddWidget(QWidget* widget) {
    m_own->addWidget(widget);
}

void UFactsPage::SetFooter(QWidget* widget) {
    widget->setMaximumWidth(ContentWidth);
    auto* footer = new QFrame;
    footer->setObjectName(QStringLiteral("pageFooter"));
    auto* centred = new QHBoxLayout(footer);
    centred->addWidget(widget);
    m_footerMargins = centred;
    layout()->addWidget(footer);
}

void UFactsPage::ShowBackButton() {
    m_back->show();
    setFocusProxy(m_back);
}

void UFactsPage::Refresh() {
    const QVector<PageFact> facts = m_content.facts ? m_content.facts(this) : QVector<PageFact>();
    if (facts != m_facts)
        ShowFacts(facts);
    m_card->setVisible(!facts.isEmpty());
}

void UFactsPage::ShowFacts(const QVector<PageFact>& facts) {
    m_facts = facts;
    while (QLayoutItem* item = m_rows->takeAt(0)) {
        delete item->widget();
        delete item;
    }
    int row = 0;
    for (const PageFact& fact : facts) {
        auto* icon = new UIconLabel(22, fact.icon, QStringLiteral("textMuted"));
        auto* label = new UTextLabel("factLabel");
        label->setText(fact.label);
        auto* value = new UTextLabel("factValue");
        value->setText(fact.value);
        value->setTextInteractionFlags(Qt::TextSelectableByMouse);
        // A value stands beside its label, whatever script it is written in.
        value->setAlignment(Qt::AlignVCenter | Qt::AlignAbsolute |
                            (isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft));
        m_rows->addWidget(icon, row, 0);
        m_rows->addWidget(label, row, 1);
        m_rows->addWidget(value, row, 2);
        m_rows->setRowMinimumHeight(row, 48);
        ++row;
    }
}

void UFactsPage::showEvent(QShowEvent* event) {
    Refresh();
    RyxWindow* window = RyxWindow::Of(this);
    if (window && !m_following) {
        const auto follow = [this] {
            if (isVisible())
                Refresh();
        };
        connect(window, &RyxWindow::LinkStatusChanged, this, follow);
        connect(AppContextData::Instance(), &AppContextData::Changed, this, follow);
        m_following = true;
    }
    QWidget::showEvent(event);
}

void UFactsPage::resizeEvent(QResizeEvent* event) {
    const int margin = width() < NarrowWidth ? NarrowMargin : Margin;
    m_margins->setContentsMargins(margin, margin, margin, margin);
    if (m_footerMargins)
        m_footerMargins->setContentsMargins(margin, NarrowMargin, margin, NarrowMargin);
    QWidget::resizeEvent(event);
}

void UFactsPage::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        Retranslate();
    QWidget::changeEvent(event);
}

void UFactsPage::Retranslate() {
    const auto text = [](const char* key) { return *key ? tr(key) : QString(); };
    m_icon->SetIcon(QString::fromLatin1(m_content.icon), QStringLiteral("accent"));
    m_title->setText(text(m_content.title));
    m_sentence->setText(text(m_content.sentence));
    m_note->setText(text(m_content.note));
    m_note->setVisible(*m_content.note);
    setAccessibleName(m_title->text());
    // Also in the other direction of reading.
    m_facts.clear();
    Refresh();
}

#include "widgets/UFactsPage.h"

#include "platform/application/RyxWindow.h"
#include "platform/context/AppContextData.h"
#include "widgets/UIconLabel.h"
#include "widgets/UTextLabel.h"

#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <utility>

UFactsPage::UFactsPage(PageContent content, QWidget* parent)
    : UPage(QString::fromLatin1(content.icon), parent),
      m_content(std::move(content)),
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
    Content().addWidget(m_card);
    Content().addLayout(m_own);
    Content().addWidget(m_note);
    Retranslate();
}

void UFactsPage::AddWidget(QWidget* widget) {
    m_own->addWidget(widget);
}

void UFactsPage::Refresh() {
    const QVector<PageFact> facts = m_content.facts ? m_content.facts(this) : QVector<PageFact>();
    if (facts != m_facts)
        ShowFacts(facts);
    m_card->setVisible(!facts.isEmpty());
}

QString UFactsPage::FactsText() const {
    QString text;
    for (const PageFact& fact : m_facts)
        text += QStringLiteral("%1: %2\n").arg(fact.label, fact.value);
    return text;
}

Qt::Alignment UFactsPage::ValueAlignment(const QWidget* widget) {
    return Qt::AlignVCenter | Qt::AlignAbsolute | (widget->isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft);
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
        value->setAlignment(ValueAlignment(this));
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
    UPage::showEvent(event);
}

void UFactsPage::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        Retranslate();
    UPage::changeEvent(event);
}

void UFactsPage::Retranslate() {
    const auto text = [](const char* key) { return *key ? tr(key) : QString(); };
    SetTitle(text(m_content.title));
    SetSentence(text(m_content.sentence));
    m_note->setText(text(m_content.note));
    m_note->setVisible(*m_content.note);
    // Also in the other direction of reading.
    m_facts.clear();
    Refresh();
}

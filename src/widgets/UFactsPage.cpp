#include "app/URoomPage.h"

#include "platform/application/RyxWindow.h"
#include "widgets/GestureScrollArea.h"
#include "widgets/UBackButton.h"
#include "widgets/UIconLabel.h"
#include "widgets/UTextLabel.h"

#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace {

constexpr int ContentWidth = 860;
constexpr int Margin = 32;
constexpr int NarrowMargin = 16;
constexpr int NarrowWidth = 600;

} // namespace

URoomPage::URoomPage(QWidget* parent)
    : QWidget(parent),
      m_column(nullptr),
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
    connect(m_back, &QPushButton::clicked, this, &URoomPage::BackRequested);

    auto* title = new QHBoxLayout;
    title->setSpacing(14);
    title->addWidget(m_icon);
    title->addWidget(m_title, 1);

    auto* content = new QWidget;
    content->setObjectName(QStringLiteral("pageContent"));
    content->setMaximumWidth(ContentWidth);
    m_column = new QVBoxLayout(content);
    m_column->setContentsMargins(0, 0, 0, 0);
    m_column->setSpacing(16);
    m_column->addWidget(m_back, 0, Qt::AlignLeading);
    m_column->addLayout(title);
    m_column->addWidget(m_sentence);
    m_column->addSpacing(4);
    m_column->addWidget(m_card);
    m_column->addLayout(m_own);
    m_column->addWidget(m_note);
    m_column->addStretch();

    auto* page = new QWidget;
    page->setObjectName(QStringLiteral("pageBackground"));
    auto* centred = new QHBoxLayout(page);
    centred->addWidget(content);
    m_margins = centred;
    auto* scroll = new GestureScrollArea;
    scroll->setWidget(page);
    scroll->setWidgetResizable(true);
    scroll->setFocusPolicy(Qt::NoFocus);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(scroll);
}

URoomPage::URoomPage(const RoomContent& content, QWidget* parent) : URoomPage(parent) {
    SetContent(content);
}

void URoomPage::SetContent(const RoomContent& content) {
    m_content = content;
    Retranslate();
}

void URoomPage::AddWidget(QWidget* widget) {
    m_own->addWidget(widget);
}

void URoomPage::ShowBackButton() {
    m_back->show();
    setFocusProxy(m_back);
}

void URoomPage::Refresh() {
    while (QLayoutItem* item = m_rows->takeAt(0)) {
        delete item->widget();
        delete item;
    }
    const QVector<RoomFact> facts = m_content.facts ? m_content.facts() : QVector<RoomFact>();
    int row = 0;
    for (const RoomFact& fact : facts) {
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
    m_card->setVisible(!facts.isEmpty());
}

void URoomPage::showEvent(QShowEvent* event) {
    Refresh();
    RyxWindow* window = RyxWindow::Of(this);
    if (window && !m_following) {
        connect(window, &RyxWindow::LinkStatusChanged, this, &URoomPage::Refresh);
        connect(window, &RyxWindow::DeviceInfoChanged, this, &URoomPage::Refresh);
        m_following = true;
    }
    QWidget::showEvent(event);
}

void URoomPage::resizeEvent(QResizeEvent* event) {
    const int margin = width() < NarrowWidth ? NarrowMargin : Margin;
    m_margins->setContentsMargins(margin, margin, margin, margin);
    QWidget::resizeEvent(event);
}

void URoomPage::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        Retranslate();
    QWidget::changeEvent(event);
}

void URoomPage::Retranslate() {
    const auto text = [](const char* key) { return *key ? tr(key) : QString(); };
    m_icon->SetIcon(QString::fromLatin1(m_content.icon), QStringLiteral("accent"));
    m_title->setText(text(m_content.title));
    m_sentence->setText(text(m_content.sentence));
    m_note->setText(text(m_content.note));
    m_note->setVisible(*m_content.note);
    setAccessibleName(m_title->text());
    Refresh();
}

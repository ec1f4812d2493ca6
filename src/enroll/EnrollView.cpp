#include "enroll/EnrollView.h"

#include "enroll/EnrollForm.h"
#include "platform/context/Theme.h"
#include "widgets/AccessibleRole.h"
#include "widgets/GestureScrollArea.h"
#include "widgets/UIconLabel.h"
#include "widgets/UTextButton.h"
#include "widgets/UTextLabel.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QScrollBar>
#include <QStyle>

namespace {

constexpr int ContentWidth = 860;
constexpr int Margin = 32;
constexpr int NarrowMargin = 16;
constexpr int NarrowWidth = 600;
constexpr int AboveToasts = 34; // between the button and what a toast must not hide

} // namespace

EnrollView::EnrollView(QWidget* parent)
    : QWidget(parent),
      m_title(new UTextLabel("pageTitle")),
      m_sentence(new UTextLabel("pageSentence")),
      m_form(new EnrollForm),
      m_scroll(new GestureScrollArea),
      m_margins(nullptr),
      m_errorArea(new UTextLabel("enrolError")),
      m_status(new QWidget),
      m_statusText(new UTextLabel("enrolStatusText")),
      m_bind(new UTextButton(UTextButton::Look::Primary)) {
    m_scroll->setObjectName(QStringLiteral("enrolScroll"));
    m_scroll->setWidget(MakeContent());
    m_scroll->setWidgetResizable(true);
    m_scroll->setFocusPolicy(Qt::NoFocus);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_scroll, 1);
    column->addWidget(MakeFooter());
    connect(m_bind, &QPushButton::clicked, this, &EnrollView::ButtonClicked);
    SetButton(ButtonState::Bind);
    ShowEnrolled(false);
    SetErrorAreaVisible(false);
    LanguageChanges();
}

QWidget* EnrollView::MakeContent() {
    auto* title = new QHBoxLayout;
    title->setSpacing(14);
    title->addWidget(new UIconLabel(32, QStringLiteral("enrolment"), QStringLiteral("accent")));
    title->addWidget(m_title, 1);
    auto* content = new QWidget;
    content->setObjectName(QStringLiteral("pageContent"));
    content->setMaximumWidth(ContentWidth);
    auto* column = new QVBoxLayout(content);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(16);
    column->addLayout(title);
    column->addWidget(m_sentence);
    column->addWidget(m_form);
    column->addStretch();
    auto* ground = new QWidget;
    ground->setObjectName(QStringLiteral("pageBackground"));
    m_margins = new QHBoxLayout(ground);
    m_margins->addWidget(content);
    return ground;
}

QWidget* EnrollView::MakeFooter() {
    m_bind->setObjectName(QStringLiteral("bindButton"));
    m_bind->SetLoadingIcon(QStringLiteral(":/res/images/ic_32_loading red.svg"));
    auto* status = new QHBoxLayout(m_status);
    status->setContentsMargins(0, 0, 0, 0);
    status->setSpacing(10);
    status->addWidget(new UIconLabel(24, QStringLiteral("success"), QStringLiteral("statusConnected")));
    status->addWidget(m_statusText, 1);

    auto* row = new QHBoxLayout;
    row->setSpacing(16);
    row->addWidget(m_status, 1);
    row->addStretch();
    row->addWidget(m_bind);
    auto* bar = new QWidget;
    bar->setMaximumWidth(ContentWidth);
    auto* column = new QVBoxLayout(bar);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(AboveToasts);
    column->addWidget(m_errorArea);
    column->addLayout(row);
    auto* middle = new QWidget; // as wide as it may be, other than a layout with the bar alone
    auto* centred = new QHBoxLayout(middle);
    centred->setContentsMargins(0, 0, 0, 0);
    centred->addWidget(bar);
    auto* besideBar = new QWidget; // below the form's scroll bar
    auto* footer = new QFrame;
    footer->setObjectName(QStringLiteral("enrolFooter"));
    auto* whole = new QHBoxLayout(footer);
    whole->setContentsMargins(NarrowMargin, 12, NarrowMargin, 12);
    whole->setSpacing(0);
    whole->addWidget(middle, 1);
    whole->addWidget(besideBar);
    const auto follow = [besideBar, scrollBar = m_scroll->verticalScrollBar()](int, int most) {
        besideBar->setFixedWidth(
            most > 0 ? scrollBar->style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, scrollBar) : 0);
    };
    connect(m_scroll->verticalScrollBar(), &QScrollBar::rangeChanged, besideBar, follow);
    follow(0, 0);
    return footer;
}

EnrollView::ButtonState EnrollView::Button() const {
    return static_cast<ButtonState>(m_bind->property("ButtonState").toInt());
}

void EnrollView::SetButton(ButtonState state) {
    Theme::SetProperty(m_bind, "ButtonState", static_cast<int>(state));
    switch (state) {
    case ButtonState::Bind:
        m_bind->setText(tr("view_register_windows_title_bind_state"));
        break;
    case ButtonState::Connect:
        m_bind->setText(tr("view_register_windows_button_connect"));
        break;
    case ButtonState::Unbind:
        m_bind->setText(tr("view_register_windows_title_unbind_state"));
        break;
    }
    if (state != ButtonState::Connect) // one that is not connected may be enrolled
        Theme::SetProperty(m_bind, "isEnroll", state == ButtonState::Unbind);
}

void EnrollView::SetLoading(bool loading) {
    m_bind->SetLook(loading ? UTextButton::Look::Secondary : UTextButton::Look::Primary);
    m_bind->SetLoading(loading);
}

void EnrollView::SetReadOnly(bool readOnly) {
    m_readOnly = readOnly;
    m_form->SetAllEditAble(!readOnly);
    m_sentence->setText(readOnly ? tr("enrolment_sentence") : tr("enrolment_sentence_form"));
}

void EnrollView::ShowEnrolled(bool enrolled) {
    Theme::SetProperty(m_status, "isEnroll", enrolled);
    m_status->setVisible(enrolled);
}

void EnrollView::SetErrorAreaVisible(bool visible) {
    m_errorArea->setVisible(visible);
}

void EnrollView::ScrollToEnd() {
    m_scroll->verticalScrollBar()->setValue(m_scroll->verticalScrollBar()->maximum());
}

void EnrollView::ScrollTo(QWidget& part) {
    m_scroll->ensureWidgetVisible(&part);
}

void EnrollView::resizeEvent(QResizeEvent* event) {
    const int margin = width() < NarrowWidth ? NarrowMargin : Margin;
    m_margins->setContentsMargins(margin, margin, margin, margin);
    QWidget::resizeEvent(event);
}

void EnrollView::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        LanguageChanges();
    QWidget::changeEvent(event);
}

void EnrollView::LanguageChanges() {
    m_title->setText(tr("enrolment_title"));
    m_errorArea->setText(tr("bind_result_error_area"));
    m_statusText->setText(tr("enrolment_state_enrolled"));
    m_form->LanguageChanges();
    SetReadOnly(m_readOnly);
    SetButton(Button());
}

#include "popups/PopupPanel.h"

#include "platform/context/ShownText.h"
#include "widgets/AccessibleRole.h"
#include "widgets/UElidedLabel.h"
#include "widgets/UIconLabel.h"
#include "widgets/UTextButton.h"
#include "widgets/UTextLabel.h"

#include <QGridLayout>
#include <QStackedLayout>

namespace {

constexpr int Width = 460;
constexpr int IconSize = 32;

QWidget* WithIcon(const QString& icon, const QString& color, QWidget* text) {
    auto* page = new QWidget;
    auto* row = new QHBoxLayout(page);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(14);
    row->addWidget(new UIconLabel(IconSize, icon, color));
    row->addWidget(text, 1);
    return page;
}

} // namespace

PopupPanel::PopupPanel(QWidget* parent)
    : QFrame(parent),
      m_pages(new QStackedLayout),
      m_hint(new UTextLabel("pickerText")),
      m_icon(new QLabel),
      m_of(new UTextLabel("popupNote")),
      m_program(new UElidedLabel),
      m_title(new UElidedLabel),
      m_refusal(new UTextLabel("pickerText")),
      m_cancel(new UTextButton),
      m_report(new UTextButton(UTextButton::Look::Primary)) {
    setObjectName(QStringLiteral("pickerPanel"));
    SetAccessibleRole(this, QAccessible::Dialog);
    m_program->setObjectName(QStringLiteral("popupProgram"));
    m_title->setObjectName(QStringLiteral("pickerTitle"));
    m_cancel->setObjectName(QStringLiteral("cancelButton"));
    m_report->setObjectName(QStringLiteral("reportButton"));
    m_icon->setFixedSize(IconSize, IconSize);
    m_program->SetText(QStringLiteral("WPS"));

    auto* window = new QWidget;
    auto* grid = new QGridLayout(window);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(14);
    grid->setVerticalSpacing(2);
    grid->setColumnStretch(1, 1);
    grid->addWidget(m_icon, 0, 0, 3, 1);
    grid->addWidget(m_of, 0, 1);
    grid->addWidget(m_program, 1, 1);
    grid->addWidget(m_title, 2, 1);
    m_pages->addWidget(WithIcon(QStringLiteral("features"), QStringLiteral("accent"), m_hint));
    m_pages->addWidget(window);
    m_pages->addWidget(WithIcon(QStringLiteral("warning"), QStringLiteral("warning"), m_refusal));

    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(12);
    buttons->addStretch();
    buttons->addWidget(m_cancel);
    buttons->addWidget(m_report);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(20, 16, 20, 16);
    column->setSpacing(16);
    column->addLayout(m_pages);
    column->addLayout(buttons);
    setFixedWidth(Width);

    connect(m_report, &QPushButton::clicked, this, &PopupPanel::ReportPressed);
    connect(m_cancel, &QPushButton::clicked, this, &PopupPanel::CancelPressed);
    ShowHint();
}

void PopupPanel::SetHint(const QString& hint) {
    m_hint->setText(hint);
    ShowHint();
}

void PopupPanel::ShowHint() {
    m_cancel->SetLoading(false);
    setAccessibleName(m_hint->text());
    Show(Page::Hint);
}

void PopupPanel::ShowBusy() {
    ShowHint();
    m_cancel->SetLoading(true);
}

void PopupPanel::ShowWindow(const QPixmap& icon, const QString& program, const QString& title) {
    m_icon->setPixmap(icon);
    m_program->SetText(ShownText(program));
    m_title->SetText(ShownText(title));
    m_title->setVisible(!title.isEmpty());
    setAccessibleName(m_of->text() + QLatin1Char(' ') + program);
    setAccessibleDescription(title);
    Show(Page::Window);
    m_report->setFocus();
}

void PopupPanel::ShowRefusal() {
    setAccessibleName(m_refusal->text());
    Show(Page::Refusal);
    m_cancel->setFocus();
}

void PopupPanel::SetReportEnabled(bool enabled) {
    m_report->setEnabled(enabled);
}

void PopupPanel::Show(Page page) {
    m_cancel->SetLoading(false);
    m_pages->setCurrentIndex(static_cast<int>(page));
    m_report->setVisible(page == Page::Window);
    if (page != Page::Hint)
        AnnounceAlert(this);
}

void PopupPanel::Retranslate() {
    m_of->setText(tr("str_pop_ups_"));
    m_refusal->setText(tr("str_this_pop_ups_no_support"));
    m_cancel->setText(tr("file_publish_cancel"));
    m_report->setText(tr("str_report"));
}

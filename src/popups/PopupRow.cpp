#include "popups/PopupRow.h"

#include "platform/context/LanguageHelper.h"
#include "platform/context/ShownText.h"
#include "popups/ProgramIcon.h"
#include "widgets/UElidedLabel.h"
#include "widgets/UTextButton.h"
#include "widgets/UTextLabel.h"

#include <QEvent>
#include <QGridLayout>

namespace {

constexpr int IconSize = 32;

QString Words(const std::string& utf8) {
    return utf8.empty() ? PopupRow::tr("popups_none") : ShownText(QString::fromStdString(utf8));
}

} // namespace

PopupRow::PopupRow(QWidget* parent)
    : QFrame(parent),
      m_icon(new QLabel),
      m_program(new UElidedLabel),
      m_title(new UElidedLabel),
      m_rule(new UTextLabel("popupNote")),
      m_time(new UTextLabel("popupTime")),
      m_state(new UTextLabel("popupState")),
      m_wrong(new UTextButton(UTextButton::Look::Plain)) {
    m_program->setObjectName(QStringLiteral("popupProgram"));
    m_wrong->setObjectName(QStringLiteral("popupWrong"));
    m_icon->setFixedSize(IconSize, IconSize);
    m_time->setWordWrap(false);
    m_time->setAlignment(Qt::AlignTrailing | Qt::AlignVCenter);

    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(16, 12, 16, 12);
    grid->setHorizontalSpacing(14);
    grid->setVerticalSpacing(2);
    grid->setColumnStretch(1, 1);
    grid->addWidget(m_icon, 0, 0, 2, 1);
    grid->addWidget(m_program, 0, 1);
    grid->addWidget(m_time, 0, 2);
    grid->addWidget(m_title, 1, 1, 1, 2);
    grid->addWidget(m_rule, 2, 1);
    grid->addWidget(m_state, 3, 1);
    grid->addWidget(m_wrong, 2, 2, 2, 1, Qt::AlignTrailing | Qt::AlignVCenter);
    connect(m_wrong, &QPushButton::clicked, this, [this] {
        if (!m_wrong->IsLoading())
            emit ReportedWrong(m_record.rule);
    });
}

void PopupRow::Show(const PopupRecord& record, Rule rule, const QDate& today) {
    const bool isOther = m_record.rule.popDirectory != record.rule.popDirectory ||
                         m_record.rule.appName != record.rule.appName || m_record.times == 0;
    m_record = record;
    m_ruleState = rule;
    m_today = today;
    if (isOther)
        ShowIcon();
    ShowRecord();
}

void PopupRow::ShowIcon() {
    const QString path = QString::fromStdString(m_record.rule.popDirectory + '/' + m_record.rule.appName);
    m_icon->setPixmap(ProgramIcon::Shown(path).pixmap(IconSize, IconSize));
}

void PopupRow::SetWaiting(bool waiting) {
    m_wrong->SetLoading(waiting);
}

QWidget* PopupRow::TabStop() const {
    return m_wrong;
}

void PopupRow::ShowRecord() {
    const PopupsTypeParams& rule = m_record.rule;
    const QLocale locale = LanguageHelper::Instance()->Locale();
    const bool isOfToday = m_record.last.date() == m_today;
    const QString time = isOfToday ? locale.toString(m_record.last.time(), QLocale::ShortFormat)
                                   : locale.toString(m_record.last, QLocale::ShortFormat);
    m_program->SetText(Words(rule.appName));
    m_title->SetText(Words(rule.popName));
    m_rule->setText(tr("popups_rule").arg(Words(rule.popClassName), Words(rule.popProductName)));
    m_time->setText(m_record.times == 1 ? time
                                        : tr("popups_times").arg(time, locale.toString(m_record.times)));
    QStringList states;
    if (m_record.stillOpen)
        states += tr("popups_still_open");
    if (m_ruleState == Rule::Dropped)
        states += tr("popups_dropped");
    m_state->setText(states.join(QLatin1Char('\n')));
    m_state->setVisible(!states.isEmpty());
    // The focus would go to another row's button, the page to that row, and a second press would hit it.
    if (m_ruleState != Rule::InForce && window()->focusWidget() == m_wrong)
        setFocus();
    m_wrong->setVisible(m_ruleState == Rule::InForce);
    m_wrong->setText(tr("popups_wrong"));
    m_wrong->setAccessibleName(tr("popups_wrong_name").arg(m_program->Text(), m_title->Text()));
}

void PopupRow::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        ShowRecord();
    else if (event->type() == QEvent::StyleChange && m_record.times > 0)
        ShowIcon();
    QFrame::changeEvent(event);
}

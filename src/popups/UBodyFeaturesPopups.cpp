#include "popups/UBodyFeaturesPopups.h"

#include "platform/application/RyxWindow.h"
#include "platform/context/AppContextData.h"
#include "platform/context/LanguageHelper.h"
#include "platform/link/PipeClientService.h"
#include "popups/PopupHistory.h"
#include "popups/PopupRow.h"
#include "popups/PopupWindowsDialog.h"
#include "widgets/CommonFacts.h"
#include "widgets/USwitchRow.h"
#include "widgets/UTextButton.h"
#include "widgets/UTextLabel.h"

#include <QEvent>
#include <QVBoxLayout>
#include <utility>

namespace {

constexpr int RowsAtFirst = 20;
constexpr int ShowAfterMs = 100;
constexpr int AnswerMs = 15000;

/// Whether there is a service that decides.
bool CanAsk() {
    return AppContextData::Instance()->Enrolled() && AppContextData::Instance()->Linked();
}

QString StateWords(const PopupHistory& history) {
    const QLocale locale = LanguageHelper::Instance()->Locale();
    if (!AppContextData::Instance()->Enrolled())
        return UBodyFeaturesPopups::tr("popups_off_unenrolled");
    switch (history.State()) {
    case PopupHistory::Blocking::On:
        return UBodyFeaturesPopups::tr("popups_on").arg(locale.toString(history.RuleCount()));
    case PopupHistory::Blocking::Off:
        return UBodyFeaturesPopups::tr("popups_off");
    case PopupHistory::Blocking::Unknown:
        break;
    }
    return UBodyFeaturesPopups::tr("popups_unknown");
}

QVector<PageFact> Facts(const PopupHistory& history) {
    const QLocale locale = LanguageHelper::Instance()->Locale();
    return {{QStringLiteral("managed"), UBodyFeaturesPopups::tr("popups_fact_state"), StateWords(history)},
            {QStringLiteral("close"), UBodyFeaturesPopups::tr("popups_fact_today"),
             locale.toString(history.CountOfToday())},
            CommonFacts::Organisation()};
}

} // namespace

UBodyFeaturesPopups::UBodyFeaturesPopups(QWidget* parent)
    : UBodyFeaturesPopups(parent, PopupHistory::OfApplication()) {}

UBodyFeaturesPopups::UBodyFeaturesPopups(QWidget* parent, PopupHistory* history)
    : UFactsPage({"features", QT_TRANSLATE_NOOP("UBodyFeaturesPopups", "features_title"),
                  QT_TRANSLATE_NOOP("UBodyFeaturesPopups", "features_sentence"), "",
                  [history](const QWidget*) { return Facts(*history); }},
                 parent),
      m_history(history),
      m_switch(new USwitchRow),
      m_pickTitle(new UTextLabel("sectionTitle")),
      m_pickSentence(new UTextLabel("pageSentence")),
      m_point(new UTextButton(UTextButton::Look::Primary)),
      m_choose(new UTextButton),
      m_listTitle(new UTextLabel("sectionTitle")),
      m_empty(new UTextLabel("pageNote")),
      m_list(new QVBoxLayout),
      m_older(new UTextButton(UTextButton::Look::Plain)),
      m_mostRows(RowsAtFirst) {
    Initialization();
    InitConnect();
    Retranslate();
}

void UBodyFeaturesPopups::Initialization() {
    auto* settings = new QFrame;
    settings->setObjectName(QStringLiteral("card"));
    auto* settingsColumn = new QVBoxLayout(settings);
    settingsColumn->setContentsMargins(24, 12, 24, 12);
    settingsColumn->addWidget(m_switch);
    AddWidget(settings);
    AddWidget(MakePickCard());

    auto* history = new QWidget;
    auto* column = new QVBoxLayout(history);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(8);
    column->addWidget(m_listTitle);
    column->addWidget(m_empty);
    column->addLayout(m_list);
    column->addWidget(m_older, 0, Qt::AlignLeading);
    m_list->setSpacing(8);
    m_older->setObjectName(QStringLiteral("popupsOlder"));
    AddWidget(history);

    m_showTimer.setObjectName(QStringLiteral("popupsShowTimer"));
    m_showTimer.setSingleShot(true);
    m_showTimer.setInterval(ShowAfterMs);
    m_answerTimer.setObjectName(QStringLiteral("popupsAnswerTimer"));
    m_answerTimer.setSingleShot(true);
    m_answerTimer.setInterval(AnswerMs);
}

QWidget* UBodyFeaturesPopups::MakePickCard() {
    m_point->setObjectName(QStringLiteral("popupsPoint"));
    m_choose->setObjectName(QStringLiteral("popupsChoose"));
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(12);
    buttons->addWidget(m_point);
    buttons->addWidget(m_choose);
    buttons->addStretch();
    auto* card = new QFrame;
    card->setObjectName(QStringLiteral("card"));
    auto* column = new QVBoxLayout(card);
    column->setContentsMargins(24, 16, 24, 16);
    column->setSpacing(8);
    column->addWidget(m_pickTitle);
    column->addWidget(m_pickSentence);
    column->addSpacing(4);
    column->addLayout(buttons);
    return card;
}

void UBodyFeaturesPopups::InitConnect() {
    connect(m_point, &QPushButton::clicked, this, [this] {
        if (!m_picker.Start(window()))
            TellBusy();
    });
    connect(m_choose, &QPushButton::clicked, this, &UBodyFeaturesPopups::PickFromList);
    connect(m_switch, &USwitchRow::Switched, this, &UBodyFeaturesPopups::OnSwitched);
    connect(m_older, &QPushButton::clicked, this, [this] {
        m_mostRows = static_cast<int>(m_history->Records().size());
        ShowRecords();
    });
    connect(m_history, &PopupHistory::RecordsChanged, this, &UBodyFeaturesPopups::ShowLater);
    connect(m_history, &PopupHistory::PolicyReceived, this, [this] {
        EndWaiting();
        ShowLater();
    });
    connect(AppContextData::Instance(), &AppContextData::Changed, this, &UBodyFeaturesPopups::ShowLater);
    connect(&m_showTimer, &QTimer::timeout, this, &UBodyFeaturesPopups::ShowAll);
    connect(&m_answerTimer, &QTimer::timeout, this, &UBodyFeaturesPopups::OnNoAnswer);
}

void UBodyFeaturesPopups::ShowLater() {
    if (isVisible() && !m_showTimer.isActive())
        m_showTimer.start();
}

void UBodyFeaturesPopups::ShowAll() {
    Refresh();
    ShowSwitch();
    ShowRecords();
}

void UBodyFeaturesPopups::ShowSwitch() {
    const bool canAsk = CanAsk();
    m_switch->SetOn(m_history->State() == PopupHistory::Blocking::On);
    m_switch->setEnabled(canAsk);
    m_switch->SetTexts(tr("popups_switch"), !canAsk                    ? tr("popups_switch_nobody")
                                            : m_answerTimer.isActive() ? tr("popups_switch_waiting")
                                                                       : tr("popups_switch_tip"));
    const bool isLinked = AppContextData::Instance()->Linked();
    for (UTextButton* button : {m_point, m_choose}) {
        button->setEnabled(isLinked);
        button->setToolTip(isLinked ? QString() : tr("popups_switch_nobody"));
    }
}

void UBodyFeaturesPopups::ShowRecords() {
    const std::deque<PopupRecord>& records = m_history->Records();
    const auto count = static_cast<int>(records.size());
    const bool isKnown = CanAsk() && m_history->State() == PopupHistory::Blocking::On;
    QHash<QString, PopupRow*> gone = std::exchange(m_rows, {});
    QWidget* before = m_choose;
    // Each record keeps its row: a press that was meant for one must not hit another that has moved there.
    for (int i = 0; i < qMin(count, m_mostRows); ++i) {
        const PopupRecord& record = records[static_cast<std::size_t>(i)];
        const QString identity = PopupWindow::Of(record.rule).Identity();
        const QString key = record.last.date().toString(Qt::ISODate) + identity;
        PopupRow* row = gone.take(key);
        if (!row)
            row = MakeRow();
        if (m_list->indexOf(row) != i) {
            m_list->removeWidget(row);
            m_list->insertWidget(i, row);
        }
        row->Show(record,
                  !isKnown                            ? PopupRow::Rule::Unknown
                  : m_history->IsInForce(record.rule) ? PopupRow::Rule::InForce
                                                      : PopupRow::Rule::Dropped,
                  m_history->Today());
        row->SetWaiting(m_answerTimer.isActive() && identity == m_doubted);
        m_rows.insert(key, row);
        setTabOrder(std::exchange(before, row->TabStop()), row->TabStop());
    }
    setTabOrder(before, m_older);
    for (PopupRow* row : qAsConst(gone)) { // one of them may have been pressed just now
        row->hide();
        row->deleteLater();
    }
    m_empty->setVisible(records.empty());
    m_older->setVisible(count > m_mostRows);
    m_older->setText(
        tr("popups_older").arg(LanguageHelper::Instance()->Locale().toString(count - m_mostRows)));
}

PopupRow* UBodyFeaturesPopups::MakeRow() {
    auto* row = new PopupRow;
    connect(row, &PopupRow::ReportedWrong, this, &UBodyFeaturesPopups::OnReportedWrong);
    return row;
}

void UBodyFeaturesPopups::PickFromList() {
    auto* dialog = new PopupWindowsDialog(m_picker.Windows(), this);
    connect(dialog, &PopupWindowsDialog::Chosen, this, [this](const PickableWindow& chosen) {
        if (!m_picker.Start(window(), chosen))
            TellBusy();
    });
    dialog->show();
}

void UBodyFeaturesPopups::TellBusy() {
    if (RyxWindow* window = RyxWindow::Of(this))
        window->Notify(NoticeKind::Info, tr("popups_pick_busy"));
}

void UBodyFeaturesPopups::Ask(const SyncPopupsParams& command) {
    PipeClientService::Instance()->Send(PipeKey::FeaturesPopupsCommand, command);
    m_answerTimer.start();
    ShowAll();
}

void UBodyFeaturesPopups::OnSwitched(bool on) {
    SyncPopupsParams command;
    command.popStatus = on;
    if (!m_answerTimer.isActive())
        Ask(command);
    else
        ShowSwitch();
}

void UBodyFeaturesPopups::OnReportedWrong(const PopupsTypeParams& rule) {
    if (m_answerTimer.isActive())
        return;
    SyncPopupsParams command;
    command.popStatus = true;
    command.hasOne = true;
    command.popupsDetails = {rule};
    m_doubted = PopupWindow::Of(rule).Identity();
    Ask(command);
}

void UBodyFeaturesPopups::OnNoAnswer() {
    EndWaiting();
    ShowAll();
    if (RyxWindow* window = RyxWindow::Of(this))
        window->Notify(NoticeKind::Warning, tr("popups_no_answer"));
}

void UBodyFeaturesPopups::EndWaiting() {
    m_answerTimer.stop();
    m_doubted.clear();
}

void UBodyFeaturesPopups::showEvent(QShowEvent* event) {
    ShowAll();
    UFactsPage::showEvent(event);
}

void UBodyFeaturesPopups::changeEvent(QEvent* event) {
    UFactsPage::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        Retranslate();
}

void UBodyFeaturesPopups::Retranslate() {
    m_pickTitle->setText(tr("popups_pick_title"));
    m_pickSentence->setText(tr("popups_pick_sentence"));
    m_point->setText(tr("popups_pick_point"));
    m_choose->setText(tr("popups_pick_list"));
    m_listTitle->setText(tr("popups_list_title"));
    m_empty->setText(tr("popups_list_empty"));
    ShowAll();
}

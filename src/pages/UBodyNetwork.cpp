#include "pages/UBodyNetwork.h"

#include "pages/NetworkCheck.h"
#include "pages/NetworkStepRow.h"
#include "pages/NetworkTexts.h"
#include "pages/UTextExport.h"
#include "platform/application/RyxWindow.h"
#include "platform/context/AppContextData.h"
#include "widgets/CommonFacts.h"
#include "widgets/UTextButton.h"
#include "widgets/UTextLabel.h"

#include <QShowEvent>
#include <QVBoxLayout>

UBodyNetwork::UBodyNetwork(QWidget* parent)
    : UFactsPage({"network", QT_TRANSLATE_NOOP("UBodyNetwork", "network_title"),
                  QT_TRANSLATE_NOOP("UBodyNetwork", "network_sentence"), "",
                  [](const QWidget* page) { return QVector<PageFact>{CommonFacts::LinkState(page)}; }},
                 parent),
      m_check(*NetworkCheck::OfApplication()),
      m_verdict(new UTextLabel("networkVerdict")),
      m_start(new UTextButton),
      m_export(new UTextExport([this] { return NetworkTexts::Report(m_check, this); },
                               QStringLiteral("RYXNETWORK"))),
      m_card(new QFrame),
      m_list(new QVBoxLayout(m_card)) {
    m_card->setObjectName(QStringLiteral("card"));
    m_list->setContentsMargins(24, 8, 24, 8);
    m_list->setSpacing(0);
    AddWidget(m_verdict);
    AddWidget(MakeActions());
    AddWidget(m_card);
    connect(&m_check, &NetworkCheck::Changed, this, &UBodyNetwork::ShowCheck);
    connect(AppContextData::Instance(), &AppContextData::Changed, this, &UBodyNetwork::ShowCheck);
    ShowCheck();
}

QWidget* UBodyNetwork::MakeActions() {
    m_start->setObjectName(QStringLiteral("networkStart"));
    connect(m_start, &QPushButton::clicked, this, [this] {
        if (m_check.IsRunning())
            m_check.Cancel();
        else
            m_check.Start();
    });
    auto* actions = new QWidget;
    auto* row = new QHBoxLayout(actions);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(12);
    row->addWidget(m_start);
    row->addWidget(m_export);
    row->addStretch();
    return actions;
}

void UBodyNetwork::ShowCheck() {
    const QVector<NetworkResult>& results = m_check.Results();
    while (m_rows.size() > results.size())
        delete m_rows.takeLast();
    while (m_rows.size() < results.size()) {
        m_rows.append(new NetworkStepRow);
        m_list->addWidget(m_rows.last());
    }
    for (int i = 0; i < results.size(); ++i)
        m_rows[i]->Show(results[i]);
    m_card->setVisible(!results.isEmpty());
    m_verdict->setText(NetworkTexts::Verdict(m_check, this));
    m_start->setText(m_check.IsRunning() ? tr("network_cancel") : tr("network_start"));
    m_export->setEnabled(!results.isEmpty() && !m_check.IsRunning());
}

void UBodyNetwork::showEvent(QShowEvent* event) {
    if (!event->spontaneous()) {
        if (RyxWindow* window = RyxWindow::Of(this))
            connect(window, &RyxWindow::LinkStatusChanged, this, &UBodyNetwork::ShowCheck,
                    Qt::UniqueConnection);
        m_check.SetWatched(true);
        m_check.Start();
    }
    UFactsPage::showEvent(event);
}

void UBodyNetwork::hideEvent(QHideEvent* event) {
    if (!event->spontaneous())
        m_check.SetWatched(false);
    UFactsPage::hideEvent(event);
}

void UBodyNetwork::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        ShowCheck();
    UFactsPage::changeEvent(event);
}

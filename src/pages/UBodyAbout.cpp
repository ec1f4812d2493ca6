#include "pages/UBodyAbout.h"

#include "pages/USupportCard.h"
#include "pages/UUpdateCard.h"
#include "pages/UpdateStore.h"
#include "platform/ProductConstants.h"
#include "platform/application/RyxWindow.h"
#include "platform/context/AppContextData.h"
#include "platform/system/SystemPipe.h"
#include "widgets/CommonFacts.h"
#include "widgets/UTextButton.h"

#include <QApplication>
#include <QClipboard>
#include <QEvent>
#include <QVBoxLayout>

UBodyAbout::UBodyAbout(QWidget* parent)
    : UFactsPage(
          {"about", QT_TRANSLATE_NOOP("UBodyAbout", "about_title"),
           QT_TRANSLATE_NOOP("UBodyAbout", "about_sentence"), "",
           [](const QWidget* page) {
               const AppContextData& context = *AppContextData::Instance();
               return QVector<PageFact>{
                   CommonFacts::DeviceName(),
                   CommonFacts::Organisation(),
                   {QStringLiteral("account"), tr("fact_account"),
                    CommonFacts::OrNone(context.AdminAccount())},
                   {QStringLiteral("account"), tr("fact_user"),
                    CommonFacts::OrNone(SystemPipe::Native().CurrentAccount())},
                   CommonFacts::Addresses(),
                   {QStringLiteral("version"), tr("fact_version"), QString::fromLatin1(Product::Version)},
                   CommonFacts::LinkState(page),
               };
           }},
          parent),
      m_copy(new UTextButton) {
    m_copy->setObjectName(QStringLiteral("aboutCopy"));
    m_copy->setText(tr("about_copy"));
    connect(m_copy, &QPushButton::clicked, this, &UBodyAbout::CopyAll);
    auto* row = new QWidget;
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_copy);
    layout->addStretch();
    AddWidget(row);
    AddWidget(new UUpdateCard(*UpdateStore::OfApplication()));
    AddWidget(new USupportCard);
}

void UBodyAbout::CopyAll() {
    Refresh();
    QApplication::clipboard()->setText(FactsText());
    if (RyxWindow* window = RyxWindow::Of(this))
        window->Notify(NoticeKind::Success, tr("text_copied"));
}

void UBodyAbout::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        m_copy->setText(tr("about_copy"));
    UFactsPage::changeEvent(event);
}

#include "pages/USupportCard.h"

#include "pages/SupportContact.h"
#include "pages/UTextDialog.h"
#include "platform/files/NamedFile.h"
#include "platform/link/PipeClientService.h"
#include "widgets/ThemeIcon.h"
#include "widgets/UFactsPage.h"
#include "widgets/UTextButton.h"
#include "widgets/UTextLabel.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QEvent>
#include <QFile>
#include <QVBoxLayout>

namespace {

UTextButton* OpenButton(const char* name, const QUrl& url) {
    auto* button = new UTextButton(UTextButton::Look::Plain);
    button->setObjectName(QString::fromLatin1(name));
    button->setIcon(ThemeIcon::Get(QStringLiteral("open"), QStringLiteral("accent")));
    button->setVisible(!url.isEmpty());
    QObject::connect(button, &QPushButton::clicked, [url] { QDesktopServices::openUrl(url); });
    return button;
}

QUrl MailUrl(const QString& address) {
    return address.isEmpty() ? QUrl() : QUrl(QStringLiteral("mailto:") + address);
}

QString ReadText(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// The product's licence, the list of what comes with it, and the licences that lie beside the program.
QString LicenceTexts() {
    QString text = ReadText(QStringLiteral(":/res/licences/velmora-ryx.txt"));
    const QString line = QStringLiteral("\n\n%1\n\n").arg(QString(80, QLatin1Char('-')));
    text += line + ReadText(QStringLiteral(":/res/licences/third-party.txt"));
    for (const NamedFile& file :
         ListFiles(QCoreApplication::applicationDirPath() + QStringLiteral("/licences")))
        if (!QFile::exists(QStringLiteral(":/res/licences/") + file.name))
            text += line + file.name + QStringLiteral("\n\n") + ReadText(file.path);
    return text;
}

} // namespace

USupportCard::USupportCard()
    : m_title(new UTextLabel("sectionTitle")),
      m_contact(new UTextLabel("supportContact")),
      m_mail(OpenButton("supportMail", MailUrl(SupportContact::Configured().mail))),
      m_page(OpenButton("supportPage", SupportContact::Configured().page)),
      m_hint(new UTextLabel("pageNote")),
      m_trace(new UTextButton),
      m_licences(new UTextButton) {
    setObjectName(QStringLiteral("card"));
    m_contact->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_trace->setObjectName(QStringLiteral("supportTrace"));
    m_licences->setObjectName(QStringLiteral("supportLicences"));
    auto* open = new QHBoxLayout;
    open->setSpacing(12);
    open->addWidget(m_mail);
    open->addWidget(m_page);
    open->addStretch();
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(12);
    buttons->addWidget(m_trace);
    buttons->addWidget(m_licences);
    buttons->addStretch();
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(24, 16, 24, 16);
    column->setSpacing(8);
    column->addWidget(m_title);
    column->addWidget(m_contact);
    column->addLayout(open);
    column->addWidget(m_hint);
    column->addLayout(buttons);
    connect(m_trace, &QPushButton::clicked, this, &USupportCard::ShowTrace);
    connect(m_licences, &QPushButton::clicked, this, &USupportCard::ShowLicences);
    Retranslate();
}

void USupportCard::ShowTrace() {
    const QString trace = QString::fromStdString(PipeClientService::Instance()->Trace().Text());
    (new UTextDialog(QT_TRANSLATE_NOOP("", "trace_title"), QT_TRANSLATE_NOOP("", "trace_sentence"), trace,
                     QStringLiteral("RYXTRACE"), this))
        ->show();
}

void USupportCard::ShowLicences() {
    (new UTextDialog(QT_TRANSLATE_NOOP("", "licences_title"), QT_TRANSLATE_NOOP("", "licences_sentence"),
                     LicenceTexts(), QString(), this))
        ->show();
}

void USupportCard::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        Retranslate();
    QFrame::changeEvent(event);
}

void USupportCard::Retranslate() {
    const SupportContact contact = SupportContact::Configured();
    m_title->setText(tr("support_title"));
    m_contact->setText(contact.IsKnown() ? contact.Line() : tr("support_nobody"));
    m_contact->setAlignment(UFactsPage::ValueAlignment(this));
    m_mail->setText(tr("support_mail"));
    m_page->setText(tr("support_page"));
    m_hint->setText(tr("support_trace_hint"));
    m_trace->setText(tr("trace_title"));
    m_licences->setText(tr("licences_title"));
}

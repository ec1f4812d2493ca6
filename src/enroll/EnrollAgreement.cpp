#include "enroll/EnrollAgreement.h"

#include "platform/context/AppConfigData.h"
#include "widgets/QFlowLayout.h"
#include "widgets/ThemeIcon.h"
#include "widgets/UTextButton.h"

#include <QCheckBox>
#include <QDesktopServices>
#include <QLabel>
#include <QUrl>
#include <QVBoxLayout>

namespace {

/// A paragraph of the product's own, in which some words are bold.
QLabel* Paragraph(const char* name) {
    auto* label = new QLabel;
    label->setObjectName(QString::fromLatin1(name));
    label->setTextFormat(Qt::RichText);
    label->setWordWrap(true);
    return label;
}

/// Opens a page of the web; without an address there is nothing to see of it.
UTextButton* Link(const char* name, const std::string& address) {
    auto* link = new UTextButton(UTextButton::Look::Plain);
    link->setObjectName(QString::fromLatin1(name));
    link->setIcon(ThemeIcon::Get(QStringLiteral("open"), QStringLiteral("accent")));
    const QUrl url(QString::fromStdString(address), QUrl::StrictMode);
    if (url.scheme() != QLatin1String("https") && url.scheme() != QLatin1String("http"))
        link->hide();
    QObject::connect(link, &QPushButton::clicked, [url] { QDesktopServices::openUrl(url); });
    return link;
}

} // namespace

EnrollAgreement::EnrollAgreement()
    : m_privacy(Paragraph("agreementText")),
      m_agreement(Paragraph("agreementText")),
      m_privacyLink(Link("privacyPolicyLink", AppConfigData::Instance()->privacyPolicyUrl)),
      m_agreementLink(Link("userAgreementLink", AppConfigData::Instance()->userAgreementUrl)),
      m_box(new QCheckBox) {
    m_box->setObjectName(QStringLiteral("agreementBox"));
    auto* links = new QWidget;
    auto* flow = new QFlowLayout(links, 0, 8, 8);
    flow->addWidget(m_privacyLink);
    flow->addWidget(m_agreementLink);
    if (m_privacyLink->isHidden() && m_agreementLink->isHidden())
        links->hide();
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(8);
    column->addWidget(m_privacy);
    column->addWidget(m_agreement);
    column->addWidget(links);
    column->addWidget(m_box, 0, Qt::AlignLeading);
}

bool EnrollAgreement::IsAgreed() const {
    return m_box->isChecked();
}

void EnrollAgreement::LanguageChanges() {
    m_privacy->setText(
        tr("The <b>Privacy Policy</b> tells which data of this device the organisation receives."));
    m_agreement->setText(tr("The <b>User Agreement</b> tells what you accept when you enrol this device."));
    m_privacyLink->setText(tr("view_register_privacy_policy"));
    m_agreementLink->setText(tr("view_register_user_agreement"));
    m_box->setText(tr("view_register_agree"));
}

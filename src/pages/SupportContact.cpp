#include "pages/SupportContact.h"

#include "platform/context/AppConfigData.h"
#include "platform/context/EmailAddress.h"

#include <QStringList>

SupportContact SupportContact::Configured() {
    const auto text = [](const std::string& value) { return QString::fromStdString(value).simplified(); };
    const AppConfigData& config = *AppConfigData::Instance();
    SupportContact contact{text(config.supportName), text(config.supportTelephone), text(config.supportMail),
                           QUrl(text(config.supportPage), QUrl::StrictMode)};
    if (!IsEmailAddress(contact.mail))
        contact.mail.clear();
    const QString scheme = contact.page.scheme();
    if ((scheme != QLatin1String("https") && scheme != QLatin1String("http")) ||
        contact.page.host().isEmpty())
        contact.page.clear();
    return contact;
}

QString SupportContact::Line() const {
    QStringList parts{name, telephone, mail, page.toDisplayString()};
    parts.removeAll(QString());
    return parts.join(QStringLiteral(" · "));
}

#include "app/Rooms.h"

#include "app/StatusLook.h"
#include "app/UAppearance.h"
#include "app/URoomPage.h"
#include "platform/application/RyxWindow.h"
#include "platform/context/AppConfigData.h"
#include "platform/context/AppContextData.h"
#include "platform/context/MachineHelper.h"
#include "platform/context/ProductConstants.h"

#include <QCoreApplication>
#include <QNetworkInterface>

namespace {

QString tr(const char* key) {
    return QCoreApplication::translate("Rooms", key);
}

QString OrNone(const std::string& text) {
    return text.empty() ? tr("fact_none") : QString::fromStdString(text);
}

RoomFact DeviceName() {
    return {QStringLiteral("device"), tr("fact_device_name"),
            QString::fromStdString(MachineHelper::GetDeviceName())};
}

RoomFact LinkState(const QWidget* page) {
    const RyxWindow* window = RyxWindow::Of(page);
    const StatusLook look = StatusLook::Of(window ? window->LinkStatus() : IotStatus::NotEnrolled);
    return {look.icon, tr("fact_management_service"), look.words};
}

RoomFact LocalService() {
    return {QStringLiteral("service"), tr("fact_local_service"),
            AppContextData::Instance()->linked ? tr("fact_service_reached") : tr("fact_service_not_reached")};
}

RoomFact Organisation() {
    const AppContextData& context = *AppContextData::Instance();
    const std::string& configured = AppConfigData::Instance()->organisation;
    return {QStringLiteral("organisation"), tr("fact_organisation"),
            context.enrolled ? OrNone(configured.empty() ? context.schoolCode : configured)
                             : tr("fact_none")};
}

QString Tags() {
    QStringList tags;
    for (const std::string& tag : AppContextData::Instance()->deviceTags)
        tags.append(QString::fromStdString(tag));
    return tags.isEmpty() ? tr("fact_none") : tags.join(QStringLiteral(", "));
}

QString Addresses() {
    QStringList addresses;
    for (const QNetworkInterface& card : QNetworkInterface::allInterfaces()) {
        const auto flags = card.flags();
        if (!flags.testFlag(QNetworkInterface::IsRunning) || flags.testFlag(QNetworkInterface::IsLoopBack))
            continue;
        for (const QNetworkAddressEntry& entry : card.addressEntries())
            if (entry.ip().protocol() == QAbstractSocket::IPv4Protocol)
                addresses.append(entry.ip().toString());
    }
    return addresses.isEmpty() ? tr("fact_none") : addresses.join(QStringLiteral(", "));
}

URoomPage* MakePage(const RoomContent& content, QWidget* parent,
                    const std::function<QVector<RoomFact>(const QWidget*)>& facts) {
    auto* page = new URoomPage(parent);
    RoomContent complete = content;
    complete.facts = [page, facts] { return facts(page); };
    page->SetContent(complete);
    return page;
}

QWidget* MakeEnrolment(QWidget* parent) {
    return MakePage(
        {"enrolment",
         QT_TRANSLATE_NOOP("URoomPage", "enrolment_title"),
         QT_TRANSLATE_NOOP("URoomPage", "enrolment_sentence"),
         QT_TRANSLATE_NOOP("URoomPage", "room_note_state_only"),
         {}},
        parent, [](const QWidget* page) {
            const AppContextData& context = *AppContextData::Instance();
            return QVector<RoomFact>{
                DeviceName(),
                LinkState(page),
                Organisation(),
                {QStringLiteral("account"), tr("fact_administrator"), OrNone(context.adminAccount)},
                {QStringLiteral("tag"), tr("fact_tags"), Tags()},
            };
        });
}

QWidget* MakeFeatures(QWidget* parent) {
    return MakePage({"features",
                     QT_TRANSLATE_NOOP("URoomPage", "features_title"),
                     QT_TRANSLATE_NOOP("URoomPage", "features_sentence"),
                     QT_TRANSLATE_NOOP("URoomPage", "room_note_state_only"),
                     {}},
                    parent, [](const QWidget* page) {
                        return QVector<RoomFact>{LinkState(page), Organisation()};
                    });
}

QWidget* MakeLiveChannels(QWidget* parent) {
    return MakePage({"live",
                     QT_TRANSLATE_NOOP("URoomPage", "live_title"),
                     QT_TRANSLATE_NOOP("URoomPage", "live_sentence"),
                     QT_TRANSLATE_NOOP("URoomPage", "room_note_state_only"),
                     {}},
                    parent, [](const QWidget* page) {
                        return QVector<RoomFact>{LinkState(page), Organisation()};
                    });
}

QWidget* MakeNetwork(QWidget* parent) {
    return MakePage({"network",
                     QT_TRANSLATE_NOOP("URoomPage", "network_title"),
                     QT_TRANSLATE_NOOP("URoomPage", "network_sentence"),
                     "",
                     {}},
                    parent, [](const QWidget* page) {
                        return QVector<RoomFact>{
                            LinkState(page),
                            LocalService(),
                            {QStringLiteral("address"), tr("fact_addresses"), Addresses()},
                        };
                    });
}

QWidget* MakeSettings(QWidget* parent) {
    auto* page = new URoomPage({"settings",
                                QT_TRANSLATE_NOOP("URoomPage", "settings_title"),
                                QT_TRANSLATE_NOOP("URoomPage", "settings_sentence"),
                                "",
                                {}},
                               parent);
    page->AddWidget(new UAppearance);
    return page;
}

QWidget* MakeAbout(QWidget* parent) {
    return MakePage(
        {"about",
         QT_TRANSLATE_NOOP("URoomPage", "about_title"),
         QT_TRANSLATE_NOOP("URoomPage", "about_sentence"),
         "",
         {}},
        parent, [](const QWidget* page) {
            return QVector<RoomFact>{
                {QStringLiteral("version"), tr("fact_version"), QString::fromLatin1(Product::Version)},
                DeviceName(),
                LinkState(page),
            };
        });
}

} // namespace

QWidget* Rooms::Make(MenuEntry entry, QWidget* parent) {
    switch (entry) {
    case MenuEntry::Enrolment:
        return MakeEnrolment(parent);
    case MenuEntry::Features:
        return MakeFeatures(parent);
    case MenuEntry::LiveChannels:
        return MakeLiveChannels(parent);
    case MenuEntry::Network:
        return MakeNetwork(parent);
    case MenuEntry::Settings:
        return MakeSettings(parent);
    case MenuEntry::About:
        return MakeAbout(parent);
    case MenuEntry::Feedback:
        break;
    }
    return nullptr;
}

void Rooms::FurnishFeedback(URoomPage& page) {
    page.SetContent({"feedback", QT_TRANSLATE_NOOP("URoomPage", "feedback_title"),
                     QT_TRANSLATE_NOOP("URoomPage", "feedback_sentence"),
                     QT_TRANSLATE_NOOP("URoomPage", "feedback_note"),
                     [] { return QVector<RoomFact>{DeviceName()}; }});
    page.ShowBackButton();
}

#include "pages/LiveChannels.h"

#include "entity/JsonText.h"
#include "platform/context/AppContextData.h"
#include "platform/context/ShownText.h"
#include "platform/link/PipeClientService.h"

#include <QCoreApplication>
#include <QSet>
#include <algorithm>
#include <utility>

namespace {

constexpr std::size_t Most = 100;

} // namespace

LiveChannels::LiveChannels(QObject* parent) : QObject(parent) {
    PipeClientService::Instance()->Subscribe(this, &LiveChannels::OnPipeDataReceived);
    connect(AppContextData::Instance(), &AppContextData::Changed, this, [this](AppContextData::Field field) {
        if (field == AppContextData::Field::Enrolled && !AppContextData::Instance()->Enrolled())
            Set({}, false);
        else if (field == AppContextData::Field::Linked)
            Set(m_channels, false);
    });
}

LiveChannels* LiveChannels::OfApplication() {
    return QCoreApplication::instance()->findChild<LiveChannels*>(QString(), Qt::FindDirectChildrenOnly);
}

// Numbers alone need not differ: they may be missing.
QString LiveChannels::Identity(const LiveChannelRequest& channel) {
    return QString::number(channel.id) + QLatin1Char(' ') + QString::fromStdString(channel.url);
}

const LiveChannelRequest* LiveChannels::Find(const QString& identity) const {
    const auto found = std::find_if(m_channels.begin(), m_channels.end(),
                                    [&](const auto& channel) { return Identity(channel) == identity; });
    return found == m_channels.end() ? nullptr : &*found;
}

bool LiveChannels::Control(const QString& identity, bool play) {
    std::vector<LiveChannelRequest> channels = m_channels;
    const auto channel = std::find_if(channels.begin(), channels.end(),
                                      [&](const auto& candidate) { return Identity(candidate) == identity; });
    if (channel == channels.end())
        return false;
    channel->jobStatus = play;
    if (!PipeClientService::Instance()->Send(PipeKey::LiveChannelControl, *channel))
        return false;
    Set(std::move(channels), m_confirmed);
    return true;
}

void LiveChannels::OnPipeDataReceived(PipeKey key, const std::string& body) {
    LiveChannelListRequest list;
    if (key != PipeKey::LiveChannelList || !ReadObject(list, body))
        return;
    std::vector<LiveChannelRequest> channels;
    QSet<QString> known;
    for (const LiveChannelRequest& channel : list.liveChannelList) {
        const QString identity = Identity(channel);
        if (channels.size() < Most && !known.contains(identity))
            channels.push_back(channel);
        known.insert(identity);
    }
    const std::vector<LiveChannelRequest> before = m_channels;
    Set(std::move(channels), true);
    for (const LiveChannelRequest& channel : before)
        if (channel.jobStatus && !known.contains(Identity(channel)))
            emit Vanished(ShownName(channel.name));
}

void LiveChannels::Set(std::vector<LiveChannelRequest> channels, bool confirmed) {
    m_channels = std::move(channels);
    m_confirmed = confirmed;
    emit Changed();
}

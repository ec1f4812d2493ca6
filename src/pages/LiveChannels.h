#pragma once

#include "entity/FileEntities.h"
#include "platform/link/PipeKey.h"

#include <QObject>
#include <string>
#include <vector>

/// The live channels as the service has told of them last. Lives from start-up, for the page is made later;
/// forgets them when the device is no longer enrolled. GUI thread.
class LiveChannels : public QObject {
    Q_OBJECT

public:
    explicit LiveChannels(QObject* parent = nullptr);

    /// The application object's; null when it has none.
    static LiveChannels* OfApplication();

    /// In the service's order, each once, and no more than anybody looks through; its "jobStatus" is whether
    /// it plays.
    const std::vector<LiveChannelRequest>& Channels() const { return m_channels; }
    /// The list has come since the link came up.
    bool IsConfirmed() const { return m_confirmed; }
    /// Null when there is no such channel.
    const LiveChannelRequest* Find(const QString& identity) const;

    /// The same text for the same channel in every list.
    static QString Identity(const LiveChannelRequest& channel);

    /// Tells the service that the channel is to play or to stop; false, and nothing has changed, when it is
    /// not reached or the channel has gone.
    bool Control(const QString& identity, bool play);

signals:
    void Changed();
    /// A channel that was playing is in the new list no more.
    void Vanished(const QString& name);

private:
    void OnPipeDataReceived(PipeKey key, const std::string& body);
    void Set(std::vector<LiveChannelRequest> channels, bool confirmed);

    std::vector<LiveChannelRequest> m_channels;
    bool m_confirmed = false;
};

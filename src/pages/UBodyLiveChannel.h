#pragma once

#include "platform/application/NoticeKind.h"
#include "platform/system/SystemPlayer.h"
#include "widgets/UFactsPage.h"

#include <QHash>

class LiveChannels;
class UBodyLiveChannelItem;

/// The live channels that the organisation offers here. Playing one opens its address in the system's player.
class UBodyLiveChannel : public UFactsPage {
    Q_OBJECT

public:
    explicit UBodyLiveChannel(QWidget* parent, const SystemPlayer& player = SystemPlayer::Native());

protected:
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void ShowAll();
    void ShowItems();
    UBodyLiveChannelItem* MakeItem(const QString& identity);
    void OnPressed(const QString& identity, bool play);
    void Play(const QString& identity);
    void Tell(NoticeKind kind, const QString& text);

    LiveChannels* m_channels;
    const SystemPlayer& m_player;
    QLabel* m_note;
    QVBoxLayout* m_list;
    QHash<QString, UBodyLiveChannelItem*> m_items; // by the channel's identity
};

#include "pages/UBodyLiveChannel.h"

#include "pages/LiveChannels.h"
#include "pages/UBodyLiveChannelItem.h"
#include "platform/application/RyxWindow.h"
#include "platform/context/AppContextData.h"
#include "widgets/CommonFacts.h"
#include "widgets/LateUpdate.h"
#include "widgets/UTextLabel.h"

#include <QEvent>
#include <QUrl>
#include <QVBoxLayout>
#include <utility>

namespace {

/// The address, if it is one of a web page or of a stream and names where that is; other kinds could start
/// any program with any arguments.
QUrl PlayableAddress(const std::string& text) {
    const QUrl address(QString::fromStdString(text), QUrl::StrictMode);
    const bool isPlayable = QStringList{QStringLiteral("http"), QStringLiteral("https"),
                                        QStringLiteral("rtsp"), QStringLiteral("rtmp"), QStringLiteral("udp")}
                                .contains(address.scheme());
    return isPlayable && !address.host().isEmpty() ? address : QUrl();
}

} // namespace

UBodyLiveChannel::UBodyLiveChannel(QWidget* parent, const SystemPlayer& player)
    : UFactsPage({"live", QT_TRANSLATE_NOOP("UBodyLiveChannel", "live_title"),
                  QT_TRANSLATE_NOOP("UBodyLiveChannel", "live_sentence"), "",
                  [](const QWidget* page) {
                      return QVector<PageFact>{CommonFacts::LinkState(page), CommonFacts::Organisation()};
                  }},
                 parent),
      m_channels(LiveChannels::OfApplication()),
      m_player(player),
      m_note(new UTextLabel("pageNote")),
      m_list(new QVBoxLayout) {
    auto* channels = new QWidget;
    auto* column = new QVBoxLayout(channels);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(m_note);
    column->addLayout(m_list);
    m_list->setSpacing(8);
    AddWidget(channels);
    auto* update = new LateUpdate(this, [this] { ShowAll(); });
    connect(m_channels, &LiveChannels::Changed, update, &LateUpdate::Ask);
    ShowAll();
}

void UBodyLiveChannel::ShowAll() {
    const bool isEnrolled = AppContextData::Instance()->Enrolled();
    const bool isLinked = AppContextData::Instance()->Linked();
    const bool isEmpty = m_channels->Channels().empty();
    m_note->setText(!isEnrolled                 ? tr("live_not_enrolled")
                    : !isLinked                 ? tr("live_no_service")
                    : !isEmpty                  ? tr("live_old")
                    : m_channels->IsConfirmed() ? tr("live_none")
                                                : tr("live_waiting"));
    m_note->setVisible(isEmpty || !isLinked || !m_channels->IsConfirmed());
    ShowItems();
}

// Each channel keeps its item, and with it the keyboard: a new list must not move what the user is about to
// press.
void UBodyLiveChannel::ShowItems() {
    QHash<QString, UBodyLiveChannelItem*> gone = std::exchange(m_items, {});
    QWidget* before = nullptr;
    int place = 0;
    for (const LiveChannelRequest& channel : m_channels->Channels()) {
        const QString identity = LiveChannels::Identity(channel);
        UBodyLiveChannelItem* item = gone.take(identity);
        if (!item)
            item = MakeItem(identity);
        if (m_list->indexOf(item) != place) {
            m_list->removeWidget(item);
            m_list->insertWidget(place, item);
        }
        ++place;
        item->Show(channel);
        m_items.insert(identity, item);
        if (QWidget* last = std::exchange(before, item->TabStop()))
            setTabOrder(last, before);
    }
    qDeleteAll(gone);
}

UBodyLiveChannelItem* UBodyLiveChannel::MakeItem(const QString& identity) {
    auto* item = new UBodyLiveChannelItem;
    // Later, for the item may not outlive what follows.
    connect(
        item, &UBodyLiveChannelItem::Pressed, this,
        [this, identity](bool play) { OnPressed(identity, play); }, Qt::QueuedConnection);
    return item;
}

void UBodyLiveChannel::OnPressed(const QString& identity, bool play) {
    if (play)
        Play(identity);
    else if (m_channels->Control(identity, false))
        Tell(NoticeKind::Info, tr("live_stopped_told"));
    else
        Tell(NoticeKind::Warning, tr("permission_not_changed"));
    ShowAll(); // what the next press is to mean
}

void UBodyLiveChannel::Play(const QString& identity) {
    const LiveChannelRequest* channel = m_channels->Find(identity);
    if (!channel)
        return;
    const QUrl address = PlayableAddress(channel->url);
    if (!address.isValid())
        return Tell(NoticeKind::Warning, tr("live_refused"));
    if (!m_channels->Control(identity, true))
        return Tell(NoticeKind::Warning, tr("permission_not_changed"));
    if (!m_player.Open(address)) {
        m_channels->Control(identity, false);
        Tell(NoticeKind::Warning, tr("live_no_player").arg(address.scheme()));
    }
}

void UBodyLiveChannel::Tell(NoticeKind kind, const QString& text) {
    if (RyxWindow* window = RyxWindow::Of(this))
        window->Notify(kind, text);
}

void UBodyLiveChannel::showEvent(QShowEvent* event) {
    ShowAll();
    UFactsPage::showEvent(event);
}

void UBodyLiveChannel::changeEvent(QEvent* event) {
    UFactsPage::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        ShowAll();
}

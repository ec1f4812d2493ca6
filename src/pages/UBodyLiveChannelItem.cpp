#include "pages/UBodyLiveChannelItem.h"

#include "platform/context/ShownText.h"
#include "widgets/UElidedLabel.h"
#include "widgets/UIconLabel.h"
#include "widgets/UTextButton.h"
#include "widgets/UTextLabel.h"

#include <QEvent>
#include <QHBoxLayout>

UBodyLiveChannelItem::UBodyLiveChannelItem(QWidget* parent)
    : QFrame(parent),
      m_icon(new UIconLabel(28)),
      m_name(new UElidedLabel),
      m_state(new UTextLabel("channelState")),
      m_button(new UTextButton) {
    m_name->setObjectName(QStringLiteral("channelName"));
    m_button->setObjectName(QStringLiteral("channelButton"));
    auto* texts = new QVBoxLayout;
    texts->setSpacing(2);
    texts->addWidget(m_name);
    texts->addWidget(m_state);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(16, 12, 16, 12);
    row->setSpacing(14);
    row->addWidget(m_icon);
    row->addLayout(texts, 1);
    row->addWidget(m_button);
    connect(m_button, &QPushButton::clicked, this, [this] { emit Pressed(!m_channel.jobStatus); });
}

void UBodyLiveChannelItem::Show(const LiveChannelRequest& channel) {
    m_channel = channel;
    ShowTexts();
}

QWidget* UBodyLiveChannelItem::TabStop() const {
    return m_button;
}

void UBodyLiveChannelItem::ShowTexts() {
    const bool plays = m_channel.jobStatus;
    m_icon->SetIcon(QStringLiteral("live"), plays ? QStringLiteral("accent") : QStringLiteral("textMuted"));
    const QString name = ShownName(m_channel.name);
    m_name->SetText(name.isEmpty() ? tr("live_unnamed").arg(m_channel.id) : name);
    m_state->setText(plays ? tr("live_playing") : tr("live_stopped"));
    m_button->setText(plays ? tr("live_stop") : tr("live_play"));
    m_button->setAccessibleName(m_button->text() + QStringLiteral(": ") + m_name->Text());
}

void UBodyLiveChannelItem::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        ShowTexts();
    QFrame::changeEvent(event);
}

#pragma once

#include "entity/FileEntities.h"

#include <QFrame>

class QLabel;
class UElidedLabel;
class UIconLabel;
class UTextButton;

/// A channel of the list, with the button that plays or stops it. GUI thread.
class UBodyLiveChannelItem : public QFrame {
    Q_OBJECT

public:
    explicit UBodyLiveChannelItem(QWidget* parent = nullptr);

    void Show(const LiveChannelRequest& channel);
    /// What takes the keyboard.
    QWidget* TabStop() const;

signals:
    /// The user wants it to play, or to stop.
    void Pressed(bool play);

protected:
    void changeEvent(QEvent* event) override;

private:
    void ShowTexts();

    LiveChannelRequest m_channel;
    UIconLabel* m_icon;
    UElidedLabel* m_name;
    QLabel* m_state;
    UTextButton* m_button;
};

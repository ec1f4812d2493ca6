#pragma once

#include "platform/application/IotStatus.h"
#include "widgets/StatusLook.h"

#include <QMenu>
#include <QSystemTrayIcon>

class TrayTone;

/// The program's place in the desktop's tray: its menu says how the link is, and opens what is needed.
class UTrayIcon : public QSystemTrayIcon {
    Q_OBJECT

public:
    explicit UTrayIcon(QObject* parent = nullptr);
    ~UTrayIcon() override;

    void ShowStatus(IotStatus status);

    /// Says the texts of the menu again, in the language in use.
    void Retranslate();

    /// The product's icon as it stands out from a tray of the given tone, "light" or "dark".
    static QIcon IconFor(const QString& tone);

signals:
    void OpenRequested();
    void MessagesRequested();
    void ReportRequested();

private:
    void ShowLook();

    IotStatus m_status = IotStatus::NotEnrolled;
    StatusLook m_look; // in the menu
    QMenu m_menu;
    QAction* m_state;
    QAction* m_open;
    QAction* m_messages;
    QAction* m_report;
    TrayTone* m_tone;
};

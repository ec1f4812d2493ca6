#pragma once

#include "app/Notifier.h"
#include "platform/application/RyxWindow.h"
#include "platform/link/PipeKey.h"

#include <memory>
#include <string>

class Navigator;
class UExitButton;
class UTrayIcon;
struct IotStatusEntity;

namespace Ui {
class MainWindow;
}

/// The one window of the front end: header, and below it a stack of main page (menu and body), launcher and
/// feedback page. Closing it only hides it; the program lives on in the tray.
class MainWindow : public RyxWindow {
    Q_OBJECT

public:
    MainWindow();
    ~MainWindow() override;

    void Notify(NoticeKind kind, const QString& text) override;
    void OpenNetworkPage() override;
    void OpenEnrolmentPage() override;

    /// Brings the feedback page to the front; its back button leads to where the user was.
    void OpenFeedbackPage();

    /// Brings the window to the front, also out of the tray or the task bar.
    void Open();

signals:
    /// The user wants to read the administrator's messages again.
    void MessagesRequested();

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void Initialize();
    void InitConnect();
    void ConnectMainController();
    void FitScreen();
    void ApplyTheme();

    void OnPipeDataReceived(PipeKey key, const std::string& body);
    void OnIotStatus(const IotStatusEntity& entity);
    void OnDisconnectWifi(const std::string& ssid);
    void PlaceExitButton();

    std::unique_ptr<Ui::MainWindow> m_ui;
    QString m_formStyleSheet;
    UExitButton* m_exit;
    UTrayIcon* m_tray;
    Notifier m_notifier;
    Navigator* m_navigator = nullptr;
    QByteArray m_geometry; // when it was last closed
};

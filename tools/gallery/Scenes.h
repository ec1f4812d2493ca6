#pragma once

#include <QString>
#include <QVector>
#include <functional>
#include <memory>
#include <string>

class ActHistory;
class DevicePermissions;
class LiveChannels;
class MainController;
class MainWindow;
class NetworkCheck;
class PopupHistory;
class QLocalServer;
class QWidget;
class UpdateStore;
struct ScriptedProbe;

/// The stage of one picture: a fresh front end without a service, at 1280 x 720 unless a scene changes it.
class Stage {
public:
    /// `enrolled` is what the context says before the window is made.
    explicit Stage(bool enrolled);
    ~Stage();

    MainWindow& Window() { return *m_window; }

    /// Feeds a message to everybody, as the service's.
    void Receive(int key, const std::string& body = {});

    /// The network that the network page checks.
    ScriptedProbe& Network() { return *m_network; }

    /// Lets the link be up, to a service that says nothing.
    void ConnectLink();

    /// Takes a picture of this widget instead of the window; the stage owns it.
    template <class Widget>
    Widget& Show(std::unique_ptr<Widget> widget) {
        Widget& shown = *widget;
        m_other = std::move(widget);
        return shown;
    }

    /// Takes a picture of this window instead, which lives as long as `owner`.
    void ShowWindow(QWidget& window, std::shared_ptr<void> owner) {
        m_shown = &window;
        m_owner = std::move(owner);
    }

    /// The widget that the picture is of.
    QWidget& Subject();

private:
    std::unique_ptr<QLocalServer> m_service;
    std::unique_ptr<MainController> m_controller;
    std::unique_ptr<PopupHistory> m_popups;
    std::shared_ptr<ScriptedProbe> m_network;
    std::unique_ptr<UpdateStore> m_updates;
    std::unique_ptr<NetworkCheck> m_networkCheck;
    std::unique_ptr<DevicePermissions> m_permissions;
    std::unique_ptr<LiveChannels> m_channels;
    std::unique_ptr<ActHistory> m_acts;
    std::unique_ptr<MainWindow> m_window;
    std::unique_ptr<QWidget> m_other;
    std::shared_ptr<void> m_owner;
    QWidget* m_shown = nullptr; // which it owns
};

/// Everything a person may see: each page, dialog, notice and state.
struct Scene {
    QString name;
    bool enrolled = true;
    std::function<void(Stage&)> play;
};

QVector<Scene> AllScenes();
/// Those of the log report.
QVector<Scene> FeedbackScenes();

/// Those of the pop-ups.
QVector<Scene> PopupScenes();

/// Those of the enrolment's page.
QVector<Scene> EnrollPageScenes();

/// Those of the enrolment's parts.
QVector<Scene> EnrollScenes();

/// Those of the administrator's messages.
QVector<Scene> MessageScenes();

/// Those of network, version and updates.
QVector<Scene> StatusScenes();

/// Those of the settings and of the live channels.
QVector<Scene> SettingScenes();

/// Lets layouts, deferred updates and queued events come to rest.
void Settle();

/// Runs the event loop until the condition holds, ten seconds at most; whether it does.
bool WaitFor(const std::function<bool()>& condition);

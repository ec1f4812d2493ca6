#pragma once

#include <QObject>

class QStackedWidget;
class UBody;
class UMenu;

/// Knows where in the window the user is, as nothing else does: stack, menu and body show what it says.
/// Pages are known by their index in Pages(). GUI thread.
class Navigator : public QObject {
    Q_OBJECT

public:
    /// What the window's form offers to show a place in.
    struct Views {
        QStackedWidget* stack;
        QWidget* mainPage; ///< menu and body
        QWidget* launcher;
        QWidget* windowPage; ///< the page with the place PagePlace::Window
        UMenu* menu;
        UBody* body;
    };

    /// Starts on the main page of an enrolled device, or else on the launcher.
    Navigator(const Views& views, QObject* parent);

    void GoTo(int page);

    /// Leads from a page that stands in place of menu and body to where the user was.
    void GoBack();

    /// Without an enrolment, everything begins anew: the launcher, with the first page behind it.
    void StartAnew();

    /// Gives the keyboard to what the user came for.
    void Focus();

private:
    static constexpr int Launcher = -1;

    void OnEnrolmentChanged();
    void Show();

    const Views m_views;
    int m_place;             // page or launcher
    int m_behind = Launcher; // below a page that stands in place of menu and body
};

#include "app/Navigator.h"

#include "app/Pages.h"
#include "app/UBody.h"
#include "app/UMenu.h"
#include "platform/context/AppContextData.h"

#include <QStackedWidget>
#include <glog/logging.h>

namespace {

bool IsWindowPage(int page) {
    return page >= 0 && Pages()[static_cast<size_t>(page)].place == PagePlace::Window;
}

} // namespace

Navigator::Navigator(const Views& views, QObject* parent)
    : QObject(parent), m_views(views), m_place(AppContextData::Instance()->Enrolled() ? 0 : Launcher) {
    connect(m_views.menu, &UMenu::MenuChanged, this, &Navigator::GoTo);
    connect(AppContextData::Instance(), &AppContextData::Changed, this, [this](AppContextData::Field field) {
        if (field == AppContextData::Field::Enrolled)
            OnEnrolmentChanged();
    });
    Show();
}

void Navigator::GoTo(int page) {
    if (IsWindowPage(page) && !IsWindowPage(m_place))
        m_behind = m_place;
    m_place = page;
    Show();
}

void Navigator::GoBack() {
    if (IsWindowPage(m_place))
        GoTo(m_behind);
}

void Navigator::StartAnew() {
    GoTo(Launcher);
}

// An enrolled device has nothing left to launch. The other way round nobody is thrown out of a page in use.
void Navigator::OnEnrolmentChanged() {
    if (!AppContextData::Instance()->Enrolled())
        return;
    if (m_behind == Launcher)
        m_behind = 0;
    if (m_place == Launcher)
        GoTo(0);
}

void Navigator::Show() {
    const int main = IsWindowPage(m_place) ? m_behind : m_place;
    const int page = main == Launcher ? 0 : main;
    m_views.menu->Select(page);
    m_views.body->SwitchPage(page);
    LOG_IF(ERROR, !m_views.body->IsSwitchPage(page)) << "Navigator::Show there is no page " << page;
    m_views.stack->setCurrentWidget(IsWindowPage(m_place) ? m_views.windowPage
                                    : m_place == Launcher ? m_views.launcher
                                                          : m_views.mainPage);
}

void Navigator::Focus() {
    if (m_views.stack->currentWidget() == m_views.mainPage)
        m_views.menu->FocusSelected();
    else
        m_views.stack->currentWidget()->setFocus();
}

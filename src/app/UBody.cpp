#include "app/UBody.h"

#include "app/Rooms.h"

#include <algorithm>

UBody::UBody(QWidget* parent) : QStackedWidget(parent) {}

void UBody::SwitchPage(int index) {
    if (index < 0 || index >= MenuEntryCount)
        return;
    QWidget*& page = m_pages[static_cast<size_t>(index)];
    if (!page) {
        page = Rooms::Make(static_cast<MenuEntry>(index), this);
        if (!page)
            return;
        addWidget(page);
    }
    setCurrentWidget(page);
}

bool UBody::IsSwitchPage(int index) const {
    const QWidget* page = Page(index);
    return page && currentWidget() == page;
}

int UBody::CurrentPage() const {
    const auto found = std::find(m_pages.begin(), m_pages.end(), currentWidget());
    return currentWidget() && found != m_pages.end() ? static_cast<int>(found - m_pages.begin()) : -1;
}

QWidget* UBody::Page(int index) const {
    return index >= 0 && index < MenuEntryCount ? m_pages[static_cast<size_t>(index)] : nullptr;
}

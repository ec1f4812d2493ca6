#include "app/UBody.h"

#include "app/Pages.h"

UBody::UBody(QWidget* parent) : QStackedWidget(parent), m_pages(Pages().size()) {}

void UBody::SwitchPage(int index) {
    const auto page = static_cast<size_t>(index);
    if (page >= m_pages.size() || !Pages()[page].make)
        return;
    if (!m_pages[page]) {
        m_pages[page] = Pages()[page].make(this);
        addWidget(m_pages[page]);
    }
    setCurrentWidget(m_pages[page]);
}

bool UBody::IsSwitchPage(int index) const {
    const QWidget* page = Page(index);
    return page && currentWidget() == page;
}

QWidget* UBody::Page(int index) const {
    const auto page = static_cast<size_t>(index);
    return page < m_pages.size() ? m_pages[page] : nullptr;
}

#include "app/UMenu.h"

#include "app/Pages.h"
#include "app/UMenuEntry.h"
#include "entity/IotEntities.h"
#include "pages/UpdateStore.h"
#include "platform/application/IotStatus.h"
#include "platform/context/AppContextData.h"
#include "platform/context/DevicePermissions.h"
#include "platform/link/PipeEventWatcher.h"
#include "widgets/AccessibleRole.h"
#include "widgets/GestureScrollArea.h"

#include <QApplication>
#include <QEvent>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

namespace {

constexpr int NarrowestWidth = 232;
constexpr int Margin = 12;

} // namespace

UMenu::UMenu(QWidget* parent) : QWidget(parent), m_scroll(new GestureScrollArea) {
    setAttribute(Qt::WA_StyledBackground);
    SetAccessibleRole(this, QAccessible::PageTabList);

    auto* list = new QWidget;
    list->setObjectName(QStringLiteral("menuList"));
    auto* column = new QVBoxLayout(list);
    column->setContentsMargins(Margin, Margin, Margin, Margin);
    column->setSpacing(4);
    bool inLowerPart = false;
    for (const PageEntry& page : Pages()) {
        auto* entry = new UMenuEntry(QString::fromLatin1(page.icon), list);
        entry->setObjectName(QString::fromLatin1(page.name));
        const int index = static_cast<int>(m_entries.size());
        m_entries.push_back(entry);
        connect(entry, &QPushButton::clicked, this, [this, index] {
            Select(index);
            emit MenuChanged(index);
        });
        if (page.place != PagePlace::Upper && !std::exchange(inLowerPart, true))
            column->addStretch();
        column->addWidget(entry);
    }
    m_scroll->setWidget(list);
    m_scroll->setWidgetResizable(true);
    m_scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_scroll->setFocusPolicy(Qt::NoFocus);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_scroll);

    connect(m_scroll->verticalScrollBar(), &QScrollBar::rangeChanged, this, &UMenu::UpdateWidth);
    Select(0);
    Retranslate();
    connect(AppContextData::Instance(), &AppContextData::Changed, this, [this](AppContextData::Field field) {
        if (field == AppContextData::Field::Linked || field == AppContextData::Field::Enrolled)
            UpdateMarks();
    });
    if (const UpdateStore* updates = UpdateStore::OfApplication())
        connect(updates, &UpdateStore::Changed, this, &UMenu::UpdateMarks);
    if (const DevicePermissions* permissions = DevicePermissions::OfApplication())
        connect(permissions, &DevicePermissions::HeldChanged, this, &UMenu::UpdateMarks);
    new PipeEventWatcher(this, [this](PipeKey key, const std::string& body) { OnPipeReceive(key, body); });
}

UMenuEntry* UMenu::Entry(const char* page) const {
    return m_entries[static_cast<size_t>(PageIndex(page))];
}

void UMenu::SwitchTo(int index) {
    if (static_cast<size_t>(index) >= m_entries.size() || index == Current())
        return;
    Select(index);
    emit MenuChanged(index);
}

void UMenu::Select(int index) {
    const auto selected = static_cast<size_t>(index);
    if (selected >= m_entries.size())
        return;
    for (size_t entry = 0; entry < m_entries.size(); ++entry)
        m_entries[entry]->setChecked(entry == selected);
    if (isAncestorOf(QApplication::focusWidget()))
        FocusSelected();
}

// Not by a focus proxy: Tab would then leave out the entries before it.
void UMenu::FocusSelected() {
    m_entries[static_cast<size_t>(Current())]->setFocus();
}

int UMenu::Current() const {
    const auto checked = std::find_if(m_entries.begin(), m_entries.end(),
                                      [](const UMenuEntry* entry) { return entry->isChecked(); });
    return static_cast<int>(checked - m_entries.begin());
}

void UMenu::SetLiveChannelVisible(bool visible) {
    UMenuEntry* entry = Entry(PageId::LiveChannels);
    entry->setVisible(visible);
    if (!visible && entry->isChecked())
        SwitchTo(0);
}

void UMenu::SetCompact(bool compact) {
    if (m_compact == compact)
        return;
    m_compact = compact;
    for (UMenuEntry* entry : m_entries)
        entry->SetCompact(compact);
    UpdateWidth();
}

void UMenu::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        Retranslate();
    else if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        UpdateWidth();
    QWidget::changeEvent(event);
}

void UMenu::OnPipeReceive(PipeKey key, const std::string& body) {
    if (key != PipeKey::IotStatusNotify)
        return;
    IotStatusEntity entity;
    entity.ReadFromString(body);
    if (!IsKnownIotStatus(entity.status))
        return;
    m_disconnected = static_cast<IotStatus>(entity.status) == IotStatus::Disconnected;
    UpdateMarks();
}

void UMenu::Retranslate() {
    setAccessibleName(tr("menu_name"));
    for (size_t entry = 0; entry < m_entries.size(); ++entry)
        m_entries[entry]->SetName(tr(Pages()[entry].name));
    UpdateMarks();
    UpdateWidth();
}

void UMenu::UpdateMarks() {
    const auto mark = [this](const char* page, bool marked, const char* icon, const QString& meaning) {
        Entry(page)->SetMark(marked ? QString::fromLatin1(icon) : QString(), marked ? meaning : QString());
    };
    mark(PageId::Network, m_disconnected || !AppContextData::Instance()->Linked(), "warning",
         tr("menu_mark_disconnected"));
    const UpdateStore* updates = UpdateStore::OfApplication();
    mark(PageId::About, updates && updates->WantsAttention(), "dot", tr("menu_mark_update"));
    const DevicePermissions* permissions = DevicePermissions::OfApplication();
    mark(PageId::Settings,
         permissions && AppContextData::Instance()->Enrolled() && !permissions->Held().empty(), "managed",
         tr("menu_mark_managed"));
}

void UMenu::UpdateWidth() {
    int width = m_compact ? 0 : NarrowestWidth;
    for (const UMenuEntry* entry : m_entries)
        width = std::max(width, entry ? entry->sizeHint().width() + 2 * Margin : 0);
    const QScrollBar* bar = m_scroll->verticalScrollBar();
    setFixedWidth(width + (bar->maximum() > 0 ? bar->sizeHint().width() : 0));
}

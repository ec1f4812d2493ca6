#include "app/UMenu.h"

#include "app/UMenuEntry.h"
#include "entity/EnrollEntities.h"
#include "entity/IotEntities.h"
#include "platform/application/IotStatus.h"
#include "platform/link/PipeEventWatcher.h"
#include "widgets/AccessibleRole.h"
#include "widgets/GestureScrollArea.h"

#include <QApplication>
#include <QEvent>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>

namespace {

constexpr int NarrowestWidth = 232;
constexpr int Margin = 12;

struct EntryText {
    const char* icon;
    const char* name;
};

constexpr std::array<EntryText, MenuEntryCount> Entries = {{
    {"enrolment", QT_TRANSLATE_NOOP("UMenu", "menu_enrolment")},
    {"features", QT_TRANSLATE_NOOP("UMenu", "menu_features")},
    {"live", QT_TRANSLATE_NOOP("UMenu", "menu_live_channels")},
    {"network", QT_TRANSLATE_NOOP("UMenu", "menu_network")},
    {"settings", QT_TRANSLATE_NOOP("UMenu", "menu_settings")},
    {"about", QT_TRANSLATE_NOOP("UMenu", "menu_about")},
    {"feedback", QT_TRANSLATE_NOOP("UMenu", "menu_feedback")},
}};

} // namespace

UMenu::UMenu(QWidget* parent) : QWidget(parent), m_scroll(new GestureScrollArea) {
    setAttribute(Qt::WA_StyledBackground);
    SetAccessibleRole(this, QAccessible::PageTabList);

    auto* list = new QWidget;
    list->setObjectName(QStringLiteral("menuList"));
    auto* column = new QVBoxLayout(list);
    column->setContentsMargins(Margin, Margin, Margin, Margin);
    column->setSpacing(4);
    for (int index = 0; index < MenuEntryCount; ++index) {
        auto* entry = new UMenuEntry(QString::fromLatin1(Entries[static_cast<size_t>(index)].icon), list);
        entry->setObjectName(QString::fromLatin1(Entries[static_cast<size_t>(index)].name));
        m_entries[static_cast<size_t>(index)] = entry;
        connect(entry, &QPushButton::clicked, this, [this, index] {
            Select(index);
            emit MenuChanged(index);
        });
        if (index == static_cast<int>(MenuEntry::About))
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
    new PipeEventWatcher(this, [this](PipeKey key, const std::string& body) { OnPipeReceive(key, body); });
}

void UMenu::SwitchTo(int index) {
    if (index < 0 || index >= MenuEntryCount || index == Current())
        return;
    Select(index);
    emit MenuChanged(index);
}

void UMenu::Select(int index) {
    if (index < 0 || index >= MenuEntryCount)
        return;
    for (int other = 0; other < MenuEntryCount; ++other)
        m_entries[static_cast<size_t>(other)]->setChecked(other == index);
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
    Entry(MenuEntry::LiveChannels)->setVisible(visible);
    if (!visible && Entry(MenuEntry::LiveChannels)->isChecked())
        SwitchTo(static_cast<int>(MenuEntry::Enrolment));
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
    if (key == PipeKey::IotStatusNotify) {
        IotStatusEntity entity;
        entity.ReadFromString(body);
        if (!IsKnownIotStatus(entity.status))
            return;
        const auto status = static_cast<IotStatus>(entity.status);
        m_disconnected = status == IotStatus::Disconnected;
        if (status == IotStatus::NotEnrolled) {
            // What an organisation sends or holds goes with it.
            m_managed = false;
            SetLiveChannelVisible(false);
        }
        UpdateMarks();
    } else if (key == PipeKey::SettingPermission) {
        PermissionInfo permissions;
        permissions.ReadFromString(body);
        m_managed = !permissions.keyList.empty();
        UpdateMarks();
    }
}

void UMenu::Retranslate() {
    setAccessibleName(tr("menu_name"));
    for (int index = 0; index < MenuEntryCount; ++index)
        m_entries[static_cast<size_t>(index)]->SetName(tr(Entries[static_cast<size_t>(index)].name));
    UpdateMarks();
    UpdateWidth();
}

void UMenu::UpdateMarks() {
    Entry(MenuEntry::Network)
        ->SetMark(m_disconnected ? QStringLiteral("warning") : QString(),
                  m_disconnected ? tr("menu_mark_disconnected") : QString());
    Entry(MenuEntry::Settings)
        ->SetMark(m_managed ? QStringLiteral("managed") : QString(),
                  m_managed ? tr("menu_mark_managed") : QString());
}

void UMenu::UpdateWidth() {
    int width = m_compact ? 0 : NarrowestWidth;
    for (const UMenuEntry* entry : m_entries)
        width = std::max(width, entry ? entry->sizeHint().width() + 2 * Margin : 0);
    const QScrollBar* bar = m_scroll->verticalScrollBar();
    setFixedWidth(width + (bar->maximum() > 0 ? bar->sizeHint().width() : 0));
}

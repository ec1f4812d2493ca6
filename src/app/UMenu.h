#pragma once

#include "app/MenuEntry.h"
#include "platform/link/PipeKey.h"

#include <QWidget>
#include <array>
#include <string>

class GestureScrollArea;
class UMenuEntry;

/// The list of rooms at the side of the main page.
class UMenu : public QWidget {
    Q_OBJECT

public:
    explicit UMenu(QWidget* parent = nullptr);

    /// Selects an entry, as if the user had pressed it. Indices are those of MenuEntry; others do nothing.
    void SwitchTo(int index);

    /// Selects an entry without telling anybody.
    void Select(int index);

    int Current() const;

    /// Gives the selected entry the keyboard.
    void FocusSelected();

    /// The live channels come and go; all other entries stay. When the selected entry goes, the first one
    /// is selected.
    void SetLiveChannelVisible(bool visible);

    /// Icons alone, for narrow windows.
    void SetCompact(bool compact);

signals:
    /// The user chose another entry, or SwitchTo did.
    void MenuChanged(int index);

protected:
    void changeEvent(QEvent* event) override;

private:
    void OnPipeReceive(PipeKey key, const std::string& body);
    void Retranslate();
    void UpdateMarks();
    void UpdateWidth();
    UMenuEntry* Entry(MenuEntry entry) const { return m_entries[static_cast<size_t>(entry)]; }

    std::array<UMenuEntry*, MenuEntryCount> m_entries{};
    GestureScrollArea* m_scroll;
    bool m_compact = false;
    bool m_disconnected = false;
    bool m_managed = false;
};

#pragma once

#include "platform/link/PipeKey.h"

#include <QWidget>
#include <string>
#include <vector>

class GestureScrollArea;
class UMenuEntry;

/// The list of pages at the side of the main page. Indices are those of Pages().
class UMenu : public QWidget {
    Q_OBJECT

public:
    explicit UMenu(QWidget* parent = nullptr);

    /// Selects an entry, as if the user had pressed it. An index without an entry does nothing.
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
    UMenuEntry* Entry(const char* page) const;

    std::vector<UMenuEntry*> m_entries;
    GestureScrollArea* m_scroll;
    bool m_compact = false;
    bool m_disconnected = false; // the service said so
};

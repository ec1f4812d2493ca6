#pragma once

#include "RunningProduct.h"

#include <QImage>

/// The pages of state and settings, as a person goes about them with the keyboard in the light theme.
class StatusPages {
public:
    /// Entries of the menu; the live channels take the place of the network once there are any.
    enum Entry { LiveChannels = 2, Network = 2, Settings };

    explicit StatusPages(const RunningProduct& product) : m_desktop(product.Screen()) {}

    /// Goes to a page with the mouse; the keyboard is at its menu entry then.
    void Open(Entry entry) const { Click({MenuMiddle, FirstEntry + EntryHeight * entry}); }
    void OpenAbout() const;
    /// Goes on by so many stops of the Tab key and presses what is there.
    void Press(int stops, int times = 1) const;

    /// The menu tells of an update.
    bool HasDot() const;
    /// Something on the page has failed, or a notice says so.
    bool Warns() const;
    /// The main window lies behind a dialog.
    bool IsCovered() const;
    /// The words at the menu's lower end.
    QImage LowerMenu() const;

private:
    static constexpr int MenuMiddle = 120;
    static constexpr int FirstEntry = 120;
    static constexpr int EntryHeight = 58;

    QRect Window() const;
    void Click(const QPoint& place) const;

    Desktop& m_desktop;
};

#pragma once

#include "entity/AppEntities.h"

#include <QString>
#include <array>
#include <deque>
#include <mutex>
#include <optional>
#include <unordered_map>
#include <vector>

/// A window in the words of the rules.
struct PopupWindow {
    QString program; ///< file name with extension
    QString className;
    QString title;
    QString productName;
};

/// The list of rules in force. A rule matches a window that is equal to it in all four fields of PopupWindow,
/// but for upper and lower case; what it says of signer and directory takes no part. Any thread.
class PopupRules {
public:
    /// The new list takes the place of the old one.
    void Replace(std::vector<PopupsTypeParams>&& rules);

    /// Takes the first rule that matches the same windows off the list and, when it is enabled, puts this one
    /// at the list's end.
    void Change(const PopupsTypeParams& rule, bool isEnabled);

    void Clear() { Replace({}); }

    /// Whether there is a product name with which the window would match; its own is not looked at.
    bool MayMatch(const PopupWindow& window) const;

    /// The first rule of the list that matches.
    std::optional<PopupsTypeParams> FirstMatch(const PopupWindow& window) const;

private:
    /// Folded program, class and title.
    using Key = std::array<QString, 3>;
    struct Hash {
        std::size_t operator()(const Key& key) const;
    };
    /// Rules that match the same windows, in the order of the list. Between others the order says nothing,
    /// because no window matches both.
    using Equals = std::deque<PopupsTypeParams>;
    /// By folded product name.
    using Products = std::unordered_map<QString, Equals>;
    using Index = std::unordered_map<Key, Products, Hash>;

    static Key KeyOf(const PopupWindow& window);

    mutable std::mutex m_mutex;
    Index m_index;
};

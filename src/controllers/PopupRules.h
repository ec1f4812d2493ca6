#pragma once

#include "platform/application/PopupWindow.h"

#include <QHashFunctions>
#include <deque>
#include <mutex>
#include <optional>
#include <unordered_map>
#include <vector>

/// The list of rules in force. A rule matches the windows that are the same as the one it means. Any thread.
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
    /// Rules that match the same windows, in the order of the list. Between others the order says nothing,
    /// because no window matches both.
    using Equals = std::deque<PopupsTypeParams>;
    /// By the window's identity.
    using Products = std::unordered_map<QString, Equals>;
    /// By its key.
    using Index = std::unordered_map<QString, Products>;

    mutable std::mutex m_mutex;
    Index m_index;
};

#include "controllers/PopupRules.h"

#include <utility>

void PopupRules::Replace(std::vector<PopupsTypeParams>&& rules) {
    Index index;
    for (PopupsTypeParams& rule : rules) {
        const PopupWindow window = PopupWindow::Of(rule);
        index[window.Key()][window.Identity()].push_back(std::move(rule));
    }
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_index.swap(index);
}

void PopupRules::Change(const PopupsTypeParams& rule, bool isEnabled) {
    const PopupWindow window = PopupWindow::Of(rule);
    const QString key = window.Key();
    const QString identity = window.Identity();
    const std::lock_guard<std::mutex> lock(m_mutex);
    Products& products = m_index[key];
    Equals& equals = products[identity];
    if (!equals.empty())
        equals.pop_front();
    if (isEnabled)
        equals.push_back(rule);
    if (equals.empty())
        products.erase(identity);
    if (products.empty())
        m_index.erase(key);
}

bool PopupRules::MayMatch(const PopupWindow& window) const {
    const QString key = window.Key();
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_index.count(key) > 0;
}

std::optional<PopupsTypeParams> PopupRules::FirstMatch(const PopupWindow& window) const {
    const QString key = window.Key();
    const QString identity = window.Identity();
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto products = m_index.find(key);
    if (products == m_index.end())
        return std::nullopt;
    const auto equals = products->second.find(identity);
    if (equals == products->second.end())
        return std::nullopt;
    return equals->second.front();
}

#include "controllers/PopupRules.h"

#include <QVector>
#include <utility>

namespace {

/// Character by character, so that the language of the system takes no part.
QString Folded(const QString& text) {
    QVector<uint> characters = text.toUcs4();
    for (uint& character : characters)
        character = QChar::toCaseFolded(character);
    return QString::fromUcs4(characters.constData(), characters.size());
}

PopupWindow WindowOf(const PopupsTypeParams& rule) {
    return {QString::fromStdString(rule.appName), QString::fromStdString(rule.popClassName),
            QString::fromStdString(rule.popName), QString::fromStdString(rule.popProductName)};
}

} // namespace

std::size_t PopupRules::Hash::operator()(const Key& key) const {
    return qHashRange(key.begin(), key.end());
}

PopupRules::Key PopupRules::KeyOf(const PopupWindow& window) {
    return {Folded(window.program), Folded(window.className), Folded(window.title)};
}

void PopupRules::Replace(std::vector<PopupsTypeParams>&& rules) {
    Index index;
    for (PopupsTypeParams& rule : rules) {
        const PopupWindow window = WindowOf(rule);
        index[KeyOf(window)][Folded(window.productName)].push_back(std::move(rule));
    }
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_index.swap(index);
}

void PopupRules::Change(const PopupsTypeParams& rule, bool isEnabled) {
    const PopupWindow window = WindowOf(rule);
    const Key key = KeyOf(window);
    const QString productName = Folded(window.productName);
    const std::lock_guard<std::mutex> lock(m_mutex);
    Products& products = m_index[key];
    Equals& equals = products[productName];
    if (!equals.empty())
        equals.pop_front();
    if (isEnabled)
        equals.push_back(rule);
    if (equals.empty())
        products.erase(productName);
    if (products.empty())
        m_index.erase(key);
}

bool PopupRules::MayMatch(const PopupWindow& window) const {
    const Key key = KeyOf(window);
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_index.count(key) > 0;
}

std::optional<PopupsTypeParams> PopupRules::FirstMatch(const PopupWindow& window) const {
    const Key key = KeyOf(window);
    const QString productName = Folded(window.productName);
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto products = m_index.find(key);
    if (products == m_index.end())
        return std::nullopt;
    const auto equals = products->second.find(productName);
    if (equals == products->second.end())
        return std::nullopt;
    return equals->second.front();
}

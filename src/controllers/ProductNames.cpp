#include "controllers/ProductNames.h"

#include <QFileInfo>

namespace {

constexpr std::size_t MostEntries = 64;

} // namespace

QString ProductNames::NameOf(const QString& file) {
    const QFileInfo info(file);
    Entry entry{info.size(), info.lastModified(), {}};
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        const auto known = m_entries.find(file);
        if (known != m_entries.end() && known->second.size == entry.size &&
            known->second.changed == entry.changed)
            return known->second.name;
    }
    entry.name = m_programs.GetProductName(file); // may take its time, and nobody else is to wait for it
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_entries.size() >= MostEntries)
        m_entries.clear();
    m_entries[file] = entry;
    return entry.name;
}

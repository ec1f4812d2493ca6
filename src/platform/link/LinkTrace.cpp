#include "platform/link/LinkTrace.h"

#include <QDateTime>

namespace {

const char* Words(LinkTrace::Event event) {
    switch (event) {
    case LinkTrace::Event::Received:
        return "received";
    case LinkTrace::Event::Sent:
        return "sent    ";
    case LinkTrace::Event::NotSent:
        return "not sent";
    case LinkTrace::Event::Connected:
        return "-- link connected";
    case LinkTrace::Event::Disconnected:
        break;
    }
    return "-- link disconnected";
}

std::string Line(const LinkTrace::Entry& entry) {
    std::string line = QDateTime::fromMSecsSinceEpoch(entry.time)
                           .toString(QStringLiteral("yyyy-MM-dd HH:mm:ss.zzz  "))
                           .toStdString() +
                       Words(entry.event);
    if (entry.event != LinkTrace::Event::Connected && entry.event != LinkTrace::Event::Disconnected) {
        const char* name = PipeKeyName(entry.key);
        line += "  " + std::to_string(static_cast<std::int32_t>(entry.key)) + ' ' +
                (name ? name : "unknown") + "  " + std::to_string(entry.size) + " bytes";
    }
    return line + '\n';
}

} // namespace

void LinkTrace::Add(std::int64_t time, Event event, PipeKey key, std::size_t size) {
    const Entry entry{time, size, key, event};
    if (m_ring.size() < Capacity) {
        m_ring.push_back(entry);
    } else {
        m_ring[m_oldest] = entry;
        m_oldest = (m_oldest + 1) % Capacity;
    }
}

std::string LinkTrace::Text() const {
    std::string text;
    for (std::size_t i = 0; i < m_ring.size(); ++i)
        text += Line(m_ring[(m_oldest + i) % m_ring.size()]);
    return text;
}

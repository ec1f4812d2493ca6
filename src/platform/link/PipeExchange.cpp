#include "platform/link/PipeExchange.h"

#include <iterator>
#include <utility>

bool PipeExchange::PushEvents(std::vector<Event>&& events) {
    std::size_t bytes = 0;
    for (const Event& event : events)
        bytes += sizeof(Event) + event.frame.body.size();

    std::lock_guard<std::mutex> lock(m_mutex);
    const bool wasEmpty = m_events.empty();
    m_eventBytes += bytes;
    m_events.insert(m_events.end(), std::make_move_iterator(events.begin()),
                    std::make_move_iterator(events.end()));
    return wasEmpty && !m_events.empty();
}

bool PipeExchange::MustPause() {
    std::lock_guard<std::mutex> lock(m_mutex);
    m_paused = m_eventBytes >= IncomingLimit;
    return m_paused;
}

bool PipeExchange::HasEvents() const {
    std::lock_guard<std::mutex> lock(m_mutex);
    return !m_events.empty();
}

bool PipeExchange::TakeEvents(std::deque<Event>& out) {
    std::lock_guard<std::mutex> lock(m_mutex);
    out.swap(m_events);
    m_eventBytes = 0;
    return std::exchange(m_paused, false);
}

PipeExchange::Queued PipeExchange::PushPacket(const std::string& packet) {
    std::lock_guard<std::mutex> lock(m_mutex);
    if (!m_open || m_packets.size() + m_unwritten + packet.size() > OutgoingLimit)
        return Queued::Refused;
    const bool first = m_packets.empty();
    m_packets += packet;
    return first ? Queued::First : Queued::Appended;
}

std::string PipeExchange::TakePackets() {
    std::lock_guard<std::mutex> lock(m_mutex);
    return std::exchange(m_packets, {});
}

void PipeExchange::SetUnwritten(std::size_t bytes) {
    std::lock_guard<std::mutex> lock(m_mutex);
    m_unwritten = bytes;
}

void PipeExchange::Open() {
    std::lock_guard<std::mutex> lock(m_mutex);
    m_open = true;
}

std::size_t PipeExchange::Close() {
    std::lock_guard<std::mutex> lock(m_mutex);
    m_open = false;
    m_unwritten = 0;
    return std::exchange(m_packets, {}).size();
}

bool PipeExchange::IsOpen() const {
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_open;
}

#include "messages/MessageQueue.h"

#include <algorithm>

void MessageQueue::Add(const Turn& turn) {
    const auto rank = [](const Turn& other) {
        return other.isEmergency ? 2 : static_cast<int>(other.isAgain);
    };
    const auto place = std::find_if(m_turns.begin(), m_turns.end(), [&](const Turn& other) {
        return rank(other) < rank(turn) + static_cast<int>(turn.isAgain);
    });
    m_turns.insert(place, turn);
}

void MessageQueue::Remove(int id) {
    m_turns.erase(
        std::remove_if(m_turns.begin(), m_turns.end(), [id](const Turn& turn) { return turn.id == id; }),
        m_turns.end());
}

bool MessageQueue::Contains(int id) const {
    return std::any_of(m_turns.begin(), m_turns.end(), [id](const Turn& turn) { return turn.id == id; });
}

std::optional<int> MessageQueue::PassSecond() {
    if (m_turns.empty() || m_turns.front().seconds == 0 ||
        ++m_turns.front().secondsOver < m_turns.front().seconds)
        return std::nullopt;
    Turn turn = m_turns.front();
    m_turns.pop_front();
    if (--turn.showings <= 0)
        return turn.id;
    turn.secondsOver = 0;
    Add(turn);
    return std::nullopt;
}

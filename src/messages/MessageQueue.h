#pragma once

#include <deque>
#include <optional>

/// Whose turn it is among the messages that are to be shown: emergencies come first, and before what is shown
/// already; then what the user wants to read once more, the latest wish first; then the earlier one.
class MessageQueue {
public:
    struct Turn {
        int id = 0; ///< of the message
        bool isEmergency = false;
        int seconds = 0; ///< of each showing; 0: until it is closed
        int showings = 1;
        bool isAgain = false; ///< the user wants to read it once more, and may close it
        int secondsOver = 0;  ///< of this showing
    };

    void Add(const Turn& turn);
    void Remove(int id);

    /// The one to show; null when there is none.
    const Turn* Current() const { return m_turns.empty() ? nullptr : &m_turns.front(); }
    bool Contains(int id) const;
    /// How many wait behind it.
    int Waiting() const { return m_turns.empty() ? 0 : static_cast<int>(m_turns.size()) - 1; }

    /// The current one was shown for a second. When that ends its showing, the next one has its turn; returns
    /// the message when it was its last showing.
    std::optional<int> PassSecond();

private:
    std::deque<Turn> m_turns;
};

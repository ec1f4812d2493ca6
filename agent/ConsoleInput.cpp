#include "ConsoleInput.h"

#include <iostream>
#include <mutex>
#include <thread>

/// What the reading thread, which may outlive the object, knows of it.
struct ConsoleInput::Link {
    std::mutex mutex;
    ConsoleInput* input;

    explicit Link(ConsoleInput* owner) : input(owner) {}

    template <class Act>
    void Post(Act act) {
        const std::lock_guard<std::mutex> lock(mutex);
        if (input)
            QMetaObject::invokeMethod(
                input, [target = input, act] { act(*target); }, Qt::QueuedConnection);
    }
};

ConsoleInput::ConsoleInput() : m_link(std::make_shared<Link>(this)) {}

ConsoleInput::~ConsoleInput() {
    const std::lock_guard<std::mutex> lock(m_link->mutex);
    m_link->input = nullptr;
}

void ConsoleInput::Start() {
    std::thread([link = m_link] {
        std::string line;
        while (std::getline(std::cin, line))
            link->Post([line](ConsoleInput& input) { emit input.LineRead(line); });
        link->Post([](ConsoleInput& input) { emit input.Ended(); });
    }).detach();
}

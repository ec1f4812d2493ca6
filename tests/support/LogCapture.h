#pragma once

#include <glog/logging.h>
#include <mutex>
#include <string>

/// Collects the log's lines while it lives.
class LogCapture : public google::LogSink {
public:
    LogCapture() { google::AddLogSink(this); }
    ~LogCapture() override { google::RemoveLogSink(this); }

    void send(google::LogSeverity, const char*, const char*, int, const struct ::tm*, const char* message,
              std::size_t length) override {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_text.append(message, length).push_back('\n');
    }

    std::string Text() const {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_text;
    }
    /// How often `part` occurs.
    int Count(const std::string& part) const {
        const std::string text = Text();
        int count = 0;
        for (auto at = text.find(part); at != std::string::npos; at = text.find(part, at + part.size()))
            ++count;
        return count;
    }

private:
    mutable std::mutex m_mutex;
    std::string m_text;
};

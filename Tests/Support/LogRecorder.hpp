// Collects what is logged while it lives; nothing of it reaches standard error.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "Platform/Commons/DefaultLogger.hpp"

namespace proupsells::tests {

class LogRecorder {
public:
    LogRecorder()
        : m_previous(
              commons::DefaultLogger::shared().setSink([this](const commons::LogRecord& record) { m_records.push_back(record); })) {
    }
    ~LogRecorder() { commons::DefaultLogger::shared().setSink(std::move(m_previous)); }
    LogRecorder(const LogRecorder&) = delete;

    const std::vector<commons::LogRecord>& records() const { return m_records; }

    std::vector<std::string> messages() const {
        std::vector<std::string> messages;
        for (const auto& record : m_records) messages.push_back(record.message);
        return messages;
    }

private:
    std::vector<commons::LogRecord> m_records;
    commons::DefaultLogger::Sink m_previous;
};

} // namespace proupsells::tests

#include "Platform/Commons/DefaultLogger.hpp"

#include <cstdio>
#include <utility>

namespace proupsells::commons {

namespace {

std::string_view fileName(std::string_view path) { return path.substr(path.find_last_of("/\\") + 1); }

void writeToStandardError(const LogRecord& record) {
    std::string line = "[" + std::to_string(record.severity) + "] " + record.message + " (" + record.function + ", ";
    line.append(fileName(record.file)).append(":").append(std::to_string(record.line)).append(")\n");
    std::fwrite(line.data(), 1, line.size(), stderr);
}

} // namespace

DefaultLogger& DefaultLogger::shared() {
    static DefaultLogger logger;
    return logger;
}

void DefaultLogger::log(int severity, std::string_view message, std::string_view function, SourceLocation location) {
    const LogRecord record{severity, std::string(message), std::string(function), location.file, location.line};
    if (!m_sink) return writeToStandardError(record);
    // A copy, because the sink may replace itself.
    const Sink sink = m_sink;
    sink(record);
}

DefaultLogger::Sink DefaultLogger::setSink(Sink sink) { return std::exchange(m_sink, std::move(sink)); }

} // namespace proupsells::commons

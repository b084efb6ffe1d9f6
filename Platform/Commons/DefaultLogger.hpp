// The one logger to which the module and its toolkit report host mistakes.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "Platform/Commons/SourceLocation.hpp"
#include "Platform/System/Compiler.hpp"

namespace proupsells::commons {

// One line of the log, and where in the code it was written.
struct LogRecord {
    int severity = 0;
    std::string message;
    std::string function; // as the caller names itself
    std::string file;
    unsigned line = 0;
};

class PROUPSELLS_EXPORT DefaultLogger {
public:
    // On the logger's scale, 4 is an error that was survived.
    static constexpr int errorSeverity = 4;

    // The one logger of the process.
    static DefaultLogger& shared();

    // Hands the record to the sink at once, on the calling thread.
    void log(int severity, std::string_view message, std::string_view function,
             SourceLocation location = SourceLocation::current());

    // Takes records. It may replace itself, and log.
    using Sink = std::function<void(const LogRecord&)>;

    // Replaces the sink and returns the previous one. An empty sink restores the default, a line on standard error.
    Sink setSink(Sink sink);

private:
    Sink m_sink;
};

} // namespace proupsells::commons

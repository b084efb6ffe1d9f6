// The lines that the program writes for every call that the module makes.
#pragma once

#include <iosfwd>
#include <string_view>

#include "Apps/ProUpsellsHost/Json.hpp"
#include "Platform/Commons/DefaultLogger.hpp"

namespace proupsells::hostprogram {

// One JSON object a line, written when the call is made.
class EventLog {
public:
    explicit EventLog(std::ostream& stream) : m_stream(stream) {}

    // Adds "time" (the main run loop's) and "event" before the keys of `details`.
    void write(std::string_view event, const Json& details);
    // The event "log".
    void write(const commons::LogRecord& record);

    // A line could not be written.
    bool isLost() const;

private:
    std::ostream& m_stream;
};

} // namespace proupsells::hostprogram

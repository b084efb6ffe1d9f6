#include "Apps/ProUpsellsHost/EventLog.hpp"

#include <ostream>

#include <nlohmann/json.hpp>

#include "Apps/ProUpsellsHost/Numbers.hpp"
#include "Platform/RunLoop/MainRunLoop.hpp"

namespace proupsells::hostprogram {

void EventLog::write(std::string_view event, const Json& details) {
    Json line;
    line["time"] = toJson(runloop::MainRunLoop::main().now_s());
    line["event"] = event;
    for (const auto& [key, value] : details.items()) line[key] = value;
    m_stream << line.dump(-1, ' ', false, Json::error_handler_t::replace) << '\n' << std::flush;
}

void EventLog::write(const commons::LogRecord& record) {
    write("log", {{"severity", record.severity}, {"message", record.message}, {"function", record.function}});
}

bool EventLog::isLost() const { return m_stream.fail(); }

} // namespace proupsells::hostprogram

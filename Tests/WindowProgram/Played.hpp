// What a recording does when it is played.
#pragma once

#include <filesystem>
#include <sstream>
#include <string>

#include "Apps/ProUpsellsHost/ScenarioRunner.hpp"
#include "Platform/RunLoop/MainRunLoop.hpp"

namespace proupsells::tests {

// The event lines.
inline std::string playedLines(const std::filesystem::path& recording) {
    using namespace hostprogram;
    const Scenario scenario = readScenario(recording);
    runloop::MainRunLoop loop(std::make_shared<runloop::VirtualClock>());
    std::ostringstream lines;
    const auto log = std::make_shared<EventLog>(lines);
    HostSession session(scenario.offers, scenario.device, hostPartsOf(scenario), ffmpegbackend::Pace::exact, log);
    ScenarioRunner(scenario, loop, session, log, std::nullopt).run();
    return lines.str();
}

} // namespace proupsells::tests

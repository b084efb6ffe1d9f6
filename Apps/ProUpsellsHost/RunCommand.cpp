#include "Apps/ProUpsellsHost/RunCommand.hpp"

#include <iostream>

#include "Apps/ProUpsellsHost/ScenarioRunner.hpp"

namespace proupsells::hostprogram {

int runScenario(const std::filesystem::path& scenarioFile, const std::filesystem::path& folder) {
    constexpr int held = 0, contradicted = 1;
    const Scenario scenario = readScenario(scenarioFile);
    runloop::MainRunLoop loop(std::make_shared<runloop::VirtualClock>());
    const auto log = std::make_shared<EventLog>(std::cout);
    HostSession session(scenario.offers, scenario.device, hostPartsOf(scenario), ffmpegbackend::Pace::exact, log);
    return ScenarioRunner(scenario, loop, session, log, folder).run() ? held : contradicted;
}

} // namespace proupsells::hostprogram

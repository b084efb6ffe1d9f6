#include "Apps/ProUpsellsHost/ReadCommand.hpp"

#include <iostream>
#include <sstream>

#include "Apps/ProUpsellsHost/ScenarioRunner.hpp"
#include "Platform/Foundation/Resources.hpp"
#include "Tooling/SpokenScreen.hpp"

namespace proupsells::hostprogram {

namespace {

// What the module calls on a host is not read.
std::shared_ptr<EventLog> silentLog(std::ostringstream& discarded) { return std::make_shared<EventLog>(discarded); }

std::string joined(const std::vector<std::string>& lines, const char* indentation) {
    std::string result;
    for (const std::string& line : lines) result += indentation + line + "\n";
    return result;
}

int readScreen(StartScreen screen, const ReadArguments& arguments) {
    std::ostringstream discarded;
    runloop::MainRunLoop loop(std::make_shared<runloop::VirtualClock>());
    HostSession session(readOffersFile(arguments.offers ? *arguments.offers : foundation::requiredResource("offers.json")),
                        arguments.device, {}, ffmpegbackend::Pace::exact, silentLog(discarded));
    tooling::Driver driver(loop, session.window());
    session.present();
    driver.finishTransitions();
    session.open(screen);
    driver.finishTransitions();
    std::cout << joined(tooling::spokenLines(session.window().reading()), "");
    return 0;
}

int readScenarioAloud(const std::filesystem::path& file) {
    constexpr int held = 0, contradicted = 1;
    const Scenario scenario = readScenario(file);
    std::ostringstream discarded;
    runloop::MainRunLoop loop(std::make_shared<runloop::VirtualClock>());
    const auto log = silentLog(discarded);
    HostSession session(scenario.offers, scenario.device, hostPartsOf(scenario), ffmpegbackend::Pace::exact, log);

    std::string told;
    accessibility::ReadingElement before;
    const bool allHeld = ScenarioRunner(scenario, loop, session, log, std::nullopt).run([&](const std::string* stepText) {
        accessibility::ReadingElement after = session.window().reading();
        told += stepText ? "\n> " + *stepText + "\n" + joined(tooling::announcements(before, after), "  ")
                         : joined(tooling::spokenLines(after), "");
        before = std::move(after);
    });
    std::cout << told;
    return allHeld ? held : contradicted;
}

} // namespace

int readAloud(const ReadArguments& arguments) {
    if (const auto* screen = std::get_if<StartScreen>(&arguments.subject)) return readScreen(*screen, arguments);
    return readScenarioAloud(std::get<std::filesystem::path>(arguments.subject));
}

} // namespace proupsells::hostprogram

#include "Apps/ProUpsellsHost/EvidenceCommand.hpp"

#include <iostream>
#include <sstream>

#include <nlohmann/json.hpp>
#include <sha2.h>

#include "Apps/ProUpsellsHost/InputError.hpp"
#include "Apps/ProUpsellsHost/ScenarioRunner.hpp"
#include "Apps/ProUpsellsHost/WholeFile.hpp"
#include "Apps/ProUpsellsHost/Witness.hpp"
#include "ProUpsells/Version.hpp"
#include "Tooling/WrittenNumber.hpp"

namespace proupsells::hostprogram {

namespace {

std::string sha256(std::string_view bytes) {
    char digits[SHA256_DIGEST_STRING_LENGTH];
    return SHA256Data(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size(), digits);
}

tooling::EvidenceFacts factsOf(const Device& device) {
    std::string version(reinterpret_cast<const char*>(ProUpsellsVersionString));
    while (!version.empty() && version.back() == '\n') version.pop_back();
    const auto& insets = device.safeArea;
    return {{"Module", version},
            {"Language", device.locale},
            {"Window in points", tooling::written(device.size.width) + " x " + tooling::written(device.size.height)},
            {"Pixels a point", tooling::written(device.scale)},
            {"Covered by the system: top, left, bottom, right",
             tooling::written(insets.top) + ", " + tooling::written(insets.left) + ", " + tooling::written(insets.bottom) + ", " +
                 tooling::written(insets.right)},
            {"Appearance", device.appearance == graphics::ColorScheme::dark ? "dark" : "light"},
            {"Text size", std::string(textSizeWord(device.textSize))},
            {"Reduced motion", device.reduceMotion ? "yes" : "no"}};
}

tooling::EvidenceFacts factsOf(const SubscriptionOption& option) {
    const Json keys = toJson(option);
    tooling::EvidenceFacts facts;
    for (const auto& [key, value] : keys.items())
        facts.emplace_back(key, value.is_string() ? value.get<std::string>() : value.dump());
    return facts;
}

} // namespace

int writeEvidence(const EvidenceArguments& arguments) {
    constexpr int held = 0, contradicted = 1;
    const Scenario scenario = readScenario(arguments.scenario);
    expectWritable(arguments.file);
    tooling::Evidence evidence{.facts = factsOf(scenario.device), .offers = {}, .moments = {}};
    for (const SubscriptionOption& option : scenario.offers.options) evidence.offers.push_back(factsOf(option));

    std::ostringstream calls;
    runloop::MainRunLoop loop(std::make_shared<runloop::VirtualClock>());
    const auto log = std::make_shared<EventLog>(calls);
    HostSession session(scenario.offers, scenario.device, hostPartsOf(scenario), ffmpegbackend::Pace::exact, log);
    Witness witness(session, calls);
    const bool allHeld =
        ScenarioRunner(scenario, loop, session, log, std::nullopt).run([&](const std::string* did) { witness.note(did); });
    evidence.moments = witness.takeMoments();

    const auto document = tooling::evidenceDocument(evidence, "SHA-256", sha256);
    writeWhole(arguments.file, document.html);
    std::cout << document.digest << '\n';
    return allHeld ? held : contradicted;
}

} // namespace proupsells::hostprogram

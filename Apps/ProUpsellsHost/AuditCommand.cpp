#include "Apps/ProUpsellsHost/AuditCommand.hpp"

#include <cstdlib>
#include <iostream>

#include <nlohmann/json.hpp>

#include "Apps/ProUpsellsHost/AcceptedFindings.hpp"
#include "Apps/ProUpsellsHost/AuditReport.hpp"
#include "Apps/ProUpsellsHost/AuditTour.hpp"
#include "Apps/ProUpsellsHost/DeviceOptions.hpp"
#include "Apps/ProUpsellsHost/InputError.hpp"
#include "Apps/ProUpsellsHost/JsonFile.hpp"
#include "Apps/ProUpsellsHost/ScenarioRunner.hpp"
#include "Platform/Foundation/Resources.hpp"
#include "Platform/System/ParallelTasks.hpp"
#include "Platform/System/PathText.hpp"

namespace proupsells::hostprogram {

namespace {

// Whether the file is a scenario rather than offers, by the key that each must have.
bool isScenario(const std::filesystem::path& file) {
    const Json json = readJsonFile(file);
    return json.is_object() && json.contains("offers");
}

Device deviceOf(const AuditArguments& arguments) {
    Json keys = Json::object();
    if (arguments.strings) keys["strings"] = system::textOf(*arguments.strings);
    if (arguments.theme) keys["theme"] = system::textOf(*arguments.theme);
    return readDevice(JsonCursor{keys, commandLinePlace}, std::filesystem::current_path());
}

struct Subject {
    Offers offers;
    Device device;
    AuditMatrix matrix;
};

Subject readSubject(const AuditArguments& arguments) {
    Subject subject;
    subject.offers = readOffersFile(arguments.subject ? *arguments.subject : foundation::requiredResource("offers.json"));
    subject.device = deviceOf(arguments);
    subject.matrix = arguments.matrix ? readMatrix(*arguments.matrix, arguments.strings) : defaultMatrix(arguments.strings);
    return subject;
}

// What is found in one language, as JSON for the process that asked for it.
std::string auditLanguage(const Subject& subject, const std::string& locale) {
    AuditLedger ledger;
    Device device = subject.device;
    device.locale = locale;
    Json identifiers = Json::object();
    for (const StartScreen screen : subject.matrix.screens) {
        AuditTour tour(screen, subject.offers, device, ledger);
        tour.run(subject.matrix);
        identifiers[std::string(wordFor(screen, startScreens))] = tour.identifiers();
    }
    Json entries = Json::array();
    for (const AuditEntry& entry : ledger.entries()) entries.push_back(toJson(entry));
    return Json{{"entries", entries}, {"identifiers", identifiers}}.dump(-1, ' ', false, Json::error_handler_t::replace);
}

// Controls that another language has under other identifiers.
void compareIdentifiers(const Json& first, const Json& other, const Device& device, AuditLedger& ledger) {
    ledger.begin(device);
    for (const auto& [screen, identifiers] : other.items())
        for (const Json& identifier : identifiers) {
            const Json& known = first[screen];
            if (std::find(known.begin(), known.end(), identifier) != known.end()) continue;
            ledger.add(screen, {tooling::AuditRule::languageIdentifier, "",
                                identifier.get<std::string>() + " is an identifier in " + device.locale + " only",
                                identifier.get<std::string>()});
        }
}

// A process for each language: the comparison keeps the language of its first use, and all processors have something to do.
AuditLedger auditOffers(const Subject& subject) {
    const auto& locales = subject.matrix.locales;
    const auto answers = system::runInProcesses(locales.size(), [&](std::size_t i) { return auditLanguage(subject, locales[i]); });
    AuditLedger ledger;
    Json first;
    for (std::size_t i = 0; i < locales.size(); ++i) {
        // It has said why.
        if (!answers[i]) std::abort();
        const Json answer = Json::parse(*answers[i]);
        for (const Json& entry : answer["entries"]) ledger.merge(auditEntryOf(entry));
        if (i == 0) first = answer["identifiers"];
        Device device = subject.device;
        device.locale = locales[i];
        compareIdentifiers(first, answer["identifiers"], device, ledger);
    }
    return ledger;
}

AuditLedger auditScenario(const std::filesystem::path& file) {
    const Scenario scenario = readScenario(file);
    AuditLedger ledger;
    std::ostringstream discarded;
    runloop::MainRunLoop loop(std::make_shared<runloop::VirtualClock>());
    const auto log = std::make_shared<EventLog>(discarded);
    HostSession session(scenario.offers, scenario.device, {.tracker = scenario.hasTracker, .delegate = scenario.hasDelegate},
                        ffmpegbackend::Pace::exact, log);
    Driver driver(loop, session);
    ScreenInspector inspector(session, driver, ledger);
    ScenarioRunner(scenario, loop, session, log, std::nullopt).run([&](const std::string*) {
        if (!session.isShowing()) return;
        const std::string screen(session.window().frontMostViewController()->typeName());
        const accessibility::SemanticNode tree = session.window().semanticTree();
        inspector.lookAtTree(screen, tree, {&session.device().appearance, 1});
        inspector.lookAtPainting(screen, tree);
        inspector.listen(screen);
    });
    return ledger;
}

} // namespace

int auditScreens(const AuditArguments& arguments) {
    constexpr int clean = 0, hasFindings = 1;
    const AcceptedFindings accepted(arguments.accepted);
    const bool playsScenario = arguments.subject && isScenario(*arguments.subject);
    if (playsScenario && (arguments.matrix || arguments.strings || arguments.theme))
        throw InputError(commandLinePlace, "", "a scenario has a device of its own, expected no --matrix, --strings or --theme");
    const AuditLedger ledger = playsScenario ? auditScenario(*arguments.subject) : auditOffers(readSubject(arguments));
    std::vector<AuditEntry> entries;
    for (const AuditEntry& entry : ledger.entries())
        if (!accepted.covers(
                {{"rule", entry.rule}, {"screen", entry.screen}, {"identifier", entry.identifier}, {"path", entry.path}}))
            entries.push_back(entry);
    std::cout << auditReport(entries, arguments.format);
    return entries.empty() ? clean : hasFindings;
}

} // namespace proupsells::hostprogram

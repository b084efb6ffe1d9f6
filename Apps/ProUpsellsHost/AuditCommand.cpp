#include "Apps/ProUpsellsHost/AuditCommand.hpp"

#include <iostream>

#include <nlohmann/json.hpp>

#include "Apps/ProUpsellsHost/AcceptedFindings.hpp"
#include "Apps/ProUpsellsHost/AuditOffers.hpp"
#include "Apps/ProUpsellsHost/AuditReport.hpp"
#include "Apps/ProUpsellsHost/AuditScenario.hpp"
#include "Apps/ProUpsellsHost/DeviceOptions.hpp"
#include "Apps/ProUpsellsHost/InputError.hpp"
#include "Apps/ProUpsellsHost/JsonFile.hpp"
#include "Platform/Foundation/Resources.hpp"
#include "Platform/System/PathText.hpp"

namespace proupsells::hostprogram {

namespace {

// Whether the file is a scenario rather than offers, by the key that each must have.
bool isScenario(const std::filesystem::path& file) {
    const Json json = readJsonFile(file);
    return json.is_object() && json.contains("offers");
}

AuditSubject readSubject(const AuditArguments& arguments) {
    AuditSubject subject;
    subject.offers = readOffersFile(arguments.subject ? *arguments.subject : foundation::requiredResource("offers.json"));
    subject.device = brandedDevice(arguments.strings, arguments.theme);
    subject.matrix = arguments.matrix ? readMatrix(*arguments.matrix, arguments.strings) : defaultMatrix(arguments.strings);
    return subject;
}

} // namespace

int auditScreens(const AuditArguments& arguments) {
    constexpr int clean = 0, hasFindings = 1;
    const AcceptedFindings accepted(arguments.accepted);
    const bool playsScenario = arguments.subject && isScenario(*arguments.subject);
    if (playsScenario && (arguments.strings || arguments.theme))
        throw InputError(commandLinePlace, "", "a scenario has a device of its own, expected no --strings or --theme");
    const AuditLedger ledger =
        playsScenario ? auditScenario(*arguments.subject, arguments.matrix) : auditOffers(readSubject(arguments));
    std::vector<AuditEntry> entries;
    for (const AuditEntry& entry : ledger.entries())
        if (!accepted.covers(
                {{"rule", entry.rule}, {"screen", entry.screen}, {"identifier", entry.identifier}, {"path", entry.path}}))
            entries.push_back(entry);
    std::cout << auditReport(entries, arguments.format);
    return entries.empty() ? clean : hasFindings;
}

} // namespace proupsells::hostprogram

#include "Apps/ProUpsellsHost/AuditOffers.hpp"

#include <algorithm>

#include <nlohmann/json.hpp>

#include "Apps/ProUpsellsHost/AuditTour.hpp"
#include "Apps/ProUpsellsHost/ParallelAnswers.hpp"

namespace proupsells::hostprogram {

namespace {

// What is found in one language.
Json auditLanguage(const AuditSubject& subject, const std::string& locale) {
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
    return {{"entries", entries}, {"identifiers", identifiers}};
}

} // namespace

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
AuditLedger auditOffers(const AuditSubject& subject) {
    const auto& locales = subject.matrix.locales;
    const auto answers = parallelAnswers(locales.size(), [&](std::size_t i) { return auditLanguage(subject, locales[i]); });
    AuditLedger ledger;
    Json first;
    for (std::size_t i = 0; i < locales.size(); ++i) {
        const Json& answer = answers[i];
        for (const Json& entry : answer["entries"]) ledger.merge(auditEntryOf(entry));
        if (i == 0) first = answer["identifiers"];
        Device device = subject.device;
        device.locale = locales[i];
        compareIdentifiers(first, answer["identifiers"], device, ledger);
    }
    return ledger;
}

} // namespace proupsells::hostprogram

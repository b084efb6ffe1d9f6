#include "Apps/ProUpsellsHost/AuditReport.hpp"

#include <nlohmann/json.hpp>

#include "Apps/ProUpsellsHost/InputError.hpp"

namespace proupsells::hostprogram {

namespace {

std::string placeOf(const AuditEntry& entry) {
    std::string place = entry.screen;
    for (const std::string& part : {entry.identifier, entry.path})
        if (!part.empty()) place += " " + part;
    return place;
}

std::string whereItHappens(const AuditEntry& entry) {
    const std::string count =
        std::to_string(entry.configurations) + (entry.configurations == 1 ? " configuration" : " configurations");
    return entry.configuration + ", the smallest width of " + count;
}

std::string textReport(std::span<const AuditEntry> entries) {
    std::string report;
    for (const AuditEntry& entry : entries)
        report += placeOf(entry) + ": " + entry.rule + ": " + oneLine(entry.message) + ". " + entry.advice + " [" +
                  whereItHappens(entry) + "]\n";
    return report;
}

Json jsonReport(std::span<const AuditEntry> entries) {
    Json rows = Json::array();
    for (const AuditEntry& entry : entries) rows.push_back(toJson(entry));
    return {{"findings", rows}};
}

Json sarifReport(std::span<const AuditEntry> entries) {
    Json rules = Json::array(), results = Json::array();
    for (int i = 0; i < tooling::auditRuleCount; ++i) {
        const auto rule = static_cast<tooling::AuditRule>(i);
        rules.push_back({{"id", nameOf(rule)}, {"help", {{"text", adviceOf(rule)}}}});
    }
    for (const AuditEntry& entry : entries) {
        const Json place{{"fullyQualifiedName", placeOf(entry)}, {"kind", "element"}};
        results.push_back(
            {{"ruleId", entry.rule},
             {"level", "warning"},
             {"message", {{"text", oneLine(entry.message) + ". " + entry.advice + " (" + whereItHappens(entry) + ")"}}},
             {"locations", Json::array({Json{{"logicalLocations", Json::array({place})}}})}});
    }
    const Json driver{{"name", "proupsells audit"}, {"rules", rules}};
    const Json run{{"tool", {{"driver", driver}}}, {"results", results}};
    return {{"$schema", "https://json.schemastore.org/sarif-2.1.0.json"}, {"version", "2.1.0"}, {"runs", Json::array({run})}};
}

} // namespace

std::string auditReport(std::span<const AuditEntry> entries, AuditFormat format) {
    switch (format) {
    case AuditFormat::text: return textReport(entries);
    case AuditFormat::json: return jsonReport(entries).dump(2) + "\n";
    case AuditFormat::sarif: break;
    }
    return sarifReport(entries).dump(2) + "\n";
}

} // namespace proupsells::hostprogram

#include "Apps/ProUpsellsHost/AuditLedger.hpp"

#include <nlohmann/json.hpp>

namespace proupsells::hostprogram {

namespace {

std::string wordsOf(const Device& device) {
    const auto length = [](double points) { return Json(points).dump(); };
    const auto whole = [&](double points) { return points == double(int(points)) ? std::to_string(int(points)) : length(points); };
    return device.locale + " " + std::string(textSizeWord(device.textSize)) + " " + whole(device.size.width) + "x" +
           whole(device.size.height) + (device.appearance == graphics::ColorScheme::dark ? " dark" : " light");
}

// What makes two sightings one finding. What has no path is told by its identifier, or by its words.
std::string keyOf(const AuditEntry& entry) {
    const std::string& place = !entry.path.empty() ? entry.path : !entry.identifier.empty() ? entry.identifier : entry.message;
    return entry.screen + "\n" + entry.rule + "\n" + place;
}

} // namespace

void AuditLedger::begin(const Device& device) {
    m_configuration = wordsOf(device);
    m_width = device.size.width;
}

void AuditLedger::add(const std::string& screen, const tooling::Finding& finding) {
    AuditEntry entry{.screen = screen,
                     .rule = std::string(nameOf(finding.rule)),
                     .path = finding.path,
                     .identifier = finding.identifier,
                     .message = finding.detail,
                     .advice = std::string(adviceOf(finding.rule)),
                     .configuration = m_configuration,
                     .smallestWidth = m_width,
                     .configurations = 1};
    const auto known = m_indices.find(keyOf(entry));
    const std::size_t place = known == m_indices.end() ? m_entries.size() : known->second;
    if (m_sightings.emplace(place, m_configuration).second) merge(std::move(entry));
}

void AuditLedger::merge(AuditEntry entry) {
    const auto [place, isNew] = m_indices.emplace(keyOf(entry), m_entries.size());
    if (isNew) {
        m_entries.push_back(std::move(entry));
        return;
    }
    AuditEntry& known = m_entries[place->second];
    const std::size_t configurations = known.configurations + entry.configurations;
    if (entry.smallestWidth < known.smallestWidth) known = std::move(entry);
    known.configurations = configurations;
}

Json toJson(const AuditEntry& entry) {
    return {{"screen", entry.screen},
            {"rule", entry.rule},
            {"path", entry.path},
            {"identifier", entry.identifier},
            {"message", entry.message},
            {"advice", entry.advice},
            {"configuration", entry.configuration},
            {"smallestWidth", entry.smallestWidth},
            {"configurations", entry.configurations}};
}

AuditEntry auditEntryOf(const Json& json) {
    return {json["screen"], json["rule"],          json["path"],          json["identifier"],    json["message"],
            json["advice"], json["configuration"], json["smallestWidth"], json["configurations"]};
}

} // namespace proupsells::hostprogram

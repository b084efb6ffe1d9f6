// What an audit has found, each finding once, however many configurations it happens in.
#pragma once

#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "Apps/ProUpsellsHost/Device.hpp"
#include "Apps/ProUpsellsHost/Json.hpp"
#include "Tooling/ScreenAudit.hpp"

namespace proupsells::hostprogram {

struct AuditEntry {
    std::string screen, rule, path, identifier, message, advice;
    std::string configuration;      // the first with the smallest width, such as "de large 320x568 light"
    double smallestWidth = 0;       // points
    std::size_t configurations = 0; // in which it happens
};

class AuditLedger {
public:
    // What is added from here on is of this configuration, in which each finding counts once.
    void begin(const Device& device);
    void add(const std::string& screen, const tooling::Finding& finding);
    void merge(AuditEntry entry);

    // In the order in which they were first added.
    const std::vector<AuditEntry>& entries() const { return m_entries; }

private:
    std::vector<AuditEntry> m_entries;
    std::map<std::string, std::size_t> m_indices;
    std::set<std::pair<std::size_t, std::string>> m_sightings; // an entry's place, a configuration
    std::string m_configuration;
    double m_width = 0;
};

Json toJson(const AuditEntry& entry);
AuditEntry auditEntryOf(const Json& json);

} // namespace proupsells::hostprogram

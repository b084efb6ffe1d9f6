#include "Apps/ProUpsellsHost/AcceptedFindings.hpp"

#include <algorithm>

#include <nlohmann/json.hpp>

#include "Apps/ProUpsellsHost/JsonCursor.hpp"
#include "Apps/ProUpsellsHost/JsonFile.hpp"
#include "Platform/System/PathText.hpp"

namespace proupsells::hostprogram {

AcceptedFindings::AcceptedFindings(const std::optional<std::filesystem::path>& file) {
    if (!file) return;
    constexpr std::string_view reason = "reason";
    const Json json = readJsonFile(*file);
    const JsonCursor root{json, system::textOf(*file)};
    root.expectObject({"accepted"});
    for (const JsonCursor& entry : root.at("accepted").elements()) {
        entry.expectObject({"rule", "file", "place", "screen", "identifier", "path", reason});
        if (entry.at(reason).text().empty()) entry.at(reason).fail("the reason is empty, expected why the finding is let be");
        Keys wanted;
        for (const std::string& key : entry.keys())
            if (key != reason) wanted.emplace(key, entry.at(key).text());
        if (wanted.empty()) entry.fail("this would cover every finding, expected a rule or another key");
        m_entries.push_back(std::move(wanted));
    }
}

bool AcceptedFindings::covers(const Keys& finding) const {
    return std::any_of(m_entries.begin(), m_entries.end(), [&](const Keys& entry) {
        return std::all_of(entry.begin(), entry.end(), [&](const auto& wanted) {
            const auto found = finding.find(wanted.first);
            return found != finding.end() && found->second == wanted.second;
        });
    });
}

} // namespace proupsells::hostprogram

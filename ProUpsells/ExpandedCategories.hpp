// Which categories of the comparison are open.
#pragma once

#include <map>
#include <string>

namespace proupsells {

struct ExpandedCategories {
    std::map<std::string, bool> expandedCategories; // by name

    // One that is not mentioned is closed.
    bool isExpanded(const std::string& name) const {
        const auto found = expandedCategories.find(name);
        return found != expandedCategories.end() && found->second;
    }

    bool operator==(const ExpandedCategories&) const = default;
};

} // namespace proupsells

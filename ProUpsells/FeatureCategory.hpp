// Features under one heading of the plan comparison.
#pragma once

#include <string>
#include <vector>

#include "ProUpsells/Feature.hpp"

namespace proupsells {

struct FeatureCategory {
    std::string name;      // localized; also the category's identity
    bool expanded = false; // whether it is open before anyone has touched it
    std::vector<Feature> items;
    std::string englishName = {}; // what it is known by in every language; empty: its name

    bool operator==(const FeatureCategory&) const = default;
};

} // namespace proupsells

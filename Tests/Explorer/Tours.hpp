// The walks that together go through the module.
#pragma once

#include <string_view>
#include <vector>

#include "Tests/Explorer/Walk.hpp"

namespace proupsells::explorer {

// A few walks with one subject.
struct Journey {
    std::string name;
    std::string subject; // what is tried in it, in a few words
    std::vector<Tour> tours;
    bool isLong = false; // minutes; made only when it is named
};

// In the order in which they are made.
const std::vector<Journey>& allJourneys();

// Null when none is called so.
const Setting* settingCalled(std::string_view name);

} // namespace proupsells::explorer

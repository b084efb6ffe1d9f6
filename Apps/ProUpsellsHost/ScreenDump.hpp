// The semantic tree as JSON.
#pragma once

#include <string>
#include <vector>

#include "Apps/ProUpsellsHost/Json.hpp"
#include "Platform/Accessibility/SemanticNode.hpp"

namespace proupsells::hostprogram {

// A node with all its children; keys that say nothing are left out.
Json toJson(const accessibility::SemanticNode& node);

// "button", "selected" and so on, in a fixed order.
std::vector<std::string> traitNames(accessibility::Traits traits);

} // namespace proupsells::hostprogram

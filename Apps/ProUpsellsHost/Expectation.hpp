// Compares a screen with what a scenario expects of it.
#pragma once

#include <optional>
#include <string>

#include "Apps/ProUpsellsHost/Scenario.hpp"
#include "Platform/Accessibility/SemanticNode.hpp"

namespace proupsells::hostprogram {

// Says what differs; absent when everything is as expected. Frames may differ by a hundredth of a point.
std::optional<std::string> contradiction(const ExpectStep& expected, const accessibility::SemanticNode& root);

} // namespace proupsells::hostprogram

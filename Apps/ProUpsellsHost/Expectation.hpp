// Holding a screen against what a scenario expects of it.
#pragma once

#include <optional>
#include <string>

#include "Apps/ProUpsellsHost/Scenario.hpp"
#include "Platform/Accessibility/Node.hpp"

namespace proupsells::hostprogram {

// What does not hold, in words; absent when all of it does. Frames may differ by a hundredth of a point.
std::optional<std::string> contradiction(const ExpectStep& expected, const accessibility::Node& root);

} // namespace proupsells::hostprogram

// What holds in every state, whatever has led there.
#pragma once

#include <string>
#include <vector>

#include "Tests/Explorer/Expected.hpp"
#include "Tests/Explorer/Observation.hpp"

namespace proupsells::explorer {

// Each thing that is wrong, in a line. The world is as it was afterwards. `isFocusScrolledAway`: the person has moved the page away
// from the control in focus.
std::vector<std::string> problemsOf(World& world, const Observation& seen, const Expected& expected, bool isFocusScrolledAway);
// Whether the control in focus, if any, can be seen.
bool focusIsInSight(World& world, const Observation& seen);

} // namespace proupsells::explorer

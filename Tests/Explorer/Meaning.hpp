// What an action is to come to, by what can be seen before it.
#pragma once

#include "Tests/Explorer/Expected.hpp"
#include "Tests/Explorer/Observation.hpp"

namespace proupsells::explorer {

// Does to `expected` what the action is to do.
void expect(const Action& action, const Observation& before, Expected& expected);

} // namespace proupsells::explorer

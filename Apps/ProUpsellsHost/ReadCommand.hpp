// `proupsells read`: what a screen reader says.
#pragma once

#include "Apps/ProUpsellsHost/CommandLine.hpp"

namespace proupsells::hostprogram {

// Prints a screen, or a scenario's first screen and what each step changes. Nothing is printed when a step cannot be done. Returns
// the exit status: 0, or 1 when an expectation did not hold. Throws InputError.
int readAloud(const ReadArguments& arguments);

} // namespace proupsells::hostprogram

// `proupsells lint`: what is wrong with offers and translations.
#pragma once

#include "Apps/ProUpsellsHost/CommandLine.hpp"

namespace proupsells::hostprogram {

// Prints each finding. Returns the exit status: 0, or 1 when there are any. Throws InputError.
int lintOffers(const LintArguments& arguments);

} // namespace proupsells::hostprogram

// `proupsells show`: the screens in a real window.
#pragma once

#include "Apps/ProUpsellsHost/CommandLine.hpp"

namespace proupsells::hostprogram {

// Shows the offers until the window closes. Returns the exit status: 0, or 3 where there is no display. Throws InputError.
int showOffers(const ShowArguments& arguments);

} // namespace proupsells::hostprogram

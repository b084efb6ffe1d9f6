// `proupsells audit`: what is wrong with the screens.
#pragma once

#include "Apps/ProUpsellsHost/CommandLine.hpp"

namespace proupsells::hostprogram {

// Prints each finding once. Returns the exit status: 0, or 1 when there are any. Throws InputError.
int auditScreens(const AuditArguments& arguments);

} // namespace proupsells::hostprogram

// Our own look for people who ask for more contrast.
#pragma once

#include "Platform/System/Compiler.hpp"
#include "ProUpsells/Theme.hpp"

namespace proupsells {

// Ours with darker small print, lines and accent (lighter ones in the dark): every text has 7:1 at least, every shape that means
// something 4.5:1. To be set where a person wants it and the host has no theme of its own.
PROUPSELLS_EXPORT Theme contrastTheme();

} // namespace proupsells

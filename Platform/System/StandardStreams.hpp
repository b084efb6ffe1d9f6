// Standard input, output and error.
#pragma once

#include "Platform/System/Compiler.hpp"

namespace proupsells::system {

// Takes the place of those that are closed, so that no file that is opened later gets what is written to them. Reading from and
// writing to them fails as before. Does nothing where systems keep them open.
PROUPSELLS_EXPORT void holdStandardStreams();

} // namespace proupsells::system

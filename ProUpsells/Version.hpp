// Which module this is, for tools that read it from the binary.
#pragma once

#include "Platform/System/Compiler.hpp"

extern "C" {
// The project's version.
PROUPSELLS_ALWAYS_EXPORTED extern const double ProUpsellsVersionNumber;
// Ends with a line feed.
PROUPSELLS_ALWAYS_EXPORTED extern const unsigned char ProUpsellsVersionString[];
}

// The ordinary installation: every service that this package has, and a run loop on the real clock.
#pragma once

#include "Platform/System/Compiler.hpp"

namespace proupsells::standard {

// Text and pictures by the pixel engine, clips and locale data where their backends were built, and a main run loop on the real
// clock, for the rest of the program. What the host has installed itself, before or after, counts in place of ours. Further calls
// do nothing. The calling thread becomes the main thread.
PROUPSELLS_EXPORT void install();

} // namespace proupsells::standard

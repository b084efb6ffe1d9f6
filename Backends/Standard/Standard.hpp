// The ordinary installation: every service that this package has, and a run loop on the real clock.
#pragma once

#include "Platform/System/Compiler.hpp"

namespace proupsells::standard {

// Text and pictures by the pixel engine, clips and locale data where their backends were built, and a main run loop on the real
// clock, for the rest of the program. What the host has installed itself stays: a run loop that it has made before, and services
// that it installs before or after, count in place of ours. A run loop on a real clock that is made afterwards stops the program;
// one on a virtual clock stands in for ours as long as it lives. Further calls do nothing. The calling thread becomes the main
// thread.
PROUPSELLS_EXPORT void install();

} // namespace proupsells::standard

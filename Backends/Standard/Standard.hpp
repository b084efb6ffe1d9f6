// The ordinary installation: every service that this package has, and a run loop on the real clock.
#pragma once

#include "Platform/Host/Services.hpp"
#include "Platform/System/Compiler.hpp"

namespace proupsells::standard {

// How pictures of clips keep up with the clock.
enum class ClipPace {
    realTime, // a clip shows what it has, and catches up
    exact,    // it waits for the picture of the moment: for virtual clocks
};

// Text and pictures by the pixel engine, clips and locale data where their backends were built; newly made.
PROUPSELLS_EXPORT host::Services newServices(ClipPace pace);

// Text and pictures by the pixel engine, clips and locale data where their backends were built, and a main run loop on the real
// clock, for the rest of the program. What the host has installed itself stays: a run loop that it has made before, and services
// that it installs before or after, count in place of ours. A run loop on a real clock that is made afterwards stops the program;
// one on a virtual clock stands in for ours as long as it lives. Further calls do nothing. The calling thread becomes the main
// thread.
PROUPSELLS_EXPORT void install();

} // namespace proupsells::standard

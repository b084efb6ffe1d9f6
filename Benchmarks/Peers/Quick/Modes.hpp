// What the Qt Quick peer can be asked for.
#pragma once

#include "Common/Command.hpp"

namespace peers::quick {

// Into memory, a frame when one is asked for.
void first(const Command& command, Report& report);
void warm(const Command& command, Report& report);
void tap(const Command& command, Report& report);
void store(const Command& command, Report& report);

// In an ordinary window, which paints when it finds that due.
void window(const Command& command, Report& report);
void idle(const Command& command, Report& report);

} // namespace peers::quick

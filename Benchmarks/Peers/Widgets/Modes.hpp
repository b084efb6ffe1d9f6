// What the Qt Widgets peer can be asked for, each in an ordinary window.
#pragma once

#include "Common/Command.hpp"

namespace peers::widgets {

void first(const Command& command, Report& report);
void warm(const Command& command, Report& report);
void tap(const Command& command, Report& report);
void store(const Command& command, Report& report);
void idle(const Command& command, Report& report);

} // namespace peers::widgets

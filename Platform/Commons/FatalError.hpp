// Programming errors stop the program here, with their message.
#pragma once

#include <functional>
#include <string_view>

#include "Platform/System/Compiler.hpp"

namespace proupsells::commons {

// Writes `message` and a line feed to standard error, then aborts.
[[noreturn]] PROUPSELLS_EXPORT void fatalError(std::string_view message);

// Told the message on the thread that stops, after it was written and before the program ends: to leave a crash report. It must not
// use what may be broken now; an error inside it ends the program without another call. Empty: none. Returns the previous hook.
using FatalErrorHook = std::function<void(std::string_view message)>;
PROUPSELLS_EXPORT FatalErrorHook setFatalErrorHook(FatalErrorHook hook);

} // namespace proupsells::commons

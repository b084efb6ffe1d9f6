// What the two programs have in common: arguments in, an exit status out.
#pragma once

#include <functional>

#include "Apps/ProUpsellsHost/CommandLine.hpp"

namespace proupsells::hostprogram {

// The exit status of a run whose input cannot be used, whose output cannot be written, or whose memory does not suffice.
inline constexpr int unusableInput = 2;

// Reads the command line and does what it says; `show` is the caller's part. Input that cannot be used, and output
// that cannot be written, is a line on standard error. Returns the exit status.
int runProgram(int count, const char* const* arguments, const std::function<int(const ShowArguments&)>& show);

} // namespace proupsells::hostprogram

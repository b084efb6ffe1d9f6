// What the program does when its surroundings let it down.
#pragma once

namespace proupsells::hostprogram {

// Whoever reads the output may go, and files may be limited: writing then fails, and is said, instead of ending the program by a
// signal. Where memory ends outside all calls that could report it (in a thread, say), one line is said and the status is 2.
void prepareForEmergencies();

// What is said when no more memory is to be had.
inline constexpr const char* noMemoryLeft = "memory: /: there is no more, expected enough for the input and its pictures";

// Says so, and ends the program at once.
[[noreturn]] void endForWantOfMemory();

} // namespace proupsells::hostprogram

// The order in which mixed text is read.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace proupsells::foundation {

// A stretch of a text that reads one way, by the Unicode bidirectional algorithm. A level is odd where it reads from right to left.
struct BidiRun {
    std::size_t end = 0; // bytes; it begins where the run before it ends
    std::uint8_t level = 0;
    std::uint8_t paragraphLevel = 0; // of the paragraph around it

    bool operator==(const BidiRun&) const = default;
};

// Lengthens the last run where that has the same levels.
inline void appendBidiRun(std::vector<BidiRun>& runs, BidiRun run) {
    const bool continues = !runs.empty() && runs.back().level == run.level && runs.back().paragraphLevel == run.paragraphLevel;
    if (continues)
        runs.back().end = run.end;
    else
        runs.push_back(run);
}

} // namespace proupsells::foundation

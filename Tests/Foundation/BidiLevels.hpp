// Reads the order of mixed text at a glance.
#pragma once

#include <string>
#include <vector>

#include "Platform/Foundation/BidiRun.hpp"
#include "Platform/Foundation/Utf8.hpp"

namespace proupsells::tests {

// A digit for each character's level; before the first character, and where it changes, the paragraph's level and a colon.
inline std::string levelsOf(std::string_view text, const std::vector<foundation::BidiRun>& runs) {
    std::string levels;
    std::size_t offset = 0;
    const foundation::BidiRun* previous = nullptr;
    for (const foundation::BidiRun& run : runs) {
        const bool isOtherParagraph = !previous || previous->paragraphLevel != run.paragraphLevel;
        if (isOtherParagraph) levels += std::to_string(run.paragraphLevel) + ":";
        for (; offset < run.end; offset += foundation::decodeUtf8(text, offset).length) levels += std::to_string(run.level);
        previous = &run;
    }
    return levels;
}

} // namespace proupsells::tests

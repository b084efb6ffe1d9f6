// Where in the source a call stands.
#pragma once

#include "Platform/System/Compiler.hpp"

namespace proupsells::commons {

// In place of std::source_location, which not every supported compiler has.
struct SourceLocation {
    const char* file = "";
    unsigned line = 0;

    // As a default argument: the place of the call that left the argument out.
    static constexpr SourceLocation current(const char* file = PROUPSELLS_CALLING_FILE, unsigned line = PROUPSELLS_CALLING_LINE) {
        return {file, line};
    }
};

} // namespace proupsells::commons

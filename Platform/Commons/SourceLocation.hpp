// Where in the source a call stands.
#pragma once

namespace proupsells::commons {

// In place of std::source_location, which not every supported compiler has.
struct SourceLocation {
    const char* file = "";
    unsigned line = 0;

    // As a default argument: the place of the call that left the argument out.
    static constexpr SourceLocation current(const char* file = __builtin_FILE(), unsigned line = __builtin_LINE()) {
        return {file, line};
    }
};

} // namespace proupsells::commons

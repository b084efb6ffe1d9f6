// Typefaces that are shown instead of the design system's.
#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "Platform/System/Compiler.hpp"

namespace proupsells::graphics {

struct PROUPSELLS_EXPORT Typefaces {
    struct File {
        std::string family;
        int weight = 400; // 100 to 900, as in OpenType
        std::filesystem::path path;

        bool operator==(const File&) const = default;
    };

    // The family that is shown, by the one that a face names.
    std::map<std::string, std::string> families;
    // Known to text shapers that show real fonts, beside those that they have already.
    std::vector<File> files;

    bool operator==(const Typefaces&) const = default;

    // Main thread only. A text that has been shaped keeps its typefaces.
    static void setCurrent(Typefaces typefaces);
    static const Typefaces& current();
    // How often they were set.
    static std::uint64_t changeCount();
};

} // namespace proupsells::graphics

// Fonts: a registered face at a size.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "Platform/System/Compiler.hpp"

namespace proupsells::graphics {

// One face of a typeface, under the name that the design system uses.
struct FontFace {
    std::string name;   // "Quenby-Bold"
    std::string family; // "Sora"
    int weight = 400;   // 100 to 900, as in OpenType
};

// Registers a face, or finds the one of the same name. The reference is good for the life of the process.
PROUPSELLS_EXPORT const FontFace& registerFontFace(std::string_view name, std::string_view family, int weight);
// Null when no face has the name.
PROUPSELLS_EXPORT const FontFace* findFontFace(std::string_view name);

struct Font {
    const FontFace* face = nullptr;    // null means the system's default face
    double size = 0;                   // points
    std::string_view name;             // the design system's name of the font or text style; lives as long as the process
    std::optional<int> weightOption;   // the default font's weight option
    bool scalesWithContentSize = true; // follows the size of texts that the person has chosen

    bool operator==(const Font&) const = default;
};

} // namespace proupsells::graphics

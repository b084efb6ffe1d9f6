// Every colour that screens are painted in, and which of them stand on which.
#pragma once

#include <span>
#include <string_view>

#include "Platform/Graphics/Color.hpp"
#include "Platform/System/Compiler.hpp"

namespace proupsells::velauikit {

struct DesignColor {
    graphics::Color color;
    std::string_view purpose;
    // The name of the colour whose value it takes where it is given none of its own; empty for none.
    std::string_view follows = {};
};

// Each name once, in the order of a page that lists them.
std::span<const DesignColor> designColors();
// Null where no colour has the name.
PROUPSELLS_EXPORT const DesignColor* findDesignColor(std::string_view name);

enum class ContrastNeed {
    text,
    shape, // an icon, a border or a ring that says something
};

struct ColorPair {
    graphics::Color foreground;
    graphics::Color background;
    ContrastNeed need = ContrastNeed::text;

    // What WCAG 2.2 asks for at level AA.
    double leastContrast() const { return need == ContrastNeed::text ? 4.5 : 3; }
};

// The pairs that screens really put on each other, artwork aside.
std::span<const ColorPair> colorPairs();

} // namespace proupsells::velauikit

// Colours by name, with a light and a dark value.
#pragma once

#include <cstdint>
#include <string_view>

#include "Platform/System/Compiler.hpp"

namespace proupsells::graphics {

// Which of its two values a colour shows.
enum class ColorScheme : std::uint8_t { light, dark };

// Straight (not premultiplied) 8-bit components.
struct RGBA {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    std::uint8_t alpha = 255;

    bool operator==(const RGBA&) const = default;
};

// Of a number 0xRRGGBB.
constexpr RGBA rgb(std::uint32_t hex, std::uint8_t alpha = 255) {
    return {std::uint8_t(hex >> 16), std::uint8_t(hex >> 8), std::uint8_t(hex), alpha};
}

class Palette;

struct PROUPSELLS_EXPORT Color {
    std::string_view name; // the design system's; names live as long as the process
    RGBA light;
    RGBA dark;

    // The value that the scheme shows, whatever palette is in force.
    constexpr RGBA own(ColorScheme scheme) const { return scheme == ColorScheme::dark ? dark : light; }
    // What is painted: the colour's own value, unless the palette in force has another one for its name.
    RGBA resolved(ColorScheme scheme) const { return s_palette ? inPalette(*s_palette, scheme) : own(scheme); }
    bool operator==(const Color&) const = default;

    // Fixed colours: the same in either scheme.
    static const Color clear;
    static const Color black;
    static const Color white;

private:
    friend class Palette;

    RGBA inPalette(const Palette& palette, ColorScheme scheme) const;

    static const Palette* s_palette; // null for none
};

inline constexpr Color Color::clear{"clear", {0, 0, 0, 0}, {0, 0, 0, 0}};
inline constexpr Color Color::black{"black", rgb(0x000000), rgb(0x000000)};
inline constexpr Color Color::white{"white", rgb(0xFFFFFF), rgb(0xFFFFFF)};

} // namespace proupsells::graphics

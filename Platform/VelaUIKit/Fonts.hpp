// The product family's typefaces.
#pragma once

#include <string_view>

#include "Platform/Graphics/Font.hpp"

namespace proupsells::velauikit {

// The default font's weight options, by number.
enum class FontOption { regular = 0, medium = 1, bold = 2 };

// The default font, Inter, at a size in points; from 20 points on in its display cut, which runs tighter. An option that does not
// exist stops the program.
graphics::Font velaDefaultFont(FontOption option, double size);

// A registered brand font, "Quenby-Bold" for instance, at a size in points. Stops the program when no such face is registered.
graphics::Font brandFont(std::string_view name, double size);

// The brand fonts themselves, registered when first asked for.
graphics::Font quenbyBold(double size);
graphics::Font quenbySemibold(double size);

class FontRegistrar {
public:
    FontRegistrar() = delete;

    // Makes the brand faces "Quenby-Bold" and "Quenby-Semibold" known by their names. May be called any number of times.
    static void registerBundledFonts();
};

} // namespace proupsells::velauikit

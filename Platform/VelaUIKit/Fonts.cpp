#include "Platform/VelaUIKit/Fonts.hpp"

#include <array>
#include <string>

#include "Platform/Commons/FatalError.hpp"

namespace proupsells::velauikit {

namespace {

using Faces = std::array<const graphics::FontFace*, 3>;

const Faces& textFaces() {
    static const Faces faces{&graphics::registerFontFace("Vela-Regular", "Inter", 400),
                             &graphics::registerFontFace("Vela-Medium", "Inter", 500),
                             &graphics::registerFontFace("Vela-Bold", "Inter", 700)};
    return faces;
}

const Faces& displayFaces() {
    static const Faces faces{&graphics::registerFontFace("Vela-Regular-Display", "Inter Display", 400),
                             &graphics::registerFontFace("Vela-Medium-Display", "Inter Display", 500),
                             &graphics::registerFontFace("Vela-Bold-Display", "Inter Display", 700)};
    return faces;
}

} // namespace

graphics::Font velaDefaultFont(FontOption option, double size) {
    constexpr double smallestDisplaySize = 20;
    const Faces& faces = size < smallestDisplaySize ? textFaces() : displayFaces();
    const auto number = static_cast<std::size_t>(option);
    if (number >= faces.size()) commons::fatalError("The default font has no weight option " + std::to_string(number));
    return {.face = faces[number], .size = size, .name = "velaDefaultFont", .weightOption = static_cast<int>(number)};
}

graphics::Font brandFont(std::string_view name, double size) {
    const graphics::FontFace* face = graphics::findFontFace(name);
    if (!face) commons::fatalError("The font " + std::string(name) + " is not registered");
    return {.face = face, .size = size, .name = face->name};
}

graphics::Font quenbyBold(double size) {
    FontRegistrar::registerBundledFonts();
    return brandFont("Quenby-Bold", size);
}

graphics::Font quenbySemibold(double size) {
    FontRegistrar::registerBundledFonts();
    return brandFont("Quenby-Semibold", size);
}

void FontRegistrar::registerBundledFonts() {
    static const auto registered = std::array{&graphics::registerFontFace("Quenby-Bold", "Sora", 700),
                                              &graphics::registerFontFace("Quenby-Semibold", "Sora", 600)};
    (void)registered;
}

} // namespace proupsells::velauikit

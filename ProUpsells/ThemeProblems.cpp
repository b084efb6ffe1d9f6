// What a theme is checked for.
#include <cmath>
#include <string>

#include "Platform/Graphics/Contrast.hpp"
#include "Platform/VelaUIKit/DesignColors.hpp"
#include "ProUpsells/Theme.hpp"
#include "ProUpsells/ThemePalette.hpp"
#include "ProUpsells/ThemePicture.hpp"

namespace proupsells {

using graphics::ColorScheme;
using velauikit::ColorPair;

namespace {

constexpr ColorScheme bothSchemes[] = {ColorScheme::light, ColorScheme::dark};

std::string inScheme(ColorScheme scheme) { return scheme == ColorScheme::dark ? " in dark" : " in light"; }

// With one decimal, never better than it is.
std::string ratio(double contrast) {
    const auto tenths = static_cast<int>(std::floor(contrast * 10));
    return std::to_string(tenths / 10) + "." + std::to_string(tenths % 10) + ":1";
}

void addUnknownNames(const Theme& theme, std::vector<std::string>& problems) {
    for (const auto& [name, color] : theme.colors)
        if (!velauikit::findDesignColor(name)) problems.push_back("There is no colour \"" + name + "\"");
    for (const auto& [name, picture] : theme.pictures)
        if (!ThemePicture::find(name)) problems.push_back("There is no picture \"" + name + "\"");
}

void addTransparentColors(const Theme& theme, std::vector<std::string>& problems) {
    for (const auto& [name, color] : theme.colors) {
        if (color.light && color.light->alpha < 255) problems.push_back(name + inScheme(ColorScheme::light) + " is not opaque");
        if (color.dark && color.dark->alpha < 255) problems.push_back(name + inScheme(ColorScheme::dark) + " is not opaque");
    }
}

void addFaintPairs(const graphics::Palette& palette, std::vector<std::string>& problems) {
    for (const ColorPair& pair : velauikit::colorPairs()) {
        for (const ColorScheme scheme : bothSchemes) {
            const double contrast =
                graphics::contrast(palette.resolved(pair.foreground, scheme), palette.resolved(pair.background, scheme));
            if (contrast >= pair.leastContrast()) continue;
            problems.push_back(std::string(pair.foreground.name) + " on " + std::string(pair.background.name) + inScheme(scheme) +
                               ": " + ratio(contrast) + ", at least " + ratio(pair.leastContrast()) + " is needed");
        }
    }
}

} // namespace

std::vector<std::string> Theme::problems() const {
    std::vector<std::string> problems;
    addUnknownNames(*this, problems);
    addTransparentColors(*this, problems);
    addFaintPairs(themePalette(*this), problems);
    return problems;
}

} // namespace proupsells

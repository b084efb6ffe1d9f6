#include "ProUpsells/ContrastTheme.hpp"

#include "Platform/LumoKit/RoleColors.hpp"
#include "Platform/VelaUIKit/VelaColors.hpp"

namespace proupsells {

Theme contrastTheme() {
    using graphics::rgb;
    constexpr auto smallPrintOnLight = rgb(0x3A4248), smallPrintOnDark = rgb(0xC3CACE);
    const std::pair<graphics::Color, Theme::Color> colors[] = {
        {velauikit::velaSecondaryLabel, {smallPrintOnLight, smallPrintOnDark}},
        {lumokit::ContentColor::secondary, {smallPrintOnLight, smallPrintOnDark}},
        {velauikit::velaBorder, {rgb(0x555E63), rgb(0x98A1A6)}},
        {lumokit::BorderColor::secondary, {rgb(0x6E777C), rgb(0x8A9499)}},
        {velauikit::marwickContentAccent, {rgb(0x0A5A57), {}}},
        {lumokit::DecorativeColor::tealProminent, {rgb(0x064745), {}}},
        {lumokit::ValidationColor::neutralImportant, {rgb(0x343B40), {}}},
    };
    Theme theme;
    for (const auto& [color, values] : colors) theme.colors[std::string(color.name)] = values;
    return theme;
}

} // namespace proupsells

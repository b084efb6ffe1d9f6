#include "ProUpsells/ThemePalette.hpp"

#include "Platform/VelaUIKit/DesignColors.hpp"

namespace proupsells {

namespace {

void addColors(graphics::Palette& palette, std::string_view name, const Theme& theme, std::string_view nameInTheme) {
    const auto found = theme.colors.find(nameInTheme);
    if (found == theme.colors.end()) return;
    if (found->second.light) palette.set(name, graphics::ColorScheme::light, *found->second.light);
    if (found->second.dark) palette.set(name, graphics::ColorScheme::dark, *found->second.dark);
}

} // namespace

graphics::Palette themePalette(const Theme& theme) {
    graphics::Palette palette;
    for (const velauikit::DesignColor& entry : velauikit::designColors()) {
        addColors(palette, entry.color.name, theme, entry.follows);
        addColors(palette, entry.color.name, theme, entry.color.name);
    }
    return palette;
}

} // namespace proupsells

#include "Platform/Graphics/Palette.hpp"

#include <utility>

namespace proupsells::graphics {

const Palette* Color::s_palette = nullptr;

RGBA Color::inPalette(const Palette& palette, ColorScheme scheme) const { return palette.resolved(*this, scheme); }

void Palette::set(std::string_view name, ColorScheme scheme, RGBA value) {
    m_values[std::string(name)][std::size_t(scheme)] = value;
}

const RGBA* Palette::find(std::string_view name, ColorScheme scheme) const {
    const auto found = m_values.find(name);
    if (found == m_values.end()) return nullptr;
    const std::optional<RGBA>& value = found->second[std::size_t(scheme)];
    return value ? &*value : nullptr;
}

RGBA Palette::resolved(const Color& color, ColorScheme scheme) const {
    const RGBA* value = find(color.name, scheme);
    return value ? *value : color.own(scheme);
}

void Palette::setCurrent(Palette palette) {
    static Palette current;
    current = std::move(palette);
    Color::s_palette = current.isEmpty() ? nullptr : &current;
}

} // namespace proupsells::graphics

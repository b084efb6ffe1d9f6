// Colours that are painted instead of those of the same name.
#pragma once

#include <array>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "Platform/Graphics/Color.hpp"

namespace proupsells::graphics {

class Palette {
public:
    void set(std::string_view name, ColorScheme scheme, RGBA value);
    // Null where the name keeps its own value.
    const RGBA* find(std::string_view name, ColorScheme scheme) const;
    RGBA resolved(const Color& color, ColorScheme scheme) const;
    bool isEmpty() const { return m_values.empty(); }

    // From now on Color::resolved() asks this one. An empty one leaves every colour as it is. Main thread only.
    static void setCurrent(Palette palette);

private:
    std::map<std::string, std::array<std::optional<RGBA>, 2>, std::less<>> m_values; // light, dark
};

} // namespace proupsells::graphics

#include "Backends/Qt/ScreenTraits.hpp"

#include <QPalette>

namespace proupsells::qtbackend {

graphics::ColorScheme colorSchemeOf(const QPalette& palette) {
    const bool isDark = palette.color(QPalette::WindowText).lightnessF() > palette.color(QPalette::Window).lightnessF();
    return isDark ? graphics::ColorScheme::dark : graphics::ColorScheme::light;
}

} // namespace proupsells::qtbackend

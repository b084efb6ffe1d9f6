#include "Platform/SwiftUI/Animation/Animated.hpp"

#include <algorithm>
#include <cmath>

namespace proupsells::swiftui {

namespace {

std::uint8_t mixed(std::uint8_t from, std::uint8_t to, double progress) {
    return std::uint8_t(std::clamp(std::lround(interpolated(double(from), double(to), progress)), 0L, 255L));
}

graphics::RGBA mixed(graphics::RGBA from, graphics::RGBA to, double progress) {
    return {mixed(from.red, to.red, progress), mixed(from.green, to.green, progress), mixed(from.blue, to.blue, progress),
            mixed(from.alpha, to.alpha, progress)};
}

} // namespace

graphics::Color interpolated(const graphics::Color& from, const graphics::Color& to, double progress) {
    const auto mixedIn = [&](graphics::ColorScheme scheme) { return mixed(from.resolved(scheme), to.resolved(scheme), progress); };
    return {{}, mixedIn(graphics::ColorScheme::light), mixedIn(graphics::ColorScheme::dark)};
}

} // namespace proupsells::swiftui

#include "Backends/Raster/CommandPixels.hpp"

#include <algorithm>

namespace proupsells::rasterbackend {

using geometry::Rect;
using graphics::Command;
using graphics::CommandKind;

namespace {

PixelSize sizeOfImage(const Command& command, double scale) {
    constexpr double longestSide_px = 8192;
    const auto side = [&](double length) { return std::max(1, nearestPixel(std::min(length * scale, longestSide_px))); };
    return {side(command.frame.width()), side(command.frame.height())};
}

} // namespace

PixelRect paintedPixels(const Command& command, double scale, const PixelRect& part) {
    const Rect bounds = scaledBy(command.bounds, scale);
    // Most commands are somewhere else, which takes no rounding to see.
    if (bounds.maxX() < part.left || bounds.minX() > part.right || bounds.maxY() < part.top || bounds.minY() > part.bottom)
        return {};
    const PixelRect touched = touchedPixels(bounds).intersection(part);
    return touched.isEmpty() ? touched : touched.intersection(nearestPixels(scaledBy(command.clip, scale)));
}

PixelRect imagePixels(const Command& command, double scale) {
    const PixelSize size = sizeOfImage(command, scale);
    const int x = nearestPixel(command.frame.minX() * scale), y = nearestPixel(command.frame.minY() * scale);
    return {x, y, x + size.width, y + size.height};
}

PixelRect hiddenPixels(const Command& command, double scale) {
    if (command.kind != CommandKind::fillRectangle || command.color.alpha != 255 || command.opacity < 1) return {};
    if (command.clipRadius > 0 || command.transform >= 0) return {};
    return coveredPixels(scaledBy(command.frame, scale)).intersection(nearestPixels(scaledBy(command.clip, scale)));
}

} // namespace proupsells::rasterbackend

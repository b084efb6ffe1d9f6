// Rectangles of whole pixels.
#pragma once

#include <algorithm>
#include <cmath>

#include "Platform/Geometry/Geometry.hpp"

namespace proupsells::rasterbackend {

struct PixelRect {
    int left = 0, top = 0, right = 0, bottom = 0; // right and bottom are outside

    constexpr int width() const { return right - left; }
    constexpr int height() const { return bottom - top; }
    constexpr bool isEmpty() const { return left >= right || top >= bottom; }
    constexpr bool contains(const PixelRect& other) const {
        return left <= other.left && top <= other.top && right >= other.right && bottom >= other.bottom;
    }
    constexpr PixelRect intersection(const PixelRect& other) const {
        return {std::max(left, other.left), std::max(top, other.top), std::min(right, other.right), std::min(bottom, other.bottom)};
    }
    constexpr PixelRect united(const PixelRect& other) const {
        return {std::min(left, other.left), std::min(top, other.top), std::max(right, other.right), std::max(bottom, other.bottom)};
    }
    constexpr PixelRect moved(int x, int y) const { return {left + x, top + y, right + x, bottom + y}; }

    bool operator==(const PixelRect&) const = default;
};

struct PixelSize {
    int width = 0;
    int height = 0;

    constexpr bool isEmpty() const { return width <= 0 || height <= 0; }
    bool operator==(const PixelSize&) const = default;
};

// Products of points and scales miss whole pixels by a rounding error.
inline constexpr double pixelTolerance = 1e-6;

// Far beyond every screen, yet safe to calculate with.
inline int toPixel(double value) {
    constexpr double furthest = 1 << 24;
    return value > -furthest ? value < furthest ? int(value) : int(furthest) : -int(furthest);
}
inline int floorPixel(double value) { return toPixel(std::floor(value + pixelTolerance)); }
inline int ceilPixel(double value) { return toPixel(std::ceil(value - pixelTolerance)); }
inline int nearestPixel(double value) { return toPixel(std::floor(value + 0.5 + pixelTolerance)); }

// Every pixel that the rectangle, in pixels, touches.
inline PixelRect touchedPixels(const geometry::Rect& rect) {
    return {floorPixel(rect.minX()), floorPixel(rect.minY()), ceilPixel(rect.maxX()), ceilPixel(rect.maxY())};
}
// Only the pixels that it covers wholly.
inline PixelRect coveredPixels(const geometry::Rect& rect) {
    return {ceilPixel(rect.minX()), ceilPixel(rect.minY()), floorPixel(rect.maxX()), floorPixel(rect.maxY())};
}
// Its edges moved to the nearest ones between pixels.
inline PixelRect nearestPixels(const geometry::Rect& rect) {
    return {nearestPixel(rect.minX()), nearestPixel(rect.minY()), nearestPixel(rect.maxX()), nearestPixel(rect.maxY())};
}

inline geometry::Rect scaledBy(const geometry::Rect& rect, double scale) {
    return {{rect.origin.x * scale, rect.origin.y * scale}, {rect.size.width * scale, rect.size.height * scale}};
}

} // namespace proupsells::rasterbackend

// Rectangles of whole pixels.
#pragma once

#include <algorithm>
#include <cmath>

#include "Platform/Geometry/Geometry.hpp"

namespace proupsells::rasterbackend {

struct PixelRect {
    int left = 0;
    int top = 0;
    int right = 0;  // outside
    int bottom = 0; // outside

    // Negative where edges are the wrong way round; such a rectangle is empty.
    constexpr int width() const { return right - left; }
    constexpr int height() const { return bottom - top; }
    constexpr bool isEmpty() const { return left >= right || top >= bottom; }
    // Whether all of the other one is inside.
    constexpr bool contains(const PixelRect& other) const {
        return left <= other.left && top <= other.top && right >= other.right && bottom >= other.bottom;
    }
    // Empty where the two do not overlap.
    constexpr PixelRect intersection(const PixelRect& other) const {
        return {std::max(left, other.left), std::max(top, other.top), std::min(right, other.right), std::min(bottom, other.bottom)};
    }
    // The smallest rectangle around both, an empty one's edges included.
    constexpr PixelRect united(const PixelRect& other) const {
        return {std::min(left, other.left), std::min(top, other.top), std::max(right, other.right), std::max(bottom, other.bottom)};
    }
    // The same rectangle, moved.
    constexpr PixelRect moved(int x, int y) const { return {left + x, top + y, right + x, bottom + y}; }

    bool operator==(const PixelRect&) const = default;
};

// How many pixels wide and high something is.
struct PixelSize {
    int width = 0;
    int height = 0;

    // Whether there is no pixel.
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
// The edge between pixels at or before a length in pixels.
inline int floorPixel(double value) { return toPixel(std::floor(value + pixelTolerance)); }
// The one at or after it.
inline int ceilPixel(double value) { return toPixel(std::ceil(value - pixelTolerance)); }
// The one nearest to it.
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

// From points to pixels, at `scale` pixels a point.
inline geometry::Rect scaledBy(const geometry::Rect& rect, double scale) {
    return {{rect.origin.x * scale, rect.origin.y * scale}, {rect.size.width * scale, rect.size.height * scale}};
}

} // namespace proupsells::rasterbackend

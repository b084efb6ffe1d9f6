// Points, sizes, rectangles, insets and proposals. All lengths are in points; y grows downwards.
#pragma once

#include <algorithm>
#include <limits>
#include <optional>

namespace proupsells::geometry {

// A length without end, in a proposal: take all the room that you like.
inline constexpr double infinity = std::numeric_limits<double>::infinity();

// A place, or the way from one place to another.
struct Point {
    double x = 0;
    double y = 0;

    bool operator==(const Point&) const = default;
};

// Coordinate by coordinate.
constexpr Point operator+(Point a, Point b) { return {a.x + b.x, a.y + b.y}; }
constexpr Point operator-(Point a, Point b) { return {a.x - b.x, a.y - b.y}; }

// How wide and how high something is.
struct Size {
    double width = 0;
    double height = 0;

    bool operator==(const Size&) const = default;
};

// A place and a size. A negative length is kept as it is, and makes the rectangle empty.
struct Rect {
    Point origin;
    Size size;

    // Places on the rectangle, and its lengths.
    constexpr double minX() const { return origin.x; }
    constexpr double minY() const { return origin.y; }
    constexpr double midX() const { return origin.x + size.width / 2; }
    constexpr double midY() const { return origin.y + size.height / 2; }
    constexpr double maxX() const { return origin.x + size.width; }
    constexpr double maxY() const { return origin.y + size.height; }
    constexpr double width() const { return size.width; }
    constexpr double height() const { return size.height; }
    constexpr Point center() const { return {midX(), midY()}; }

    // A rectangle without area: of zero or negative width or height.
    constexpr bool isEmpty() const { return !(size.width > 0 && size.height > 0); }
    // The left and top edges belong to the rectangle, the right and bottom ones do not.
    constexpr bool contains(Point p) const { return p.x >= minX() && p.x < maxX() && p.y >= minY() && p.y < maxY(); }
    // Whether the two share an area; a common edge is none.
    constexpr bool intersects(const Rect& other) const { return !intersection(other).isEmpty(); }
    // Empty (zero size) where the two do not overlap.
    constexpr Rect intersection(const Rect& other) const {
        const double left = std::max(minX(), other.minX()), top = std::max(minY(), other.minY());
        const double right = std::min(maxX(), other.maxX()), bottom = std::min(maxY(), other.maxY());
        return {{left, top}, {std::max(0.0, right - left), std::max(0.0, bottom - top)}};
    }
    // The smallest rectangle around both; an empty one adds nothing.
    constexpr Rect united(const Rect& other) const {
        if (isEmpty()) return other;
        if (other.isEmpty()) return *this;
        const double left = std::min(minX(), other.minX()), top = std::min(minY(), other.minY());
        return {{left, top}, {std::max(maxX(), other.maxX()) - left, std::max(maxY(), other.maxY()) - top}};
    }
    // The same rectangle, moved.
    constexpr Rect offsetBy(Point delta) const { return {origin + delta, size}; }
    // Shrinks every side by `dx` and `dy`; negative values grow it.
    constexpr Rect insetBy(double dx, double dy) const {
        return {{origin.x + dx, origin.y + dy}, {size.width - 2 * dx, size.height - 2 * dy}};
    }

    bool operator==(const Rect&) const = default;
};

// Which way text and rows run.
enum class LayoutDirection { leftToRight, rightToLeft };

// Insets that follow the layout direction.
struct EdgeInsets {
    double top = 0;
    double leading = 0;
    double bottom = 0;
    double trailing = 0;

    // What both sides take together.
    constexpr double horizontal() const { return leading + trailing; }
    constexpr double vertical() const { return top + bottom; }
    bool operator==(const EdgeInsets&) const = default;
};

// Insets that do not follow the layout direction.
struct PhysicalInsets {
    double top = 0;
    double left = 0;
    double bottom = 0;
    double right = 0;

    bool operator==(const PhysicalInsets&) const = default;
};

// A size that a parent offers a child; an absent length asks for the child's ideal one.
struct ProposedSize {
    std::optional<double> width;
    std::optional<double> height;

    constexpr ProposedSize() = default;
    // Absent lengths ask for the ideal ones.
    constexpr ProposedSize(std::optional<double> w, std::optional<double> h) : width(w), height(h) {}
    // Both lengths are given.
    constexpr ProposedSize(Size size) : width(size.width), height(size.height) {}

    // Asks for the ideal size.
    static constexpr ProposedSize unspecified() { return {}; }
    // The proposal with absent lengths replaced.
    constexpr Size orReplacing(Size fallback) const { return {width.value_or(fallback.width), height.value_or(fallback.height)}; }

    bool operator==(const ProposedSize&) const = default;
};

// A place in a rectangle, as shares of its width and height.
struct UnitPoint {
    double x = 0.5;
    double y = 0.5;

    bool operator==(const UnitPoint&) const = default;
};

} // namespace proupsells::geometry

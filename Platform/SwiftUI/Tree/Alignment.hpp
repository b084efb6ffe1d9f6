// Edges, axes and alignments; leading and trailing follow the layout direction.
#pragma once

#include <cstdint>
#include <optional>

#include "Platform/Geometry/Axis.hpp"
#include "Platform/Geometry/Geometry.hpp"

namespace proupsells::swiftui {

using geometry::Axis;

enum class HorizontalAlignment : std::uint8_t { leading, center, trailing };
enum class VerticalAlignment : std::uint8_t { top, center, bottom, firstTextBaseline };

struct Alignment {
    HorizontalAlignment horizontal = HorizontalAlignment::center;
    VerticalAlignment vertical = VerticalAlignment::center;

    bool operator==(const Alignment&) const = default;

    static const Alignment center, leading, trailing, top, bottom, topLeading, topTrailing, bottomLeading, bottomTrailing;
};
inline constexpr Alignment Alignment::center{};
inline constexpr Alignment Alignment::leading{HorizontalAlignment::leading, VerticalAlignment::center};
inline constexpr Alignment Alignment::trailing{HorizontalAlignment::trailing, VerticalAlignment::center};
inline constexpr Alignment Alignment::top{HorizontalAlignment::center, VerticalAlignment::top};
inline constexpr Alignment Alignment::bottom{HorizontalAlignment::center, VerticalAlignment::bottom};
inline constexpr Alignment Alignment::topLeading{HorizontalAlignment::leading, VerticalAlignment::top};
inline constexpr Alignment Alignment::topTrailing{HorizontalAlignment::trailing, VerticalAlignment::top};
inline constexpr Alignment Alignment::bottomLeading{HorizontalAlignment::leading, VerticalAlignment::bottom};
inline constexpr Alignment Alignment::bottomTrailing{HorizontalAlignment::trailing, VerticalAlignment::bottom};

// One edge or several: `Edge::top | Edge::trailing`.
enum class Edge : std::uint8_t {
    none = 0,
    top = 1,
    leading = 2,
    bottom = 4,
    trailing = 8,
    horizontal = 10,
    vertical = 5,
    all = 15
};

constexpr Edge operator|(Edge a, Edge b) { return Edge(std::uint8_t(a) | std::uint8_t(b)); }
constexpr bool contains(Edge all, Edge one) { return (std::uint8_t(all) & std::uint8_t(one)) == std::uint8_t(one); }

// The platform's standard distances.
inline constexpr double defaultSpacing = 8;
inline constexpr double defaultPadding = 16;

// Where a child of a size stands in a box, in coordinates whose x grows from the leading edge.
geometry::Point alignedOrigin(geometry::Size child, geometry::Size box, Alignment alignment);
// Of one dimension: 0 for the start, 0.5 for the middle, 1 for the end.
constexpr double fraction(HorizontalAlignment alignment) { return double(alignment) / 2; }
constexpr double fraction(VerticalAlignment alignment) {
    return alignment == VerticalAlignment::bottom ? 1 : alignment == VerticalAlignment::center ? 0.5 : 0;
}

} // namespace proupsells::swiftui

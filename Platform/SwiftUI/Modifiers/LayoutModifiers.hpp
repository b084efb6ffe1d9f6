// Modifiers that change sizes and places.
#pragma once

#include <optional>

#include "Platform/Graphics/Color.hpp"
#include "Platform/SwiftUI/Tree/Alignment.hpp"
#include "Platform/SwiftUI/Tree/View.hpp"

namespace proupsells::swiftui {

struct PaddingModifier {
    geometry::EdgeInsets insets;

    View modified(View content) &&;
    bool operator==(const PaddingModifier&) const = default;
};

// Room around the view. With negative lengths the view takes less room than it is seen in.
PaddingModifier padding(double length = defaultPadding);
PaddingModifier padding(Edge edges, double length = defaultPadding);
PaddingModifier padding(const geometry::EdgeInsets& insets);

// A dimension without any length is left to the view. A fixed length is used before flexible ones.
struct FrameOptions {
    std::optional<double> width;
    std::optional<double> height;
    std::optional<double> minWidth;
    std::optional<double> idealWidth;
    std::optional<double> maxWidth; // geometry::infinity fills
    std::optional<double> minHeight;
    std::optional<double> idealHeight;
    std::optional<double> maxHeight;
    Alignment alignment = Alignment::center;

    bool operator==(const FrameOptions&) const = default;
};

struct FrameModifier {
    FrameOptions options;

    View modified(View content) &&;
    bool operator==(const FrameModifier&) const = default;
};

inline FrameModifier frame(const FrameOptions& options) { return {options}; }
FrameModifier frame(double width, double height, Alignment alignment = Alignment::center);

struct FixedSizeModifier {
    bool horizontal = true;
    bool vertical = true;

    View modified(View content) &&;
    bool operator==(const FixedSizeModifier&) const = default;
};

// The view takes its ideal size, whatever it is offered.
inline FixedSizeModifier fixedSize(bool horizontal = true, bool vertical = true) { return {horizontal, vertical}; }

enum class ContentMode : std::uint8_t { fit, fill };

struct AspectRatioModifier {
    std::optional<double> ratio; // width by height; absent: the view's own
    ContentMode contentMode = ContentMode::fit;

    View modified(View content) &&;
    bool operator==(const AspectRatioModifier&) const = default;
};

inline AspectRatioModifier aspectRatio(ContentMode contentMode) { return {std::nullopt, contentMode}; }
inline AspectRatioModifier aspectRatio(double ratio, ContentMode contentMode) { return {ratio, contentMode}; }

struct LayoutPriorityModifier {
    double priority = 0;

    View modified(View content) &&;
    bool operator==(const LayoutPriorityModifier&) const = default;
};

// Views of higher priority get their room first.
inline LayoutPriorityModifier layoutPriority(double priority) { return {priority}; }

struct OffsetModifier {
    geometry::Point offset; // x follows the layout direction

    View modified(View content) &&;
    bool operator==(const OffsetModifier&) const = default;
};

// The view is shown somewhere else. The layout does not change.
OffsetModifier offset(double x, double y);

struct IgnoresSafeAreaModifier {
    Edge edges = Edge::all;

    View modified(View content) &&;
    bool operator==(const IgnoresSafeAreaModifier&) const = default;
};

// Where the view touches an edge of the safe area, it goes on to the window's edge.
inline IgnoresSafeAreaModifier ignoresSafeArea(Edge edges = Edge::all) { return {edges}; }

// A second view behind or in front of the first. The first alone decides on the size, which the second is offered.
struct LayerModifier {
    View layer;
    Alignment alignment = Alignment::center;
    bool isBehind = false;
    Edge ignoredSafeArea = Edge::none;

    View modified(View content) &&;
};

inline LayerModifier overlay(View layer, Alignment alignment = Alignment::center) { return {layer, alignment, false}; }
inline LayerModifier background(View layer, Alignment alignment = Alignment::center) { return {layer, alignment, true}; }
// A colour behind the view, reaching the window's edges along the safe areas.
LayerModifier background(const graphics::Color& color, Edge ignoredSafeArea = Edge::all);

} // namespace proupsells::swiftui

// Modifiers that change the picture, not the layout.
#pragma once

#include "Platform/Graphics/Color.hpp"
#include "Platform/SwiftUI/Shapes/Shapes.hpp"
#include "Platform/SwiftUI/Tree/View.hpp"

namespace proupsells::swiftui {

struct OpacityModifier {
    double opacity = 1;

    View modified(View content) &&;
    bool operator==(const OpacityModifier&) const = default;
};
inline OpacityModifier opacity(double value) { return {value}; }

struct ScaleEffectModifier {
    double scale = 1;
    geometry::UnitPoint anchor;

    View modified(View content) &&;
    bool operator==(const ScaleEffectModifier&) const = default;
};
inline ScaleEffectModifier scaleEffect(double scale, geometry::UnitPoint anchor = {}) { return {scale, anchor}; }

struct RotationEffectModifier {
    double angle_degrees = 0; // clockwise

    View modified(View content) &&;
    bool operator==(const RotationEffectModifier&) const = default;
};
inline RotationEffectModifier rotationEffect(double angle_degrees) { return {angle_degrees}; }

// Cuts off what is outside the shape. Of a custom shape only the bounds of its path count.
struct ClipModifier {
    Shape shape;

    View modified(View content) &&;
    bool operator==(const ClipModifier&) const = default;
};
inline ClipModifier clipped() { return {Rectangle()}; }
inline ClipModifier clipShape(const Shape& shape) { return {shape}; }
inline ClipModifier cornerRadius(double radius) { return {RoundedRectangle(radius)}; }

// The shadow of the view's rectangle.
struct ShadowModifier {
    graphics::Color color;
    double opacity = 1;
    double radius = 0;
    geometry::Point offset;

    View modified(View content) &&;
    bool operator==(const ShadowModifier&) const = default;
};
inline ShadowModifier shadow(const graphics::Color& color, double opacity, double radius, double x = 0, double y = 0) {
    return {color, opacity, radius, {x, y}};
}

struct HitTestingModifier {
    bool isAllowed = true;

    View modified(View content) &&;
    bool operator==(const HitTestingModifier&) const = default;
};
// False: touches reach what is behind.
inline HitTestingModifier allowsHitTesting(bool isAllowed) { return {isAllowed}; }

// A touch anywhere in the frame goes to what is inside.
struct ContentShapeModifier {
    View modified(View content) &&;
    bool operator==(const ContentShapeModifier&) const = default;
};
inline ContentShapeModifier contentShape() { return {}; }

} // namespace proupsells::swiftui

// Cuts a view to a shape; what a transition moves between.
#pragma once

#include "Platform/SwiftUI/Modifiers/EffectModifiers.hpp"

namespace proupsells {

template <class ClipShape>
struct ClipShapeModifier {
    ClipShape shape;

    swiftui::View modified(swiftui::View content) && { return content | swiftui::clipShape(shape); }
    bool operator==(const ClipShapeModifier&) const = default;
};

} // namespace proupsells

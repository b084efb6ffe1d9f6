// The view and the modifier of Docs/adding-a-view.md.
#pragma once

#include "Platform/SwiftUI/Tree/View.hpp"

namespace proupsells::swiftui::tests {

// A star with something in its middle.
struct Star {
    int points = 5;
    double radius = 20;
    View content = {};

    Element* makeElement() &&;
};

// A disc of light behind a view, which takes no room.
struct Glow {
    double strength = 1; // 0 … 1

    View modified(View content) &&;
    bool operator==(const Glow&) const = default;
};
inline Glow glow(double strength = 1) { return {strength}; }

} // namespace proupsells::swiftui::tests

// What a view says to assistive technology, tests and the screen dump.
#pragma once

#include <optional>
#include <string>

#include "Platform/Accessibility/SemanticNode.hpp"
#include "Platform/SwiftUI/Tree/View.hpp"

namespace proupsells::swiftui {

// Describes the first view inside that appears in the semantic tree, and gives it the frame of the modified view. Where modifiers
// stand around each other, the outermost identifier is used, with its frame; without any identifier, the outermost frame.
struct AccessibilityModifier {
    std::string identifier;
    std::string label;
    std::string value;
    accessibility::Traits traits = accessibility::Traits::none;
    bool isHidden = false;

    View modified(View content) &&;
    bool operator==(const AccessibilityModifier&) const = default;
};

inline AccessibilityModifier accessibilityIdentifier(std::string identifier) { return {.identifier = std::move(identifier)}; }
inline AccessibilityModifier accessibilityLabel(std::string label) { return {.label = std::move(label)}; }
inline AccessibilityModifier accessibilityValue(std::string value) { return {.value = std::move(value)}; }
inline AccessibilityModifier accessibilityTraits(accessibility::Traits traits) { return {.traits = traits}; }
// Left out of the semantic tree, with everything inside.
inline AccessibilityModifier accessibilityHidden(bool isHidden = true) { return {.isHidden = isHidden}; }

} // namespace proupsells::swiftui

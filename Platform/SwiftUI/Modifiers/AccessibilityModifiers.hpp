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

// Says what only those are told who hear the view or steer it by keys. Goes to the same view as AccessibilityModifier, and leaves
// its frame alone. Of modifiers around each other the outer one counts where both say something.
struct SpokenModifier {
    accessibility::SpokenInfo spoken;

    View modified(View content) &&;
    bool operator==(const SpokenModifier&) const = default;
};

inline SpokenModifier accessibilityRole(accessibility::Role role, std::string name = {}) {
    return {{.role = role, .name = std::move(name)}};
}
inline SpokenModifier accessibilitySpokenName(std::string name) { return {{.name = std::move(name)}}; }
// One of a group of radio buttons.
inline SpokenModifier accessibilityRadioButton(std::string name, bool isChecked) {
    return {{.role = accessibility::Role::radioButton, .name = std::move(name), .isChecked = isChecked}};
}
// Opens and closes what stands below it.
inline SpokenModifier accessibilityDisclosure(bool isExpanded) {
    return {{.role = accessibility::Role::disclosure, .isExpanded = isExpanded}};
}
// Lower ones are read earlier; 0 is usual.
inline SpokenModifier accessibilityReadingOrder(int order) { return {{.order = order}}; }
// All that is seen of the control around it; the ring of the keys goes round it.
inline SpokenModifier accessibilityPlate() { return {{.isPlate = true}}; }
// Not read, nor anything inside; still in the semantic tree.
inline SpokenModifier accessibilitySilent() { return {{.isSilent = true}}; }

} // namespace proupsells::swiftui

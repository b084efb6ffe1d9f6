// Finding things in the semantic tree.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Platform/Accessibility/Node.hpp"

namespace proupsellshost {

// The first node with the identifier, outermost first; null for none.
const accessibility::Node* findIdentifier(const accessibility::Node& root, std::string_view identifier);
// Every control that can be found under an identifier, in the tree's order.
std::vector<const accessibility::Node*> controlsWithIdentifier(const accessibility::Node& root, std::string_view identifier);
// Every control whose label is `text`, or that shows a text that is `text`. A control inside another one counts, the outer one does not.
std::vector<const accessibility::Node*> controlsWithText(const accessibility::Node& root, std::string_view text);
// All controls, in the tree's order.
std::vector<const accessibility::Node*> allControls(const accessibility::Node& root);

// The node's text, or, where it has none, those of what is inside it, one blank between two.
std::string shownText(const accessibility::Node& node);
// How a person would name the control: its identifier, and its label or text.
std::string describe(const accessibility::Node& control);

} // namespace proupsellshost

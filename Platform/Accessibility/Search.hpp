// Finding things in a semantic tree.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "Platform/Accessibility/Node.hpp"

namespace proupsells::accessibility {

// Pointers into `root`, good as long as it is. Orders are outermost first, back to front.

// The first node of the identifier; null when there is none.
const Node* findByIdentifier(const Node& root, std::string_view identifier);
std::vector<const Node*> findAllByIdentifier(const Node& root, std::string_view identifier);
std::vector<const Node*> findAllByType(const Node& root, std::string_view type);
// Nodes that show exactly this text.
std::vector<const Node*> findAllByText(const Node& root, std::string_view text);

// Everything that can be tapped. Controls inside controls count too.
std::vector<const Node*> controls(const Node& root);
// What a person calls it: its label, otherwise the texts inside it with a space between, otherwise its image's name.
std::string nameOf(const Node& node);
// Controls whose label is `name`, or whose shown texts, each or all together, are. A control and the text inside it are one; where
// a control is inside another one, the inner one is meant.
std::vector<const Node*> controlsNamed(const Node& root, std::string_view name);

// All texts shown, in order.
std::vector<std::string> shownTexts(const Node& root);

} // namespace proupsells::accessibility

// Finding things in a semantic tree.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "Platform/Accessibility/SemanticNode.hpp"
#include "Platform/System/Compiler.hpp"

namespace proupsells::accessibility {

// Pointers into `root`, good as long as it is. Orders are outermost first, back to front.

// A tree that is not kept leaves nothing to point into.
const SemanticNode* findByIdentifier(SemanticNode&& root, std::string_view identifier) = delete;
std::vector<const SemanticNode*> findAllByIdentifier(SemanticNode&& root, std::string_view identifier) = delete;
std::vector<const SemanticNode*> findAllByType(SemanticNode&& root, std::string_view type) = delete;
std::vector<const SemanticNode*> findAllByText(SemanticNode&& root, std::string_view text) = delete;
std::vector<const SemanticNode*> controls(SemanticNode&& root) = delete;
std::vector<const SemanticNode*> controlsNamed(SemanticNode&& root, std::string_view name) = delete;

// The first node of the identifier; null when there is none.
PROUPSELLS_EXPORT const SemanticNode* findByIdentifier(const SemanticNode& root, std::string_view identifier);
// All nodes of the identifier, or of the type as the code names it.
PROUPSELLS_EXPORT std::vector<const SemanticNode*> findAllByIdentifier(const SemanticNode& root, std::string_view identifier);
PROUPSELLS_EXPORT std::vector<const SemanticNode*> findAllByType(const SemanticNode& root, std::string_view type);
// Nodes that show exactly this text.
PROUPSELLS_EXPORT std::vector<const SemanticNode*> findAllByText(const SemanticNode& root, std::string_view text);

// Everything that can be tapped. Controls inside controls count too.
PROUPSELLS_EXPORT std::vector<const SemanticNode*> controls(const SemanticNode& root);
// What a person calls it: its label, otherwise the texts inside it with a space between, otherwise its image's name.
PROUPSELLS_EXPORT std::string nameOf(const SemanticNode& node);
// Controls whose label is `name`, or whose shown texts, each or all together, are. A control and the text inside it are one; where
// a control is inside another one, the inner one is meant.
PROUPSELLS_EXPORT std::vector<const SemanticNode*> controlsNamed(const SemanticNode& root, std::string_view name);

// All texts shown, in order.
PROUPSELLS_EXPORT std::vector<std::string> shownTexts(const SemanticNode& root);

} // namespace proupsells::accessibility

// A screen as it can be kept and compared: what its semantic tree says, without what only a living screen has.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "Platform/Accessibility/SemanticNode.hpp"
#include "Platform/System/Compiler.hpp"

namespace proupsells::tooling {

// A node with what stands in it, front-most last. Properties are in a fixed order, only those that the node has: "identifier",
// "text", "colour" and so on, with numbers in thousandths of a point at most.
struct PROUPSELLS_EXPORT ScreenTree {
    std::string type;
    geometry::Rect frame; // window points
    std::vector<std::pair<std::string, std::string>> properties;
    std::vector<ScreenTree> children;

    bool operator==(const ScreenTree&) const = default;

    // Null where the node has no such property.
    const std::string* property(std::string_view name) const;
};

// What a semantic tree says.
PROUPSELLS_EXPORT ScreenTree screenTree(const accessibility::SemanticNode& screen);

// One node a line, two blanks further in than what it stands in: `Text [16 20 343 22] text="Annually" colour="velaLabel"`. Ends
// with a line break.
PROUPSELLS_EXPORT std::string screenText(const ScreenTree& screen);
// Reads what screenText() wrote. Absent when the text is nothing of the kind.
PROUPSELLS_EXPORT std::optional<ScreenTree> readScreenText(std::string_view text);

} // namespace proupsells::tooling

// Where to touch a control that is known by its identifier or its name.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Platform/System/Compiler.hpp"
#include "Platform/UIKit/Controllers/UIWindow.hpp"

namespace proupsells::tooling {

// The controls of a tree that are meant.
using FindControls = std::function<std::vector<const accessibility::SemanticNode*>(const accessibility::SemanticNode& root)>;

// Controls of the identifier, and otherwise those that a person calls so (accessibility::controlsNamed()).
PROUPSELLS_EXPORT FindControls controlsIdentified(std::string identifier);
PROUPSELLS_EXPORT FindControls controlsCalled(std::string name);

struct TapPoint {
    std::optional<geometry::Point> point; // absent unless exactly one control is meant
    std::string complaint{};             // why there is none, such as "no control has"; goes on with the words that were looked for
    std::vector<std::string> controls{}; // then, all that there are: identifier and name of each
};

// The centre of the control, once the scroll views around it have been moved by as much as a person would need. `settle` runs what
// is due.
PROUPSELLS_EXPORT TapPoint tapPoint(uikit::UIWindow& window, const FindControls& find, const std::function<void()>& settle);

} // namespace proupsells::tooling

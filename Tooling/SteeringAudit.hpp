// What is wrong with a screen, found by steering it as a person does who has only keys or a screen reader.
#pragma once

#include <functional>

#include "Platform/Host/WindowContent.hpp"
#include "Platform/System/Compiler.hpp"
#include "Platform/UIKit/Controllers/UIWindow.hpp"
#include "Tooling/ScreenAudit.hpp"

namespace proupsells::tooling {

// Lets time pass, in seconds of the run loop's clock.
using Wait = std::function<void(double duration_s)>;

// Goes through the front-most screen with Tab: whether every control gets the focus, is in sight then, and looks different with it.
// The focus is dropped at the end; what was scrolled stays.
PROUPSELLS_EXPORT std::vector<Finding> auditKeyboard(uikit::UIWindow& window, const Wait& wait);
// The same for any content, such as one of the host's own; `size` is its window's, in points.
PROUPSELLS_EXPORT std::vector<Finding> auditKeyboard(host::WindowContent& content, geometry::Size size, const Wait& wait);

// Presses each radio button and disclosure, turns each pager, and compares what is told before and after. Ends with the button
// checked that was, and the disclosures as they were.
PROUPSELLS_EXPORT std::vector<Finding> auditStates(uikit::UIWindow& window, const Wait& wait);

} // namespace proupsells::tooling

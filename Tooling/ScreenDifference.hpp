// What has changed about a screen, in words.
#pragma once

#include <string>
#include <vector>

#include "Platform/System/Compiler.hpp"
#include "Tooling/ScreenTree.hpp"

namespace proupsells::tooling {

// One sentence for each change, from the outermost node on: `subscribe moved by 0, 12`, `Text "Annually" in plan.pro.yearly: colour
// is "velaAccent" instead of "velaLabel"`. What moves along with what it stands in is not told again, nor what has come or gone
// with it. Lengths may differ by `tolerance`, in points.
PROUPSELLS_EXPORT std::vector<std::string> differences(const ScreenTree& before, const ScreenTree& after, double tolerance = 0.01);

} // namespace proupsells::tooling

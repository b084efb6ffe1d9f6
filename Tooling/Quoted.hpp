// Texts of the screens, of offers and of translations inside what the tools say.
#pragma once

#include <string>
#include <string_view>

#include "Platform/System/Compiler.hpp"

namespace proupsells::tooling {

// The text on one line: line breaks are \n, other control characters such as \u001b, and a backslash stands before quotation marks
// and backslashes.
PROUPSELLS_EXPORT std::string escaped(std::string_view text);
// The same in quotation marks.
PROUPSELLS_EXPORT std::string inQuotes(std::string_view text);

} // namespace proupsells::tooling

// What a screen reader says, as text that can be compared.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "Platform/Accessibility/Reading.hpp"
#include "Platform/System/Compiler.hpp"

namespace proupsells::tooling {

// As a line of a reading has it: "radio button".
PROUPSELLS_EXPORT std::string_view nameOf(accessibility::Role role);

// An element by role, name, value, state and place: `radio button "Monthly", checked, 2 of 2`. One line, whatever its name holds.
PROUPSELLS_EXPORT std::string spokenLine(const accessibility::ReadingElement& element);

// The lines of a reading in the order in which they are told, each two blanks further in than what it stands in.
PROUPSELLS_EXPORT std::vector<std::string> spokenLines(const accessibility::ReadingElement& reading);

// What is told on the way from one reading to the next: what has gone, what has come or changed, and where the focus has moved.
// Another screen is told with everything on it.
PROUPSELLS_EXPORT std::vector<std::string> announcements(const accessibility::ReadingElement& before,
                                                         const accessibility::ReadingElement& after);

} // namespace proupsells::tooling

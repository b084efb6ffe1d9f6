// Percentages as English writes them.
#pragma once

#include <string>

namespace proupsells::foundation {

// A finite `fraction` times 100 with thousands grouped, rounded half to even to at most `maximumFractionDigits` (negative: 0), and
// a percent sign. Rounds the shortest decimal form of the number, so 0.145 is 14.5 and not a little less. -0.001 is "-0%".
std::string englishPercentText(double fraction, int maximumFractionDigits);

} // namespace proupsells::foundation

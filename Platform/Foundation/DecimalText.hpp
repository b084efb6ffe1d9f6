// Decimal numbers as text, for doubles and without any locale.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "Platform/System/Compiler.hpp"

namespace proupsells::foundation {

struct DecimalReading {
    double number = 0;
    std::size_t length = 0; // of the text that says it
};

// The double nearest to the longest number that `text` begins with: a minus sign or none, digits with or without a point, an
// exponent. Absent where there is no number or no double can hold it, such as 1e999 or 1e-999.
PROUPSELLS_EXPORT std::optional<DecimalReading> readDecimal(std::string_view text);

// The value 0.d1d2d3… × 10^pointPosition. No zero stands at the end of the digits, nor in front of them, unless the value is 0.
struct Decimal {
    std::string digits;
    int pointPosition = 0;
};

void addOneToLastDigit(Decimal& decimal);

// The shortest one that reads back as `magnitude`, finite and not negative, and of these the nearest.
Decimal shortestDecimal(double magnitude);

} // namespace proupsells::foundation

// Sentences with placeholders.
#pragma once

#include <cstddef>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

#include "Platform/System/Compiler.hpp"

namespace proupsells::foundation {

// Fills %@ (the next argument), %1$@ (that argument, from 1) and %% (a percent sign). Numbered placeholders do not move the next
// argument on. A placeholder without an argument becomes nothing; every other % stands for itself, and what follows it is text
// ("%d", "%1$d", "100 %"). Arguments are not searched for placeholders.
PROUPSELLS_EXPORT std::string format(std::string_view text, std::initializer_list<std::string_view> arguments);

// How long the placeholder (%@, %1$@ or %%) is that the text begins with, in bytes; 0 where it begins with none.
PROUPSELLS_EXPORT std::size_t placeholderLength(std::string_view text);

// A decimal number in the C locale, with optional sign, fraction and exponent. The whole text must be the number: absent for an
// empty text, surrounding blanks, grouping, currency signs, hexadecimal digits, "inf" and "nan". Also absent for a number that no
// double can hold, such as 1e999 or 1e-999.
PROUPSELLS_EXPORT std::optional<double> decimalNumber(std::string_view text);

} // namespace proupsells::foundation

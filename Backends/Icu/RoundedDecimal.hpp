// A number in decimal digits.
#pragma once

#include <string>

namespace proupsells::icubackend {

// 0.DIGITS times 10 to the power of `wholeCount`, without zeros at the end. No digits for 0.
struct RoundedDecimal {
    std::string digits;
    int wholeCount = 0; // negative where zeros stand between the point and the digits
};

// The shortest decimal that means `value`, times 10 to the power of `shift`, rounded half to even. `value` is finite and not
// negative.
RoundedDecimal roundedDecimal(double value, int shift, int maximumFractionDigits);

} // namespace proupsells::icubackend

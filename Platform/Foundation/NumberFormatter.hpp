// Numbers as the user writes them.
#pragma once

#include <optional>
#include <string>

namespace proupsells::foundation {

// Formats in the current locale, through the current locale services.
struct NumberFormatter {
    enum class Style {
        percent, // 0.45 is "45%" in English
    };

    Style numberStyle = Style::percent;
    // At most so many digits after the decimal point; rounds half to even.
    int maximumFractionDigits = 0;

    // Absent when the services cannot format the number, such as an infinite one.
    std::optional<std::string> string(double number) const;
};

} // namespace proupsells::foundation

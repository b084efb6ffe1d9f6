#include "Platform/Foundation/Format.hpp"

#include <algorithm>
#include <charconv>
#include <limits>
#include <system_error>

#include "Platform/Foundation/Ascii.hpp"
#include "Platform/Foundation/DecimalText.hpp"

namespace proupsells::foundation {

namespace {

// The number in front of "$@" at the start of `text`, and the length of all three; absent when that is not what stands there.
struct NumberedPlaceholder {
    std::size_t number;
    std::size_t length;
};

std::optional<NumberedPlaceholder> numberedPlaceholder(std::string_view text) {
    const auto digits = static_cast<std::size_t>(std::find_if_not(text.begin(), text.end(), isAsciiDigit) - text.begin());
    if (digits == 0 || text.substr(digits, 2) != "$@") return std::nullopt;
    std::size_t number = 0;
    const auto result = std::from_chars(text.data(), text.data() + digits, number);
    if (result.ec == std::errc::result_out_of_range) number = std::numeric_limits<std::size_t>::max();
    return NumberedPlaceholder{number, digits + 2};
}

} // namespace

std::string format(std::string_view text, std::initializer_list<std::string_view> arguments) {
    const auto argument = [&](std::size_t index) {
        return index < arguments.size() ? arguments.begin()[index] : std::string_view{};
    };
    std::string result;
    result.reserve(text.size() + 16 * arguments.size());
    std::size_t next = 0;
    while (!text.empty()) {
        const std::size_t plain = std::min(text.find('%'), text.size());
        result.append(text.substr(0, plain));
        text.remove_prefix(plain);
        if (text.empty()) break;
        text.remove_prefix(1);
        if (text.substr(0, 1) == "@") {
            result.append(argument(next++));
            text.remove_prefix(1);
        } else if (const auto placeholder = numberedPlaceholder(text)) {
            // Number 0 wraps around to an index that no argument has.
            result.append(argument(placeholder->number - 1));
            text.remove_prefix(placeholder->length);
        } else {
            result.push_back('%');
            if (text.substr(0, 1) == "%") text.remove_prefix(1);
        }
    }
    return result;
}

std::size_t placeholderLength(std::string_view text) {
    if (text.substr(0, 1) != "%") return 0;
    if (const auto next = text.substr(1, 1); next == "@" || next == "%") return 2;
    const auto placeholder = numberedPlaceholder(text.substr(1));
    return placeholder ? 1 + placeholder->length : 0;
}

std::optional<double> decimalNumber(std::string_view text) {
    if (text.substr(0, 1) == "+" && text.substr(1, 1) != "-") text.remove_prefix(1);
    const auto reading = readDecimal(text);
    return reading && reading->length == text.size() ? std::optional(reading->number) : std::nullopt;
}

} // namespace proupsells::foundation

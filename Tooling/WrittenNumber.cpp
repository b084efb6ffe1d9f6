#include "Tooling/WrittenNumber.hpp"

#include <charconv>
#include <cmath>
#include <cstdint>

namespace proupsells::tooling {

namespace {

constexpr std::int64_t steps = 1000;

std::optional<std::int64_t> takeDigits(std::string_view& text, std::int64_t largest) {
    std::int64_t value = 0;
    if (text.empty() || text.front() == '-') return std::nullopt;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || value > largest) return std::nullopt;
    text.remove_prefix(end - text.data());
    return value;
}

} // namespace

std::string written(double number) {
    const double size = std::round(std::abs(number) * double(steps));
    // No screen is that large.
    if (!(size < 1e15)) return std::isnan(number) ? "nan" : number < 0 ? "-inf" : "inf";
    const auto thousandths = static_cast<std::int64_t>(size);
    std::string result = (number < 0 && thousandths > 0 ? "-" : "") + std::to_string(thousandths / steps);
    const std::int64_t fraction = thousandths % steps;
    if (fraction == 0) return result;
    const std::string digits = std::to_string(steps + fraction).substr(1);
    return result + "." + digits.substr(0, digits.find_last_not_of('0') + 1);
}

std::string written(const geometry::Rect& rect) {
    return written(rect.origin.x) + " " + written(rect.origin.y) + " " + written(rect.size.width) + " " + written(rect.size.height);
}

std::optional<double> takeNumber(std::string_view& text) {
    std::string_view rest = text;
    const bool isNegative = !rest.empty() && rest.front() == '-';
    if (isNegative) rest.remove_prefix(1);
    const auto whole = takeDigits(rest, std::int64_t(1e12));
    if (!whole) return std::nullopt;
    std::int64_t thousandths = *whole * steps;
    if (!rest.empty() && rest.front() == '.') {
        rest.remove_prefix(1);
        const std::size_t before = rest.size();
        auto fraction = takeDigits(rest, steps - 1);
        const std::size_t length = before - rest.size();
        if (!fraction || length > 3) return std::nullopt;
        for (std::size_t i = length; i < 3; ++i) *fraction *= 10;
        thousandths += *fraction;
    }
    text = rest;
    return (isNegative ? -1 : 1) * (double(thousandths) / double(steps)) + 0.0;
}

} // namespace proupsells::tooling

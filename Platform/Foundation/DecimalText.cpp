// Not every supported standard library has std::from_chars and std::to_chars for doubles. The functions of C read and write
// exactly, but with the decimal point of the process's locale; so none is shown to them, and theirs is passed over.
#include "Platform/Foundation/DecimalText.hpp"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>

#include "Platform/Foundation/Ascii.hpp"

namespace proupsells::foundation {

namespace {

// An exponent beyond which every number is too large or too small, whatever its digits are.
constexpr long long largestExponent = 1'000'000'000'000;

std::size_t digitCount(std::string_view text) {
    return std::size_t(std::find_if_not(text.begin(), text.end(), isAsciiDigit) - text.begin());
}

// The exponent at the start of `text` and its length; 0 and 0 where there is none.
std::pair<long long, std::size_t> exponentOf(std::string_view text) {
    if (text.empty() || (text[0] != 'e' && text[0] != 'E')) return {};
    const std::size_t sign = text.substr(1, 1) == "-" || text.substr(1, 1) == "+" ? 1 : 0;
    const std::string_view digits = text.substr(1 + sign, digitCount(text.substr(1 + sign)));
    if (digits.empty()) return {};
    long long exponent = 0;
    for (const char digit : digits) exponent = std::min(exponent * 10 + (digit - '0'), largestExponent);
    return {text[1] == '-' ? -exponent : exponent, 1 + sign + digits.size()};
}

double nearestDouble(const std::string& digits, long long exponent) {
    return std::strtod((digits + "e" + std::to_string(exponent)).c_str(), nullptr);
}

double valueOf(const Decimal& decimal) {
    return nearestDouble(decimal.digits, decimal.pointPosition - static_cast<long long>(decimal.digits.size()));
}

// The decimal of so many digits that is nearest to `magnitude`.
Decimal roundedDecimal(double magnitude, int digitCount) {
    char text[64];
    std::snprintf(text, sizeof text, "%.*e", digitCount - 1, magnitude);
    const char* const exponent = std::find(text, text + sizeof text, 'e');
    Decimal decimal;
    std::copy_if(static_cast<const char*>(text), exponent, std::back_inserter(decimal.digits), isAsciiDigit);
    decimal.pointPosition = std::atoi(exponent + 1) + 1;
    return decimal;
}

} // namespace

std::optional<DecimalReading> readDecimal(std::string_view text) {
    const bool isNegative = text.substr(0, 1) == "-";
    std::size_t length = isNegative ? 1 : 0;
    const std::string_view whole = text.substr(length, digitCount(text.substr(length)));
    length += whole.size();
    std::string_view fraction;
    if (text.substr(length, 1) == ".") {
        fraction = text.substr(length + 1, digitCount(text.substr(length + 1)));
        if (whole.empty() && fraction.empty()) return std::nullopt;
        length += 1 + fraction.size();
    }
    if (whole.empty() && fraction.empty()) return std::nullopt;
    const auto [exponent, exponentLength] = exponentOf(text.substr(length));
    std::string digits;
    digits.append(whole).append(fraction);
    digits.erase(0, digits.find_first_not_of('0'));
    const double magnitude = digits.empty() ? 0 : nearestDouble(digits, exponent - static_cast<long long>(fraction.size()));
    if (std::isinf(magnitude) || (magnitude == 0 && !digits.empty())) return std::nullopt;
    return DecimalReading{isNegative ? -magnitude : magnitude, length + exponentLength};
}

void addOneToLastDigit(Decimal& decimal) {
    for (auto digit = decimal.digits.rbegin(); digit != decimal.digits.rend(); ++digit) {
        if (*digit != '9') return void(++*digit);
        *digit = '0';
    }
    decimal.digits.insert(decimal.digits.begin(), '1');
    ++decimal.pointPosition;
}

Decimal shortestDecimal(double magnitude) {
    for (int count = 1;; ++count) {
        Decimal decimal = roundedDecimal(magnitude, count);
        if (count == std::numeric_limits<double>::max_digits10 || valueOf(decimal) == magnitude) return decimal;
        // Just above a power of two the doubles lie twice as far apart as below, so the next one up may still be read back.
        addOneToLastDigit(decimal);
        if (valueOf(decimal) == magnitude) return decimal;
    }
}

} // namespace proupsells::foundation

#include "Backends/Icu/RoundedDecimal.hpp"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <string_view>

namespace proupsells::icubackend {

namespace {

RoundedDecimal shortestDecimal(double value) {
    char text[32];
    const char* end = std::to_chars(std::begin(text), std::end(text), value, std::chars_format::scientific).ptr;
    const char* mark = std::find(std::begin(text), std::end(text), 'e');
    int exponent = 0;
    std::from_chars(mark[1] == '+' ? mark + 2 : mark + 1, end, exponent);
    RoundedDecimal decimal{std::string(static_cast<const char*>(text), mark), exponent + 1};
    std::erase(decimal.digits, '.');
    return decimal;
}

bool roundsUp(std::string_view kept, std::string_view rest) {
    if (rest != "5") return rest.front() >= '5';
    return !kept.empty() && (kept.back() - '0') % 2 != 0;
}

void addOneToTheLastDigit(RoundedDecimal& decimal) {
    const auto lastBelowNine = std::find_if(decimal.digits.rbegin(), decimal.digits.rend(), [](char c) { return c != '9'; });
    std::fill(decimal.digits.rbegin(), lastBelowNine, '0');
    if (lastBelowNine != decimal.digits.rend()) {
        ++*lastBelowNine;
    } else {
        decimal.digits.insert(0, 1, '1');
        ++decimal.wholeCount;
    }
}

void dropZerosAtTheEnd(std::string& digits) { digits.erase(digits.find_last_not_of('0') + 1); }

} // namespace

RoundedDecimal roundedDecimal(double value, int shift, int maximumFractionDigits) {
    RoundedDecimal decimal = shortestDecimal(value);
    dropZerosAtTheEnd(decimal.digits);
    if (decimal.digits.empty()) return {};
    decimal.wholeCount += shift;
    const int keptCount = decimal.wholeCount + maximumFractionDigits;
    if (keptCount < 0) return {};
    if (std::size_t(keptCount) >= decimal.digits.size()) return decimal;

    const std::string rest = decimal.digits.substr(std::size_t(keptCount));
    decimal.digits.resize(std::size_t(keptCount));
    if (roundsUp(decimal.digits, rest)) addOneToTheLastDigit(decimal);
    dropZerosAtTheEnd(decimal.digits);
    return decimal.digits.empty() ? RoundedDecimal{} : decimal;
}

} // namespace proupsells::icubackend

#include "Platform/Foundation/PercentText.hpp"

#include <algorithm>
#include <cmath>
#include <string>

#include "Platform/Foundation/DecimalText.hpp"

namespace proupsells::foundation {

namespace {

void roundHalfToEven(Decimal& decimal, int fractionDigits) {
    const int kept = decimal.pointPosition + fractionDigits;
    if (kept >= static_cast<int>(decimal.digits.size())) return;
    if (kept < 0) return void(decimal.digits.clear());
    const std::string dropped = decimal.digits.substr(kept);
    decimal.digits.resize(kept);
    const bool isHalf = dropped.find_last_not_of('0') == 0 && dropped[0] == '5';
    const bool isOdd = kept > 0 && (decimal.digits.back() - '0') % 2 == 1;
    if (isHalf ? isOdd : dropped[0] >= '5') addOneToLastDigit(decimal);
}

std::string grouped(std::string digits) {
    for (int position = static_cast<int>(digits.size()) - 3; position > 0; position -= 3)
        digits.insert(digits.begin() + position, ',');
    return digits;
}

} // namespace

std::string englishPercentText(double fraction, int maximumFractionDigits) {
    Decimal decimal = shortestDecimal(std::abs(fraction));
    decimal.pointPosition += 2;
    roundHalfToEven(decimal, std::max(0, maximumFractionDigits));

    if (decimal.pointPosition < 0) decimal.digits.insert(0, -decimal.pointPosition, '0');
    const std::size_t wholeDigits = std::max(0, decimal.pointPosition);
    if (decimal.digits.size() < wholeDigits) decimal.digits.resize(wholeDigits, '0');
    std::string whole = decimal.digits.substr(0, wholeDigits);
    whole.erase(0, whole.find_first_not_of('0'));
    std::string part = decimal.digits.substr(wholeDigits);
    part.erase(part.find_last_not_of('0') + 1);

    std::string text = std::signbit(fraction) ? "-" : "";
    text += whole.empty() ? "0" : grouped(std::move(whole));
    if (!part.empty()) text += "." + part;
    return text + "%";
}

} // namespace proupsells::foundation

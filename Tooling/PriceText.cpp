#include "Tooling/PriceText.hpp"

#include "Platform/Foundation/Ascii.hpp"
#include "Platform/Foundation/DecimalText.hpp"

namespace proupsells::tooling {

namespace {

// Digits and marks of other scripts as those of this one; every blank and invisible mark goes.
struct Spelling {
    std::string_view from, to;
};
constexpr Spelling spellings[] = {
    {" ", ""},      {"\t", ""},     {"\u00A0", ""},  {"\u202F", ""},  {"\u2009", ""},  {"\u200E", ""},
    {"\u200F", ""}, {"\u061C", ""}, {"\u066B", "."}, {"\u066C", "'"}, {"\u2019", "'"},
};

std::optional<char> digitAt(std::string_view text, std::size_t& length) {
    if (!text.empty() && foundation::isAsciiDigit(text[0])) {
        length = 1;
        return text[0];
    }
    // Each script's ten digits follow each other: Arabic, Persian, Devanagari.
    for (const auto& [first, size] : {std::pair<std::string_view, std::size_t>{"\u0660", 2}, {"\u06F0", 2}, {"\u0966", 3}}) {
        if (text.size() < size || text.substr(0, size - 1) != first.substr(0, size - 1)) continue;
        const int digit = static_cast<unsigned char>(text[size - 1]) - static_cast<unsigned char>(first[size - 1]);
        if (digit < 0 || digit > 9) continue;
        length = size;
        return static_cast<char>('0' + digit);
    }
    return std::nullopt;
}

std::string plainSpelling(std::string_view text) {
    std::string plain;
    while (!text.empty()) {
        std::size_t length = 0;
        if (const auto digit = digitAt(text, length)) {
            plain += *digit;
        } else {
            length = 1;
            std::string_view to = text.substr(0, 1);
            for (const Spelling& spelling : spellings)
                if (text.starts_with(spelling.from)) {
                    length = spelling.from.size();
                    to = spelling.to;
                    break;
                }
            plain += to;
        }
        text.remove_prefix(length);
    }
    return plain;
}

// A point or comma stands before the fraction when it is the last mark, there is none like it before, and no three digits follow.
std::string numberOf(std::string_view digits) {
    const std::size_t last = digits.find_last_of(".,");
    const bool hasFraction = last != std::string_view::npos && digits.size() - last - 1 != 3 && digits.find(digits[last]) == last;
    std::string number;
    for (std::size_t i = 0; i < digits.size(); ++i) {
        if (foundation::isAsciiDigit(digits[i])) number += digits[i];
        if (hasFraction && i == last) number += '.';
    }
    return number;
}

} // namespace

std::optional<PriceText> readPriceText(std::string_view text) {
    const std::string plain = plainSpelling(text);
    const std::size_t first = plain.find_first_of("0123456789"), end = plain.find_last_of("0123456789") + 1;
    if (first == std::string::npos) return std::nullopt;
    const std::string_view digits = std::string_view(plain).substr(first, end - first);
    if (digits.find_first_not_of("0123456789.,'") != std::string_view::npos) return std::nullopt;
    const auto reading = foundation::readDecimal(numberOf(digits));
    if (!reading) return std::nullopt;
    return PriceText{reading->number, plain.substr(0, first) + plain.substr(end)};
}

} // namespace proupsells::tooling

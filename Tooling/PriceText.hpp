// What a person reads in a price that a store has formatted. The module itself reads plain numbers only.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace proupsells::tooling {

struct PriceText {
    double amount = 0;
    std::string sign; // what stands before and after the digits, without blanks: "$", "€", "US$", "zł"
};

// Of "$1,299.00", "1.299,00 €", "¥1,200" or digits of another script. Absent where there is no amount, as in "Free".
std::optional<PriceText> readPriceText(std::string_view text);

} // namespace proupsells::tooling

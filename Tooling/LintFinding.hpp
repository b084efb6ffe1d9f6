// Something in what a host supplies that a customer would see go wrong.
#pragma once

#include <string>

namespace proupsells::tooling {

struct LintFinding {
    std::string rule;    // such as "doubled SKU"
    std::string place;   // in offers a JSON pointer; in translations the text's key, empty for the whole file
    std::string message; // what is wrong, and what to do
    std::string file{};  // of translations, such as "de.lproj/Localizable.strings"; empty for offers

    bool operator==(const LintFinding&) const = default;
};

} // namespace proupsells::tooling

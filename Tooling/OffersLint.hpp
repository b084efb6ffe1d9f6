// What a customer would see go wrong with a host's offers.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "Platform/System/Compiler.hpp"
#include "ProUpsells/SubscriptionOption.hpp"
#include "Tooling/LintFinding.hpp"

namespace proupsells::tooling {

// The rule of plans that stop the program when they are shown.
inline constexpr const char* zeroMonth = "monthly price of 0";

// What a host offers.
struct OffersToLint {
    std::vector<SubscriptionOption> options; // in the order in which they are shown
    // Struck through beside the plans' prices; absent when no promotion is on.
    std::optional<std::string> annualComparisonPrice{};
    std::optional<std::string> monthlyComparisonPrice{};
};

// By rules, and within them in the order of the plans. Places are pointers into an offers file, such as "/options/0/price". Main
// thread only.
PROUPSELLS_EXPORT std::vector<LintFinding> lint(const OffersToLint& offers);

} // namespace proupsells::tooling

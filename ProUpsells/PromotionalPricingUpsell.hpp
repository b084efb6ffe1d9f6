// A sales screen that can show a promotion's comparison prices.
#pragma once

#include <optional>
#include <string>

#include "Platform/System/Compiler.hpp"

namespace proupsells {

// An absent price shows no comparison.
class PROUPSELLS_EXPORT PromotionalPricingUpsell {
public:
    virtual ~PromotionalPricingUpsell() = default;

    // What a yearly plan costs without the promotion, as a text in the store's currency.
    virtual std::optional<std::string> annualSubscriptionPriceForComparisonWithPromotionalPrice() const = 0;
    virtual void setAnnualSubscriptionPriceForComparisonWithPromotionalPrice(std::optional<std::string> price) = 0;
    // What a monthly plan costs without it.
    virtual std::optional<std::string> monthlySubscriptionPriceForComparisonWithPromotionalPrice() const = 0;
    virtual void setMonthlySubscriptionPriceForComparisonWithPromotionalPrice(std::optional<std::string> price) = 0;
};

} // namespace proupsells

// The offers file: what the host sells, and what led the person to it.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "Apps/ProUpsellsHost/JsonCursor.hpp"
#include "ProUpsells/SubscriptionOption.hpp"
#include "ProUpsells/VelaProUpsellViewController.hpp"

namespace proupsells::hostprogram {

struct Offers {
    std::vector<SubscriptionOption> options;
    Referrer referrer{"proupsells"};
    VelaProUpsellViewController::Variant variant = VelaProUpsellViewController::Variant::comparisonPaywall;
    Entitlement entitlement = Entitlement::velaPRO;
    bool showLoginOnSuccess = true;
    std::optional<std::string> annualSubscriptionPriceForComparisonWithPromotionalPrice;
    std::optional<std::string> monthlySubscriptionPriceForComparisonWithPromotionalPrice;
    bool shouldMentioniCloudSync = false;
};

std::vector<SubscriptionOption> readOptions(const JsonCursor& array);
Offers readOffers(const JsonCursor& object);
Offers readOffersFile(const std::filesystem::path& file);

// An option with every key that its type has, absent ones as null.
Json toJson(const SubscriptionOption& option);

} // namespace proupsells::hostprogram

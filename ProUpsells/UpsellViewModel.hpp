// What the paywall shows, and the stream of taps that it sends back.
#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "Platform/Combine/ObservableObject.hpp"
#include "Platform/Combine/PassthroughSubject.hpp"
#include "Platform/System/Compiler.hpp"
#include "ProUpsells/SubscriptionOption.hpp"

namespace proupsells {

// Main thread only. Each write of a field is announced before it takes effect.
class PROUPSELLS_EXPORT UpsellViewModel final : public combine::ObservableObject {
public:
    // One tap on the paywall, on the button that the kind names.
    struct TapEvent {
        // The person continues with a plan.
        struct Purchase {
            SubscriptionOption option; // as it was at the moment of the tap
            bool operator==(const Purchase&) const = default;
        };
        // The close button.
        struct Cancel {
            bool operator==(const Cancel&) const = default;
        };
        // The person wants back what they have bought before.
        struct RestorePurchases {
            bool operator==(const RestorePurchases&) const = default;
        };
        // The button that opens the store page.
        struct WhatIsPro {
            bool operator==(const WhatIsPro&) const = default;
        };
        // The link to the privacy policy.
        struct PrivacyPolicy {
            bool operator==(const PrivacyPolicy&) const = default;
        };
        // The link to the terms of service.
        struct TermsOfService {
            bool operator==(const TermsOfService&) const = default;
        };
        // The button that opens the comparison of plans.
        struct ComparePlans {
            bool operator==(const ComparePlans&) const = default;
        };
        // What was tapped.
        using Kind = std::variant<Purchase, Cancel, RestorePurchases, WhatIsPro, PrivacyPolicy, TermsOfService, ComparePlans>;

        Kind kind;

        bool operator==(const TapEvent&) const = default;
    };

    // The plans in display order. Empty, or with a plan at the place that the paywall has selected; otherwise the paywall stops the
    // program.
    combine::Published<std::vector<SubscriptionOption>> options{*this};
    // Prices shown struck through before a plan's subtitle; absent when no promotion is on.
    combine::Published<std::optional<std::string>> annualSubscriptionPriceForComparisonWithPromotionalPrice{*this};
    combine::Published<std::optional<std::string>> monthlySubscriptionPriceForComparisonWithPromotionalPrice{*this};

    // Every tap, once, delivered at once. Keeps nothing for later subscribers.
    combine::PassthroughSubject<TapEvent> tapEventOccurred;

    // The first plan of its kind in display order; null when there is none.
    const SubscriptionOption* yearlyOption() const;
    const SubscriptionOption* monthlyOption() const;
};

} // namespace proupsells

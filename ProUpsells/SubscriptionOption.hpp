// One purchasable product, as the host describes it.
#pragma once

#include <optional>
#include <string>
#include <variant>

#include "Platform/System/Compiler.hpp"

namespace proupsells {

// A trial is on offer where a plan has one that the user has not had yet. `trialLength` is absent when the plan has none.
inline bool offersTrial(const std::optional<std::string>& trialLength, bool hasUsedFreeTrial) {
    return trialLength.has_value() && !hasUsedFreeTrial;
}

// All prices are texts that the host has already formatted in the store's currency; nothing is checked.
class PROUPSELLS_EXPORT SubscriptionOption {
public:
    // The kind of plan and its price texts. The order of the kinds is their case index.
    struct SubscriptionType {
        // Paid every month. Introductory texts are absent where there is no such offer.
        struct Monthly {
            std::string price;
            std::optional<std::string> introductoryPrice;
            // The length of the introductory offer as a text, a free trial's as well.
            std::optional<std::string> introductoryPeriodLength;

            bool operator==(const Monthly&) const = default;
        };
        // Paid every year. Introductory texts are absent where there is no such offer.
        struct Yearly {
            std::string price;
            // The yearly price spread across twelve months.
            std::string monthlyEffectivePrice;

            std::optional<std::string> introductoryPrice;
            std::optional<std::string> introductoryPeriodLength;

            bool operator==(const Yearly&) const = default;
        };
        // Paid once.
        struct Lifetime {
            std::string price;

            bool operator==(const Lifetime&) const = default;
        };

        std::variant<Monthly, Yearly, Lifetime> plan;

        // Of one kind of plan.
        SubscriptionType(Monthly monthly) : plan(std::move(monthly)) {}
        SubscriptionType(Yearly yearly) : plan(std::move(yearly)) {}
        SubscriptionType(Lifetime lifetime) : plan(std::move(lifetime)) {}

        bool operator==(const SubscriptionType&) const = default;
    };

    // `SKU` is the product's identifier in the store.
    SubscriptionOption(std::string SKU, SubscriptionType type, bool hasUsedFreeTrial);

    // The store product identifier.
    const std::string& SKU() const { return m_SKU; }
    // The kind of plan, with its prices.
    const SubscriptionType& type() const { return m_type; }
    // True when the introductory free trial has already been consumed and must not be offered again.
    bool hasUsedFreeTrial() const { return m_hasUsedFreeTrial; }

    // Of the plan, whatever its kind.
    const std::string& price() const;
    // Both are absent for a lifetime plan.
    const std::optional<std::string>& introductoryPrice() const;
    const std::optional<std::string>& introductoryPeriodLength() const;
    // Of a yearly plan; the empty text for the other kinds. Meant for the module's own texts.
    const std::string& monthlyEffectivePrice() const;

    // Exactly one of these is true.
    bool isMonthly() const { return std::holds_alternative<SubscriptionType::Monthly>(m_type.plan); }
    bool isYearly() const { return std::holds_alternative<SubscriptionType::Yearly>(m_type.plan); }
    bool isLifetime() const { return std::holds_alternative<SubscriptionType::Lifetime>(m_type.plan); }
    // Whether a free trial can be had with the plan.
    bool offersTrial() const { return proupsells::offersTrial(introductoryPeriodLength(), m_hasUsedFreeTrial); }
    // The same kind of plan, whatever its prices.
    bool isSameSubscriptionCategory(const SubscriptionOption& other) const;

    bool operator==(const SubscriptionOption&) const = default;

private:
    std::string m_SKU;
    SubscriptionType m_type;
    bool m_hasUsedFreeTrial;
};

} // namespace proupsells

// One line of the plan comparison.
#pragma once

#include <string>
#include <variant>

namespace proupsells {

struct Feature {
    // Which plan includes the feature.
    struct DistributionType {
        // The free plan may use it this many times, Pro without limit.
        struct Limited {
            int count = 0;
            bool operator==(const Limited&) const = default;
        };
        // In both plans.
        struct Free {
            bool operator==(const Free&) const = default;
        };
        // In Pro only.
        struct Pro {
            bool operator==(const Pro&) const = default;
        };

        std::variant<Limited, Free, Pro> value;

        bool isFree() const { return std::holds_alternative<Free>(value); }
        bool isPro() const { return std::holds_alternative<Pro>(value); }
        // Null when the feature has no limit.
        const Limited* limit() const { return std::get_if<Limited>(&value); }

        bool operator==(const DistributionType&) const = default;
    };

    std::string name; // localized
    DistributionType distribution;

    bool operator==(const Feature&) const = default;
};

} // namespace proupsells

// The fixed list of what the free plan and Pro include.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "ProUpsells/FeatureCategory.hpp"

namespace proupsells {

// Every text is localized at its first use and keeps that language for the life of the process.
class ComparisonCatalogue {
public:
    ComparisonCatalogue() = delete;

    static const FeatureCategory& contentAndAssets();
    static const FeatureCategory& creationTools();
    static const FeatureCategory& businessGrowthTools();
    static const FeatureCategory& automation();
    // All four, in display order.
    static std::vector<FeatureCategory> categories();

    // The columns' headings in upper case.
    static const std::string& freeHeading();
    static const std::string& proHeading();

    // Whether the headings are too long for capsules of the usual size.
    static bool requiresSmallCapsule();
    // The same for given headings. The Pro heading is asked for only when the Free one is short.
    static bool requiresSmallCapsule(std::string_view freeHeading, const std::function<std::string()>& proHeading);

    // "3 free"
    static std::string freeUsageText(int count);
};

} // namespace proupsells

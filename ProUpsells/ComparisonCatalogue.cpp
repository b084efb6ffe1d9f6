#include "ProUpsells/ComparisonCatalogue.hpp"

#include "Platform/Foundation/Bundle.hpp"
#include "Platform/Foundation/Format.hpp"
#include "Platform/Foundation/Locale.hpp"

namespace proupsells {

using foundation::localizedString;

namespace {

Feature free(const char* key, const char* comment) { return {localizedString(key, comment), {Feature::DistributionType::Free{}}}; }

Feature pro(const char* key, const char* comment) { return {localizedString(key, comment), {Feature::DistributionType::Pro{}}}; }

Feature limited(int count, const char* key, const char* comment) {
    return {localizedString(key, comment), {Feature::DistributionType::Limited{count}}};
}

std::string upperCasedHeading(const char* key, const char* comment) {
    return foundation::LocaleServices::current().upperCased(localizedString(key, comment), foundation::Locale::current());
}

} // namespace

const FeatureCategory& ComparisonCatalogue::contentAndAssets() {
    static const FeatureCategory category{
        .name = localizedString("Content And Assets", "Heading: Section for content and assets features"),
        .expanded = true,
        .items = {free("Unlimited Stock Images", "Feature: Unlimited access to stock images"),
                  pro("Premium Templates", "Feature: Access to premium templates"),
                  pro("Unlimited Fonts Library", "Feature: Unlimited access to fonts library"),
                  pro("Upload Custom Fonts", "Feature: Ability to upload custom fonts"),
                  pro("Unlimited Graphics Library", "Feature: Unlimited access to graphics library"),
                  pro("Unlimited Stock Videos", "Feature: Unlimited access to stock videos"),
                  pro("Layout Collections", "Feature: Access to various layout collections")},
        .englishName = "Content And Assets"};
    return category;
}

const FeatureCategory& ComparisonCatalogue::creationTools() {
    static const FeatureCategory category{
        .name = localizedString("Creation Tools", "Heading: Section for creation tools"),
        .items = {free("Video Creation", "Feature: Tool for creating videos"),
                  limited(3, "Remove Background", "Feature: Tool for removing backgrounds (3 free uses)"),
                  pro("Image Filters", "Feature: Access to image filters"), pro("Shape Picker", "Feature: Tool for picking shapes"),
                  pro("Upload Custom Logo", "Feature: Ability to upload custom logos"),
                  pro("Custom Color Palette", "Feature: Tool for creating custom color palettes")},
        .englishName = "Creation Tools"};
    return category;
}

const FeatureCategory& ComparisonCatalogue::businessGrowthTools() {
    static const FeatureCategory category{
        .name = localizedString("Business Growth Tools", "Heading: Section for business growth tools"),
        .items = {free("Search and Purchase Domains", "Feature: Tool for searching and purchasing domains"),
                  free("Manage Domains", "Feature: Tool for managing domains"),
                  free("Create a Website", "Feature: Tool for creating websites"),
                  free("Manage Websites", "Feature: Tool for managing websites"),
                  free("Take Payments using Pay Links", "Feature: Tool for taking payments using pay links")},
        .englishName = "Business Growth Tools"};
    return category;
}

const FeatureCategory& ComparisonCatalogue::automation() {
    static const FeatureCategory category{
        .name = localizedString("Automation (AI Features)", "Heading: Section for AI-powered automation features"),
        .items = {free("Logo Generation", "AI Feature: Tool for generating logos"),
                  free("Video Generation", "AI Feature: Tool for generating videos")},
        .englishName = "Automation (AI Features)"};
    return category;
}

std::vector<FeatureCategory> ComparisonCatalogue::categories() {
    return {contentAndAssets(), creationTools(), businessGrowthTools(), automation()};
}

const std::string& ComparisonCatalogue::freeHeading() {
    static const std::string heading = upperCasedHeading("Free", "Header denoting offerings from the Free subscription");
    return heading;
}

const std::string& ComparisonCatalogue::proHeading() {
    static const std::string heading = upperCasedHeading("Pro", "Header denoting offerings from the Pro subscription");
    return heading;
}

bool ComparisonCatalogue::requiresSmallCapsule() {
    return requiresSmallCapsule(freeHeading(), [] { return proHeading(); });
}

bool ComparisonCatalogue::requiresSmallCapsule(std::string_view freeHeading, const std::function<std::string()>& proHeading) {
    const foundation::LocaleServices& services = foundation::LocaleServices::current();
    return services.graphemeCount(freeHeading) >= 6 || services.graphemeCount(proHeading()) > 5;
}

std::string ComparisonCatalogue::freeUsageText(int count) {
    return foundation::format(localizedString("%@ free", "{number of} free usages indicator"), {std::to_string(count)});
}

} // namespace proupsells

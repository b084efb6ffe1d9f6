// All that the screens paint and tell, held against Drawn/, line by line: what no other test looks at does not change unnoticed,
// either. After a change that is meant, ProUpsellsTests writes the files anew where the environment has PROUPSELLS_DRAW.
#include <gmock/gmock.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "ProUpsells/ContrastTheme.hpp"
#include "ProUpsells/Theme.hpp"
#include "ProUpsells/UpsellViewController.hpp"
#include "ProUpsells/VelaProUpsellViewController.hpp"
#include "Tests/ProUpsells/ScreenDescription.hpp"
#include "Tests/ProUpsells/StoreScreen.hpp"
#include "Tests/Support/SourceFile.hpp"

namespace proupsells::tests {
namespace {

using geometry::LayoutDirection;
using geometry::Size;
using graphics::ColorScheme;
using graphics::ContentSizeCategory;
using TapEvent = UpsellViewModel::TapEvent;

std::vector<SubscriptionOption> trialAndMonthly() { return {yearly("$99.99", {.introductoryPeriodLength = "1 week"}), monthly()}; }

struct Drawing {
    const char* name;
    Size size;
    uikit::UITraitCollection traits = {};
    std::vector<const char*> taps = {}; // identifiers; "whatIsPro" is the paywall's event
    double wait_s = 2;
    std::vector<SubscriptionOption> options = trialAndMonthly();
    Theme theme = {};
    bool isEmbedded = false; // the window's own screen, and as large
};

void PrintTo(const Drawing& drawing, std::ostream* stream) { *stream << drawing.name; }

constexpr uikit::UITraitCollection light;
constexpr uikit::UITraitCollection dark{.userInterfaceStyle = ColorScheme::dark};
constexpr uikit::UITraitCollection darkAndRegular{.userInterfaceStyle = ColorScheme::dark,
                                                  .horizontalSizeClass = uikit::UIUserInterfaceSizeClass::regular};
constexpr uikit::UITraitCollection darkMirroredAndLarge{.userInterfaceStyle = ColorScheme::dark,
                                                        .layoutDirection = LayoutDirection::rightToLeft,
                                                        .preferredContentSizeCategory = ContentSizeCategory::accessibilityLarge};

std::vector<Drawing> drawings() {
    const std::vector<const char*> openComparison{"comparePlans", "comparison.category.Creation Tools",
                                                  "comparison.category.Business Growth Tools",
                                                  "comparison.category.Automation (AI Features)"};
    return {
        {"paywall", {375, 800}, light},
        {"paywall-chosen", {375, 700}, light, {"plan.pro.monthly"}},
        {"paywall-turning", {375, 699.9}, light, {}, 5.2},
        {"paywall-wide", {1024, 768}, darkAndRegular},
        {"paywall-embedded", {1024, 768}, light, {}, 2, trialAndMonthly(), {}, true},
        {"paywall-narrow", {320, 568}, darkMirroredAndLarge},
        {"paywall-tight", {320, 700}, light},
        {"paywall-many", {375, 1000}, light, {}, 2, {lifetime(), monthly("$14.99", {.hasUsedFreeTrial = true}), yearly()}},
        {"paywall-contrast", {375, 800}, light, {}, 2, trialAndMonthly(), contrastTheme()},
        {"paywall-contrast-dark", {375, 800}, dark, {}, 2, trialAndMonthly(), contrastTheme()},
        {"comparison", {375, 1900}, light, openComparison},
        {"comparison-opening", {375, 800}, light, {"comparePlans", "comparison.category.Creation Tools"}, 0.1},
        {"comparison-wide", {1024, 768}, darkAndRegular, {"comparePlans"}},
        {"comparison-narrow", {320, 2600}, darkMirroredAndLarge, openComparison},
        {"comparison-tight", {320, 1900}, light, openComparison},
        {"comparison-contrast", {375, 1900}, light, openComparison, 2, trialAndMonthly(), contrastTheme()},
        {"comparison-contrast-dark", {375, 1900}, dark, openComparison, 2, trialAndMonthly(), contrastTheme()},
        {"store", {375, 4000}, light, {"whatIsPro"}},
        {"store-drifting", {375, 800}, light, {"whatIsPro"}, 7.25},
        {"store-wide", {1024, 3000}, darkAndRegular, {"whatIsPro"}},
        {"store-narrow", {320, 4000}, darkMirroredAndLarge, {"whatIsPro"}},
    };
}

class DrawnScreens : public StoreTest, public ::testing::WithParamInterface<Drawing> {
protected:
    DrawnScreens() {
        setTheme(GetParam().theme);
        window->setSize(GetParam().size, {});
        window->setTraits(GetParam().traits);
        VelaProStorePageViewController::shouldMentioniCloudSync = true;
        entry->setDelegate(delegate);
        entry->setAnnualSubscriptionPriceForComparisonWithPromotionalPrice("$119.99");
        if (GetParam().isEmbedded) {
            window->setRootViewController(entry);
        } else {
            window->setRootViewController(std::make_shared<uikit::UIViewController>());
            window->rootViewController()->present(entry, true);
        }
        bed.runFor(1);
    }

    ~DrawnScreens() override { setTheme({}); }

    void operate(std::string_view identifier) {
        if (identifier == "whatIsPro")
            dynamic_cast<UpsellViewController&>(*entry->children().front())
                .upsellViewModel()
                ->tapEventOccurred.send({TapEvent::WhatIsPro{}});
        else
            find(identifier).activate();
    }

    Ledger ledger;
    std::shared_ptr<LedgerDelegate> delegate = std::make_shared<LedgerDelegate>(ledger);
    std::shared_ptr<VelaProUpsellViewController> entry = VelaProUpsellViewController::create(
        GetParam().options, VelaProUpsellViewController::Variant::comparisonPaywall, Referrer{"Home"}, Entitlement::velaPRO, true);
};

} // namespace

TEST_P(DrawnScreens, AreAsTheyWere) {
    for (const char* const identifier : GetParam().taps) {
        if (identifier != GetParam().taps.front()) bed.runFor(1);
        operate(identifier);
    }
    bed.runFor(GetParam().wait_s);

    const std::string seen = DrawnScreen(painted(), GetParam().size).text() + '\n' + described(tree());

    const std::filesystem::path file = sourceFile("Tests/ProUpsells/Drawn") / (std::string(GetParam().name) + ".txt");
    if (std::getenv("PROUPSELLS_DRAW")) {
        std::ofstream(file, std::ios::binary) << seen;
        GTEST_SKIP() << "drawn anew, not compared";
    }
    std::ostringstream drawn;
    drawn << std::ifstream(file, std::ios::binary).rdbuf();
    EXPECT_EQ(seen, drawn.str());
}

INSTANTIATE_TEST_SUITE_P(Module, DrawnScreens, ::testing::ValuesIn(drawings()), [](const auto& drawing) {
    std::string name = drawing.param.name;
    std::erase(name, '-');
    return name;
});

} // namespace proupsells::tests

// Where everything on the paywall stands, worked out from the lengths of the design for every size of screen.
#include <gmock/gmock.h>

#include "Tests/ProUpsells/FixedMetrics.hpp"
#include "Tests/ProUpsells/Paywall.hpp"

namespace proupsells::tests {
namespace {

using geometry::Rect;
using geometry::Size;
using ::testing::IsEmpty;

constexpr double spacing = 8, inset = 16;

// A yearly plan with a trial above a monthly one.
struct ExpectedPaywall {
    double width, height;
    bool isRegular;

    Rect carousel, title, pageControl, logo, comparePlans, yearly, yearlyBadge, yearlyTrial, monthly, subscribe, disclaimer;
    Rect terms, privacy, restore;
    double contentHeight;

    explicit ExpectedPaywall(Size size) : width(size.width), height(size.height), isRegular(size.height >= 700) {
        double y = isRegular ? -10 : 0;
        y = placeCarousel(y) + spacing;
        logo = {{(width - 208) / 2, y + 5}, {208, 26}};
        y = logo.maxY() + spacing;
        // 26 characters of 8 points beside the icon and the chevron fit at every width here.
        comparePlans = {{0, y}, {width, 24}};
        y = placePlans(comparePlans.maxY() + spacing) + (isRegular ? 10 : 0) + spacing;
        subscribe = {{inset, y + 12}, {width - 2 * inset, 56}};
        y = subscribe.maxY() - 8 + (isRegular ? 5 : 0) + spacing;
        y = placeDisclaimer(y) + spacing;
        contentHeight = placeLinks(y) + (isRegular ? 10 : 0) + 80;
    }

    double placeCarousel(double y) {
        carousel = {{0, y}, {width, 254}};
        pageControl = {{width - 30 - 40, 0}, {40, 0}};
        // The size of the title follows the width class; spacer and page control keep their room.
        const double size = width >= 600 ? 24 : 18;
        const auto lines = lineWidths("Endless premium templates, updated daily.", size, width - 10 - 3 * spacing - 40 - 30);
        const double titleHeight = static_cast<double>(lines.size()) * size * 1.25;
        title = {{10, carousel.maxY() - 18 - titleHeight}, {*std::max_element(lines.begin(), lines.end()), titleHeight}};
        return carousel.maxY();
    }

    double placePlans(double y) {
        // Card insets 14, radio circle 24, and a spacer of at least 8 between two gaps.
        const double textWidthThere = width - 2 * inset - 2 * 14 - 24 - 3 * spacing;
        // " $99.99 per year" and "($8.33/month)." share a line where they fit: one blank and 24 characters of 16, 6 of 18.
        const bool priceFits = (1 + 24) * 8 + 6 * 9 <= textWidthThere;
        const double capsuleHeight = 11 * 1.25 + 2 * 6;
        const double yearlyHeight = std::max(90.0, 2 * 16 + capsuleHeight + spacing + 22.5 + (priceFits ? 0 : 20));
        yearly = {{inset, y}, {width - 2 * inset, yearlyHeight}};
        const double badgeWidth = 8 * 5 + 2 * 4, badgeHeight = 12.5 + 2 * 2;
        yearlyBadge = {{yearly.maxX() - 16 - badgeWidth, y + 0.5 - badgeHeight / 2}, {badgeWidth, badgeHeight}};
        const double columnHeight = capsuleHeight + spacing + 22.5 + (priceFits ? 0 : 20);
        yearlyTrial = {{inset + 14 + 8 * 8.5 + spacing, y + (yearlyHeight - columnHeight) / 2}, {16 * 5.5 + 12, capsuleHeight}};
        monthly = {{inset, yearly.maxY() + 16}, {width - 2 * inset, 90}};
        return monthly.maxY();
    }

    double placeDisclaimer(double y) {
        const auto lines =
            lineWidths("Cancel within 7 days, and you won\xE2\x80\x99t be charged. Payment will be made automatically after "
                       "the trial ends.",
                       12, width - 2 * inset);
        const double widest = *std::max_element(lines.begin(), lines.end());
        disclaimer = {{(width - widest) / 2, y + 8}, {widest, static_cast<double>(lines.size()) * 15}};
        return disclaimer.maxY() + 8;
    }

    double placeLinks(double y) {
        const double termsWidth = 16 * 7, privacyWidth = 14 * 7, restoreWidth = 17 * 7, lineHeight = 17.5;
        const double available = width - 2 * inset, left = available - termsWidth - privacyWidth - restoreWidth;
        constexpr double leastGap = 8, touchTarget = 44;
        terms = {{inset, y}, {termsWidth, lineHeight}};
        if (left >= 2 * leastGap) {
            privacy = {{terms.maxX() + left / 2, y}, {privacyWidth, lineHeight}};
            restore = {{privacy.maxX() + left / 2, y}, {restoreWidth, lineHeight}};
        } else {
            // The last link wraps; the spacer before it vanishes at the line's end.
            privacy = {{width - inset - privacyWidth, y}, {privacyWidth, lineHeight}};
            restore = {{inset, y + touchTarget}, {restoreWidth, lineHeight}};
        }
        return restore.maxY();
    }
};

void expectFrame(const Rect& actual, const Rect& expected, const std::string& what) {
    constexpr double tolerance = 1e-6;
    EXPECT_NEAR(actual.minX(), expected.minX(), tolerance) << what << " x";
    EXPECT_NEAR(actual.minY(), expected.minY(), tolerance) << what << " y";
    EXPECT_NEAR(actual.width(), expected.width(), tolerance) << what << " width";
    EXPECT_NEAR(actual.height(), expected.height(), tolerance) << what << " height";
}

std::vector<SubscriptionOption> yearlyTrialAndMonthly() {
    return {yearly("$99.99", {.introductoryPeriodLength = "1 week"}), monthly()};
}

class PaywallLayout : public ::testing::TestWithParam<std::tuple<double, double>> {
protected:
    Size size() const { return {std::get<0>(GetParam()), std::get<1>(GetParam())}; }
};

TEST_P(PaywallLayout, PlacesEveryElement) {
    const Paywall paywall(yearlyTrialAndMonthly(), size());
    const ExpectedPaywall expected(size());
    const auto tree = paywall.tree();

    expectFrame(find(tree, "carousel").frame, expected.carousel, "carousel");
    expectFrame(firstOfType(firstOfType(tree, "HeaderCarousel"), "Text").frame, expected.title, "title");
    expectFrame(firstOfType(tree, "HeaderImage").frame, expected.logo, "logo");
    expectFrame(find(tree, "comparePlans").frame, expected.comparePlans, "comparePlans");
    expectFrame(find(tree, "plan.pro.yearly").frame, expected.yearly, "yearly plan");
    expectFrame(find(tree, "badge.pro.yearly").frame, expected.yearlyBadge, "badge");
    expectFrame(find(tree, "trial.pro.yearly").frame, expected.yearlyTrial, "trial");
    expectFrame(find(tree, "plan.pro.monthly").frame, expected.monthly, "monthly plan");
    expectFrame(find(tree, "subscribe").frame, expected.subscribe, "subscribe");
    expectFrame(find(tree, "disclaimer").frame, expected.disclaimer, "disclaimer");
    expectFrame(find(tree, "termsOfService").frame, expected.terms, "terms");
    expectFrame(find(tree, "privacyPolicy").frame, expected.privacy, "privacy");
    expectFrame(find(tree, "restorePurchases").frame, expected.restore, "restore");
    expectFrame(find(tree, "close").frame, {{size().width - 44, 0}, {44, 44}}, "close");
    EXPECT_NEAR(firstOfType(tree, "ScrollView").scroll->contentSize.height, expected.contentHeight, 1e-6);
}

TEST_P(PaywallLayout, KeepsThePageControlAtItsCorner) {
    const Paywall paywall(yearlyTrialAndMonthly(), size());
    const Rect control = paywall.frame("carousel.pageControl");
    const Rect carousel = paywall.frame("carousel");

    EXPECT_EQ(control.width(), 40);
    EXPECT_NEAR(control.maxX(), carousel.maxX() - 30, 1e-6);
    EXPECT_NEAR(control.maxY(), carousel.maxY() - 30, 1e-6);
}

INSTANTIATE_TEST_SUITE_P(Screens, PaywallLayout,
                         ::testing::Combine(::testing::Values(320, 360, 361, 375, 414, 428, 599, 600, 744),
                                            ::testing::Values(568, 667, 699.9, 700, 800, 932, 1133)));

TEST(PaywallLayout, KeepsItsLinksApart) {
    Paywall paywall(yearlyTrialAndMonthly(), {320, 800});
    for (double width = 320; width < 430; width += 1) {
        paywall.setSize({width, 800});
        const Rect links[] = {paywall.frame("termsOfService"), paywall.frame("privacyPolicy"), paywall.frame("restorePurchases")};
        for (int index = 1; index < 3; ++index) {
            const Rect &before = links[index - 1], &link = links[index];
            const bool isBeside = link.minX() - before.maxX() >= 8 - 1e-6, isBelow = link.midY() - before.midY() >= 44 - 1e-6;
            EXPECT_TRUE(isBeside || isBelow) << index << " at " << width;
        }
    }
}

// 47 characters of 7 points, and 8 points between each two of the three links.
TEST(PaywallLayout, SetsItsLinksInOneLineWhereTheyJustFit) {
    const Paywall roomy(yearlyTrialAndMonthly(), {2 * inset + 47 * 7 + 2 * 8, 800});
    EXPECT_EQ(roomy.frame("restorePurchases").minY(), roomy.frame("termsOfService").minY());
    EXPECT_EQ(roomy.frame("privacyPolicy").minX(), roomy.frame("termsOfService").maxX() + 8);
    EXPECT_EQ(roomy.frame("restorePurchases").minX(), roomy.frame("privacyPolicy").maxX() + 8);

    const Paywall narrow(yearlyTrialAndMonthly(), {2 * inset + 47 * 7 + 2 * 8 - 1, 800});
    EXPECT_EQ(narrow.frame("restorePurchases").minY(), narrow.frame("termsOfService").minY() + 44);
}

TEST(PaywallLayout, IsPulledUpFromAHeightOf700On) {
    EXPECT_EQ(Paywall(yearlyTrialAndMonthly(), {375, 699.9}).frame("carousel").minY(), 0);
    EXPECT_EQ(Paywall(yearlyTrialAndMonthly(), {375, 700}).frame("carousel").minY(), -10);
}

TEST(PaywallLayout, DoesNotCountSafeAreasAsHeight) {
    const ScreenOptions withHomeIndicator{.safeArea = {0, 0, 34, 0}};

    EXPECT_EQ(Paywall(yearlyTrialAndMonthly(), {375, 733}, withHomeIndicator).frame("carousel").minY(), 0);
    EXPECT_EQ(Paywall(yearlyTrialAndMonthly(), {375, 734}, withHomeIndicator).frame("carousel").minY(), -10);
}

TEST(PaywallLayout, ReachesTheBottomEdgeBehindTheSafeArea) {
    const Paywall paywall(yearlyTrialAndMonthly(), {375, 800}, {.safeArea = {0, 0, 34, 0}});
    const auto tree = paywall.tree();

    EXPECT_EQ(firstOfType(tree, "ScrollView").frame, (Rect{{0, 0}, {375, 800}}));
    const auto gradients = allWhere(tree, [](const auto& node) { return node.image == "TermsGradient"; });
    ASSERT_EQ(gradients.size(), 1u);
    EXPECT_EQ(gradients[0].frame.maxY(), 800);
    EXPECT_EQ(gradients[0].frame.width(), 375);
}

TEST(PaywallLayout, StandsBelowTheTopSafeArea) {
    const Paywall paywall(yearlyTrialAndMonthly(), {375, 667}, {.safeArea = {20, 0, 0, 0}});

    EXPECT_EQ(paywall.frame("close").minY(), 20);
    EXPECT_EQ(paywall.frame("carousel").minY(), 20);
}

TEST(PaywallLayout, IsMirroredWhereTheLanguageRunsFromTheRight) {
    ScreenOptions rightToLeft;
    rightToLeft.traits.layoutDirection = geometry::LayoutDirection::rightToLeft;
    const Paywall mirrored(yearlyTrialAndMonthly(), {375, 800}, rightToLeft);
    const Paywall plain(yearlyTrialAndMonthly(), {375, 800});

    for (const char* identifier :
         {"close", "carousel", "carousel.pageControl", "comparePlans", "plan.pro.yearly", "badge.pro.yearly", "trial.pro.yearly",
          "subscribe", "termsOfService", "privacyPolicy", "restorePurchases"}) {
        const Rect there = mirrored.frame(identifier), here = plain.frame(identifier);
        EXPECT_NEAR(there.minX(), 375 - here.maxX(), 1e-6) << identifier;
        EXPECT_NEAR(there.minY(), here.minY(), 1e-6) << identifier;
        EXPECT_NEAR(there.width(), here.width(), 1e-6) << identifier;
    }
}

TEST(PaywallLayout, CutsNoText) {
    for (const double width : {320.0, 375.0, 744.0}) {
        const Paywall paywall(yearlyTrialAndMonthly(), {width, 568});
        visit(paywall.tree(), [&](const accessibility::SemanticNode& node) {
            if (node.text) {
                EXPECT_FALSE(node.text->isTruncated) << node.text->text << " at " << width;
            }
        });
    }
}

TEST(PaywallLayout, CutsNoTextAndBreaksNoWordAtTheLargestTextSize) {
    ScreenOptions largest;
    largest.traits.preferredContentSizeCategory = graphics::ContentSizeCategory::accessibilityExtraExtraExtraLarge;

    for (const double width : {320.0, 375.0}) {
        const Paywall paywall(yearlyTrialAndMonthly(), {width, 800}, largest);
        visit(paywall.tree(), [](const accessibility::SemanticNode& node) {
            if (!node.text) return;
            EXPECT_FALSE(node.text->isTruncated) << node.text->text;
            EXPECT_THAT(brokenWords(node), IsEmpty());
        });
    }
}

TEST(PaywallLayout, PutsTheTrialUnderTheTitleWhereTheyDoNotFitBesideEachOther) {
    ScreenOptions large;
    large.traits.preferredContentSizeCategory = graphics::ContentSizeCategory::accessibilityMedium;
    const Paywall paywall(yearlyTrialAndMonthly(), {375, 800}, large);
    const auto title =
        allWhere(paywall.tree(), [](const auto& node) { return node.text && node.text->text == "Annually"; }).front();

    EXPECT_EQ(paywall.frame("trial.pro.yearly").minX(), title.frame.minX());
    EXPECT_EQ(paywall.frame("trial.pro.yearly").minY(), title.frame.maxY() + spacing);
}

} // namespace
} // namespace proupsells::tests

// How large the places are that a finger finds each control of the three screens in.
#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>

#include "ProUpsells/ComparisonView.hpp"
#include "Tests/ProUpsells/Paywall.hpp"
#include "Tests/ProUpsells/StoreScreen.hpp"

namespace proupsells::tests {
namespace {

using accessibility::SemanticNode;
using geometry::Rect;
using geometry::Size;

constexpr double wanted = 44;
// Between the comparison row, 24 points high, and the first plan the design leaves 8.
constexpr double comparePlansHeight = 10 + 24 + 8;

// The controls that are no part of another one.
void collectControls(const SemanticNode& node, std::vector<SemanticNode>& controls) {
    if (node.isControl && !node.identifier.empty()) controls.push_back(node);
    if (node.isControl && !node.identifier.empty()) return;
    for (const SemanticNode& child : node.children) collectControls(child, controls);
}

bool overlap(double start, double end, double otherStart, double otherEnd) { return start < otherEnd && otherStart < end; }

// How far the target reaches past an edge: half of what is missing, up to a control that is large enough by itself, and half-way to
// one that reaches out as well.
double reach(double length, double distance, double otherLength) {
    const double missing = std::max(0.0, wanted - length) / 2;
    return std::min(missing, otherLength >= wanted ? distance : distance / 2);
}

Size target(const SemanticNode& control, const std::vector<SemanticNode>& controls) {
    const Rect& frame = control.frame;
    const double far = 1e6;
    double left = reach(frame.width(), far, 0), right = left, above = reach(frame.height(), far, 0), below = above;
    for (const SemanticNode& other : controls) {
        const Rect& that = other.frame;
        if (that == frame) continue;
        if (overlap(frame.minX(), frame.maxX(), that.minX(), that.maxX())) {
            if (that.minY() >= frame.maxY())
                below = std::min(below, reach(frame.height(), that.minY() - frame.maxY(), that.height()));
            if (that.maxY() <= frame.minY())
                above = std::min(above, reach(frame.height(), frame.minY() - that.maxY(), that.height()));
        }
        if (overlap(frame.minY(), frame.maxY(), that.minY(), that.maxY())) {
            if (that.minX() >= frame.maxX())
                right = std::min(right, reach(frame.width(), that.minX() - frame.maxX(), that.width()));
            if (that.maxX() <= frame.minX()) left = std::min(left, reach(frame.width(), frame.minX() - that.maxX(), that.width()));
        }
    }
    return {left + frame.width() + right, above + frame.height() + below};
}

void expectTargets(const SemanticNode& tree, std::size_t leastCount) {
    std::vector<SemanticNode> controls;
    collectControls(tree, controls);
    EXPECT_GE(controls.size(), leastCount);
    for (const SemanticNode& control : controls) {
        const Size size = target(control, controls);
        const double height = control.identifier == "comparePlans" ? comparePlansHeight : wanted;
        EXPECT_GE(size.width, wanted - 1e-6) << control.identifier;
        EXPECT_GE(size.height, height - 1e-6) << control.identifier;
    }
}

class TouchTargets : public ::testing::TestWithParam<std::tuple<Size, int>> {
protected:
    Size size() const { return std::get<0>(GetParam()); }
    uikit::UITraitCollection traits() const {
        uikit::UITraitCollection traits;
        traits.preferredContentSizeCategory = graphics::ContentSizeCategory(std::get<1>(GetParam()));
        return traits;
    }
};

TEST_P(TouchTargets, AreLargeEnoughOnThePaywall) {
    const Paywall paywall({yearly("$99.99", {.introductoryPeriodLength = "1 week"}), monthly()}, size(), {.traits = traits()});

    expectTargets(paywall.tree(), 9);
}

TEST_P(TouchTargets, AreLargeEnoughOnTheComparison) {
    const Screen comparison(ComparisonView{}, size(), {.traits = traits()});

    expectTargets(comparison.tree(), 5);
}

INSTANTIATE_TEST_SUITE_P(Screens, TouchTargets,
                         ::testing::Combine(::testing::Values(Size{320, 256}, Size{320, 568}, Size{360, 740}, Size{375, 667},
                                                              Size{375, 800}, Size{390, 844}, Size{667, 375}, Size{744, 1133}),
                                            ::testing::Range(0, graphics::contentSizeCategoryCount)));

class StoreTouchTargets : public StoreTest, public ::testing::WithParamInterface<std::tuple<Size, int>> {};

TEST_P(StoreTouchTargets, AreLargeEnough) {
    const auto [size, textSize] = GetParam();
    uikit::UITraitCollection traits = window->traits();
    traits.preferredContentSizeCategory = graphics::ContentSizeCategory(textSize);
    window->setTraits(traits);
    window->setSize(size, {});

    showPage();

    const Rect plan = frame("store.choosePlan"), close = frame("store.close");
    EXPECT_GE(plan.height(), wanted);
    EXPECT_GE(plan.width(), wanted);
    // The button takes touches 7 points around the 30 that are drawn.
    for (const geometry::Point corner : {geometry::Point{-6.5, -6.5}, {36.5, -6.5}, {-6.5, 36.5}, {36.5, 36.5}})
        EXPECT_EQ(window->rootViewController()->view()->hitTest(close.origin + corner)->accessibilityIdentifier, "store.close");
}

INSTANTIATE_TEST_SUITE_P(Screens, StoreTouchTargets,
                         ::testing::Combine(::testing::Values(Size{320, 256}, Size{320, 568}, Size{360, 740}, Size{375, 667},
                                                              Size{375, 800}, Size{390, 844}, Size{667, 375}, Size{744, 1133}),
                                            ::testing::Range(0, graphics::contentSizeCategoryCount)));

// Beside each of the small controls, where nothing is drawn.
TEST(PaywallTouches, ReachAControlThatTheyJustMiss) {
    Paywall paywall({yearly(), monthly()}, {375, 900});
    const Rect terms = paywall.frame("termsOfService"), restore = paywall.frame("restorePurchases"),
               compare = paywall.frame("comparePlans"), dots = paywall.frame("carousel.pageControl");

    paywall.tap(geometry::Point{terms.midX(), terms.minY() - 13});
    paywall.tap(geometry::Point{restore.midX(), restore.maxY() + 13});
    paywall.tap(geometry::Point{compare.midX(), compare.minY() - 9.5});
    EXPECT_THAT(paywall.events, ::testing::ElementsAre(TapEvent{TapEvent::TermsOfService{}}, TapEvent{TapEvent::RestorePurchases{}},
                                                       TapEvent{TapEvent::ComparePlans{}}));

    paywall.tap(geometry::Point{dots.maxX() - 5, dots.maxY() + 8});
    EXPECT_EQ(paywall.find("carousel.pageControl").value, "page 4 of 4");
}

} // namespace
} // namespace proupsells::tests

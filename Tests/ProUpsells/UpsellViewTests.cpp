#include "ProUpsells/UpsellView.hpp"

#include <gmock/gmock.h>

#include "Tests/ProUpsells/Paywall.hpp"

namespace proupsells::tests {
namespace {

using geometry::Point;
using geometry::Size;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

// Scrolls by as little as makes the control reachable, then taps it.
void revealAndTap(Paywall& paywall, std::string_view identifier) {
    if (const auto reveal = paywall.find(identifier).reveal) reveal();
    paywall.settle();
    paywall.tap(identifier);
}

accessibility::SemanticNode termsGradient(const Paywall& paywall) {
    return allWhere(paywall.tree(), [](const auto& node) { return node.image == "TermsGradient"; }).front();
}

TEST(UpsellView, SendsEachControlsEvent) {
    Paywall paywall(twoPlans());

    for (const char* identifier : {"close", "comparePlans", "subscribe", "termsOfService", "privacyPolicy", "restorePurchases"})
        revealAndTap(paywall, identifier);

    EXPECT_THAT(paywall.events, ElementsAre(TapEvent{TapEvent::Cancel{}}, TapEvent{TapEvent::ComparePlans{}},
                                            TapEvent{TapEvent::Purchase{yearly()}}, TapEvent{TapEvent::TermsOfService{}},
                                            TapEvent{TapEvent::PrivacyPolicy{}}, TapEvent{TapEvent::RestorePurchases{}}));
}

TEST(UpsellView, SelectsTheFirstPlanUntilAnotherIsTapped) {
    Paywall paywall(twoPlans());
    EXPECT_THAT(paywall.selectedIdentifiers(), ElementsAre("plan.pro.yearly"));

    paywall.tap("plan.pro.monthly");
    revealAndTap(paywall, "subscribe");

    EXPECT_THAT(paywall.selectedIdentifiers(), ElementsAre("plan.pro.monthly"));
    EXPECT_THAT(paywall.events, ElementsAre(TapEvent{TapEvent::Purchase{monthly()}}));
}

TEST(UpsellView, SetsButtonAndDisclaimerByTheSelectedPlan) {
    Paywall paywall({yearly("$99", {.introductoryPeriodLength = "1 week", .hasUsedFreeTrial = true}),
                     monthly("$9", {.introductoryPeriodLength = "1 week"})});
    EXPECT_EQ(paywall.find("subscribe").label, "Subscribe Now");
    EXPECT_EQ(paywall.find("disclaimer").text->text, "Save 45%. Payment will be made immediately.");

    paywall.tap("plan.pro.monthly");

    EXPECT_EQ(paywall.find("subscribe").label, "Start Your Free Trial");
    EXPECT_EQ(paywall.find("disclaimer").text->text, "1 week trial.\nPayment will be made automatically after the trial ends.");
    EXPECT_EQ(paywall.find("disclaimer").text->lineCount, 2);
}

TEST(UpsellView, FollowsTheModel) {
    Paywall paywall(twoPlans());

    paywall.model->options = std::vector{yearly("$49.99"), monthly()};
    paywall.settle();
    EXPECT_THAT(texts(paywall.find("plan.pro.yearly")), Contains(" $49.99 per year ($8.33/month)."));

    paywall.model->annualSubscriptionPriceForComparisonWithPromotionalPrice = "$99.99";
    paywall.settle();
    EXPECT_THAT(texts(paywall.find("plan.pro.yearly")), Contains("$99.99 $49.99 per year ($8.33/month)."));
}

TEST(UpsellView, LeavesTheListInPeaceWhileItRuns) {
    Paywall paywall(twoPlans());

    for (int change = 0; change < 5; ++change) {
        paywall.model->options = change % 2 ? twoPlans() : std::vector{yearly("60"), monthly("10"), monthly("11", {}, "pro.other")};
        paywall.runUntil(change + 1.0);
    }

    EXPECT_THAT(paywall.selectedIdentifiers(), ElementsAre("plan.pro.yearly"));
}

TEST(UpsellView, ShowsNoPlanAndADisabledButtonForAnEmptyList) {
    Paywall paywall({});

    EXPECT_THAT(allOfType(paywall.tree(), "RadioPickerButton"), IsEmpty());
    EXPECT_FALSE(paywall.has("disclaimer"));
    EXPECT_TRUE(contains(paywall.find("subscribe").traits, accessibility::Traits::disabled));
    revealAndTap(paywall, "subscribe");
    EXPECT_THAT(paywall.events, IsEmpty());
    revealAndTap(paywall, "close");
    EXPECT_THAT(paywall.events, ElementsAre(TapEvent{TapEvent::Cancel{}}));
}

TEST(UpsellView, ComesToLifeWhenPlansArrive) {
    Paywall paywall({});
    paywall.model->options = twoPlans();
    paywall.settle();

    revealAndTap(paywall, "subscribe");

    EXPECT_THAT(paywall.events, ElementsAre(TapEvent{TapEvent::Purchase{yearly()}}));
}

TEST(UpsellView, MarksBothPlansOfOneSKUAndSelectsTheFirst) {
    Paywall paywall({yearly("$1", {}, "same"), monthly("$2", {}, "other"), monthly("$3", {}, "same")}, {375, 1000});
    EXPECT_THAT(paywall.selectedIdentifiers(), ElementsAre("plan.same", "plan.same"));

    paywall.tap("plan.other");
    EXPECT_THAT(paywall.selectedIdentifiers(), ElementsAre("plan.other"));
    paywall.tap(allOfType(paywall.tree(), "RadioPickerButton")[2].frame.center());
    revealAndTap(paywall, "subscribe");

    EXPECT_THAT(paywall.events, ElementsAre(TapEvent{TapEvent::Purchase{yearly("$1", {}, "same")}}));
}

TEST(UpsellView, SendsThePlanOfTheMomentOfTheTap) {
    Paywall paywall(twoPlans());
    paywall.model->options = std::vector{yearly("$1"), monthly()};
    // Not rebuilt yet: the tap reads the model, not the picture.
    paywall.find("subscribe").activate();

    EXPECT_THAT(paywall.events, ElementsAre(TapEvent{TapEvent::Purchase{yearly("$1")}}));
}

TEST(UpsellView, SellsNothingWhenThePlansGoWhileAFingerIsDown) {
    for (const bool isRedrawn : {false, true}) {
        Paywall paywall(twoPlans());
        const Point subscribe = paywall.frame("subscribe").center();
        paywall.touch(host::TouchPhase::began, subscribe);

        paywall.model->options = std::vector<SubscriptionOption>{};
        if (isRedrawn) paywall.settle();
        paywall.touch(host::TouchPhase::ended, subscribe);
        paywall.settle();

        EXPECT_THAT(paywall.events, IsEmpty());
        EXPECT_TRUE(contains(paywall.find("subscribe").traits, accessibility::Traits::disabled));
    }
}

TEST(UpsellView, SellsThePlanThatIsThereWhenTheFingerLifts) {
    for (const auto& plans : {std::vector{yearly("$1"), monthly()}, std::vector{yearly("$1")}})
        for (const bool isRedrawn : {false, true}) {
            Paywall paywall(twoPlans());
            const Point subscribe = paywall.frame("subscribe").center();
            paywall.touch(host::TouchPhase::began, subscribe);

            paywall.model->options = plans;
            if (isRedrawn) paywall.settle();
            paywall.touch(host::TouchPhase::ended, subscribe);

            EXPECT_THAT(paywall.events, ElementsAre(TapEvent{TapEvent::Purchase{yearly("$1")}}));
        }
}

TEST(UpsellView, SellsNothingToAssistiveTechnologyOnceThePlansAreGone) {
    for (const bool isRedrawn : {false, true}) {
        Paywall paywall(twoPlans());
        const auto activate = paywall.find("subscribe").activate;

        paywall.model->options = std::vector<SubscriptionOption>{};
        if (isRedrawn) paywall.settle();
        activate();

        EXPECT_THAT(paywall.events, IsEmpty());
    }
}

TEST(UpsellView, PicksNothingOnceThePlansAreGone) {
    Paywall paywall(twoPlans());
    const Point card = paywall.frame("plan.pro.monthly").center();
    const auto activate = paywall.find("plan.pro.monthly").activate;
    paywall.touch(host::TouchPhase::began, card);

    paywall.model->options = std::vector<SubscriptionOption>{};
    paywall.touch(host::TouchPhase::ended, card);
    activate();
    paywall.settle();
    activate();
    paywall.model->options = std::vector{yearly()};
    paywall.settle();

    EXPECT_THAT(paywall.selectedIdentifiers(), ElementsAre("plan.pro.yearly"));
}

TEST(UpsellView, FadesTheGradientOutInTheDark) {
    Paywall paywall(twoPlans());
    EXPECT_EQ(termsGradient(paywall).opacity, 1);

    uikit::UITraitCollection dark;
    dark.userInterfaceStyle = graphics::ColorScheme::dark;
    paywall.window().setTraits(dark);
    paywall.settle();

    EXPECT_EQ(termsGradient(paywall).opacity, 0);
}

TEST(UpsellView, LetsTouchesThroughTheGradient) {
    for (const auto scheme : {graphics::ColorScheme::light, graphics::ColorScheme::dark}) {
        ScreenOptions options;
        options.traits.userInterfaceStyle = scheme;
        // So high that the links stand under the gradient, at the very bottom.
        Paywall probe(twoPlans(), {375, 700}, options);
        const double top = probe.frame("restorePurchases").minY();
        Paywall paywall(twoPlans(), {375, top + 30}, options);
        const auto link = paywall.frame("restorePurchases");
        ASSERT_TRUE(termsGradient(paywall).frame.contains(link.center()));

        paywall.tap(link.center());

        EXPECT_THAT(paywall.events, ElementsAre(TapEvent{TapEvent::RestorePurchases{}}));
    }
}

TEST(UpsellView, CarriesFourPages) {
    Paywall paywall(twoPlans());
    std::vector<std::string> titles;
    for (int page = 0; page < 4; ++page) {
        paywall.runUntil(5.0 * page + 3);
        for (const auto& text : allOfType(firstOfType(paywall.tree(), "HeaderCarousel"), "Text")) titles.push_back(text.text->text);
    }

    EXPECT_THAT(titles,
                ElementsAre("Endless premium templates, updated daily.", "Thousands of photos, videos, graphics and fonts.",
                            "Remove photo backgrounds with one tap.", "Grow your business with Custom Domains and Link in Bio."));
}

TEST(UpsellView, DoesNotRestartTheCarouselWhenItIsRebuilt) {
    Paywall paywall(twoPlans());
    paywall.runUntil(4);
    paywall.model->options = std::vector{yearly("$1"), monthly()};
    paywall.tap("plan.pro.monthly");

    paywall.runUntil(7.5);

    EXPECT_THAT(texts(firstOfType(paywall.tree(), "HeaderCarousel")),
                ElementsAre("Thousands of photos, videos, graphics and fonts."));
}

TEST(UpsellView, NamesEveryControl) {
    Paywall paywall(twoPlans());
    visit(paywall.tree(), [](const accessibility::SemanticNode& node) {
        if (node.isControl) {
            EXPECT_FALSE(node.identifier.empty()) << node.type;
            EXPECT_FALSE(node.label.empty() && node.value.empty()) << node.identifier;
        }
    });
}

TEST(UpsellView, StaysUsableWithTenThousandPlans) {
    std::vector<SubscriptionOption> options;
    for (int index = 0; index < 10'000; ++index) options.push_back(yearly("$1", {}, "plan " + std::to_string(index)));
    Paywall paywall(std::move(options));

    const auto tree = paywall.tree();
    paywall.tap(find(tree, "plan.plan 1").frame.center());
    find(tree, "subscribe").activate();

    EXPECT_EQ(allOfType(tree, "RadioPickerButton").size(), 10'000u);
    EXPECT_THAT(paywall.events, ElementsAre(TapEvent{TapEvent::Purchase{yearly("$1", {}, "plan 1")}}));
}

TEST(UpsellViewDeathTest, StopsTheProgramWhenTheListIsShorterThanTheSelection) {
    EXPECT_DEATH(
        {
            Paywall paywall(twoPlans());
            paywall.tap("plan.pro.monthly");
            paywall.model->options = std::vector{yearly()};
            paywall.settle();
        },
        "Index out of range");
}

TEST(UpsellViewDeathTest, StopsTheProgramWhenTheSelectedPlanGoesWhileAFingerIsDown) {
    EXPECT_DEATH(
        {
            Paywall paywall(twoPlans());
            paywall.tap("plan.pro.monthly");
            const Point subscribe = paywall.frame("subscribe").center();
            paywall.touch(host::TouchPhase::began, subscribe);
            paywall.model->options = std::vector{yearly()};
            paywall.touch(host::TouchPhase::ended, subscribe);
        },
        "Index out of range: the selected option is number 1 of 1");
}

TEST(UpsellViewDeathTest, StopsTheProgramWithoutItsEnvironment) {
    EXPECT_DEATH((Screen(std::function<swiftui::View()>(
                             []() -> swiftui::View { return UpsellView{.model = std::make_shared<UpsellViewModel>()}; }),
                         Size{375, 800})),
                 "UpsellEnvironment");
}

} // namespace
} // namespace proupsells::tests

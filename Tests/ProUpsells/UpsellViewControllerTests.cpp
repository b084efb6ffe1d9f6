#include "ProUpsells/UpsellViewController.hpp"

#include <algorithm>

#include <gmock/gmock.h>

#include "Tests/ProUpsells/Offers.hpp"
#include "Tests/ProUpsells/Screen.hpp"
#include "Tests/ProUpsells/ScreenDescription.hpp"

namespace proupsells::tests {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using TapEvent = UpsellViewModel::TapEvent;
using Variant = UpsellViewController::Variant;

class RecordingDelegate final : public UpsellViewControllerDelegate {
public:
    std::vector<std::string> calls;
    std::function<void()> duringCall = [] {};

    void upsellViewControllerDidContinueWith(UpsellViewController&, const SubscriptionOption& option) override {
        // The caller's option must be good until the end, whatever happens meanwhile.
        duringCall();
        calls.push_back("continue with " + option.SKU());
    }
    void upsellViewControllerDidTapCancel(UpsellViewController&) override { note("cancel"); }
    void upsellViewControllerDidTapRestoreButton(UpsellViewController&) override { note("restore"); }
    void upsellViewControllerDidTapWhatIsProButton(UpsellViewController&) override { note("what is pro"); }
    void upsellViewControllerDidTapPrivacyPolicyButton(UpsellViewController&) override { note("privacy policy"); }
    void upsellViewControllerDidTapTermsOfServiceButton(UpsellViewController&) override { note("terms of service"); }
    void upsellViewControllerDidTapComparePlans(UpsellViewController&) override { note("compare plans"); }

private:
    void note(const std::string& call) {
        calls.push_back(call);
        duringCall();
    }
};

std::vector<TapEvent> allEvents() {
    return {{TapEvent::Purchase{yearly()}}, {TapEvent::Cancel{}},         {TapEvent::RestorePurchases{}}, {TapEvent::WhatIsPro{}},
            {TapEvent::PrivacyPolicy{}},    {TapEvent::TermsOfService{}}, {TapEvent::ComparePlans{}}};
}

class UpsellController : public ::testing::Test {
protected:
    std::shared_ptr<UpsellViewController> make(const std::vector<SubscriptionOption>& options) {
        return UpsellViewController::create(options, Variant::comparisonPaywall);
    }
    // Presents it from a plain controller in a window.
    void present(const std::shared_ptr<UpsellViewController>& controller) {
        window->setRootViewController(std::make_shared<uikit::UIViewController>());
        window->rootViewController()->present(controller, false);
        bed.settle();
    }

    headless::TestBed bed;
    std::shared_ptr<uikit::UIWindow> window = uikit::UIWindow::create({375, 800});
    std::shared_ptr<RecordingDelegate> delegate = std::make_shared<RecordingDelegate>();
};

TEST_F(UpsellController, PreparesItsOptions) {
    const auto controller = make({monthly("", {}, "A"), lifetime("", "L"), yearly("", {}, "Y")});
    EXPECT_THAT(identifiers(controller->upsellViewModel()->options.get()), ElementsAre("Y", "A"));

    controller->updateOptions({yearly("", {}, "Y1"), monthly("", {}, "A"), yearly("", {}, "Y2")});
    EXPECT_THAT(identifiers(controller->upsellViewModel()->options.get()), ElementsAre("Y1", "Y2", "A"));
}

TEST_F(UpsellController, ReportsOptionsWithoutYearlyAndMonthlyPlansAndCarriesOn) {
    const auto controller = make({lifetime()});

    EXPECT_THAT(controller->upsellViewModel()->options.get(), IsEmpty());
    const auto records = bed.takeLogRecords();
    ASSERT_EQ(records.size(), 1u);
    EXPECT_EQ(records[0].severity, 4);
    EXPECT_EQ(records[0].message, "UpsellViewController - tried to init without monthly & yearly subscription option");
    EXPECT_EQ(records[0].function, "init(subscriptionOptions:variant:)");
    EXPECT_GT(records[0].line, 0u);
    EXPECT_THAT(records[0].file, ::testing::HasSubstr("UpsellViewController.cpp"));
    present(controller);
    EXPECT_TRUE(has(window->semanticTree(), "subscribe"));
}

TEST_F(UpsellController, IsContentWithOneKindOfPlan) {
    make({yearly()});
    make({monthly(), lifetime()});

    EXPECT_THAT(bed.takeLogRecords(), IsEmpty());
    make({});
    EXPECT_EQ(bed.takeLogRecords().size(), 1u);
}

TEST_F(UpsellController, ForwardsEachEventOnce) {
    const auto controller = make({yearly()});
    controller->setDelegate(delegate);

    for (const TapEvent& event : allEvents()) controller->upsellViewModel()->tapEventOccurred.send(event);

    EXPECT_THAT(delegate->calls, ElementsAre("continue with pro.yearly", "cancel", "restore", "what is pro", "privacy policy",
                                             "terms of service", "compare plans"));
}

TEST_F(UpsellController, DoesNothingWithoutADelegate) {
    const auto controller = make(twoPlans());
    present(controller);
    const std::string before = described(window->semanticTree());
    const auto sendAllButCancel = [&] {
        for (const TapEvent& event : allEvents())
            if (!std::holds_alternative<TapEvent::Cancel>(event.kind)) controller->upsellViewModel()->tapEventOccurred.send(event);
        bed.runFor(1);
    };

    sendAllButCancel();
    EXPECT_EQ(described(window->semanticTree()), before);
    EXPECT_EQ(window->frontMostViewController(), controller.get());

    controller->setDelegate(delegate);
    const std::weak_ptr<RecordingDelegate> released = delegate;
    delegate.reset();
    EXPECT_TRUE(released.expired()); // it is nobody's but the host's
    sendAllButCancel();
    EXPECT_EQ(described(window->semanticTree()), before);
    EXPECT_EQ(window->frontMostViewController(), controller.get());
}

TEST_F(UpsellController, DismissesItselfOnCancelEvenWithoutADelegate) {
    const auto controller = make({yearly()});
    present(controller);

    controller->upsellViewModel()->tapEventOccurred.send({TapEvent::Cancel{}});
    bed.runFor(2);

    EXPECT_EQ(window->rootViewController()->presentedViewController(), nullptr);
}

TEST_F(UpsellController, TellsItsDelegateBeforeItDismissesItself) {
    const auto controller = make({yearly()});
    controller->setDelegate(delegate);
    present(controller);
    bool wasBeingDismissed = true;
    delegate->duringCall = [&] { wasBeingDismissed = controller->isBeingDismissed(); };

    controller->upsellViewModel()->tapEventOccurred.send({TapEvent::Cancel{}});

    EXPECT_FALSE(wasBeingDismissed);
    EXPECT_TRUE(controller->isBeingDismissed());
    bed.runFor(2);
}

TEST_F(UpsellController, IsForgottenByTheStreamWhenItIsReleased) {
    auto controller = make({yearly()});
    controller->setDelegate(delegate);
    const auto model = controller->upsellViewModel();
    const std::weak_ptr<UpsellViewController> watched = controller;
    controller.reset();

    for (const TapEvent& event : allEvents()) model->tapEventOccurred.send(event);

    EXPECT_TRUE(watched.expired());
    EXPECT_THAT(delegate->calls, IsEmpty());
}

TEST_F(UpsellController, SurvivesBeingReleasedFromInsideItsOwnCalls) {
    for (const TapEvent& event : allEvents()) {
        auto controller = make({yearly()});
        controller->setDelegate(delegate);
        const auto model = controller->upsellViewModel();
        delegate->duringCall = [&] { controller.reset(); };
        model->tapEventOccurred.send(event);
        EXPECT_EQ(controller, nullptr);
        delegate->duringCall = [] {};
    }
    EXPECT_EQ(delegate->calls.size(), 7u);
}

TEST_F(UpsellController, SurvivesNewOptionsFromInsideACall) {
    const auto controller = make({yearly()});
    controller->setDelegate(delegate);
    present(controller);
    delegate->duringCall = [&] { controller->updateOptions({monthly()}); };

    find(window->semanticTree(), "subscribe").activate();
    bed.settle();

    EXPECT_THAT(delegate->calls, ElementsAre("continue with pro.yearly"));
    EXPECT_TRUE(has(window->semanticTree(), "plan.pro.monthly"));
    EXPECT_FALSE(has(window->semanticTree(), "plan.pro.yearly"));
}

TEST_F(UpsellController, ReadsAndWritesTheComparisonPricesInItsModel) {
    const auto controller = make({yearly()});

    controller->setAnnualSubscriptionPriceForComparisonWithPromotionalPrice("$119");
    controller->setMonthlySubscriptionPriceForComparisonWithPromotionalPrice("$19");

    EXPECT_EQ(controller->upsellViewModel()->annualSubscriptionPriceForComparisonWithPromotionalPrice.get(), "$119");
    EXPECT_EQ(controller->upsellViewModel()->monthlySubscriptionPriceForComparisonWithPromotionalPrice.get(), "$19");
    EXPECT_EQ(controller->annualSubscriptionPriceForComparisonWithPromotionalPrice(), "$119");
    EXPECT_EQ(controller->monthlySubscriptionPriceForComparisonWithPromotionalPrice(), "$19");
}

TEST_F(UpsellController, ShowsThePaywallOnItsBackground) {
    const auto controller = make(twoPlans());
    present(controller);

    ASSERT_EQ(controller->children().size(), 1u);
    const auto& hosted = controller->children().front()->view();
    EXPECT_EQ(hosted->contentCompressionResistancePriority(uikit::Axis::vertical), 750);
    for (const uikit::UIView* view : {controller->view().get(), hosted.get()}) {
        ASSERT_TRUE(view->backgroundColor().has_value());
        EXPECT_EQ(view->backgroundColor()->name, "velaBackground");
    }
    window->setSize({320, 568}, {});
    bed.settle();
    EXPECT_EQ(controller->view()->frame(), (geometry::Rect{{0, 0}, {320, 568}}));
    EXPECT_EQ(hosted->frame(), (geometry::Rect{{0, 0}, {320, 568}}));
    EXPECT_TRUE(has(window->semanticTree(), "plan.pro.yearly"));
}

TEST_F(UpsellController, PaintsItsWholePageInTheBackgroundOfEachAppearance) {
    present(make(twoPlans()));

    for (const auto& [scheme, page] : {std::pair{graphics::ColorScheme::light, graphics::rgb(0xFFFFFF)},
                                       {graphics::ColorScheme::dark, graphics::rgb(0x0F1315)}}) {
        uikit::UITraitCollection traits;
        traits.userInterfaceStyle = scheme;
        window->setTraits(traits);
        bed.settle();
        graphics::DisplayList list;
        window->paint(list);
        const auto ground = std::find_if(list.commands.rbegin(), list.commands.rend(), [](const graphics::Command& command) {
            return command.kind == graphics::CommandKind::fillRectangle && command.bounds == geometry::Rect{{0, 0}, {375, 800}} &&
                   command.opacity == 1;
        });
        ASSERT_NE(ground, list.commands.rend());
        EXPECT_EQ(ground->color, page);
    }
}

TEST_F(UpsellController, CoversItselfOnlyWhileAnImageIsOnItsWay) {
    const auto plain = make({yearly()});
    present(plain);
    EXPECT_THAT(allOfType(window->semanticTree(), "EmptyStateView"), IsEmpty());

    const auto waiting = make({yearly()});
    waiting->imageDownloadTask.emplace();
    present(waiting);
    const auto covers = allOfType(window->semanticTree(), "EmptyStateView");
    ASSERT_EQ(covers.size(), 1u);
    EXPECT_EQ(covers[0].frame, (geometry::Rect{{0, 0}, {375, 800}}));
}

TEST(UpsellControllerDeathTest, CannotBeMadeFromAnArchive) {
    EXPECT_DEATH((void)UpsellViewController::create(foundation::Coder{}), "init\\(coder:\\) has not been implemented");
}

} // namespace
} // namespace proupsells::tests

// When the header carousel ticks: while its screen is shown, covered or not.
#include <cmath>

#include <gmock/gmock.h>

#include "Platform/UIKit/Controllers/UIWindow.hpp"
#include "ProUpsells/UpsellViewController.hpp"
#include "ProUpsells/VelaProUpsellViewController.hpp"
#include "Tests/ProUpsells/Offers.hpp"
#include "Tests/ProUpsells/Screen.hpp"
#include "Tests/Support/FailOnUnexpectedLog.hpp"

namespace proupsells::tests {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// A host that keeps its entry controller, and whatever is presented over it.
class CarouselLifetime : public ::testing::Test {
protected:
    CarouselLifetime() { window->setRootViewController(std::make_shared<uikit::UIViewController>()); }
    ~CarouselLifetime() override { window->setRootViewController(nullptr); }

    void present() { window->rootViewController()->present(entry, false); }
    void dismiss() { window->rootViewController()->dismiss(false); }
    int page() {
        const std::string value = find(window->semanticTree(), "carousel.pageControl").value;
        return std::stoi(value.substr(value.find_first_of("0123456789"))) - 1;
    }
    // The times, in tenths of a second, at which the page changes until then.
    std::vector<double> changesUntil(double end_s) {
        std::vector<double> changes_s;
        int before = page();
        for (int tenth = int(std::lround(bed.now_s() * 10)) + 1; tenth <= std::lround(end_s * 10); ++tenth) {
            bed.runUntil(tenth / 10.0);
            if (page() != before) changes_s.push_back(tenth / 10.0);
            before = page();
        }
        return changes_s;
    }

    headless::TestBed bed;
    std::shared_ptr<uikit::UIWindow> window = uikit::UIWindow::create({375, 800});
    std::shared_ptr<VelaProUpsellViewController> entry =
        VelaProUpsellViewController::create({yearly(), monthly()}, VelaProUpsellViewController::Variant::comparisonPaywall,
                                            Referrer{"Home"}, Entitlement::velaPRO, true);
};

TEST_F(CarouselLifetime, TicksOnANewGridWhenItIsPresentedAgain) {
    bed.runUntil(3);
    present();
    EXPECT_THAT(changesUntil(17), ElementsAre(8, 13));

    dismiss();
    bed.runUntil(39);
    present();
    EXPECT_EQ(page(), 2);

    EXPECT_THAT(changesUntil(50), ElementsAre(44, 49));
}

TEST_F(CarouselLifetime, LeavesNothingThatTicksWhenItIsDismissed) {
    present();
    bed.runUntil(7);
    dismiss();

    bed.runUntil(13); // the pause after the change at 5 s ends unseen

    EXPECT_FALSE(bed.loop().nextDueTime_s().has_value());
}

TEST_F(CarouselLifetime, LeavesNothingThatTicksWhenScreensOverItAreDismissedWithIt) {
    using TapEvent = UpsellViewModel::TapEvent;
    for (const TapEvent& event : {TapEvent{TapEvent::ComparePlans{}}, TapEvent{TapEvent::WhatIsPro{}}}) {
        present();
        auto& paywall = dynamic_cast<UpsellViewController&>(*entry->children().front());
        paywall.upsellViewModel()->tapEventOccurred.send(event);
        bed.runFor(7);
        ASSERT_TRUE(entry->presentedViewController());
        dismiss();

        bed.runFor(6);

        EXPECT_FALSE(bed.loop().nextDueTime_s().has_value());
    }
}

TEST_F(CarouselLifetime, KeepsAPauseThatEndsBeforeTheFirstTickOfTheNextPresentation) {
    present();
    bed.runUntil(5);
    dismiss();
    bed.runUntil(6);
    present();

    EXPECT_THAT(changesUntil(12), ElementsAre(11));
}

TEST_F(CarouselLifetime, GoesOnWhileItIsCovered) {
    present();
    for (const auto style : {uikit::UIModalPresentationStyle::pageSheet, uikit::UIModalPresentationStyle::fullScreen}) {
        const auto cover = std::make_shared<uikit::UIViewController>();
        cover->setModalPresentationStyle(style);
        const double start_s = bed.now_s();
        const int before = page();
        entry->present(cover, false);
        bed.runUntil(start_s + 10);
        entry->dismiss(false);

        EXPECT_EQ(page(), (before + 2) % 4);
    }
}

TEST_F(CarouselLifetime, DoesNotTickBeforeItIsShown) {
    entry->view()->setFrame({{}, {375, 800}});
    entry->view()->layoutIfNeeded();
    bed.runUntil(12);

    EXPECT_FALSE(bed.loop().nextDueTime_s().has_value());
    present();
    EXPECT_THAT(changesUntil(22), ElementsAre(17, 22));
}

TEST_F(CarouselLifetime, RestsWhileItsWindowIsOutOfSight) {
    present();
    EXPECT_THAT(changesUntil(6), ElementsAre(5));

    window->setSeen(false);
    EXPECT_THAT(changesUntil(40), IsEmpty());
    EXPECT_FALSE(bed.loop().nextDueTime_s().has_value());
    window->setSeen(true);

    EXPECT_THAT(changesUntil(51), ElementsAre(45, 50));
}

TEST_F(CarouselLifetime, StaysAtRestWhenItComesIntoAWindowOutOfSight) {
    window->setSeen(false);
    present();

    EXPECT_THAT(changesUntil(20), IsEmpty());
}

} // namespace
} // namespace proupsells::tests

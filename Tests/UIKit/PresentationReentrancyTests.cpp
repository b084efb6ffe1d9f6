#include "Tests/UIKit/Screen.hpp"

namespace proupsells::uikit {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ReentrancyTest : public ScreenTest {
protected:
    ReentrancyTest() : root(showRoot()), sheet(controller("sheet")) {}

    std::shared_ptr<RecordingController> root, sheet;
};

TEST_F(ReentrancyTest, ADismissalDuringThePresentationWaitsForItsEnd) {
    root->present(sheet, true);
    bed.runUntil(0.2);

    sheet->dismiss(true);
    takeCalls();

    bed.runUntil(0.5);
    EXPECT_THAT(takeCalls(), ElementsAre("sheet.didAppear", "sheet.willDisappear"));
    bed.runUntil(1);
    EXPECT_THAT(takeCalls(), ElementsAre("sheet.didDisappear"));
    EXPECT_FALSE(window->isTransitioning());
}

TEST_F(ReentrancyTest, APresentationDuringTheDismissalWaitsForItsEnd) {
    const auto next = controller("next");
    root->present(sheet, false);
    sheet->dismiss(true);

    root->present(next, true);
    takeCalls();

    EXPECT_TRUE(window->isTransitioning());
    bed.runUntil(0.5);
    EXPECT_THAT(takeCalls(), ElementsAre("sheet.didDisappear", "next.didLoad", "next.willAppear"));
    bed.runUntil(1);
    EXPECT_THAT(takeCalls(), ElementsAre("next.didAppear"));
    EXPECT_EQ(root->presentedViewController(), next.get());
}

TEST_F(ReentrancyTest, ASecondDismissalOfTheSameControllerDoesNothing) {
    root->present(sheet, false);
    takeCalls();

    sheet->dismiss(true);
    sheet->dismiss(true);
    bed.runFor(2);

    EXPECT_THAT(takeCalls(), ElementsAre("sheet.willDisappear", "sheet.didDisappear"));
}

TEST_F(ReentrancyTest, TheCompletionMayDismissAndPresent) {
    const auto next = controller("next");

    root->present(sheet, false, [&] {
        sheet->dismiss(false);
        root->present(next, false);
    });

    EXPECT_THAT(takeCalls(), ElementsAre("sheet.didLoad", "sheet.willAppear", "sheet.didAppear", "sheet.willDisappear",
                                         "sheet.didDisappear", "next.didLoad", "next.willAppear", "next.didAppear"));
    EXPECT_EQ(window->frontMostViewController(), next.get());
}

TEST_F(ReentrancyTest, ViewDidAppearMayDismiss) {
    sheet->onDidAppear = [&] { sheet->dismiss(true); };

    root->present(sheet, true);
    bed.runFor(1);

    EXPECT_EQ(window->frontMostViewController(), root.get());
    EXPECT_EQ(calls.back(), "sheet.didDisappear");
}

TEST_F(ReentrancyTest, ViewDidLoadMayDismiss) {
    sheet->onDidLoad = [&] { sheet->dismiss(false); };

    root->present(sheet, false);

    EXPECT_EQ(window->frontMostViewController(), root.get());
    EXPECT_FALSE(window->isTransitioning());
}

TEST_F(ReentrancyTest, ViewDidLoadMayPresentWhatFollowsItsOwnPresentation) {
    const auto next = controller("next");
    sheet->onDidLoad = [&] { sheet->present(next, false); };

    root->present(sheet, false);

    EXPECT_EQ(window->frontMostViewController(), next.get());
    EXPECT_THAT(takeCalls(), ElementsAre("sheet.didLoad", "sheet.willAppear", "sheet.didAppear", "next.didLoad", "next.willAppear",
                                         "next.didAppear"));
}

TEST_F(ReentrancyTest, WhatAControllerThatLeavesWantedToPresentIsDropped) {
    const auto next = controller("next");
    root->present(sheet, false);

    sheet->dismiss(true);
    sheet->present(next, true);
    bed.runFor(2);

    EXPECT_EQ(bed.takeLogRecords().size(), 1u);
    EXPECT_EQ(window->frontMostViewController(), root.get());
    EXPECT_FALSE(next->isBeingPresented());
    EXPECT_FALSE(window->isTransitioning());
}

TEST_F(ReentrancyTest, TheControllerMayBeReleasedFromInsideItsLastCall) {
    auto released = controller("released");
    released->recordsEnd = true;
    released->onDidDisappear = [&] { released.reset(); };
    root->present(released, false);
    takeCalls();

    root->dismiss(false);

    EXPECT_THAT(takeCalls(), ElementsAre("released.willDisappear", "released.didDisappear", "released.gone"));
}

TEST_F(ReentrancyTest, ACallMayTakeEverythingAway) {
    const std::vector<std::function<void()> RecordingController::*> moments = {
        &RecordingController::onDidLoad, &RecordingController::onWillAppear, &RecordingController::onDidAppear,
        &RecordingController::onWillDisappear, &RecordingController::onDidDisappear};
    for (const auto moment : moments) {
        for (const bool animated : {false, true}) {
            SCOPED_TRACE(testing::Message() << "animated " << animated);
            const auto host = showRoot("host"), presented = controller("presented");
            (*presented).*moment = [&] { window->setRootViewController(nullptr); };

            host->present(presented, animated);
            bed.runFor(1);
            presented->dismiss(animated);
            bed.runFor(1);

            EXPECT_FALSE(window->isTransitioning());
            EXPECT_THAT(window->subviews(), IsEmpty());
            EXPECT_EQ(presented->presentingViewController(), nullptr);
            EXPECT_FALSE(presented->isAppeared());
        }
    }
}

TEST_F(ReentrancyTest, TheWindowMayGoAwayDuringATransition) {
    root->present(sheet, true);
    std::weak_ptr<UIWindow> gone = window;
    window = UIWindow::create({375, 800});

    bed.runFor(1);

    EXPECT_TRUE(gone.expired());
    EXPECT_THAT(takeCalls(), testing::Not(testing::Contains("sheet.didAppear")));
}

TEST_F(ReentrancyTest, ReplacingTheRootTakesAwayWhatItPresents) {
    root->present(sheet, true);
    const auto next = controller("next");

    window->setRootViewController(next);
    bed.runFor(1);

    EXPECT_EQ(window->frontMostViewController(), next.get());
    EXPECT_EQ(root->presentedViewController(), nullptr);
    EXPECT_FALSE(window->isTransitioning());
}

} // namespace
} // namespace proupsells::uikit

#include "ProUpsells/ComparisonViewController.hpp"

#include <gmock/gmock.h>

#include "Platform/UIKit/Controllers/UINavigationController.hpp"
#include "Tests/ProUpsells/Screen.hpp"

namespace proupsells::tests {
namespace {

using ::testing::ElementsAre;

class RecordingComparisonDelegate final : public ComparisonViewControllerDelegate {
public:
    std::vector<std::string> calls;
    std::function<void(ComparisonViewController&)> duringCall = [](auto&) {};

    void comparisonViewControllerDidTapChooseYourPlan(ComparisonViewController& sender) override {
        calls.push_back("choose");
        duringCall(sender);
    }
    void comparisonViewControllerDidTapClose(ComparisonViewController& sender) override {
        calls.push_back("close");
        duringCall(sender);
    }
};

class ComparisonController : public ::testing::Test {
protected:
    ComparisonController() {
        window->setRootViewController(std::make_shared<uikit::UIViewController>());
        present();
    }
    void present() {
        controller = std::make_shared<ComparisonViewController>();
        window->rootViewController()->present(uikit::UINavigationController::create(controller), false);
        bed.settle();
    }
    void press(const char* button) {
        find(window->semanticTree(), button).activate();
        bed.settle();
    }

    headless::TestBed bed;
    std::shared_ptr<uikit::UIWindow> window = uikit::UIWindow::create({375, 800});
    std::shared_ptr<ComparisonViewController> controller;
    std::shared_ptr<RecordingComparisonDelegate> delegate = std::make_shared<RecordingComparisonDelegate>();
};

TEST_F(ComparisonController, TellsItsDelegateOfBothButtons) {
    controller->setDelegate(delegate);
    press("comparison.close");
    press("comparison.choosePlan");

    EXPECT_THAT(delegate->calls, ElementsAre("close", "choose"));
    EXPECT_EQ(controller->presentingViewController(), window->rootViewController());
}

TEST_F(ComparisonController, DoesNothingWithoutADelegate) {
    press("comparison.close");
    press("comparison.choosePlan");
    controller->setDelegate(delegate);
    delegate.reset();
    press("comparison.close");
    press("comparison.choosePlan");

    EXPECT_EQ(controller->presentingViewController(), window->rootViewController());
}

TEST_F(ComparisonController, HasABarOf56WithItsCloseButtonAtTheTrailingEnd) {
    const auto close = find(window->semanticTree(), "comparison.close");

    EXPECT_EQ(close.label, "Close");
    EXPECT_LE(close.frame.maxY(), 56);
    EXPECT_GT(close.frame.minX(), 375 / 2);
    EXPECT_EQ(firstOfType(window->semanticTree(), "ComparisonView").frame.minY(), 56);
    EXPECT_EQ(controller->children().front()->view()->backgroundColor()->name, "velaBackground");
}

TEST_F(ComparisonController, SurvivesADelegateThatDismissesOrReleasesFromInsideACall) {
    controller->setDelegate(delegate);
    delegate->duringCall = [&](ComparisonViewController& sender) { sender.dismiss(true); };
    press("comparison.choosePlan");
    bed.runFor(2);
    EXPECT_EQ(window->rootViewController()->presentedViewController(), nullptr);

    present();
    controller->setDelegate(delegate);
    delegate->duringCall = [&](ComparisonViewController&) {
        window->setRootViewController(std::make_shared<uikit::UIViewController>());
        controller.reset();
    };
    press("comparison.close");
    EXPECT_EQ(window->rootViewController()->presentedViewController(), nullptr);

    present();
    controller->setDelegate(delegate);
    press("comparison.choosePlan");
    EXPECT_THAT(delegate->calls, ElementsAre("choose", "close", "choose"));
}

TEST_F(ComparisonController, SurvivesADelegateThatPresentsAgainFromInsideACall) {
    controller->setDelegate(delegate);
    delegate->duringCall = [&](ComparisonViewController& sender) {
        sender.dismiss(true);
        window->rootViewController()->present(std::make_shared<uikit::UIViewController>(), true);
    };

    press("comparison.close");
    bed.runFor(3);
    bed.takeLogRecords();

    EXPECT_THAT(delegate->calls, ElementsAre("close"));
}

} // namespace
} // namespace proupsells::tests

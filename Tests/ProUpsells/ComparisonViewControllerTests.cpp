#include "ProUpsells/ComparisonViewController.hpp"

#include <gmock/gmock.h>

#include "Platform/UIKit/Controllers/UINavigationController.hpp"
#include "Tests/ProUpsells/Screen.hpp"

namespace proupsells::tests {
namespace {

using ::testing::ElementsAre;
using ::testing::SizeIs;

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
    const auto isUntouchedByBothButtons = [this] {
        for (const char* button : {"comparison.close", "comparison.choosePlan"}) {
            press(button);
            if (controller->navigationController()->isBeingDismissed()) return false;
        }
        return controller->presentingViewController() == window->rootViewController();
    };
    EXPECT_TRUE(isUntouchedByBothButtons());

    controller->setDelegate(delegate);
    delegate.reset();

    EXPECT_TRUE(isUntouchedByBothButtons());
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

TEST_F(ComparisonController, GivesWayToWhatADelegatePresentsFromInsideACall) {
    for (const char* button : {"comparison.close", "comparison.choosePlan"}) {
        SCOPED_TRACE(button);
        const auto next = std::make_shared<uikit::UIViewController>();
        const std::weak_ptr<ComparisonViewController> former = controller;
        controller->setDelegate(delegate);
        controller.reset();
        delegate->calls.clear();
        delegate->duringCall = [&](ComparisonViewController& sender) {
            sender.dismiss(true);
            window->rootViewController()->present(next, true);
        };

        press(button);
        EXPECT_EQ(window->frontMostViewController()->typeName(), "UINavigationController"); // still on its way out
        bed.runFor(3);

        EXPECT_THAT(delegate->calls, SizeIs(1));
        EXPECT_EQ(window->rootViewController()->presentedViewController(), next.get());
        EXPECT_TRUE(next->isAppeared());
        EXPECT_TRUE(former.expired());
        next->dismiss(false);
        present();
    }
}

} // namespace
} // namespace proupsells::tests

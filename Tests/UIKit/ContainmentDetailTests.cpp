// What controllers are told of their parents and of animations, and who is next in the chain of responders.
#include "Tests/UIKit/Screen.hpp"

namespace proupsells::uikit {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// Writes down what it is told with what it is told.
class ToldController : public UIViewController {
public:
    void willMoveToParent(UIViewController* parent) override { calls.push_back(parent ? "will move in" : "will move out"); }
    void didMoveToParent(UIViewController* parent) override { calls.push_back(parent ? "did move in" : "did move out"); }
    void viewWillAppear(bool animated) override { note("will appear", animated); }
    void viewDidAppear(bool animated) override { note("did appear", animated); }
    void viewWillDisappear(bool animated) override { note("will disappear", animated); }
    void viewDidDisappear(bool animated) override { note("did disappear", animated); }
    Calls take() { return std::exchange(calls, {}); }

    Calls calls;

private:
    void note(std::string call, bool animated) { calls.push_back(call + (animated ? " animated" : "")); }
};

struct Containment : ScreenTest {
    std::shared_ptr<RecordingController> root = showRoot();
    std::shared_ptr<ToldController> told = std::make_shared<ToldController>();
};

TEST_F(Containment, AControllerIsToldOfItsParentOnceForEachMove) {
    root->addChild(told);
    EXPECT_THAT(told->take(), ElementsAre("will move in"));
    root->addChild(told);
    EXPECT_THAT(told->take(), IsEmpty());
    EXPECT_EQ(root->children().size(), 1u);

    const auto other = controller("other");
    other->addChild(told);
    EXPECT_THAT(told->take(), ElementsAre("did move out", "will move in"));
    EXPECT_THAT(root->children(), IsEmpty());
    told->removeFromParent();
    EXPECT_THAT(told->take(), ElementsAre("did move out"));
    told->removeFromParent();
    EXPECT_THAT(told->take(), IsEmpty());
}

TEST_F(Containment, AnAppearanceIsAnimatedWhereThePresentationIs) {
    root->present(told, true);
    EXPECT_THAT(told->take(), ElementsAre("will appear animated"));
    bed.runFor(transition_s);
    EXPECT_THAT(told->take(), ElementsAre("did appear animated"));
    told->dismiss(true);
    EXPECT_THAT(told->take(), ElementsAre("will disappear animated"));
    bed.runFor(transition_s);
    EXPECT_THAT(told->take(), ElementsAre("did disappear animated"));

    root->present(told, false);
    told->dismiss(false);
    EXPECT_THAT(told->take(), ElementsAre("will appear", "did appear", "will disappear", "did disappear"));
}

TEST_F(Containment, AChildAppearsAnimatedWithItsParent) {
    const auto sheet = controller("sheet");
    sheet->onDidLoad = [&] {
        sheet->addChild(told);
        sheet->view()->addSubview(told->view());
    };

    root->present(sheet, true);
    EXPECT_THAT(told->take(), ElementsAre("will move in", "will appear animated"));
    bed.runFor(transition_s);
    EXPECT_THAT(told->take(), ElementsAre("did appear animated"));
    told->view()->removeFromSuperview();
    EXPECT_THAT(told->take(), ElementsAre("will disappear", "did disappear"));
}

TEST_F(Containment, AFullScreenTakesItsPresenterAwayAnimated) {
    window->setRootViewController(told);
    told->take();
    const auto full = controller("full");
    full->setModalPresentationStyle(UIModalPresentationStyle::fullScreen);

    told->present(full, true);
    EXPECT_THAT(told->take(), ElementsAre("will disappear animated"));
    bed.runFor(transition_s);
    EXPECT_THAT(told->take(), ElementsAre("did disappear animated"));
    full->dismiss(false);

    EXPECT_THAT(told->take(), ElementsAre("will appear", "did appear"));
}

TEST_F(Containment, TheChainOfRespondersGoesThroughControllers) {
    const auto inner = viewAt({});
    told->view()->addSubview(inner);
    EXPECT_EQ(inner->nextResponder(), told->view().get());
    EXPECT_EQ(told->view()->nextResponder(), told.get());
    EXPECT_EQ(told->nextResponder(), nullptr);

    root->addChild(told);
    root->view()->addSubview(told->view());
    EXPECT_EQ(told->nextResponder(), root->view().get());
    const auto sheet = controller("sheet");
    EXPECT_EQ(sheet->nextResponder(), nullptr);
    root->present(sheet, false);
    EXPECT_EQ(sheet->nextResponder(), root.get());
}

TEST_F(Containment, AViewKnowsItsControllerAsLongAsThatLives) {
    const auto view = told->view();
    EXPECT_EQ(view->viewController(), told.get());
    EXPECT_EQ(told->view(), view);
    const auto child = controller("child");
    told->addChild(child);
    EXPECT_EQ(child->parent(), told.get());

    told.reset();

    EXPECT_EQ(view->viewController(), nullptr);
    EXPECT_EQ(child->parent(), nullptr);
}

TEST_F(Containment, AControllerThatIsToBePresentedKnowsWhatItIsTold) {
    EXPECT_EQ(told->presentingViewController(), nullptr);
    EXPECT_EQ(told->navigationController(), nullptr);

    root->addChild(told);
    root->view()->addSubview(told->view());
    const auto sheet = controller("sheet");
    told->present(sheet, false);

    EXPECT_EQ(root->presentedViewController(), sheet.get());
    EXPECT_EQ(told->presentedViewController(), sheet.get());
    EXPECT_EQ(sheet->presentingViewController(), root.get());
    EXPECT_FALSE(sheet->isBeingDismissed());
    sheet->dismiss(true);
    EXPECT_TRUE(sheet->isBeingDismissed());
    bed.runFor(transition_s);
    EXPECT_FALSE(sheet->isBeingDismissed());
}

} // namespace
} // namespace proupsells::uikit

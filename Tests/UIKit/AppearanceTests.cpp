#include "Tests/UIKit/Screen.hpp"

namespace proupsells::uikit {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// Embeds `child` the usual way.
void embed(UIViewController& parent, const std::shared_ptr<UIViewController>& child) {
    parent.addChild(child);
    parent.view()->addSubview(child->view());
    child->didMoveToParent(&parent);
}

void removeChild(UIViewController& child) {
    child.view()->removeFromSuperview();
    child.willMoveToParent(nullptr);
    child.removeFromParent();
}

TEST_F(ScreenTest, TheRootControllerAppearsAtOnceAndDisappearsWhenItIsReplaced) {
    const auto first = controller("first"), second = controller("second");

    window->setRootViewController(first);
    EXPECT_THAT(takeCalls(), ElementsAre("first.didLoad", "first.willAppear", "first.didAppear"));

    window->setRootViewController(second);
    EXPECT_THAT(takeCalls(), ElementsAre("first.willDisappear", "first.didDisappear", "second.didLoad", "second.willAppear",
                                         "second.didAppear"));
}

TEST_F(ScreenTest, ChildrenEmbeddedWhileLoadingAppearWithTheirParentAfterIt) {
    const auto parent = controller("parent"), child = controller("child"), grandchild = controller("grandchild");
    parent->onDidLoad = [&] { embed(*parent, child); };
    child->onDidLoad = [&] { embed(*child, grandchild); };

    window->setRootViewController(parent);

    EXPECT_THAT(takeCalls(),
                ElementsAre("parent.didLoad", "child.didLoad", "grandchild.didLoad", "parent.willAppear", "child.willAppear",
                            "grandchild.willAppear", "parent.didAppear", "child.didAppear", "grandchild.didAppear"));

    window->setRootViewController(nullptr);

    EXPECT_THAT(takeCalls(), ElementsAre("parent.willDisappear", "child.willDisappear", "grandchild.willDisappear",
                                         "parent.didDisappear", "child.didDisappear", "grandchild.didDisappear"));
}

TEST_F(ScreenTest, AChildAddedWhileItsParentAppearsGoesTheRestOfTheWayWithIt) {
    const auto parent = controller("parent"), child = controller("child");
    parent->onWillAppear = [&] { embed(*parent, child); };

    window->setRootViewController(parent);

    EXPECT_THAT(takeCalls(), ElementsAre("parent.didLoad", "parent.willAppear", "child.didLoad", "child.willAppear",
                                         "parent.didAppear", "child.didAppear"));
}

TEST_F(ScreenTest, AChildAddedToAParentOnScreenAppearsAtOnce) {
    const auto parent = showRoot(), child = controller("child");

    embed(*parent, child);
    EXPECT_THAT(takeCalls(), ElementsAre("child.didLoad", "child.willAppear", "child.didAppear"));

    removeChild(*child);
    EXPECT_THAT(takeCalls(), ElementsAre("child.willDisappear", "child.didDisappear"));
}

TEST_F(ScreenTest, AChildWithoutItsViewOnScreenDoesNotAppear) {
    const auto parent = showRoot(), child = controller("child");

    parent->addChild(child);

    EXPECT_THAT(takeCalls(), IsEmpty());
    EXPECT_FALSE(child->isViewLoaded());
}

TEST_F(ScreenTest, AChildAppearsWithThePlainViewThatItStandsIn) {
    const auto parent = showRoot(), child = controller("child");
    const auto cell = viewAt({});
    parent->addChild(child);
    cell->addSubview(child->view());
    EXPECT_THAT(takeCalls(), ElementsAre("child.didLoad"));

    parent->view()->addSubview(cell);
    EXPECT_THAT(takeCalls(), ElementsAre("child.willAppear", "child.didAppear"));

    cell->removeFromSuperview();
    EXPECT_THAT(takeCalls(), ElementsAre("child.willDisappear", "child.didDisappear"));
}

TEST_F(ScreenTest, AViewAddedBeforeItsControllerAppearsWhenTheControllerFollows) {
    const auto parent = showRoot(), child = controller("child");
    parent->view()->addSubview(child->view());
    EXPECT_THAT(takeCalls(), ElementsAre("child.didLoad"));

    parent->addChild(child);

    EXPECT_THAT(takeCalls(), ElementsAre("child.willAppear", "child.didAppear"));
}

TEST_F(ScreenTest, RemovingAControllerAloneMakesItDisappear) {
    const auto parent = showRoot(), child = controller("child");
    embed(*parent, child);
    takeCalls();

    child->removeFromParent();

    EXPECT_THAT(takeCalls(), ElementsAre("child.willDisappear", "child.didDisappear"));
    EXPECT_EQ(child->parent(), nullptr);
    EXPECT_THAT(parent->children(), IsEmpty());
}

TEST_F(ScreenTest, AChildThatMovesToAnotherParentLeavesTheFirst) {
    const auto parent = showRoot(), first = controller("first"), second = controller("second"), child = controller("child");
    embed(*parent, first);
    embed(*parent, second);
    embed(*first, child);

    embed(*second, child);

    EXPECT_THAT(first->children(), IsEmpty());
    EXPECT_EQ(child->parent(), second.get());
    EXPECT_TRUE(child->isAppeared());
}

TEST_F(ScreenTest, AChildMayRemoveItselfWhileItDisappears) {
    const auto parent = showRoot(), child = controller("child");
    embed(*parent, child);
    takeCalls();
    child->onWillDisappear = [&] { child->view()->removeFromSuperview(); };

    child->view()->removeFromSuperview();

    EXPECT_THAT(takeCalls(), ElementsAre("child.willDisappear", "child.didDisappear"));
}

TEST_F(ScreenTest, AParentMayReleaseItsChildrenFromInsideACall) {
    const auto parent = showRoot();
    std::shared_ptr<RecordingController> child = controller("child");
    child->recordsEnd = true;
    embed(*parent, child);
    takeCalls();
    UIViewController* const raw = child.get();
    child->onDidDisappear = [raw] { raw->removeFromParent(); };
    child.reset();

    raw->view()->removeFromSuperview();

    EXPECT_THAT(takeCalls(), ElementsAre("child.willDisappear", "child.didDisappear", "child.gone"));
}

TEST_F(ScreenTest, ControllersAreToldOfLayoutsTraitsAndSafeAreas) {
    class Told : public RecordingController {
    public:
        using RecordingController::RecordingController;
        void viewDidLayoutSubviews() override { ++layouts; }
        void viewSafeAreaInsetsDidChange() override { ++safeAreas; }
        void traitCollectionDidChange(const UITraitCollection&) override { ++traits; }
        int layouts = 0, safeAreas = 0, traits = 0;
    };
    const auto root = std::make_shared<Told>("root", calls);
    window->setRootViewController(root);
    EXPECT_EQ(root->layouts, 1);
    EXPECT_EQ(root->traits, 0);

    window->setTraits({.userInterfaceStyle = graphics::ColorScheme::dark});
    window->setSize({375, 800}, {20, 0, 0, 0});
    bed.settle();

    EXPECT_EQ(root->layouts, 2);
    EXPECT_EQ(root->safeAreas, 1);
    EXPECT_EQ(root->traits, 1);
}

TEST_F(ScreenTest, AChildKnowsTraitsAndSafeAreaWhileItsViewLoads) {
    window->setSize({375, 800}, {20, 0, 34, 0});
    window->setTraits({.userInterfaceStyle = graphics::ColorScheme::dark});
    const auto parent = controller("parent"), child = controller("child");
    geometry::PhysicalInsets safeArea;
    graphics::ColorScheme scheme = graphics::ColorScheme::light;
    child->onDidLoad = [&] {
        safeArea = child->view()->safeAreaInsets();
        scheme = child->traitCollection().userInterfaceStyle;
    };
    parent->onDidLoad = [&] { embed(*parent, child); };

    window->setRootViewController(parent);

    EXPECT_EQ(safeArea, (geometry::PhysicalInsets{20, 0, 34, 0}));
    EXPECT_EQ(scheme, graphics::ColorScheme::dark);
}

TEST(ContainmentDeathTest, AControllerCannotBeItsOwnAncestor) {
    Calls calls;
    const auto parent = std::make_shared<RecordingController>("parent", calls),
               child = std::make_shared<RecordingController>("child", calls);
    parent->addChild(child);

    EXPECT_DEATH(child->addChild(parent), "UIViewController: a controller cannot be its own child");
    EXPECT_DEATH(child->addChild(nullptr), "UIViewController: there is no child to add");
}

} // namespace
} // namespace proupsells::uikit

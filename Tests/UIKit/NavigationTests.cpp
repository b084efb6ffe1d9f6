#include "Tests/UIKit/Screen.hpp"

#include "Platform/UIKit/Controllers/UINavigationController.hpp"

namespace proupsells::uikit {
namespace {

using geometry::Rect;
using testing::ElementsAre;

class NavigationTest : public ScreenTest {
protected:
    NavigationTest() : root(showRoot()), content(controller("content")) {}

    UIBarButtonItem closeItem() {
        auto image = std::make_shared<graphics::Image>();
        image->name = "close";
        image->size = {24, 24};
        UIBarButtonItem item;
        item.image = image;
        item.accessibilityIdentifier = "close";
        item.action = [this] { calls.push_back("close"); };
        return item;
    }
    const accessibility::SemanticNode& find(const accessibility::SemanticNode& tree, std::string_view identifier) {
        const accessibility::SemanticNode* node = accessibility::findByIdentifier(tree, identifier);
        EXPECT_TRUE(node) << identifier;
        return node ? *node : tree;
    }

    std::shared_ptr<RecordingController> root, content;
};

TEST_F(NavigationTest, TheContentStandsBelowTheBar) {
    content->view()->accessibilityIdentifier = "content";
    const auto navigation = UINavigationController::create(content);

    root->present(navigation, false);

    EXPECT_EQ(find(window->semanticTree(), "content").frame, (Rect{{0, 56}, {375, 744}}));
    EXPECT_EQ(content->parent(), navigation.get());
    EXPECT_EQ(content->navigationController(), navigation.get());
    EXPECT_EQ(&navigation->contentViewController(), content.get());
}

TEST_F(NavigationTest, TheBarReachesUnderTheUnsafeTopAndTheContentKeepsTheBottom) {
    window->setSize({375, 800}, {20, 0, 34, 0});
    geometry::PhysicalInsets whileLoading;
    content->onDidLoad = [&] {
        content->view()->accessibilityIdentifier = "content";
        whileLoading = content->view()->safeAreaInsets();
    };
    content->setRightBarButtonItem(closeItem());

    root->present(UINavigationController::create(content), false);

    const accessibility::SemanticNode tree = window->semanticTree();
    EXPECT_EQ(find(tree, "content").frame, (Rect{{0, 76}, {375, 724}}));
    EXPECT_EQ(find(tree, "close").frame, (Rect{{323, 26}, {44, 44}}));
    EXPECT_EQ(whileLoading, (geometry::PhysicalInsets{0, 0, 34, 0}));
    EXPECT_EQ(content->view()->safeAreaInsets(), whileLoading);
}

TEST_F(NavigationTest, TheRightItemStandsAtTheTrailingEnd) {
    content->setRightBarButtonItem(closeItem());
    root->present(UINavigationController::create(content), false);
    EXPECT_EQ(find(window->semanticTree(), "close").frame, (Rect{{323, 6}, {44, 44}}));

    window->setTraits({.layoutDirection = geometry::LayoutDirection::rightToLeft});

    EXPECT_EQ(find(window->semanticTree(), "close").frame, (Rect{{8, 6}, {44, 44}}));
}

TEST_F(NavigationTest, AnItemSetWhileLoadingIsShownAndTapped) {
    content->onDidLoad = [&] { content->setRightBarButtonItem(closeItem()); };
    root->present(UINavigationController::create(content), false);
    takeCalls();

    tap({345, 28});

    EXPECT_THAT(calls, ElementsAre("close"));
}

TEST_F(NavigationTest, AnItemCallsItsTargetWeakly) {
    struct Target {
        void close() { ++closes; }
        int closes = 0;
    };
    auto target = std::make_shared<Target>();
    content->setRightBarButtonItem(UIBarButtonItem::withTarget(closeItem().image, std::weak_ptr(target), &Target::close));
    root->present(UINavigationController::create(content), false);

    tap({345, 28});
    EXPECT_EQ(target->closes, 1);
    target.reset();
    tap({345, 28});
}

TEST_F(NavigationTest, TheTitleStandsInTheMiddleAndIsAHeader) {
    content->setTitle("Plans");
    root->present(UINavigationController::create(content), false);

    const accessibility::SemanticNode tree = window->semanticTree();
    const auto titles = accessibility::findAllByText(tree, "Plans");

    ASSERT_EQ(titles.size(), 1u);
    EXPECT_EQ(titles[0]->frame.midX(), 187.5);
    EXPECT_EQ(titles[0]->frame.midY(), 28);
    EXPECT_TRUE(accessibility::contains(titles[0]->traits, accessibility::Traits::header));
}

TEST_F(NavigationTest, TheContentAppearsWithTheNavigationController) {
    root->present(UINavigationController::create(content), true);
    bed.runFor(transition_s);

    EXPECT_THAT(takeCalls(), ElementsAre("content.didLoad", "content.willAppear", "content.didAppear"));
    content->dismiss(true);
    bed.runFor(transition_s);
    EXPECT_THAT(takeCalls(), ElementsAre("content.willDisappear", "content.didDisappear"));
    EXPECT_EQ(window->frontMostViewController(), root.get());
}

TEST_F(NavigationTest, CoversTheWindowSoThatNothingBelowIsPainted) {
    root->view()->setBackgroundColor(UIColor::black);

    root->present(UINavigationController::create(content), false);

    EXPECT_EQ(painted().commands.size(), 1u);
}

} // namespace
} // namespace proupsells::uikit

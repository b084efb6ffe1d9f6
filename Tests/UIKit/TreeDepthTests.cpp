#include "Platform/Host/TreeDepth.hpp"
#include "Tests/UIKit/Screen.hpp"

namespace proupsells::uikit {
namespace {

// Views inside each other, the outermost one first.
std::vector<std::shared_ptr<UIView>> chain(int length) {
    std::vector<std::shared_ptr<UIView>> views;
    for (int i = 0; i < length; ++i) {
        views.push_back(viewAt({{0, 0}, {100, 100}}));
        if (i > 0) views[std::size_t(i) - 1]->addSubview(views.back());
    }
    return views;
}

class TreeDepth : public ScreenTest {};

TEST_F(TreeDepth, MayBeAsGreatAsStated) {
    const auto root = showRoot();
    constexpr int windowAndRoot = 2;
    const auto views = chain(host::maximumTreeDepth - windowAndRoot);
    root->view()->addSubview(views.front());
    views.back()->accessibilityIdentifier = "innermost";
    bed.settle();

    painted();
    const accessibility::SemanticNode tree = window->semanticTree();
    EXPECT_NE(accessibility::findByIdentifier(tree, "innermost"), nullptr);
}

TEST_F(TreeDepth, IsRefusedBeyondThatFromOutside) {
    EXPECT_DEATH(chain(5000), "UIView: views are nested too deeply: more than [0-9]+ stand inside each other");
}

TEST_F(TreeDepth, IsRefusedBeyondThatWhereTwoTreesMeet) {
    const auto outer = chain(300), inner = chain(300);

    EXPECT_DEATH(outer.back()->addSubview(inner.front()),
                 "UIView: views are nested too deeply: more than [0-9]+ stand inside each other");
}

} // namespace
} // namespace proupsells::uikit

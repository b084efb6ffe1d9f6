#include "Tests/UIKit/Screen.hpp"

namespace proupsells::uikit {
namespace {

using geometry::Point;
using geometry::Rect;
using geometry::Size;
using testing::ElementsAre;
using testing::IsEmpty;

class TraitView : public UIView {
public:
    void traitCollectionDidChange(const UITraitCollection& previous) override {
        previousStyles.push_back(previous.userInterfaceStyle);
    }
    std::vector<graphics::ColorScheme> previousStyles;
};

TEST_F(ScreenTest, TraitCallbacksComeForLaterChangesOnly) {
    window->setTraits({.userInterfaceStyle = graphics::ColorScheme::dark});
    const auto root = showRoot();
    const auto view = std::make_shared<TraitView>();
    root->view()->addSubview(view);
    EXPECT_THAT(view->previousStyles, IsEmpty());

    window->setTraits({.userInterfaceStyle = graphics::ColorScheme::light});
    window->setTraits({.userInterfaceStyle = graphics::ColorScheme::light});

    EXPECT_THAT(view->previousStyles, ElementsAre(graphics::ColorScheme::dark));
    EXPECT_EQ(view->traitCollection().userInterfaceStyle, graphics::ColorScheme::light);
}

TEST_F(ScreenTest, AViewThatWasAwayDuringAChangeIsToldWhenItComesBack) {
    const auto root = showRoot();
    const auto view = std::make_shared<TraitView>();
    root->view()->addSubview(view);
    view->removeFromSuperview();
    window->setTraits({.userInterfaceStyle = graphics::ColorScheme::dark});
    EXPECT_THAT(view->previousStyles, IsEmpty());

    root->view()->addSubview(view);

    EXPECT_THAT(view->previousStyles, ElementsAre(graphics::ColorScheme::light));
}

TEST_F(ScreenTest, AnOverrideHoldsForEverythingInside) {
    const auto root = showRoot();
    const auto outer = viewAt({}), inner = viewAt({});
    outer->addSubview(inner);
    outer->setOverrideTraitCollection(UITraitCollection{.userInterfaceStyle = graphics::ColorScheme::dark});
    root->view()->addSubview(outer);
    EXPECT_EQ(inner->traitCollection().userInterfaceStyle, graphics::ColorScheme::dark);

    outer->setOverrideTraitCollection({});

    EXPECT_EQ(inner->traitCollection().userInterfaceStyle, graphics::ColorScheme::light);
}

TEST_F(ScreenTest, WidthDecidesTheSizeClass) {
    const auto root = showRoot();
    EXPECT_EQ(root->traitCollection().horizontalSizeClass, UIUserInterfaceSizeClass::compact);

    window->setSize({600, 800}, {});

    EXPECT_EQ(root->traitCollection().horizontalSizeClass, UIUserInterfaceSizeClass::regular);
}

TEST_F(ScreenTest, SafeAreaIsWhatTheWindowsUnsafeEdgesCover) {
    window->setSize({375, 800}, {20, 5, 34, 6});
    const auto root = showRoot();
    const auto top = viewAt({{0, 10}, {375, 100}}), middle = viewAt({{10, 100}, {100, 100}}),
               beyond = viewAt({{0, 700}, {375, 300}});
    for (const auto& view : {top, middle, beyond}) root->view()->addSubview(view);

    EXPECT_EQ(top->safeAreaInsets(), (geometry::PhysicalInsets{10, 5, 0, 6}));
    EXPECT_EQ(middle->safeAreaInsets(), (geometry::PhysicalInsets{}));
    EXPECT_EQ(beyond->safeAreaInsets(), (geometry::PhysicalInsets{0, 5, 34, 6}));
    EXPECT_EQ(root->view()->safeAreaRect(), (Rect{{5, 20}, {364, 746}}));
    EXPECT_EQ(top->safeAreaRect(), (Rect{{5, 10}, {364, 90}}));
    EXPECT_EQ(beyond->safeAreaRect(), (Rect{{5, 0}, {364, 266}}));
    beyond->setFrame({{0, 790}, {5, 8}});
    EXPECT_EQ(beyond->safeAreaRect(), (Rect{{5, 0}, {0, 0}}));
}

TEST_F(ScreenTest, ViewsAreToldWhenTheirSafeAreaChanges) {
    class SafeView : public UIView {
    public:
        void safeAreaInsetsDidChange() override { ++changes; }
        int changes = 0;
    };
    const auto root = showRoot();
    const auto view = std::make_shared<SafeView>();
    view->fillSuperview();
    root->view()->addSubview(view);
    bed.settle();
    EXPECT_EQ(view->changes, 0);

    window->setSize({375, 800}, {20, 0, 34, 0});
    bed.settle();

    EXPECT_EQ(view->changes, 1);
}

} // namespace
} // namespace proupsells::uikit

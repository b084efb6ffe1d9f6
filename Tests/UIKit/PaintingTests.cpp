#include "Tests/UIKit/Screen.hpp"

namespace proupsells::uikit {
namespace {

using geometry::Point;
using geometry::Rect;
using geometry::Size;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr UIColor red{"red", graphics::rgb(0xFF0000), graphics::rgb(0x800000)};
constexpr UIColor halfRed{"halfRed", graphics::rgb(0xFF0000, 128), graphics::rgb(0x800000, 128)};

TEST_F(ScreenTest, PaintsBackgroundsBackToFrontWithOpacityAndScheme) {
    const auto root = showRoot();
    const auto view = viewAt({{10, 20}, {30, 40}});
    view->setBackgroundColor(red);
    view->setAlpha(0.5);
    view->setCornerRadius(4);
    root->view()->setBackgroundColor(UIColor::white);
    root->view()->addSubview(view);

    const auto list = painted();

    ASSERT_EQ(list.commands.size(), 2u);
    EXPECT_EQ(list.commands[0].frame, (Rect{{0, 0}, {375, 800}}));
    EXPECT_EQ(list.commands[1].kind, graphics::CommandKind::fillRoundedRectangle);
    EXPECT_EQ(list.commands[1].frame, (Rect{{10, 20}, {30, 40}}));
    EXPECT_EQ(list.commands[1].color, graphics::rgb(0xFF0000));
    EXPECT_FLOAT_EQ(list.commands[1].opacity, 0.5f);

    window->setTraits({.userInterfaceStyle = graphics::ColorScheme::dark});
    EXPECT_EQ(painted().commands[1].color, graphics::rgb(0x800000));
}

TEST_F(ScreenTest, PaintsNothingOfWhatCannotBeSeen) {
    const auto root = showRoot();
    const auto away = viewAt({{0, 900}, {30, 40}}), hidden = viewAt({{0, 0}, {30, 40}}), clip = viewAt({{0, 0}, {10, 10}}),
               clipped = viewAt({{20, 0}, {10, 10}});
    for (const auto& view : {away, hidden, clipped}) view->setBackgroundColor(red);
    hidden->setHidden(true);
    clip->setClipsToBounds(true);
    clip->addSubview(clipped);
    for (const auto& view : {away, hidden, clip}) root->view()->addSubview(view);

    EXPECT_THAT(painted().commands, IsEmpty());
}

TEST(ViewCover, AnOpaqueBackgroundCoversItsBounds) {
    UIView view({{0, 0}, {100, 100}});
    const Rect all{{0, 0}, {100, 100}};
    EXPECT_FALSE(view.covers(all));

    view.setBackgroundColor(red);
    EXPECT_TRUE(view.covers(all));
    EXPECT_FALSE(view.covers({{0, 0}, {101, 100}}));

    view.setBackgroundColor(halfRed);
    EXPECT_FALSE(view.covers(all));
    const auto inside = viewAt({{-1, 0}, {101, 100}});
    inside->setBackgroundColor(red);
    view.addSubview(inside);
    EXPECT_TRUE(view.covers(all));
    view.setAlpha(0.9);
    EXPECT_FALSE(view.covers(all));
}

TEST_F(ScreenTest, ChangesOfOneTurnAskForOnePicture) {
    const auto root = showRoot();
    bed.settle();
    int pictures = 0;
    window->setNeedsDisplayHandler([&] { ++pictures; });

    root->view()->setBackgroundColor(red);
    root->view()->setAlpha(0.5);
    EXPECT_EQ(pictures, 0);
    bed.settle();
    EXPECT_EQ(pictures, 1);

    root->view()->setBackgroundColor(red);
    bed.settle();
    EXPECT_EQ(pictures, 1);
}

TEST_F(ScreenTest, PaintingAsksForNoFurtherPicture) {
    const auto root = showRoot();
    bed.settle();
    int pictures = 0;
    window->setNeedsDisplayHandler([&] {
        ++pictures;
        painted();
    });

    root->view()->setNeedsLayout();
    bed.runFor(1);

    EXPECT_EQ(pictures, 1);
}

// --- Semantics ---

TEST_F(ScreenTest, ViewsDescribeThemselvesInWindowCoordinates) {
    const auto root = showRoot();
    const auto outer = viewAt({{10, 10}, {50, 50}}), inner = viewAt({{5, 5}, {10, 10}}), away = viewAt({{60, 60}, {10, 10}});
    outer->setAlpha(0.5);
    outer->setClipsToBounds(true);
    outer->setTransform(geometry::Transform::translation(100, 0));
    outer->setBackgroundColor(red);
    inner->accessibilityIdentifier = "inner";
    inner->accessibilityLabel = "Inner";
    inner->accessibilityTraits = accessibility::Traits::header;
    inner->setAccessibilityValue("1");
    outer->addSubview(inner);
    outer->addSubview(away);
    root->view()->addSubview(outer);

    const accessibility::SemanticNode tree = window->semanticTree();

    EXPECT_EQ(tree.type, "UIView");
    const accessibility::SemanticNode& node = tree.children.at(0);
    EXPECT_EQ(node.frame, (Rect{{110, 10}, {50, 50}}));
    EXPECT_EQ(node.clip, node.frame);
    EXPECT_EQ(node.shape->fill, "red");
    EXPECT_TRUE(node.isOnScreen);
    const accessibility::SemanticNode* found = accessibility::findByIdentifier(tree, "inner");
    ASSERT_TRUE(found);
    EXPECT_EQ(found->frame, (Rect{{115, 15}, {10, 10}}));
    EXPECT_EQ(found->label, "Inner");
    EXPECT_EQ(found->value, "1");
    EXPECT_EQ(found->opacity, 0.5);
    EXPECT_FALSE(node.children.at(1).isOnScreen);
}

} // namespace
} // namespace proupsells::uikit

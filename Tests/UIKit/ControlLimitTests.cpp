// Labels and controls at their limits.
#include "Platform/UIKit/Controls/UIButton.hpp"
#include "Platform/UIKit/Views/UILabel.hpp"
#include "Tests/UIKit/Screen.hpp"

namespace proupsells::uikit {
namespace {

using geometry::Point;
using geometry::Rect;
using geometry::Size;
using testing::IsEmpty;

// --- Labels ---

TEST_F(ScreenTest, ALabelIsMadeInOneLineOfTheOrdinaryTextSize) {
    UILabel label;

    EXPECT_EQ(label.font().size, 17);
    EXPECT_EQ(label.numberOfLines(), 1);
    EXPECT_EQ(label.minimumScaleFactor(), 1);
    EXPECT_EQ(label.textColor().name, "label");
    EXPECT_EQ(label.textColor().light, graphics::rgb(0x15191C));
    EXPECT_EQ(label.textColor().dark, graphics::rgb(0xF3F5F4));
    label.setNumberOfLines(-3);
    EXPECT_EQ(label.numberOfLines(), 0);
    label.setMinimumScaleFactor(2);
    EXPECT_EQ(label.minimumScaleFactor(), 1);
    label.setMinimumScaleFactor(-1);
    EXPECT_EQ(label.minimumScaleFactor(), 0);
}

TEST_F(ScreenTest, ALabelSaysHowManyLinesItHas) {
    const auto root = showRoot();
    const auto label = std::make_shared<UILabel>();
    label->setNumberOfLines(0);
    label->setFrame({{0, 0}, {60, 100}});
    root->view()->addSubview(label);
    const auto described = [&] { return *window->semanticTree().children.at(0).text; };
    EXPECT_EQ(described().lineCount, 0);

    label->setFont({.face = nullptr, .size = 10});
    label->setText("one two three");
    EXPECT_EQ(described().lineCount, 2);
    EXPECT_TRUE(described().runs.empty());
    EXPECT_TRUE(accessibility::contains(window->semanticTree().children.at(0).traits, accessibility::Traits::staticText));
    label->setText("");
    EXPECT_EQ(described().lineCount, 0);
    EXPECT_THAT(painted().commands, IsEmpty());
    EXPECT_EQ(label->sizeThatFits({10, 10}), (Size{0, 0}));
}

TEST_F(ScreenTest, ALabelsNaturalSizeFollowsTheWidthThatItIsGiven) {
    UILabel label;
    label.setFont({.face = nullptr, .size = 10}); // a character is 5 wide, a line 12.5 high
    label.setText("one two");
    EXPECT_EQ(label.naturalSizeFor({20, 100}), (Size{35, 12.5}));

    label.setNumberOfLines(0);
    EXPECT_EQ(label.naturalSizeFor({20, 100}), (Size{15, 25}));
    EXPECT_EQ(label.naturalSizeFor({35, 100}), (Size{35, 12.5}));
    label.setPreferredMaxLayoutWidth(100);
    EXPECT_EQ(label.naturalSizeFor({20, 100}), (Size{35, 12.5}));
    EXPECT_EQ(label.preferredMaxLayoutWidth(), 100);
}

// --- Controls ---

TEST_F(ScreenTest, AButtonFadesByItsState) {
    const auto root = showRoot();
    const auto button = std::make_shared<UIButton>();
    button->setFrame({{100, 100}, {44, 44}});
    root->view()->addSubview(button);
    const auto opacity = [&] { return window->semanticTree().children.at(0).opacity; };

    EXPECT_EQ(opacity(), 1);
    touch(host::TouchPhase::began, {120, 120});
    EXPECT_EQ(opacity(), 0.5);
    touch(host::TouchPhase::cancelled, {120, 120});
    button->setEnabled(false);
    EXPECT_EQ(opacity(), 0.4);
    button->setAlpha(0.5);
    EXPECT_EQ(opacity(), 0.2);
}

TEST_F(ScreenTest, AControlSaysWhetherAFingertipMeetsIt) {
    const auto root = showRoot();
    const auto button = std::make_shared<UIButton>();
    root->view()->addSubview(button);
    const auto target = [&](Size size) {
        button->setFrame({{100, 100}, size});
        return window->semanticTree().children.at(0).leastTarget;
    };

    EXPECT_EQ(target({44, 44}), 44);
    EXPECT_EQ(target({43, 44}), 0);
    EXPECT_EQ(target({44, 43}), 0);
    EXPECT_EQ(target({100, 30}), 0);
}

TEST_F(ScreenTest, AControlThatIsDisabledUnderAFingerLetsGoOfIt) {
    const auto root = showRoot();
    const auto button = std::make_shared<UIButton>();
    button->setFrame({{100, 100}, {44, 44}});
    using enum UIControl::Event;
    for (const auto& [event, name] : std::vector<std::pair<UIControl::Event, std::string>>{
             {touchUpInside, "inside"}, {touchUpOutside, "outside"}, {touchDragExit, "exit"}, {touchDragEnter, "enter"}})
        button->addAction([this, name = name](UIControl&) { calls.push_back(name); }, event);
    root->view()->addSubview(button);

    touch(host::TouchPhase::began, {120, 120});
    button->setEnabled(false);
    EXPECT_FALSE(button->isHighlighted());
    touch(host::TouchPhase::ended, {120, 120});
    EXPECT_THAT(calls, IsEmpty());

    button->setEnabled(true);
    touch(host::TouchPhase::moved, {120, 120});
    touch(host::TouchPhase::ended, {120, 120});
    EXPECT_THAT(calls, IsEmpty());
}

TEST_F(ScreenTest, AFingerMayStrayFromAControlByThatMuchOnEachSide) {
    const auto root = showRoot();
    const auto button = std::make_shared<UIButton>();
    button->setFrame({{100, 100}, {44, 44}});
    root->view()->addSubview(button);
    const auto isHighlightedAt = [&](Point place) {
        touch(host::TouchPhase::began, {120, 120});
        touch(host::TouchPhase::moved, place);
        const bool is = button->isHighlighted();
        touch(host::TouchPhase::cancelled, place);
        return is;
    };

    EXPECT_TRUE(isHighlightedAt({30, 30}));
    EXPECT_TRUE(isHighlightedAt({213, 213}));
    EXPECT_FALSE(isHighlightedAt({29, 120}));
    EXPECT_FALSE(isHighlightedAt({120, 29}));
    EXPECT_FALSE(isHighlightedAt({215, 120}));
}

} // namespace
} // namespace proupsells::uikit

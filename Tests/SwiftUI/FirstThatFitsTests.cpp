// One of several views, as the room allows.
#include <gmock/gmock.h>

#include "Tests/SwiftUI/TouchScreen.hpp"

namespace proupsells::swiftui::tests {
namespace {

using geometry::Point;
using proupsells::tests::box;
using proupsells::tests::TouchScreen;

// Boxes of 100, 60 and 40 points, in as much room as is given.
class FirstThatFitsTest : public testing::Test {
protected:
    void offer(double newWidth) {
        width = newWidth;
        screen.rebuild();
    }
    std::vector<std::string> told() {
        std::vector<std::string> result;
        const accessibility::SemanticNode tree = screen.tree();
        for (const char* const name : {"wide", "narrow", "last"})
            if (accessibility::findByIdentifier(tree, name)) result.emplace_back(name);
        return result;
    }

    double width = 300;
    int taps = 0;
    TouchScreen screen{[this] {
        return FirstThatFits{.content = {box(100, 50, "wide") | onTapGesture([this] { ++taps; }), box(60, 70, "narrow"),
                                         box(40, 90, "last")}} |
               frame({.width = width, .height = 200});
    }};
};

TEST_F(FirstThatFitsTest, ShowsTheFirstThatIsNoWiderThanTheRoom) {
    EXPECT_THAT(told(), testing::ElementsAre("wide"));
    offer(100);
    EXPECT_THAT(told(), testing::ElementsAre("wide"));
    offer(99.9);
    EXPECT_THAT(told(), testing::ElementsAre("narrow"));
    offer(60);
    EXPECT_THAT(told(), testing::ElementsAre("narrow"));
    offer(59.9);
    EXPECT_THAT(told(), testing::ElementsAre("last"));
}

TEST_F(FirstThatFitsTest, ShowsTheLastWhereNoneFits) {
    offer(10);

    EXPECT_THAT(told(), testing::ElementsAre("last"));
    ASSERT_EQ(screen.host().displayList().commands.size(), 1u);
    EXPECT_EQ(screen.host().displayList().commands[0].frame.size, (geometry::Size{40, 90}));
}

TEST_F(FirstThatFitsTest, LeavesNothingOfWhatItShowedBefore) {
    const Point middle{150, 200};
    screen.tap(middle);
    EXPECT_EQ(taps, 1);

    offer(60);
    EXPECT_EQ(screen.host().displayList().commands.size(), 1u);
    screen.tap(middle);
    EXPECT_EQ(taps, 1);

    offer(100);
    EXPECT_THAT(told(), testing::ElementsAre("wide"));
    screen.tap(middle);
    EXPECT_EQ(taps, 2);
}

TEST(FirstThatFits, ShowsTheFirstInUnlimitedRoom) {
    TouchScreen screen{[] {
        return FirstThatFits{.content = {box(1000, 50, "wide"), box(60, 70, "narrow")}} | fixedSize(true, false);
    }};
    const accessibility::SemanticNode tree = screen.tree();

    EXPECT_TRUE(accessibility::findByIdentifier(tree, "wide"));
}

TEST(FirstThatFits, IsAbsentWithoutViews) {
    TouchScreen screen{[] {
        return VStack{.spacing = 10, .content = {box(20, 20, "a"), FirstThatFits{.content = {View{}}}, box(20, 20, "b")}};
    }};
    const accessibility::SemanticNode tree = screen.tree();

    EXPECT_EQ(accessibility::findByIdentifier(tree, "b")->frame.minY() - accessibility::findByIdentifier(tree, "a")->frame.maxY(),
              10);
}

TEST(FirstThatFits, StandsOnTheBaselineOfWhatItShows) {
    TouchScreen screen{[] {
        return HStack{
            .alignment = VerticalAlignment::firstTextBaseline,
            .content = {Text{"text"} | accessibilityIdentifier("text"),
                        FirstThatFits{.content = {box(1000, 10, "wide"), Text{"text"} | accessibilityIdentifier("other")}}}};
    }};
    const accessibility::SemanticNode tree = screen.tree();

    EXPECT_EQ(accessibility::findByIdentifier(tree, "other")->frame.minY(),
              accessibility::findByIdentifier(tree, "text")->frame.minY());
}

} // namespace
} // namespace proupsells::swiftui::tests

// The comparison where the language runs from right to left, and what of its texts only narrow screens show.
#include <gmock/gmock.h>

#include "ProUpsells/ComparisonColumnCapsule.hpp"
#include "ProUpsells/ComparisonView.hpp"
#include "Tests/ProUpsells/Screen.hpp"

namespace proupsells::tests {
namespace {

using geometry::Rect;
using geometry::Size;

std::vector<accessibility::SemanticNode> nodesOf(const Screen& screen) {
    return allWhere(screen.tree(), [](const accessibility::SemanticNode&) { return true; });
}

Screen mirrored(Size size) {
    ScreenOptions options;
    options.traits.layoutDirection = geometry::LayoutDirection::rightToLeft;
    return Screen(ComparisonView{}, size, options);
}

void tapHeader(Screen& screen, const std::string& category) {
    const Rect frame = screen.frame("comparison.category." + category);
    screen.tap({frame.midX(), frame.minY() + 10});
    screen.runUntil(screen.bed().now_s() + 1);
}

void expectMirrored(const Screen& there, const Screen& here, double width) {
    const auto left = nodesOf(there), right = nodesOf(here);
    ASSERT_EQ(left.size(), right.size());
    for (std::size_t index = 0; index < left.size(); ++index) {
        const accessibility::SemanticNode &a = left[index], &b = right[index];
        SCOPED_TRACE(b.type + " " + b.identifier + (b.text ? " \"" + b.text->text + "\"" : ""));
        EXPECT_EQ(a.type, b.type);
        EXPECT_EQ(a.isOnScreen, b.isOnScreen);
        EXPECT_EQ(a.rotation_degrees, b.rotation_degrees);
        EXPECT_NEAR(a.frame.minX(), width - b.frame.maxX(), 1e-6);
        EXPECT_NEAR(a.frame.minY(), b.frame.minY(), 1e-6);
        EXPECT_NEAR(a.frame.width(), b.frame.width(), 1e-6);
        EXPECT_NEAR(a.frame.height(), b.frame.height(), 1e-6);
    }
}

TEST(MirroredComparison, StandsTheOtherWayRound) {
    for (const double width : {320.0, 375.0, 744.0}) {
        SCOPED_TRACE(width);
        Screen there = mirrored({width, 1400});
        Screen here(ComparisonView{}, Size{width, 1400});
        expectMirrored(there, here, width);

        tapHeader(there, "Creation Tools");
        tapHeader(here, "Creation Tools");
        ASSERT_EQ(allOfType(there.tree(), "FeatureChildRow").size(), 13u);
        expectMirrored(there, here, width);
    }
}

TEST(MirroredComparison, HasItsTitleAtTheRightAndItsChecksAtTheLeft) {
    const Screen screen = mirrored({375, 800});
    const auto title =
        allWhere(screen.tree(), [](const auto& node) { return node.text && node.text->text == "Compare Plans"; }).front();
    const auto capsules = allOfType(screen.tree(), "ComparisonColumnCapsule");
    const auto row = firstOfType(screen.tree(), "FeatureChildRow");
    const auto checks = allOfType(row, "Image");

    EXPECT_EQ(title.frame.maxX(), 375 - 24);
    EXPECT_GT(capsules[0].frame.minX(), capsules[1].frame.maxX()); // Pro is the outer column
    EXPECT_EQ(capsules[1].frame.minX(), 24);
    ASSERT_EQ(checks.size(), 2u);
    EXPECT_EQ(checks[1].frame.minX(), 24 + 14);
    EXPECT_EQ(firstOfType(row, "Text").frame.maxX(), 375 - 24 - 16);
}

// A heading of two words that has room for one.
TEST(ComparisonColumnCapsule, KeepsItsLinesApart) {
    for (const double lineSpacing : {2.0, 8.0}) {
        Screen screen(ComparisonColumnCapsule{.heading = "FREE FREE",
                                              .fill = graphics::Color::black,
                                              .textColor = graphics::Color::white,
                                              .lineSpacing = lineSpacing},
                      Size{24 + 4 * 6, 200});
        const auto text = firstOfType(screen.tree(), "Text");

        EXPECT_EQ(text.text->lineCount, 2);
        EXPECT_EQ(text.frame.height(), 2 * 15 + lineSpacing);
        EXPECT_EQ(screen.frameOfType("ComparisonColumnCapsule").height(), 2 * 15 + lineSpacing + 2 * 7);
    }
}

// So narrow that both headings are broken. The two distances are different on purpose.
TEST(ComparisonView, KeepsTheLinesOfTheFreeHeadingFurtherApart) {
    Screen screen(ComparisonView{}, Size{110, 800});
    const auto capsules = allOfType(screen.tree(), "ComparisonColumnCapsule");
    const auto free = firstOfType(capsules.at(0), "Text"), pro = firstOfType(capsules.at(1), "Text");

    ASSERT_GE(free.text->lineCount, 2);
    ASSERT_GE(pro.text->lineCount, 2);
    EXPECT_EQ(free.frame.height(), free.text->lineCount * 15 + (free.text->lineCount - 1) * 8);
    EXPECT_EQ(pro.frame.height(), pro.text->lineCount * 15 + (pro.text->lineCount - 1) * 2);
}

} // namespace
} // namespace proupsells::tests

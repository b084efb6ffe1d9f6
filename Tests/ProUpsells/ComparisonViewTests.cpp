#include "ProUpsells/ComparisonView.hpp"

#include <gmock/gmock.h>

#include "ProUpsells/ScaledRect.hpp"
#include "Tests/ProUpsells/FixedMetrics.hpp"
#include "Tests/ProUpsells/Screen.hpp"

namespace proupsells::tests {
namespace {

using geometry::Point;
using geometry::Rect;
using geometry::Size;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

const std::string assets = "Content And Assets", tools = "Creation Tools", growth = "Business Growth Tools",
                  automation = "Automation (AI Features)";

std::string identifier(const std::string& category) { return "comparison.category." + category; }

class Comparison : public Screen {
public:
    explicit Comparison(Size size = {375, 800}, ScreenOptions options = {}) : Screen(ComparisonView{}, size, options) {}
    Comparison(ComparisonView view, Size size) : Screen(std::move(view), size) {}

    bool isOpen(const std::string& category) const { return !allOfType(find(identifier(category)), "FeatureChildRow").empty(); }
    void toggle(const std::string& category) {
        const Rect frame = this->frame(identifier(category));
        tap(Point{frame.midX(), frame.minY() + 10});
    }
    double chevronAngle(const std::string& category) const {
        const auto images = allOfType(firstOfType(find(identifier(category)), "FeatureCategoryHeader"), "Image");
        return images.front().rotation_degrees.value_or(0);
    }
    // Drags the list by `dy` points and waits until it rests.
    void drag(double dy) {
        const double start_s = bed().now_s();
        const double from = dy < 0 ? 380 : 90;
        touch(host::TouchPhase::began, {180, from});
        for (int step = 1; step <= 20; ++step) {
            runUntil(start_s + step * 0.05);
            touch(host::TouchPhase::moved, {180, from + dy * step / 20});
        }
        // A finger that rests before it lifts throws nothing.
        runUntil(start_s + 1.5);
        touch(host::TouchPhase::ended, {180, from + dy});
        runUntil(start_s + 3);
    }
};

// Of the rows' fade and clip while a category opens or closes.
struct Reveal {
    double opacity = 1;
    std::optional<double> clipHeight;
    double fullHeight = 0;
};

Reveal reveal(const Comparison& comparison, const std::string& category) {
    const auto rows = allOfType(comparison.find(identifier(category)), "FeatureChildRow");
    if (rows.empty()) return {.opacity = 0};
    const auto stack =
        allWhere(comparison.find(identifier(category)), [](const accessibility::SemanticNode& node) {
            return node.type == "VStack" && !node.children.empty() && node.children.front().type == "FeatureChildRow";
        }).front();
    return {.opacity = stack.opacity,
            .clipHeight = stack.clip ? std::optional(stack.clip->height()) : std::nullopt,
            .fullHeight = stack.frame.height() + 27};
}

TEST(ComparisonView, OpensTheFirstCategoryOnly) {
    Comparison comparison;

    EXPECT_TRUE(comparison.isOpen(assets));
    for (const std::string& category : {tools, growth, automation}) EXPECT_FALSE(comparison.isOpen(category)) << category;
}

TEST(ComparisonView, TogglesTheTappedCategoryAlone) {
    Comparison comparison({375, 1400});

    comparison.toggle(tools);
    comparison.runUntil(1);
    EXPECT_TRUE(comparison.isOpen(assets));
    EXPECT_TRUE(comparison.isOpen(tools));
    comparison.toggle(assets);
    comparison.runUntil(2);
    EXPECT_FALSE(comparison.isOpen(assets));
    EXPECT_TRUE(comparison.isOpen(tools));
    comparison.toggle(assets);
    comparison.runUntil(3);
    EXPECT_TRUE(comparison.isOpen(assets));
}

TEST(ComparisonView, TogglesByATapOnARow) {
    Comparison comparison({375, 1400});
    comparison.tap(firstOfType(comparison.tree(), "FeatureChildRow").frame.center());
    comparison.runUntil(1);

    EXPECT_FALSE(comparison.isOpen(assets));
}

TEST(ComparisonView, RevealsTheRowsFromTheTopWhileTheyFadeIn) {
    Comparison comparison({375, 1400});
    comparison.toggle(tools);

    for (const double share : {0.0, 0.25, 0.5, 0.75}) {
        comparison.runUntil(0.35 * share);
        const double expected = motion::TimingCurve::easeInOut().valueAt(share);
        const Reveal now = reveal(comparison, tools);
        EXPECT_NEAR(now.opacity, expected, 1e-9) << share;
        ASSERT_TRUE(now.clipHeight.has_value()) << share;
        EXPECT_NEAR(*now.clipHeight, expected * now.fullHeight, 1e-6) << share;
        EXPECT_NEAR(comparison.chevronAngle(tools), 90 - 180 * expected, 1e-6) << share;
    }
    comparison.runUntil(0.35);
    EXPECT_EQ(reveal(comparison, tools).opacity, 1);
    EXPECT_EQ(comparison.chevronAngle(tools), -90);
}

TEST(ComparisonView, HidesTheRowsTheSameWayAndTakesThemAwayAtTheEnd) {
    Comparison comparison({375, 1400});
    comparison.toggle(assets);

    for (const double share : {0.25, 0.5, 0.75}) {
        comparison.runUntil(0.35 * share);
        const double left = 1 - motion::TimingCurve::easeInOut().valueAt(share);
        const Reveal now = reveal(comparison, assets);
        EXPECT_NEAR(now.opacity, left, 1e-9) << share;
        ASSERT_TRUE(now.clipHeight.has_value()) << share;
        EXPECT_NEAR(*now.clipHeight, left * now.fullHeight, 1e-6) << share;
    }
    comparison.runUntil(0.36);
    EXPECT_FALSE(comparison.isOpen(assets));
    EXPECT_EQ(comparison.chevronAngle(assets), 90);
}

TEST(ComparisonView, TurnsBackHalfWayWhenItIsTappedAgain) {
    Comparison comparison({375, 1400});
    comparison.toggle(tools);
    comparison.runUntil(0.175);
    const double before = reveal(comparison, tools).opacity;
    comparison.toggle(tools);

    EXPECT_NEAR(reveal(comparison, tools).opacity, before, 1e-6);
    comparison.runUntil(0.175 + 0.1);
    EXPECT_LT(reveal(comparison, tools).opacity, before);
    comparison.runUntil(1);
    EXPECT_FALSE(comparison.isOpen(tools));
}

TEST(ComparisonView, ForgetsAToggleWhenTheCategoryScrollsOffAndComesBack) {
    Comparison comparison({375, 500});
    // Open everything below, so that there is a long way to scroll.
    comparison.toggle(assets);
    comparison.runUntil(1);
    comparison.toggle(tools);
    comparison.runUntil(2);
    ASSERT_FALSE(comparison.isOpen(assets));

    comparison.drag(-300);
    ASSERT_FALSE(comparison.find(identifier(assets)).isOnScreen);
    comparison.drag(300);

    EXPECT_TRUE(comparison.isOpen(assets));
}

TEST(ComparisonView, KeepsTheToggleOfACategoryThatNeverLeftTheScreen) {
    Comparison comparison({375, 500});
    comparison.toggle(assets);
    comparison.runUntil(1);

    comparison.drag(-10);
    comparison.drag(10);

    EXPECT_FALSE(comparison.isOpen(assets));
}

TEST(ComparisonView, ShowsOneCheckForProAndTheLimitWithACheck) {
    Comparison comparison({375, 1400});
    comparison.toggle(tools);
    comparison.runUntil(1);
    const auto row = [&](const std::string& name) {
        return allWhere(comparison.tree(),
                        [&](const accessibility::SemanticNode& node) {
                            return node.type == "FeatureChildRow" && texts(node).front() == name;
                        })
            .front();
    };

    EXPECT_EQ(allOfType(row("Unlimited Stock Images"), "CheckIcon").size(), 2u);
    EXPECT_EQ(allOfType(row("Premium Templates"), "CheckIcon").size(), 1u);
    EXPECT_EQ(allOfType(row("Remove Background"), "CheckIcon").size(), 1u);
    EXPECT_THAT(texts(row("Remove Background")), ElementsAre("Remove Background", "3 free"));
    // The Pro column's marks stand above each other, 14 from the row's end.
    EXPECT_EQ(allOfType(row("Premium Templates"), "Image").back().frame.maxX(), 375 - 24 - 14);
    EXPECT_EQ(allOfType(row("Remove Background"), "Image").back().frame.maxX(), 375 - 24 - 14);
}

TEST(ComparisonView, StacksHeaderListAndBottomBar) {
    Comparison comparison;
    const auto tree = comparison.tree();
    const auto capsules = allOfType(tree, "ComparisonColumnCapsule");
    ASSERT_EQ(capsules.size(), 2u);

    // "FREE" and "PRO" of 12 points, padded 12 and 7.
    EXPECT_EQ(capsules[0].frame.size, (Size{4 * 6 + 24, 15 + 14}));
    EXPECT_EQ(capsules[1].frame.size, (Size{3 * 6 + 24, 15 + 14}));
    EXPECT_EQ(capsules[1].frame.maxX(), 375 - 24);
    EXPECT_EQ(capsules[1].frame.minX() - capsules[0].frame.maxX(), 16);
    const auto title = allWhere(tree, [](const auto& node) { return node.text && node.text->text == "Compare Plans"; }).front();
    EXPECT_EQ(title.frame.minX(), 24);
    EXPECT_EQ(title.frame.maxY(), capsules[0].frame.maxY());
    const auto list = firstOfType(tree, "ScrollView").frame;
    EXPECT_EQ(list.minY(), title.frame.maxY() + 42);
    EXPECT_EQ(comparison.frame(identifier(assets)).minX(), 24);
    EXPECT_EQ(comparison.frame(identifier(assets)).width(), 375 - 48);
    // 20 of padding where the window has no unsafe bottom, 80 of bar.
    EXPECT_EQ(list.maxY(), 800 - 20 - 80);
    EXPECT_EQ(comparison.frame("comparison.choosePlan"), (Rect{{16, 800 - 20 - 64}, {343, 64}}));
}

TEST(ComparisonView, ScrollsItsHeaderWhereTheScreenIsLow) {
    const auto topOfList = [](double height) { return firstOfType(Comparison({375, height}).tree(), "ScrollView").frame.minY(); };

    EXPECT_EQ(topOfList(259), 0);
    EXPECT_GT(topOfList(260), 42);
}

TEST(ComparisonView, HasAButtonAsHighAsThePaywallsAtItsBarsBottom) {
    Screen screen(ComparisonView{}, Size{375, 800});

    const auto button = screen.find("comparison.choosePlan");
    EXPECT_EQ(button.frame, (Rect{{16, 716}, {343, 64}}));
    EXPECT_EQ(firstOfType(button, "Capsule").frame, (Rect{{16, 724}, {343, 56}}));
}

TEST(ComparisonView, HasNoPaddingWhereTheBottomIsUnsafe) {
    Comparison comparison({375, 800}, {.safeArea = {0, 0, 34, 0}});

    EXPECT_EQ(comparison.frame("comparison.choosePlan").maxY(), 800 - 34);
}

TEST(ComparisonView, PlacesACategorysPartsWithoutGaps) {
    Comparison comparison({375, 1400});
    const auto category = comparison.find(identifier(assets));
    const auto header = firstOfType(category, "FeatureCategoryHeader").frame;
    const auto line = firstOfType(category, "Rectangle").frame;
    const auto rows = allOfType(category, "FeatureChildRow");

    EXPECT_EQ(header.minY(), category.frame.minY());
    EXPECT_EQ(header.height(), 13 * 1.25);
    EXPECT_EQ(line.minY(), header.maxY() + 18);
    EXPECT_EQ(line.height(), 1);
    ASSERT_EQ(rows.size(), 7u);
    EXPECT_NEAR(rows[0].frame.minY(), line.maxY() + 18, 1e-9);
    // One line of 15 points between two paddings of 12.8.
    for (std::size_t index = 0; index < rows.size(); ++index) {
        EXPECT_NEAR(rows[index].frame.height(), 15 * 1.25 + 2 * 12.8, 1e-9);
        if (index > 0) {
            EXPECT_NEAR(rows[index].frame.minY(), rows[index - 1].frame.maxY() + 9, 1e-9);
        }
    }
    EXPECT_NEAR(category.frame.maxY(), rows.back().frame.maxY() + 27, 1e-9);
    EXPECT_NEAR(comparison.frame(identifier(tools)).minY(), category.frame.maxY(), 1e-9);
    EXPECT_NEAR(comparison.frame(identifier(tools)).height(), 13 * 1.25 + 18 + 1 + 18, 1e-9);
}

TEST(ComparisonView, TakesSmallCapsulesForLongHeadings) {
    Comparison comparison({.requiresSmallCapsule = true}, {375, 800});
    const auto capsules = allOfType(comparison.tree(), "ComparisonColumnCapsule");

    EXPECT_EQ(capsules[0].frame.size, (Size{4 * 5.5 + 18, 11 * 1.25 + 8}));
    EXPECT_EQ(capsules[1].frame.size, (Size{3 * 5.5 + 18, 11 * 1.25 + 8}));
    for (const auto& capsule : capsules) {
        const Rect text = firstOfType(capsule, "Text").frame, plate = firstOfType(capsule, "Capsule").frame;
        EXPECT_EQ(plate, (Rect{{text.minX() - 9, text.minY() - 4}, {text.width() + 18, text.height() + 8}}));
    }
    EXPECT_EQ(firstOfType(capsules[1], "Text").text->size, 11);
    EXPECT_EQ(firstOfType(capsules[1], "Text").text->font, "Quenby-Semibold");
}

TEST(ComparisonView, ColoursItsCapsules) {
    Comparison comparison;
    const auto capsules = allOfType(comparison.tree(), "ComparisonColumnCapsule");

    EXPECT_EQ(firstOfType(capsules[0], "Capsule").shape->fill, "ValidationColor.neutralSubdued");
    EXPECT_EQ(firstOfType(capsules[0], "Text").text->color, "ValidationColor.neutralImportant");
    EXPECT_EQ(firstOfType(capsules[1], "Capsule").shape->fill, "BackgroundColor.level4");
    EXPECT_EQ(firstOfType(capsules[1], "Text").text->color, "ContentColor.inverse");
}

TEST(ComparisonView, CastsItsBarsShadowUpAndToTheRight) {
    Comparison comparison;
    graphics::DisplayList list;
    comparison.window().paint(list);
    std::vector<graphics::Command> shadows;
    for (const auto& command : list.commands)
        if (command.kind == graphics::CommandKind::shadow && command.color.red == 0) shadows.push_back(command);

    ASSERT_EQ(shadows.size(), 1u);
    EXPECT_EQ(shadows[0].blurRadius, 10);
    EXPECT_EQ(shadows[0].frame, (Rect{{4, 800 - 20 - 80 - 10}, {375, 80}}));
    const double alpha = shadows[0].color.alpha / 255.0 * shadows[0].opacity;
    EXPECT_NEAR(alpha, 0.1, 0.003);
}

TEST(ComparisonView, DissolvesWhatFoldsUpAboveAHeadingInThePagesColour) {
    Comparison comparison;
    graphics::DisplayList list;
    comparison.window().paint(list);
    const auto heading = allOfType(comparison.tree(), "FeatureCategoryHeader").at(1).frame;

    const auto shadow = std::find_if(list.commands.begin(), list.commands.end(), [&](const graphics::Command& command) {
        return command.kind == graphics::CommandKind::shadow && command.frame == heading.offsetBy({0, -10});
    });

    ASSERT_NE(shadow, list.commands.end());
    EXPECT_EQ(shadow->color, graphics::rgb(0xFFFFFF));
    EXPECT_EQ(shadow->blurRadius, 3);
    EXPECT_EQ(shadow->opacity, 1);
}

TEST(ComparisonView, CallsItsHandler) {
    int calls = 0;
    Comparison comparison({.chooseYourPlanHandler = [&] { ++calls; }}, {375, 800});

    comparison.tap("comparison.choosePlan");

    EXPECT_EQ(calls, 1);
}

TEST(ComparisonView, PaintsOnlyWhatCanBeSeenOfALongCatalogue) {
    FeatureCategory category{.name = "Long", .expanded = true, .items = {}};
    for (int index = 0; index < 2000; ++index)
        category.items.push_back({"feature " + std::to_string(index), {Feature::DistributionType::Pro{}}});
    Comparison comparison({.items = std::make_shared<const std::vector<FeatureCategory>>(1, category)}, {375, 800});
    ASSERT_EQ(allOfType(comparison.tree(), "FeatureChildRow").size(), 2000u);

    graphics::DisplayList list;
    comparison.window().paint(list);

    EXPECT_LT(list.commands.size(), 100u);
}

TEST(ComparisonView, CutsNoTextAndBreaksNoWordAtAnyTextSize) {
    for (int category = 0; category < graphics::contentSizeCategoryCount; ++category) {
        ScreenOptions options;
        options.traits.preferredContentSizeCategory = graphics::ContentSizeCategory(category);
        for (const double width : {320.0, 375.0}) {
            Comparison comparison({width, 1800}, options);
            for (const std::string& name : {tools, growth, automation}) comparison.toggle(name);
            comparison.runUntil(1);
            ASSERT_TRUE(comparison.isOpen(tools));
            visit(comparison.tree(), [&](const accessibility::SemanticNode& node) {
                if (!node.text) return;
                EXPECT_FALSE(node.text->isTruncated) << node.text->text << " at " << category << ", " << width;
                EXPECT_THAT(brokenWords(node), IsEmpty()) << " at " << category << ", " << width;
            });
        }
    }
}

TEST(ScaledRect, KeepsAShareOfTheHeight) {
    const Rect rect{{10, 20}, {100, 50}};

    EXPECT_EQ(ScaledRect{0}.path(rect).bounds(), (Rect{{10, 20}, {100, 0}}));
    EXPECT_EQ(ScaledRect{0.5}.path(rect).bounds(), (Rect{{10, 20}, {100, 25}}));
    EXPECT_EQ(ScaledRect{1}.path(rect).bounds(), rect);
    EXPECT_EQ(swiftui::Shape(ScaledRect{0.5}).path(rect).bounds(), (Rect{{10, 20}, {100, 25}}));
    EXPECT_EQ(swiftui::Shape(ScaledRect{0.5}).typeName(), "ScaledRect");
}

} // namespace
} // namespace proupsells::tests

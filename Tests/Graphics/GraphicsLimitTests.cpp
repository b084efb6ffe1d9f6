// What is still painted, compared or accepted, and what just is not.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Platform/Graphics/Contrast.hpp"
#include "Platform/Graphics/PaintContext.hpp"
#include "Platform/Graphics/PictureHeader.hpp"
#include "Platform/Graphics/ScrollIndicator.hpp"
#include "Platform/Graphics/TextPainting.hpp"
#include "Tests/Graphics/ShapedTexts.hpp"
#include "Tests/Support/PrintGeometry.hpp"

namespace proupsells::graphics {
namespace {

using geometry::CornerStyle;
using geometry::Rect;
using ::testing::ElementsAre;
using ::testing::UnorderedElementsAre;

constexpr RGBA grey{10, 20, 30}, clear{10, 20, 30, 0};
constexpr Rect square{{0, 0}, {10, 10}}, flat{{0, 0}, {10, 0}}, negative{{0, 0}, {-1, 10}};

ImageRef imageNamed(std::string name, RenderingMode mode = RenderingMode::original) {
    auto image = std::make_shared<Image>();
    image->name = std::move(name);
    image->size = {4, 4};
    image->renderingMode = mode;
    return image;
}

// How many commands painting leaves.
template <class Paint>
std::size_t commandsOf(const Paint& paint) {
    DisplayList list;
    PaintContext context(list);
    paint(context);
    return list.commands.size();
}

struct Filled {
    Rect rect;
    RGBA color;
    std::size_t count; // of commands
};

TEST(Painting, LeavesNothingOfWhatHasNoAreaOrNoColour) {
    for (const Filled& filled :
         {Filled{square, grey, 1}, Filled{square, clear, 0}, Filled{flat, grey, 0}, Filled{negative, grey, 0}}) {
        const Rect& rect = filled.rect;
        const RGBA color = filled.color;
        const std::size_t count = filled.count;
        EXPECT_EQ(commandsOf([&](PaintContext& context) { context.fillRectangle({}, rect, color); }), count);
        EXPECT_EQ(commandsOf([&](PaintContext& context) { context.fillEllipse({}, rect, color); }), count);
        EXPECT_EQ(commandsOf([&](PaintContext& context) { context.shadow({}, rect, 3, {}, color); }), count);
        EXPECT_EQ(
            commandsOf([&](PaintContext& context) { context.fillRoundedRectangle({}, rect, 2, CornerStyle::circular, color); }),
            count);
        EXPECT_EQ(commandsOf([&](PaintContext& context) { context.fillPath({}, geometry::Path::rectangle(rect), color); }),
                  rect == negative && color == grey ? 1u : count);
    }
    const RGBA faint{10, 20, 30, 1};
    EXPECT_EQ(commandsOf([&](PaintContext& context) { context.fillRectangle({}, square, faint); }), 1u);
    EXPECT_EQ(commandsOf([&](PaintContext& context) { context.fillEllipse({}, square, faint); }), 1u);
}

struct Stroked {
    Rect rect;
    double width;
    RGBA color;
    std::size_t count; // of commands
};

TEST(Painting, StrokesFlatFramesButNoneWithoutALength) {
    for (const Stroked& stroked : {Stroked{square, 1, grey, 1}, Stroked{square, 0.1, grey, 1}, Stroked{square, 0, grey, 0},
                                   Stroked{square, 1, clear, 0}, Stroked{flat, 1, grey, 1}, Stroked{negative, 1, grey, 0},
                                   Stroked{{{0, 0}, {0, 10}}, 1, grey, 1}, Stroked{{{0, 0}, {10, -1}}, 1, grey, 0}}) {
        EXPECT_EQ(commandsOf([&](PaintContext& context) {
                      context.strokeRoundedRectangle({}, stroked.rect, 2, CornerStyle::circular, stroked.width, stroked.color);
                  }),
                  stroked.count);
        EXPECT_EQ(commandsOf([&](PaintContext& context) { context.strokeEllipse({}, stroked.rect, stroked.width, stroked.color); }),
                  stroked.count);
    }
    EXPECT_EQ(commandsOf([](PaintContext& context) { context.strokePath({}, geometry::Path{}, 1, grey); }), 0u);
    EXPECT_EQ(commandsOf([](PaintContext& context) { context.strokePath({}, geometry::Path::rectangle(square), 0, grey); }), 0u);
    EXPECT_EQ(commandsOf([](PaintContext& context) { context.strokePath({}, geometry::Path::rectangle(square), 1, clear); }), 0u);
    EXPECT_EQ(commandsOf([](PaintContext& context) { context.strokePath({}, geometry::Path::rectangle(flat), 1, grey); }), 1u);
}

TEST(Painting, PaintsNoImageThatIsNotThereNorOneInAClearTint) {
    const auto painted = [](const ImageRef& image, const Rect& rect, RGBA tint) {
        return commandsOf([&](PaintContext& context) { context.image({}, rect, image, tint); });
    };
    EXPECT_EQ(painted(nullptr, square, grey), 0u);
    EXPECT_EQ(painted(imageNamed("a"), flat, grey), 0u);
    EXPECT_EQ(painted(imageNamed("a"), square, clear), 1u);
    EXPECT_EQ(painted(imageNamed("a", RenderingMode::tinted), square, clear), 0u);
    EXPECT_EQ(painted(imageNamed("a", RenderingMode::tinted), square, {1, 2, 3, 1}), 1u);
    const auto bitmap = std::make_shared<Bitmap>();
    EXPECT_EQ(commandsOf([&](PaintContext& context) { context.bitmap({}, square, bitmap); }), 1u);
    EXPECT_EQ(commandsOf([&](PaintContext& context) { context.bitmap({}, flat, bitmap); }), 0u);
    EXPECT_EQ(commandsOf([&](PaintContext& context) { context.bitmap({}, square, nullptr); }), 0u);
}

TEST(Painting, PaintsTextsThatHaveClusters) {
    const auto text = shaped("abc");
    const auto painted = [&](const ShapedTextPointer& what, std::uint32_t first, std::uint32_t end, RGBA color) {
        return commandsOf([&](PaintContext& context) { context.text({}, {0, 10}, square, what, first, end, color); });
    };
    EXPECT_EQ(painted(text, 0, 3, grey), 1u);
    EXPECT_EQ(painted(text, 2, 3, grey), 1u);
    EXPECT_EQ(painted(text, 3, 3, grey), 0u);
    EXPECT_EQ(painted(text, 0, 3, clear), 0u);
    EXPECT_EQ(painted(nullptr, 0, 3, grey), 0u);
}

TEST(Painting, KeepsWhatASoftShadowNeeds) {
    DisplayList list;
    PaintContext context(list);

    context.shadow({}, {{10, 10}, {20, 20}}, 4, {3, -2}, grey);
    context.shadow({}, {{10, 10}, {20, 20}}, -4, {}, grey);
    context.strokeRoundedRectangle({}, {{10, 10}, {20, 20}}, -2, CornerStyle::continuous, 4, grey);

    ASSERT_EQ(list.commands.size(), 3u);
    EXPECT_EQ(list.commands[0].frame, (Rect{{13, 8}, {20, 20}}));
    EXPECT_EQ(list.commands[0].bounds, (Rect{{5, 0}, {36, 36}}));
    EXPECT_EQ(list.commands[0].blurRadius, 4);
    EXPECT_EQ(list.commands[1].blurRadius, 0);
    EXPECT_EQ(list.commands[1].bounds, list.commands[1].frame);
    EXPECT_EQ(list.commands[2].cornerRadius, 0);
    EXPECT_EQ(list.commands[2].cornerStyle, CornerStyle::continuous);
    EXPECT_EQ(list.commands[2].bounds, (Rect{{8, 8}, {24, 24}}));
}

// --- Damage ---

DisplayList rectangles(const std::vector<Rect>& rects) {
    DisplayList list;
    PaintContext context(list);
    for (const Rect& rect : rects) context.fillRectangle({}, rect, grey);
    return list;
}

std::vector<Rect> damageOf(const std::vector<Rect>& before, const std::vector<Rect>& after) {
    std::vector<Rect> result;
    findDamage(rectangles(before), rectangles(after), result);
    return result;
}

TEST(DamageRectangles, AreEightAtMostOfWhichTheNearestTwoAreJoined) {
    std::vector<Rect> changed;
    for (int i = 0; i < 8; ++i) changed.push_back({{100.0 * i, 0}, {10, 10}});
    EXPECT_EQ(damageOf({}, changed).size(), 8u);

    changed.push_back({{315, 0}, {10, 10}});
    const std::vector<Rect> joined = damageOf({}, changed);

    EXPECT_EQ(joined.size(), 8u);
    EXPECT_THAT(joined, testing::Contains(Rect{{300, 0}, {25, 10}}));
}

TEST(DamageRectangles, AreJoinedByTheLeastThatIsPaintedNeedlessly) {
    // Two that stand in one column waste less than two small ones that stand nearer, but askew.
    std::vector<Rect> changed{{{0, 0}, {100, 10}}, {{0, 12}, {100, 10}}, {{300, 300}, {10, 10}}, {{315, 315}, {10, 10}}};
    for (int i = 0; i < 5; ++i) changed.push_back({{1000.0 * (i + 1), 1000.0 * (i + 1)}, {10, 10}});

    EXPECT_THAT(damageOf({}, changed), testing::Contains(Rect{{0, 0}, {100, 22}}));
}

TEST(DamageRectangles, ThatOverlapAfterTheyHaveGrownAreJoinedToo) {
    EXPECT_THAT(damageOf({}, {{{0, 0}, {10, 10}}, {{20, 0}, {10, 10}}, {{5, 5}, {20, 2}}}), ElementsAre(Rect{{0, 0}, {30, 10}}));
    EXPECT_THAT(damageOf({}, {{{0, 0}, {10, 10}}, {{10, 0}, {10, 10}}}),
                UnorderedElementsAre(Rect{{0, 0}, {10, 10}}, Rect{{10, 0}, {10, 10}}));
}

TEST(DamageRectangles, OfAComparisonKnowNothingOfTheOneBefore) {
    const Rect a{{0, 0}, {1, 1}}, b{{10, 0}, {1, 1}}, c{{20, 0}, {1, 1}}, d{{30, 0}, {1, 1}};
    EXPECT_THAT(damageOf({a, b, c}, {c, b, d}), UnorderedElementsAre(a, b, d));

    EXPECT_THAT(damageOf({a}, {a, d}), ElementsAre(d));
    EXPECT_THAT(damageOf({}, {b, c}), UnorderedElementsAre(b, c));
    EXPECT_THAT(damageOf({b, c}, {}), UnorderedElementsAre(b, c));
}

TEST(SameImage, IsOneOfTheSameNameSizeModeAndFiles) {
    const auto listOf = [](ImageRef image) {
        DisplayList list;
        Command command;
        command.kind = CommandKind::image;
        command.resource = list.addImage(image);
        list.commands.push_back(command);
        return list;
    };
    const auto isSame = [&](const ImageRef& a, const ImageRef& b) {
        const DisplayList first = listOf(a), second = listOf(b);
        return paintsTheSame(first, first.commands[0], second, second.commands[0]);
    };
    const auto with = [](auto change) {
        auto image = std::make_shared<Image>();
        image->name = "a";
        image->size = {4, 4};
        change(*image);
        return ImageRef(image);
    };
    const ImageRef image = with([](Image&) {});
    EXPECT_TRUE(isSame(image, with([](Image&) {})));
    EXPECT_TRUE(isSame(nullptr, nullptr));
    EXPECT_FALSE(isSame(image, nullptr));
    EXPECT_FALSE(isSame(nullptr, image));
    EXPECT_FALSE(isSame(image, with([](Image& other) { other.name = "b"; })));
    EXPECT_FALSE(isSame(image, with([](Image& other) { other.size = {4, 5}; })));
    EXPECT_FALSE(isSame(image, with([](Image& other) { other.renderingMode = RenderingMode::tinted; })));
    EXPECT_FALSE(isSame(image, with([](Image& other) { other.file = "b.pict"; })));
    EXPECT_FALSE(isSame(image, with([](Image& other) { other.darkFile = "b.pict"; })));
}

TEST(SameResource, IsMissingInBothOrInNeither) {
    DisplayList with, without;
    Command command;
    command.kind = CommandKind::fillPath;
    with.addPath(geometry::Path::rectangle(square), {});
    command.resource = 0;
    Command missing = command;
    missing.resource = -1;

    EXPECT_TRUE(paintsTheSame(with, command, with, command));
    EXPECT_FALSE(paintsTheSame(with, command, without, command));
    EXPECT_FALSE(paintsTheSame(without, command, with, command));
    EXPECT_TRUE(paintsTheSame(without, command, with, missing));
    EXPECT_TRUE(paintsTheSame(with, missing, without, missing));
}

// --- Contrast ---

TEST(Contrast, WeighsTheComponentsAsTheEyeDoes) {
    constexpr RGBA white = rgb(0xFFFFFF), black = rgb(0x000000);
    EXPECT_NEAR(contrast(rgb(0xFF0000), white), 3.998, 1e-3);
    EXPECT_NEAR(contrast(rgb(0x00FF00), white), 1.372, 1e-3);
    EXPECT_NEAR(contrast(rgb(0x0000FF), white), 8.592, 1e-3);
    // Dark components count by their value.
    EXPECT_NEAR(contrast(rgb(0x0A0A0A), black), 1.0607, 1e-4);
    EXPECT_NEAR(contrast(rgb(0x0B0B0B), black), 1.0669, 1e-4);
    EXPECT_NEAR(contrast(rgb(0x404040), black), 2.025, 1e-3);
}

// --- Pictures ---

TEST(PictureHeaderLimits, TakeTheLargestAndTheSmallestThatMakeSense) {
    PictureHeader header{{10, 20}, {{1, 1, 100, 1}}};
    const auto isRead = [&](std::uint64_t fileSize) { return PictureHeader::parse(header.bytes(), fileSize).has_value(); };
    EXPECT_TRUE(isRead(101));
    EXPECT_FALSE(isRead(100));
    header.variants[0].width_px = PictureHeader::maximumLength_px;
    EXPECT_TRUE(isRead(101));
    header.variants[0].width_px = PictureHeader::maximumLength_px + 1;
    EXPECT_FALSE(isRead(101));
    header.variants[0] = {1, 0, 100, 1};
    EXPECT_FALSE(isRead(101));
    header.variants[0] = {1, 1, 100, 0};
    EXPECT_FALSE(isRead(101));
    header.variants.assign(PictureHeader::maximumSizeCount, {1, 1, 0, 1});
    EXPECT_TRUE(isRead(101));
    header.variants.push_back({1, 1, 0, 1});
    EXPECT_FALSE(isRead(101));
    header = {{0, 20}, {{1, 1, 100, 1}}};
    EXPECT_FALSE(isRead(101));
    header = {{10, 0}, {{1, 1, 100, 1}}};
    EXPECT_FALSE(isRead(101));
    header = {{10.25, 0.001}, {{1, 1, 100, 1}}};
    ASSERT_TRUE(isRead(101));
    EXPECT_EQ(PictureHeader::parse(header.bytes(), 101)->naturalSize, (geometry::Size{10.25, 0.001}));
}

// --- The scroll indicator ---

TEST(ScrollIndicatorLimits, HasNoBarWhereNothingIsToBeScrolledOrNoRoomIsLeft) {
    EXPECT_EQ(ScrollIndicator::bar({.viewport = {{0, 0}, {300, 400}}, .contentLength = 400}), Rect{});
    EXPECT_NE(ScrollIndicator::bar({.viewport = {{0, 0}, {300, 400}}, .contentLength = 401}), Rect{});
    EXPECT_EQ(ScrollIndicator::bar({.viewport = {{0, 0}, {300, 6}}, .contentLength = 400}), Rect{});
    EXPECT_EQ(ScrollIndicator::bar({.viewport = {{0, 0}, {300, 7}}, .contentLength = 400}).height(), 1);
}

TEST(ScrollIndicatorLimits, ShrinksToEightPointsWhenPulled) {
    ScrollIndicator::Track track{.viewport = {{0, 0}, {300, 400}}, .contentLength = 1600, .offset = -30};
    EXPECT_EQ(ScrollIndicator::bar(track), (Rect{{294, 3}, {3, 394 / 4.0 - 30}}));
    track.offset = -95;
    EXPECT_EQ(ScrollIndicator::bar(track).height(), 8);
    track.offset = 1295;
    EXPECT_EQ(ScrollIndicator::bar(track), (Rect{{294, 389}, {3, 8}}));
    track.offset = 600;
    EXPECT_EQ(ScrollIndicator::bar(track).midY(), 200);
}

TEST(ScrollIndicatorLimits, PaintsNothingOnceItHasFaded) {
    ScrollIndicator indicator;
    indicator.show(1);
    const auto painted = [&](double now_s, double contentLength) {
        return commandsOf([&](PaintContext& context) {
            indicator.paint(context, {}, {.viewport = {{0, 0}, {300, 400}}, .contentLength = contentLength}, now_s);
        });
    };
    EXPECT_EQ(painted(1.69, 1600), 1u);
    EXPECT_EQ(painted(1.71, 1600), 0u);
    EXPECT_EQ(painted(1, 400), 0u);
}

// --- Texts ---

TEST(ShortLastLine, IsOneOfLessThanAThirdOfTheWidestLineWithOneWord) {
    const auto lines = [](const std::string& text, double width) {
        ShapedText words = *shaped(text);
        words.keepsGreedyLines = false;
        return linesOf(words, laidOut(words, {.width = width, .avoidsShortLastLine = true}));
    };
    // Nine characters of 5 points; a word of three is a third of the widest line, and one of two is less.
    EXPECT_THAT(lines("abcd efgh ijk", 45), ElementsAre("abcd efgh", "ijk"));
    EXPECT_THAT(lines("abcd efgh ij", 45), ElementsAre("abcd", "efgh ij"));
    EXPECT_THAT(lines("abcd efgh i j", 45), ElementsAre("abcd efgh", "i j"));
}

TEST(StruckThroughText, IsCrossedBetweenItsBaselineAndItsCapitalsTop) {
    DisplayList list;
    PaintContext context(list);
    const auto text = shaped({styled("abc", 16), styled("de", 32)});
    const std::vector<TextRunPaint> paints{{grey, true}, {grey, true}};

    paintTextLayout(context, {}, laidOut(*text, {}), text, nullptr, {{0, 0}, {200, 40}}, TextAlignment::leading, paints);

    std::vector<Rect> lines;
    for (const Command& command : list.commands)
        if (command.kind == CommandKind::fillRectangle) lines.push_back(command.frame);
    // Letters of 16 points rise by 12.8 above the baseline, which is at 25.6.
    const double rise = text->metrics[0].ascent, baseline = text->metrics[1].ascent;
    EXPECT_THAT(lines,
                ElementsAre(Rect{{0, baseline - 0.3 * rise - 0.5}, {24, 1}}, Rect{{24, baseline - 0.3 * baseline - 1}, {32, 2}}));
}

TEST(LinesOutOfSight, AreLeftOutButNotThoseWhoseLettersReachIn) {
    const auto text = shaped("a\nb\nc\nd\ne\nf\ng\nh");
    const auto painted = [&](const Rect& seen) {
        DisplayList list;
        PaintContext context(list);
        paintTextLayout(context, PaintState{}.clippedTo(seen), laidOut(*text, {}), text, nullptr, {{0, 0}, {50, 100}},
                        TextAlignment::leading, std::vector<TextRunPaint>{{grey}});
        std::vector<double> tops;
        for (const Command& command : list.commands) tops.push_back(command.frame.minY() - 10);
        return tops;
    };
    // Lines are 12.5 high; letters reach out of them by a fifth of that.
    EXPECT_THAT(painted({{0, 28}, {50, 5}}), ElementsAre(25));
    EXPECT_THAT(painted({{0, 26}, {50, 5}}), ElementsAre(12.5, 25));
    EXPECT_THAT(painted({{0, 30}, {50, 6}}), ElementsAre(25, 37.5));
    EXPECT_EQ(painted({{0, 0}, {50, 100}}).size(), 8u);
}

TEST(Directions, AreAskedForFromHebrewOnOrWhereTheScreenReadsFromTheRight) {
    const auto levels = [](const std::string& words, geometry::LayoutDirection direction) {
        ShapedText text;
        text.runs = {styled(words)};
        text.clusters.resize(1);
        text.clusters[0].textLength = std::uint32_t(words.size());
        assignBidiLevels(text, direction);
        return text.clusters[0].bidiLevel;
    };
    EXPECT_EQ(levels("a", geometry::LayoutDirection::leftToRight), 0);
    EXPECT_EQ(levels("\u05D0", geometry::LayoutDirection::leftToRight), 1);
    EXPECT_EQ(levels("!", geometry::LayoutDirection::rightToLeft), 1);
    EXPECT_EQ(levels("!", geometry::LayoutDirection::leftToRight), 0);
}

} // namespace
} // namespace proupsells::graphics

#include <gtest/gtest.h>

#include "Backends/Headless/FixedTextShaper.hpp"
#include "Backends/Raster/RasterShapedText.hpp"
#include "Backends/Raster/RasterTextShaper.hpp"
#include "Tests/Raster/Canvas.hpp"

using namespace proupsells;

using geometry::LayoutDirection;
using geometry::Transform;
using graphics::PaintState;
using namespace tests;
using TextRef = std::shared_ptr<const graphics::ShapedText>;

namespace {

TextRef shapedText(const std::string& text, double size = 20, LayoutDirection direction = LayoutDirection::leftToRight) {
    static rasterbackend::RasterTextShaper shaper;
    const graphics::StyledRun run{text, {.size = size}, 0};
    return shaper.shape({&run, 1}, "en", direction);
}

double widthOf(const graphics::ShapedText& text, std::uint32_t first, std::uint32_t end) {
    double width = 0;
    for (std::uint32_t cluster = first; cluster < end; ++cluster) width += text.clusters[cluster].advance;
    return width;
}

void paintText(Canvas& canvas, const TextRef& text, geometry::Point baseline, std::uint32_t first, std::uint32_t end,
               graphics::RGBA color = black, const PaintState& state = {}) {
    const double size = text->runs.front().font.size;
    canvas.context.text(state, baseline, {{baseline.x, baseline.y - size}, {widthOf(*text, first, end), size * 1.25}}, text, first,
                        end, color);
}

void paintText(Canvas& canvas, const TextRef& text, geometry::Point baseline, graphics::RGBA color = black,
               const PaintState& state = {}) {
    paintText(canvas, text, baseline, 0, std::uint32_t(text->clusters.size()), color, state);
}

// The columns with ink: the first, and the one after the last.
std::pair<int, int> inkedColumns(const rasterbackend::Picture& image) {
    int first = image.width(), end = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (greenAt(image, x, y) == 255) continue;
            first = std::min(first, x);
            end = std::max(end, x + 1);
        }
    }
    return {first, end};
}

} // namespace

TEST(TextPainting, PaintsLettersAboveTheBaseline) {
    Canvas canvas({60, 40});
    paintText(canvas, shapedText("HI"), {10, 30});

    const rasterbackend::Picture image = canvas.image();
    EXPECT_GT(totalInk(image), 20);
    EXPECT_EQ(totalInk(part(image, 0, 30, 60, 10)), 0);
    EXPECT_GT(totalInk(part(image, 0, 28, 60, 2)), 3);
}

TEST(TextPainting, PaintsInTheTextsColorWithoutFringes) {
    Canvas canvas({60, 40}, 2);
    paintText(canvas, shapedText("HI"), {10, 30}, red);

    const rasterbackend::Picture image = canvas.image();
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            ASSERT_EQ(redAt(image, x, y), 255);
            ASSERT_EQ(greenAt(image, x, y), blueAt(image, x, y));
        }
    }
}

TEST(TextPainting, FollowsTheScale) {
    const double ink = [] {
        Canvas canvas({120, 40}, 1);
        paintText(canvas, shapedText("Annually"), {10, 30});
        return totalInk(canvas.image());
    }();

    for (const double scale : {1.5, 2.0, 3.0}) {
        Canvas canvas({120, 40}, scale);
        paintText(canvas, shapedText("Annually"), {10, 30});
        EXPECT_NEAR(totalInk(canvas.image()) / (scale * scale), ink, ink * 0.01) << scale;
    }
}

TEST(TextPainting, PlacesLettersBetweenPixelsButLinesOnThem) {
    Canvas left({60, 40}), right({60, 40}), low({60, 40});
    paintText(left, shapedText("l"), {10, 30});
    paintText(right, shapedText("l"), {10.5, 30});
    paintText(low, shapedText("l"), {10, 30.3});

    EXPECT_FALSE(isSame(left.image(), right.image()));
    EXPECT_TRUE(isSame(left.image(), low.image()));
    EXPECT_NEAR(totalInk(left.image()), totalInk(right.image()), 0.2);
}

TEST(TextPainting, PaintsAnyPartOfAText) {
    const TextRef text = shapedText("Cancel anytime");
    Canvas whole({200, 40}), parts({200, 40});
    paintText(whole, text, {10, 30});
    // Apart at the blank, where no letters meet.
    paintText(parts, text, {10, 30}, 0, 7);
    paintText(parts, text, {10 + widthOf(*text, 0, 7), 30}, 7, 14);

    EXPECT_NEAR(totalInk(whole.image()), totalInk(parts.image()), 0.5);
    Canvas start({200, 40});
    paintText(start, text, {10, 30}, 0, 6);
    EXPECT_EQ(inkedColumns(start.image()).first, inkedColumns(whole.image()).first);
    EXPECT_LT(inkedColumns(start.image()).second, inkedColumns(whole.image()).second - 50);
}

TEST(TextPainting, PaintsRightToLeftTextFromItsLeftEnd) {
    const TextRef both = shapedText("אב", 20, LayoutDirection::rightToLeft),
                  second = shapedText("ב", 20, LayoutDirection::rightToLeft);
    Canvas whole({80, 40}), last({80, 40});
    paintText(whole, both, {10, 30});
    paintText(last, second, {10, 30});

    // The second letter stands at the left.
    const int width = int(second->clusters[0].advance);
    EXPECT_TRUE(isSame(part(whole.image(), 0, 0, 10 + width - 1, 40), part(last.image(), 0, 0, 10 + width - 1, 40)));
    EXPECT_GT(totalInk(whole.image()), totalInk(last.image()) + 10);
}

TEST(TextPainting, CutsALigatureBetweenItsCharacters) {
    const TextRef text = shapedText("لا", 40, LayoutDirection::rightToLeft);
    ASSERT_EQ(text->clusters.size(), 2u);
    const double half = text->clusters[0].advance;
    Canvas whole({80, 80}), first({80, 80}), second({80, 80});
    paintText(whole, text, {20, 60});
    paintText(first, text, {20 + half, 60}, 0, 1);
    paintText(second, text, {20, 60}, 1, 2);

    EXPECT_GT(totalInk(first.image()), 10);
    EXPECT_GT(totalInk(second.image()), 10);
    // The pixels on the border are in both.
    EXPECT_NEAR(totalInk(first.image()) + totalInk(second.image()), totalInk(whole.image()), 20);
    EXPECT_LE(inkedColumns(second.image()).second, 21 + int(half));
    EXPECT_GE(inkedColumns(first.image()).first, 19 + int(half));
}

TEST(TextPainting, FadesClipsAndTurns) {
    const TextRef text = shapedText("HHH");
    Canvas plain({80, 80}), faded({80, 80}), clipped({80, 80}), turned({80, 80}), small({80, 80});
    paintText(plain, text, {20, 40});
    paintText(faded, text, {20, 40}, black, PaintState{}.fadedBy(0.5));
    paintText(clipped, text, {20, 40}, black, PaintState{}.clippedTo({{0, 0}, {30, 80}}));
    paintText(turned, text, {20, 40}, black, PaintState{}.transformedBy(Transform::rotation(1.5707963267948966).about({40, 40})));
    paintText(small, text, {20, 40}, black, PaintState{}.transformedBy(Transform::scaling(0.5, 0.5).about({40, 40})));

    const double ink = totalInk(plain.image());
    EXPECT_NEAR(totalInk(faded.image()), ink / 2, 1);
    EXPECT_EQ(totalInk(part(clipped.image(), 30, 0, 50, 80)), 0);
    EXPECT_TRUE(isSame(part(clipped.image(), 0, 0, 30, 80), part(plain.image(), 0, 0, 30, 80)));
    EXPECT_NEAR(totalInk(turned.image()), ink, ink * 0.02);
    EXPECT_GT(totalInk(part(turned.image(), 40, 0, 40, 80)), ink * 0.9);
    EXPECT_NEAR(totalInk(small.image()), ink / 4, ink * 0.02);
}

TEST(TextPainting, PaintsALineOfAnyLength) {
    const TextRef text = shapedText(std::string(5000, 'x'));
    Canvas canvas({100, 40});
    paintText(canvas, text, {-20000, 30});

    // In the middle of the line, letters stand from side to side.
    EXPECT_GT(totalInk(part(canvas.image(), 0, 0, 20, 40)), 20);
    EXPECT_GT(totalInk(part(canvas.image(), 80, 0, 20, 40)), 20);
}

// Painted are only those pieces of 256 letters that are in sight; alone, a piece is painted wherever it is.
TEST(TextPainting, LeavesOutNoPieceOfALongLineThatIsInSight) {
    std::string latin, hebrew;
    for (int index = 0; index < 600; ++index) {
        latin += "gjpqyHfW"[index % 8];
        hebrew += std::string("\xD7") + char(0x90 + index % 27);
    }
    const TextRef texts[] = {shapedText(latin), shapedText(hebrew, 20, LayoutDirection::rightToLeft)};
    for (const TextRef& text : texts) {
        const bool isRightToLeft = &text != texts;
        const std::uint32_t ends[] = {0, 256, 512, 600};
        ASSERT_EQ(text->clusters.size(), 600u);
        double border = 0;
        std::vector<double> places{0};
        for (int piece = 0; piece < 3; ++piece) {
            const int index = isRightToLeft ? 2 - piece : piece;
            places.push_back(border += widthOf(*text, ends[index], ends[index + 1]));
        }
        for (const double place : places)
            for (const double offset : {-130.0, -105.0, -99.5, -90.0, -60.0, -10.0, -0.5, 3.0, 12.0, 25.0})
                for (const double baseline : {-3.0, 30.0, 53.0}) {
                    const double left = -place - offset;
                    Canvas whole({100, 40}), pieces({100, 40});
                    paintText(whole, text, {left, baseline});
                    for (int piece = 0; piece < 3; ++piece) {
                        const int index = isRightToLeft ? 2 - piece : piece;
                        paintText(pieces, text, {left + places[std::size_t(piece)], baseline}, ends[index], ends[index + 1]);
                    }
                    EXPECT_TRUE(isSame(whole.image(), pieces.image())) << place << ", " << offset << ", " << baseline;
                }
    }
}

TEST(TextPainting, PaintsTextOfOtherShapersOnItsOwnPlaces) {
    headless::FixedTextShaper shaper;
    const graphics::StyledRun run{"iiW e\u0301", {.size = 20}, 0};
    const TextRef text = shaper.shape({&run, 1}, "en", LayoutDirection::leftToRight);
    Canvas canvas({100, 40});
    paintText(canvas, text, {10, 30});

    const rasterbackend::Picture image = canvas.image();
    for (const int cluster : {0, 1, 2, 4}) EXPECT_GT(totalInk(part(image, 10 + 10 * cluster, 0, 10, 40)), 5) << cluster;
    EXPECT_EQ(totalInk(part(image, 11 + 30, 0, 8, 30)), totalInk(part(image, 11 + 30, 0, 8, 40)));
}

TEST(TextPainting, PaintsEmojiInTheirOwnColors) {
    // A green square, one em wide, as an emoji font would have it, after a plain one.
    rasterbackend::GlyphShape plain{geometry::Path::rectangle({{0, -1}, {1, 1}}), {}, {}},
        emoji{{}, rasterbackend::Picture(8, 8), {{0, -1}, {1, 1}}};
    std::fill_n(emoji.picture.row(0), 64, 0xFF008000u);
    auto text = std::make_shared<rasterbackend::RasterShapedText>();
    text->runs = {{"ab", {.size = 10}, 0}};
    text->clusters = {{.textOffset = 0, .textLength = 1, .advance = 10}, {.textOffset = 1, .textLength = 1, .advance = 10}};
    text->groupStarts = {0, 1};
    text->glyphStarts = {0, 1, 2};
    text->glyphs = {{&plain, 0, 0}, {&emoji, 0, 0}};

    for (const graphics::RGBA color : {red, blue, red}) {
        Canvas canvas({40, 20}, 2), faded({40, 20}, 2);
        paintText(canvas, text, {5, 15}, color);
        paintText(faded, text, {5, 15}, color, PaintState{}.fadedBy(0.5));
        EXPECT_EQ(canvas.pixel(20, 20), color == red ? 0xFF0000u : 0x0000FFu);
        EXPECT_EQ(canvas.pixel(40, 20), 0x008000u);
        EXPECT_EQ(faded.pixel(40, 20), 0x7FBF7Fu);
    }
}

TEST(TextPainting, SurvivesClustersThatTheTextDoesNotHave) {
    Canvas canvas({60, 40});
    const TextRef text = shapedText("ab");
    canvas.context.text({}, {10, 30}, {{0, 0}, {60, 40}}, text, 1, 99, black);
    canvas.context.text({}, {10, 30}, {{0, 0}, {60, 40}}, text, 50, 99, black);
    canvas.context.text({}, {10, 30}, {{0, 0}, {60, 40}}, shapedText(""), 0, 1, black);

    EXPECT_GT(totalInk(canvas.image()), 5);
}

// What happens on every frame allocates nothing once memory has been gathered, and large inputs stay quick.
#include <gtest/gtest.h>

#include "Platform/Graphics/TextPainting.hpp"
#include "Tests/Graphics/ShapedTexts.hpp"
#include "Tests/Support/AllocationCounter.hpp"
#include "Tests/Support/CpuTime.hpp"
#include "Tests/Support/PrintGeometry.hpp"

namespace proupsells::graphics {
namespace {

using geometry::Rect;

void paintScreen(DisplayList& list, const TextLayout& layout, const ShapedTextPointer& text, const geometry::Path& path, int step) {
    list.clear();
    PaintContext context(list);
    const TextRunPaint paint{{0, 0, 0}, true};
    for (int row = 0; row < 40; ++row) {
        const PaintState state = PaintState{}.movedBy({0, row * 20.0 + step});
        context.fillRoundedRectangle(state, {{0, 0}, {100, 18}}, 4, geometry::CornerStyle::continuous, {255, 0, 0});
        context.fillPath(state.transformedBy(geometry::Transform::rotation(0.1)), path, {0, 0, 0});
        paintTextLayout(context, state, layout, text, nullptr, {{0, 0}, {100, 18}}, TextAlignment::center, {&paint, 1});
    }
}

TEST(SteadyFrame, AllocatesNothingInPaintingAndComparing) {
    const auto text = shaped("Some words that take two lines or three");
    const TextLayout layout = laidOut(*text, {.width = 80});
    const geometry::Path path = geometry::Path::ellipse({{0, 0}, {8, 8}});
    DisplayList before, after;
    std::vector<Rect> damage;
    const auto frames = [&] {
        paintScreen(before, layout, text, path, 0);
        paintScreen(after, layout, text, path, 1);
        findDamage(before, after, damage);
        before = after;
    };
    frames();

    EXPECT_EQ(tests::allocationsDuring(frames), 0u);
    EXPECT_FALSE(damage.empty());
}

TEST(SteadyFrame, AllocatesNothingInLayingOutAgain) {
    const auto text = shaped("Some words that take two lines or three, once with אבג among them");
    TextLayout layout;
    const auto layOut = [&] {
        layOutText(*text, {.width = 40}, layout);
        layOutText(*text, {.width = 60, .lineLimit = 2, .ellipsisWidth = 5}, layout);
    };
    layOut();

    EXPECT_EQ(tests::allocationsDuring(layOut), 0u);
}

// Cost grows with the text's length, not with its square: a hundred times the text may take a few hundred times as long at most.
TEST(LargeInputs, AreLaidOutInLinearTime) {
    std::string words, letters;
    while (words.size() < 100'000) words += "wonderful day ";
    letters.assign(100'000, 'x');
    const auto secondsFor = [](const ShapedText& text, double width) {
        TextLayout layout;
        layOutText(text, {.width = width, .height = 1e9}, layout);
        return tests::cpuTimeOf_s([&] { layOutText(text, {.width = width, .height = 1e9}, layout); });
    };
    for (const std::string& sample : {words, letters}) {
        const auto large = shaped(sample), small = shaped(sample.substr(0, 1000));
        for (const double width : {4.0, 80.0, 1e7}) {
            double smallest_s = 1;
            for (int repeat = 0; repeat < 20; ++repeat) smallest_s = std::min(smallest_s, secondsFor(*small, width));
            EXPECT_LT(secondsFor(*large, width), 1000 * smallest_s + 0.02) << "at width " << width;
        }
    }
}

TEST(LargeInputs, AreComparedQuicklyEvenWhenNothingMatches) {
    DisplayList before, after;
    for (int index = 0; index < 5000; ++index) {
        PaintContext(before).fillRectangle({}, {{index * 2.0, 0}, {1, 1}}, {1, 0, 0});
        PaintContext(after).fillRectangle({}, {{index * 2.0, 5}, {1, 1}}, {1, 0, 0});
    }
    std::vector<Rect> damage;

    const double duration_s = tests::cpuTimeOf_s([&] { findDamage(before, after, damage); });

    EXPECT_LT(duration_s, 1.0);
    EXPECT_FALSE(damage.empty());
}

} // namespace
} // namespace proupsells::graphics

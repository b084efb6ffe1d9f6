#include <algorithm>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "Tests/Graphics/ShapedTexts.hpp"
#include "Tests/Support/PrintGeometry.hpp"

namespace proupsells::graphics {
namespace {

using geometry::LayoutDirection;

// Words, blanks, hyphens, line feeds and letters written from right to left, in runs of several sizes.
std::vector<StyledRun> someRuns() {
    const auto piece = rc::gen::element<std::string>("a", "b", "wonderful", " ", "  ", "-", "\n", "\r\n", "7", "אב", "ج", "语言");
    std::vector<StyledRun> runs;
    const int count = *rc::gen::inRange(1, 4);
    for (int index = 0; index < count; ++index) {
        std::string text;
        for (const std::string& part : *rc::gen::container<std::vector<std::string>>(piece)) text += part;
        runs.push_back(styled(text, *rc::gen::element(8.0, 10.0, 17.0), *rc::gen::element(0.0, 0.3)));
    }
    return runs;
}

LayoutDirection someDirection() { return *rc::gen::element(LayoutDirection::leftToRight, LayoutDirection::rightToLeft); }

TextLayoutRequest someRequest(LayoutDirection direction) {
    TextLayoutRequest request{.width = *rc::gen::inRange(0, 1500) / 10.0,
                              .lineSpacing = *rc::gen::element(0.0, 3.0),
                              .direction = direction,
                              .ellipsisWidth = 5};
    if (*rc::gen::inRange(0, 2) == 1) request.lineLimit = *rc::gen::inRange(1, 4);
    if (*rc::gen::inRange(0, 3) == 1) request.height = *rc::gen::inRange(0, 100);
    return request;
}

bool isLineFeedOrBlank(const Cluster& cluster) { return cluster.isWhitespace; }

RC_GTEST_PROP(TextLayoutInvariants, NoLineIsWiderThanTheWidthUnlessItIsOneCharacter, ()) {
    const LayoutDirection direction = someDirection();
    const auto text = shaped(someRuns(), direction);
    const TextLayoutRequest request = someRequest(direction);

    for (const TextLine& line : laidOut(*text, request).lines) {
        const bool isOneCharacter = line.endCluster <= line.firstCluster + (line.isTruncated ? 0 : 1);
        RC_ASSERT(line.width <= *request.width + 1e-6 || isOneCharacter);
    }
}

RC_GTEST_PROP(TextLayoutInvariants, LinesAndTheBlanksBetweenThemAreTheWholeText, ()) {
    const LayoutDirection direction = someDirection();
    const auto text = shaped(someRuns(), direction);
    TextLayoutRequest request = someRequest(direction);
    request.lineLimit.reset();
    request.height.reset();
    const TextLayout layout = laidOut(*text, request);

    std::uint32_t reached = 0;
    for (const TextLine& line : layout.lines) {
        RC_ASSERT(line.firstCluster >= reached);
        RC_ASSERT(std::all_of(text->clusters.begin() + reached, text->clusters.begin() + line.firstCluster, isLineFeedOrBlank));
        reached = line.endCluster;
    }
    RC_ASSERT(std::all_of(text->clusters.begin() + reached, text->clusters.end(), isLineFeedOrBlank));
    RC_ASSERT(!layout.isTruncated);
}

RC_GTEST_PROP(TextLayoutInvariants, EveryBreakIsAllowedOrInsideAWordTooWideForTheLine, ()) {
    const auto text = shaped(someRuns());
    TextLayoutRequest request{.width = *rc::gen::inRange(0, 1500) / 10.0};
    const TextLayout layout = laidOut(*text, request);

    for (std::size_t index = 1; index < layout.lines.size(); ++index) {
        const TextLine& line = layout.lines[index - 1];
        const std::uint32_t next = layout.lines[index].firstCluster;
        if (text->clusters[next - 1].breakAfter != LineBreak::none) continue;
        // Nothing on the line before would have been a better place.
        const auto first = text->clusters.begin() + line.firstCluster, last = text->clusters.begin() + next - 1;
        RC_ASSERT(std::all_of(first, last, [](const Cluster& cluster) { return cluster.breakAfter == LineBreak::none; }));
    }
}

RC_GTEST_PROP(TextLayoutInvariants, TheMeasuredSizeGivesTheSameLines, ()) {
    const LayoutDirection direction = someDirection();
    const auto text = shaped(someRuns(), direction);
    TextLayoutRequest request = someRequest(direction);
    const TextLayout measured = laidOut(*text, request);
    // With room for less, the last line of a cut text may be lower, and then it is filled with less.
    const auto hasSeveralHeights = [&] {
        return std::any_of(text->runs.begin(), text->runs.end(),
                           [&](const StyledRun& run) { return run.font != text->runs.front().font; });
    };
    if (measured.isTruncated && hasSeveralHeights()) return;
    if (measured.size.width > *request.width + 1e-6) return; // a single character had no room; with room, lines may be joined
    request.width = measured.size.width;
    request.height = measured.size.height;
    const TextLayout again = laidOut(*text, request);

    RC_ASSERT(again.lines == measured.lines);
    RC_ASSERT(again.size == measured.size);
}

RC_GTEST_PROP(TextLayoutInvariants, TheHeightHoldsExceptForTheFirstLine, ()) {
    const auto text = shaped(someRuns());
    TextLayoutRequest request = someRequest(LayoutDirection::leftToRight);
    request.height = *rc::gen::inRange(0, 100);
    const TextLayout layout = laidOut(*text, request);

    RC_ASSERT(layout.lines.size() == 1 || layout.size.height <= *request.height + 1e-6);
    if (request.lineLimit) RC_ASSERT(int(layout.lines.size()) <= *request.lineLimit);
}

RC_GTEST_PROP(TextLayoutInvariants, FragmentsTileTheirLineFromLeftToRight, ()) {
    const LayoutDirection direction = someDirection();
    const auto text = shaped(someRuns(), direction);
    const TextLayout layout = laidOut(*text, someRequest(direction));

    for (const TextLine& line : layout.lines) {
        double x = line.isRightToLeft ? line.ellipsisWidth : 0;
        double sum = line.ellipsisWidth;
        for (std::uint32_t index = line.firstFragment; index < line.endFragment; ++index) {
            const TextFragment& fragment = layout.fragments[index];
            RC_ASSERT(std::abs(fragment.x - x) < 1e-9);
            x += fragment.width;
            sum += fragment.width;
        }
        RC_ASSERT(std::abs(sum - line.width) < 1e-6);
    }
}

// Turns single clusters round, level by level, as the bidirectional algorithm is worded.
std::vector<std::uint32_t> visualOrderByBruteForce(const ShapedText& text, const TextLine& line) {
    std::vector<std::uint32_t> order;
    for (std::uint32_t index = line.firstCluster; index < line.endCluster; ++index) order.push_back(index);
    for (int level = 255; level >= 1; --level) {
        for (std::size_t index = 0; index < order.size(); ++index) {
            std::size_t end = index;
            while (end < order.size() && text.clusters[order[end]].bidiLevel >= level) ++end;
            std::reverse(order.begin() + std::ptrdiff_t(index), order.begin() + std::ptrdiff_t(end));
            index = std::max(index, end);
        }
    }
    return order;
}

std::vector<std::uint32_t> visualOrder(const TextLayout& layout, const TextLine& line) {
    std::vector<std::uint32_t> order;
    for (std::uint32_t index = line.firstFragment; index < line.endFragment; ++index) {
        const TextFragment& fragment = layout.fragments[index];
        for (std::uint32_t cluster = fragment.firstCluster; cluster < fragment.endCluster; ++cluster) {
            order.push_back(fragment.isRightToLeft ? fragment.firstCluster + fragment.endCluster - 1 - cluster : cluster);
        }
    }
    return order;
}

RC_GTEST_PROP(VisualOrder, EqualsTurningEveryLevelRound, ()) {
    ShapedText text;
    text.runs = {styled(""), styled("")};
    text.metrics = {{10, 2}, {10, 2}};
    for (const auto& [level, run] :
         *rc::gen::container<std::vector<std::pair<int, int>>>(rc::gen::pair(rc::gen::inRange(0, 5), rc::gen::inRange(0, 2)))) {
        Cluster& cluster = text.clusters.emplace_back();
        cluster.advance = 5;
        cluster.bidiLevel = std::uint8_t(level);
        cluster.run = std::uint16_t(run);
    }
    const TextLayout layout = laidOut(text, {.width = *rc::gen::inRange(5, 200)});

    for (const TextLine& line : layout.lines) RC_ASSERT(visualOrder(layout, line) == visualOrderByBruteForce(text, line));
}

} // namespace
} // namespace proupsells::graphics

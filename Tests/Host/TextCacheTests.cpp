#include <gtest/gtest.h>

#include "Backends/Headless/TestBed.hpp"
#include "Platform/Host/TextCache.hpp"
#include "Tests/Support/FailOnUnexpectedLog.hpp"

namespace proupsells::host {
namespace {

using geometry::LayoutDirection;
using graphics::ShapedText;
using graphics::StyledRun;

class TextCacheTest : public ::testing::Test {
protected:
    const ShapedText* shaped(const StyledRun& run, std::string_view language = "en",
                             LayoutDirection direction = LayoutDirection::leftToRight) {
        return cache.shaped({&run, 1}, language, direction).get();
    }
    std::size_t shapeCount() const { return bed.fixedTextShaper()->shapeCount(); }

    headless::TestBed bed;
    TextCache cache{3};
};

StyledRun run(std::string text, double size = 10, double kern = 0) { return {std::move(text), {.size = size}, kern}; }

TEST_F(TextCacheTest, ShapesATextOnce) {
    const ShapedText* first = shaped(run("a"));

    EXPECT_EQ(shaped(run("a")), first);
    EXPECT_EQ(shapeCount(), 1u);
}

TEST_F(TextCacheTest, TellsEverythingApartThatChangesAText) {
    TextCache large{100};
    const auto shapedByLarge = [&](const StyledRun& styled, std::string_view language, LayoutDirection direction) {
        large.shaped({&styled, 1}, language, direction);
    };
    const auto& face = graphics::registerFontFace("TextCacheTests-Face", "Family", 400);
    StyledRun otherFace = run("a"), otherWeight = run("a");
    otherFace.font.face = &face;
    otherWeight.font.weightOption = 2;

    shapedByLarge(run("a"), "en", LayoutDirection::leftToRight);
    shapedByLarge(run("b"), "en", LayoutDirection::leftToRight);
    shapedByLarge(run("a", 11), "en", LayoutDirection::leftToRight);
    shapedByLarge(run("a", 10, 1), "en", LayoutDirection::leftToRight);
    shapedByLarge(otherFace, "en", LayoutDirection::leftToRight);
    shapedByLarge(otherWeight, "en", LayoutDirection::leftToRight);
    shapedByLarge(run("a"), "de", LayoutDirection::leftToRight);
    shapedByLarge(run("a"), "en", LayoutDirection::rightToLeft);

    EXPECT_EQ(shapeCount(), 8u);
    EXPECT_EQ(large.size(), 8u);
}

TEST_F(TextCacheTest, TellsRunsFromTheirJoinedText) {
    const StyledRun split[] = {run("a"), run("b")};

    EXPECT_NE(cache.shaped(split, "en", LayoutDirection::leftToRight).get(), shaped(run("ab")));
}

TEST_F(TextCacheTest, ForgetsTheTextNotUsedForLongest) {
    shaped(run("a"));
    shaped(run("b"));
    shaped(run("c"));
    shaped(run("a"));
    shaped(run("d")); // in place of b

    EXPECT_EQ(cache.size(), 3u);
    EXPECT_EQ(shapeCount(), 4u);
    shaped(run("a"));
    shaped(run("c"));
    shaped(run("d"));
    EXPECT_EQ(shapeCount(), 4u);
    shaped(run("b"));
    EXPECT_EQ(shapeCount(), 5u);
}

TEST_F(TextCacheTest, MeasuresTheEllipsis) {
    const auto& ellipsis = cache.ellipsis({.size = 10}, "en", LayoutDirection::leftToRight);

    EXPECT_EQ(totalAdvance(*ellipsis), 5);
    EXPECT_EQ(&cache.ellipsis({.size = 10}, "en", LayoutDirection::leftToRight), &ellipsis);
}

TEST(SharedTextCache, IsEmptiedWithEveryChangeOfServices) {
    const StyledRun text = run("a");
    const auto shapeIt = [&] { TextCache::shared().shaped({&text, 1}, "en", LayoutDirection::leftToRight); };
    headless::TestBed outer;
    shapeIt();
    {
        headless::TestBed inner;
        EXPECT_EQ(TextCache::shared().size(), 0u);
        shapeIt();
        EXPECT_EQ(inner.fixedTextShaper()->shapeCount(), 1u);
    }
    EXPECT_EQ(TextCache::shared().size(), 0u);
    shapeIt();

    EXPECT_EQ(outer.fixedTextShaper()->shapeCount(), 2u);
}

} // namespace
} // namespace proupsells::host

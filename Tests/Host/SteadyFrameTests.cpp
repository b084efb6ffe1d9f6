// What costs no memory the second time.
#include <gtest/gtest.h>

#include "Backends/Headless/TestBed.hpp"
#include "Platform/Host/FittedText.hpp"
#include "Platform/Host/TextCache.hpp"
#include "Tests/Support/AllocationCounter.hpp"
#include "Tests/Support/FailOnUnexpectedLog.hpp"

namespace proupsells::host {
namespace {

const graphics::StyledRun text{"A text that is longer than what a string keeps within itself", {.size = 10}, 0};

TEST(SteadyFrame, ATextIsFoundAgain) {
    headless::TestBed bed;
    TextCache cache;
    const auto find = [&] { cache.shaped({&text, 1}, "en", geometry::LayoutDirection::leftToRight); };
    find();

    EXPECT_EQ(tests::allocationsDuring(find), 0u);
}

TEST(SteadyFrame, ATextIsMeasuredAndPaintedAgain) {
    headless::TestBed bed;
    FittedText fitted;
    fitted.setRuns({text});
    const TextRules rules{.language = "a-long-tag-of-a-language", .lineLimit = 3, .minimumScale = 0.9};
    graphics::DisplayList list;
    const auto frame = [&] {
        list.clear();
        graphics::PaintContext context(list);
        fitted.setRules(rules);
        fitted.sizeIn({70, 100});
        fitted.showIn({50, 100});
        fitted.paint(context, {}, {{0, 0}, {50, 100}}, graphics::TextAlignment::center, {}, graphics::Color::black);
    };
    frame();
    frame();

    EXPECT_EQ(tests::allocationsDuring(frame), 0u);
}

} // namespace
} // namespace proupsells::host

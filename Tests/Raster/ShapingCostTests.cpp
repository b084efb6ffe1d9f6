#include <gtest/gtest.h>

#include "Tests/Raster/Shaping.hpp"
#include "Tests/Support/AllocationCounter.hpp"

using namespace proupsells;

namespace {

std::size_t allocationsFor(rasterbackend::RasterTextShaper& shaper, const std::string& text) {
    const std::vector<graphics::StyledRun> runs{{text, {.size = 16}, 0}};
    shaper.shape(runs, "en", {});
    return tests::allocationsDuring([&] { shaper.shape(runs, "en", {}); });
}

std::string repeated(const std::string& text, int count) {
    std::string all;
    for (int time = 0; time < count; ++time) all += text;
    return all;
}

} // namespace

TEST(ShapingCost, AllocatesNothingForASingleGlyph) {
    rasterbackend::RasterTextShaper shaper;

    for (const std::string text : {"Start your free trial. ", "Годовая подписка, ", "اشتراك سنوي ", "वार्षिक "}) {
        SCOPED_TRACE(text);
        const std::size_t some = allocationsFor(shaper, repeated(text, 4)), many = allocationsFor(shaper, repeated(text, 64));
        EXPECT_LE(many, some + 16);
    }
}

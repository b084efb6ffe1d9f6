// Rows of pixels against the same, worked out channel by channel.
#include "Backends/Raster/Blending.hpp"

#include <gmock/gmock.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

namespace proupsells::rasterbackend {
namespace {

constexpr int channel(Pixel pixel, int index) { return int(pixel >> (8 * index)) & 0xFF; }
constexpr int rounded(int value, int factor) { return (2 * value * factor + 255) / 510; }

Pixel withChannels(auto&& channelAt) {
    Pixel result = 0;
    for (int index = 0; index < 4; ++index) result |= Pixel(channelAt(index)) << (8 * index);
    return result;
}

Pixel fadedByHand(Pixel pixel, int factor) {
    return withChannels([&](int index) { return rounded(channel(pixel, index), factor); });
}

Pixel overByHand(Pixel top, Pixel below) {
    return withChannels([&](int index) { return channel(top, index) + rounded(channel(below, index), 255 - channel(top, 3)); });
}

Pixel somePixel(int alpha) {
    return withChannels([&](int index) { return index == 3 ? alpha : *rc::gen::inRange(0, alpha + 1); });
}

// Stretches that are opaque, empty and in between, longer and shorter than what is blended at once.
std::vector<Pixel> someRow(std::size_t count) {
    std::vector<Pixel> row;
    while (row.size() < count) {
        const int alpha = *rc::gen::element(0, 255, *rc::gen::inRange(1, 255));
        for (int length = *rc::gen::inRange(1, 40); length > 0 && row.size() < count; --length) row.push_back(somePixel(alpha));
    }
    return row;
}

std::vector<Pixel> someGround(std::size_t count) {
    std::vector<Pixel> row(count);
    for (Pixel& pixel : row) pixel = somePixel(255);
    return row;
}

TEST(Blending, TakesAnOpacityOfAnyNumberForOneFromNothingToWhole) {
    for (const auto& [opacity, factor] : {std::pair{0.0f, 0},
                                          {-0.5f, 0},
                                          {-HUGE_VALF, 0},
                                          {std::nanf(""), 0},
                                          {0.001f, 0},
                                          {0.002f, 1},
                                          {0.5f, 128},
                                          {0.75f, 191},
                                          {0.998f, 254},
                                          {0.999f, 255},
                                          {1.0f, 255},
                                          {1.5f, 255},
                                          {HUGE_VALF, 255}})
        EXPECT_EQ(opacityFactor(opacity), factor) << opacity;
}

TEST(Blending, MultipliesColoursByTheirAlphaAndTheOpacity) {
    EXPECT_EQ(premultiplied({255, 128, 1, 255}, 255), 0xFFFF8001u);
    EXPECT_EQ(premultiplied({255, 128, 1, 128}, 255), 0x80804001u);
    EXPECT_EQ(premultiplied({255, 128, 1, 255}, 128), 0x80804001u);
    EXPECT_EQ(premultiplied({255, 128, 1, 128}, 128), 0x40402000u);
    EXPECT_EQ(premultiplied({255, 128, 1, 0}, 255), 0u);
}

RC_GTEST_PROP(Blending, PaintsPixelsOverAColorAsOverItsPixels, ()) {
    const auto count = std::size_t(*rc::gen::inRange(0, 100));
    const auto opacity = std::uint8_t(*rc::gen::element(255, 254, 128, 1, 0));
    const std::vector<Pixel> top = someRow(count);
    const Pixel ground = somePixel(255);

    std::vector<Pixel> result(count, 0x12345678), expected(count, ground);
    blendPixels(result.data(), count, top.data(), opacity, ground);
    blendPixels(expected.data(), count, top.data(), opacity);

    RC_ASSERT(result == expected);
}

RC_GTEST_PROP(Blending, PaintsEveryPixelOverTheOneBelow, ()) {
    const auto count = std::size_t(*rc::gen::inRange(0, 100));
    const int opacity = *rc::gen::element(255, 254, 128, 1, 0);
    const std::vector<Pixel> top = someRow(count), ground = someGround(count);

    std::vector<Pixel> result = ground;
    blendPixels(result.data(), count, top.data(), std::uint8_t(opacity));

    for (std::size_t index = 0; index < count; ++index)
        RC_ASSERT(result[index] == overByHand(fadedByHand(top[index], opacity), ground[index]));
}

RC_GTEST_PROP(Blending, PaintsAColourWithASharedCoverage, ()) {
    const auto count = std::size_t(*rc::gen::inRange(0, 100));
    const int coverage = *rc::gen::element(255, 200, 1, 0);
    const Pixel color = somePixel(*rc::gen::element(255, 254, 100, 0));
    const std::vector<Pixel> ground = someGround(count);

    std::vector<Pixel> result = ground;
    blendColor(result.data(), count, color, std::uint8_t(coverage));

    for (std::size_t index = 0; index < count; ++index)
        RC_ASSERT(result[index] == overByHand(fadedByHand(color, coverage), ground[index]));
}

RC_GTEST_PROP(Blending, PaintsAColourWithACoverageForEveryPixel, ()) {
    const auto count = std::size_t(*rc::gen::inRange(0, 100));
    const Pixel color = somePixel(255);
    const std::vector<Pixel> ground = someGround(count);
    std::vector<std::uint8_t> coverages;
    for (std::size_t index = 0; index < count; ++index)
        coverages.push_back(std::uint8_t(*rc::gen::element(0, 255, *rc::gen::inRange(1, 255))));

    std::vector<Pixel> result = ground;
    blendColor(result.data(), count, color, coverages.data());

    for (std::size_t index = 0; index < count; ++index) {
        const int share = coverages[index];
        const Pixel mixed = withChannels([&](int part) {
            return (2 * (channel(color, part) * share + channel(ground[index], part) * (255 - share)) + 255) / 510;
        });
        RC_ASSERT(result[index] == mixed);
    }
}

RC_GTEST_PROP(Blending, PaintsAFaintColourWithACoverageForEveryPixel, ()) {
    const auto count = std::size_t(*rc::gen::inRange(0, 100));
    const Pixel color = somePixel(*rc::gen::element(254, 100, 1, 0));
    const std::vector<Pixel> ground = someGround(count);
    std::vector<std::uint8_t> coverages;
    for (std::size_t index = 0; index < count; ++index) coverages.push_back(std::uint8_t(*rc::gen::inRange(0, 256)));

    std::vector<Pixel> result = ground;
    blendColor(result.data(), count, color, coverages.data());

    for (std::size_t index = 0; index < count; ++index)
        RC_ASSERT(result[index] == overByHand(fadedByHand(color, coverages[index]), ground[index]));
}

// Written as bytes where all four are equal.
TEST(Blending, FillsWithOpaqueColoursOfEqualAndOfDifferentBytes) {
    for (const Pixel color : {0xFFFFFFFFu, 0xFF000000u, 0xFFFFFF00u, 0xFFFEFFFFu}) {
        std::vector<Pixel> row(20, 0xFF123456u);
        blendColor(row.data() + 1, 18, color, 255);

        std::vector<Pixel> expected(20, color);
        expected.front() = expected.back() = 0xFF123456u;
        EXPECT_EQ(row, expected);
    }
}

} // namespace
} // namespace proupsells::rasterbackend

#include "Platform/Graphics/Palette.hpp"

#include <gtest/gtest.h>

#include "Tests/Support/AllocationCounter.hpp"

namespace proupsells::graphics {
namespace {

constexpr Color ink{"ink", rgb(0x111111), rgb(0xEEEEEE)};

class PaletteTest : public ::testing::Test {
protected:
    ~PaletteTest() override { Palette::setCurrent({}); }
};

TEST_F(PaletteTest, ReplacesAColorByItsName) {
    Palette palette;
    palette.set("ink", ColorScheme::light, rgb(0x123456));
    palette.set("ink", ColorScheme::dark, rgb(0xABCDEF));

    Palette::setCurrent(palette);

    EXPECT_EQ(ink.resolved(ColorScheme::light), rgb(0x123456));
    EXPECT_EQ(ink.resolved(ColorScheme::dark), rgb(0xABCDEF));
    EXPECT_EQ(ink.own(ColorScheme::light), rgb(0x111111));
}

TEST_F(PaletteTest, LeavesTheAppearanceThatItHasNoValueFor) {
    Palette palette;
    palette.set("ink", ColorScheme::light, rgb(0x123456));

    Palette::setCurrent(palette);

    EXPECT_EQ(ink.resolved(ColorScheme::dark), rgb(0xEEEEEE));
    EXPECT_EQ(Color::black.resolved(ColorScheme::light), rgb(0x000000));
}

TEST_F(PaletteTest, IsAskedWithoutTakingMemory) {
    constexpr Color longName{"a name that is longer than a short text", rgb(0x111111), rgb(0xEEEEEE)};
    Palette palette;
    palette.set(longName.name, ColorScheme::light, rgb(0x123456));
    Palette::setCurrent(palette);

    EXPECT_EQ(tests::allocationsDuring([&] { EXPECT_EQ(longName.resolved(ColorScheme::light), rgb(0x123456)); }), 0u);
}

TEST_F(PaletteTest, IsGoneWithTheNextOne) {
    Palette palette;
    palette.set("ink", ColorScheme::light, rgb(0x123456));
    Palette::setCurrent(palette);

    Palette::setCurrent({});

    EXPECT_EQ(ink.resolved(ColorScheme::light), rgb(0x111111));
}

} // namespace
} // namespace proupsells::graphics

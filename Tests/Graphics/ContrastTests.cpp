#include <gtest/gtest.h>

#include "Platform/Graphics/Contrast.hpp"

namespace proupsells::graphics {
namespace {

TEST(Contrast, OfBlackOnWhiteIs21) { EXPECT_NEAR(contrast(rgb(0x000000), rgb(0xFFFFFF)), 21, 1e-9); }

TEST(Contrast, OfAColorOnItselfIs1) { EXPECT_EQ(contrast(rgb(0x0A7C78), rgb(0x0A7C78)), 1); }

TEST(Contrast, IsTheSameEitherWayRound) {
    EXPECT_EQ(contrast(rgb(0x777777), rgb(0xFFFFFF)), contrast(rgb(0xFFFFFF), rgb(0x777777)));
}

TEST(Contrast, KnowsTheGreyThatJustMissesAA) { EXPECT_NEAR(contrast(rgb(0x777777), rgb(0xFFFFFF)), 4.478, 1e-3); }

} // namespace
} // namespace proupsells::graphics

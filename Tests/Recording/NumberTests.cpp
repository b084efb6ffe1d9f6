// Numbers in event lines and dumps: short, and the same on every machine.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "Apps/ProUpsellsHost/Numbers.hpp"

namespace proupsells::hostprogram {

TEST(WrittenNumbers, HaveNoPointWhereTheyAreWhole) {
    EXPECT_EQ(toJson(5.0).dump(), "5");
    EXPECT_EQ(toJson(-5.0).dump(), "-5");
    EXPECT_EQ(toJson(0.0).dump(), "0");
    EXPECT_EQ(toJson(-0.0).dump(), "0");
}

TEST(WrittenNumbers, AreRoundedToAMillionth) {
    EXPECT_EQ(toJson(0.1 + 0.2).dump(), "0.3");
    EXPECT_EQ(toJson(1.0000004).dump(), "1");
    EXPECT_EQ(toJson(1.0000006).dump(), "1.000001");
    EXPECT_EQ(toJson(-0.0000006).dump(), "-1e-06");
    EXPECT_EQ(toJson(187.123456).dump(), "187.123456");
}

TEST(WrittenNumbers, StayWhatTheyAreWhereTheyAreHuge) {
    EXPECT_EQ(toJson(0x1p53 - 1).dump(), "9007199254740991");
    EXPECT_EQ(toJson(0x1p53).dump(), "9.007199254740992e+15");
    EXPECT_EQ(toJson(1e30).dump(), "1e+30");
}

TEST(WrittenNumbers, HaveTheOrderOfTheDump) {
    EXPECT_EQ(toJson(geometry::Rect{{1, 2}, {3, 4.5}}).dump(), "[1,2,3,4.5]");
    EXPECT_EQ(toJson(geometry::Size{3, 4}).dump(), "[3,4]");
    EXPECT_EQ(toJson(geometry::Point{1, 2}).dump(), "[1,2]");
    EXPECT_EQ(toJson(geometry::PhysicalInsets{.top = 1, .left = 2, .bottom = 3, .right = 4}).dump(), "[1,2,3,4]");
}

} // namespace proupsells::hostprogram

#include <gtest/gtest.h>

#include "Platform/Graphics/Font.hpp"
#include "Tests/Support/PrintGeometry.hpp"

namespace proupsells::graphics {
namespace {

TEST(FontRegistry, FindsAFaceByItsName) {
    const FontFace& face = registerFontFace("FontTests-Bold", "Some Family", 700);

    EXPECT_EQ(findFontFace("FontTests-Bold"), &face);
    EXPECT_EQ(face.family, "Some Family");
    EXPECT_EQ(face.weight, 700);
}

TEST(FontRegistry, HasNoFaceOfAnUnknownName) { EXPECT_EQ(findFontFace("FontTests-Unknown"), nullptr); }

TEST(FontRegistry, KeepsTheFirstOfTwoFacesOfOneName) {
    const FontFace& first = registerFontFace("FontTests-Twice", "First", 400);
    const FontFace& second = registerFontFace("FontTests-Twice", "Second", 900);

    EXPECT_EQ(&first, &second);
    EXPECT_EQ(second.family, "First");
}

TEST(FontRegistry, LeavesFacesInPlaceWhenMoreAreAdded) {
    const FontFace& face = registerFontFace("FontTests-First", "Family", 400);
    for (int index = 0; index < 200; ++index) registerFontFace("FontTests-" + std::to_string(index), "Family", 400);

    EXPECT_EQ(findFontFace("FontTests-First"), &face);
    EXPECT_EQ(face.name, "FontTests-First");
}

} // namespace
} // namespace proupsells::graphics

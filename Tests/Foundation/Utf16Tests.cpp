#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "Platform/Foundation/Utf16.hpp"
#include "Platform/Foundation/Utf8.hpp"
#include "Tests/Foundation/AnyText.hpp"
#include "Tests/Foundation/Utf16.hpp"

using namespace proupsells;

using foundation::Utf16Text;
using testing::ElementsAre;

namespace {

std::vector<std::uint32_t> offsets(const Utf16Text& text) {
    std::vector<std::uint32_t> offsets;
    for (std::size_t unit = 0; unit <= text.units().size(); ++unit) offsets.push_back(text.byteOffset(unit));
    return offsets;
}

TEST(Utf16Text, KnowsWhereItsUnitsComeFrom) {
    const Utf16Text text("a\u00E9\u20AC\U0001F600z");

    EXPECT_EQ(text.units(), u"a\u00E9\u20AC\U0001F600z");
    EXPECT_THAT(offsets(text), ElementsAre(0, 1, 3, 6, 6, 10, 11));
}

TEST(Utf16Text, CountsOnThroughSeveralTexts) {
    Utf16Text text("\u20AC");
    text.append("");
    text.append("b\u00E9");

    EXPECT_EQ(text.units(), u"\u20ACb\u00E9");
    EXPECT_THAT(offsets(text), ElementsAre(0, 3, 4, 6));
}

TEST(Utf16Text, ReplacesIllFormedPartsOneByOne) {
    Utf16Text text("a\xE2\x82z\xFF\xC3");
    text.append("\xA9"); // the rest of a character does not complete one in another text

    EXPECT_EQ(text.units(), u"a\uFFFDz\uFFFD\uFFFD\uFFFD");
    EXPECT_THAT(offsets(text), ElementsAre(0, 1, 3, 4, 5, 6, 7));
}

TEST(Utf16Text, IsEmptyWithoutATextButEndsWhereItEnds) {
    EXPECT_THAT(offsets(Utf16Text()), ElementsAre(0));
    EXPECT_TRUE(Utf16Text("").units().empty());
}

RC_GTEST_PROP(Utf16Text, SaysTheSameAsItsUtf8, ()) {
    const std::string bytes = *tests::anyBytes();
    const Utf16Text text(bytes);

    std::string back;
    for (std::size_t unit = 0; unit < text.units().size(); ++unit) {
        char32_t character = text.units()[unit];
        if (foundation::isHighSurrogate(character)) character = foundation::joinedSurrogates(character, text.units()[++unit]);
        foundation::appendUtf8(back, character);
    }
    RC_ASSERT(back == foundation::repairedUtf8(bytes));
    RC_ASSERT(text.byteOffset(text.units().size()) == bytes.size());
}

} // namespace

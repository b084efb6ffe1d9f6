#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Platform/Graphics/AttributedString.hpp"
#include "Tests/Support/PrintGeometry.hpp"

namespace proupsells::graphics {
namespace {

using ::testing::ElementsAre;

const TextAttributes plain{.font = {.size = 14}};
const TextAttributes struck{.font = {.size = 14}, .isStruckThrough = true};

TEST(AttributedString, WithoutTextHasNoRuns) {
    EXPECT_TRUE(AttributedString{}.isEmpty());
    EXPECT_TRUE((AttributedString{"", plain}).isEmpty());
}

TEST(AttributedString, JoinsItsRunsTexts) {
    AttributedString text{"now ", plain};
    text.append({"then", struck});

    EXPECT_EQ(text.text(), "now then");
    EXPECT_THAT(text.runs(), ElementsAre(AttributedRun{"now ", plain}, AttributedRun{"then", struck}));
}

TEST(AttributedString, MakesOneRunOfNeighboursThatLookTheSame) {
    AttributedString text{"a", plain};
    text.append({"b", plain});
    text.append({"", struck});
    text.append({"c", plain});

    EXPECT_THAT(text.runs(), ElementsAre(AttributedRun{"abc", plain}));
}

TEST(AttributedString, CanBeAppendedToItself) {
    AttributedString text{"a", plain};
    text.append({"b", struck});
    text.append({"c", plain});

    text.append(text);

    EXPECT_THAT(text.runs(), ElementsAre(AttributedRun{"a", plain}, AttributedRun{"b", struck}, AttributedRun{"ca", plain},
                                         AttributedRun{"b", struck}, AttributedRun{"c", plain}));
}

TEST(AttributedString, TakesAParagraphStyleOnlyWhereItHasNone) {
    AttributedString text{"a", plain}, spaced{"b", plain}, centered{"c", plain};
    spaced.paragraphStyle = ParagraphStyle{.lineSpacing = 4};
    centered.paragraphStyle = ParagraphStyle{.alignment = TextAlignment::center};

    text.append(spaced);
    text.append(centered);

    EXPECT_EQ(text.paragraphStyle, (ParagraphStyle{.lineSpacing = 4}));
}

} // namespace
} // namespace proupsells::graphics

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

#include "Backends/Raster/ClusterMaker.hpp"
#include "Platform/Foundation/Utf8.hpp"

using namespace proupsells;

using graphics::LineBreak;
using testing::ElementsAre;

namespace {

// The pieces of a text between the places where lines may break.
std::vector<std::string> pieces(const std::string& text, std::string_view language) {
    static rasterbackend::ClusterMaker maker;
    std::vector<graphics::Cluster> clusters;
    std::vector<std::uint32_t> starts;
    const std::vector<graphics::StyledRun> runs{{text, {}, 0}};
    maker.makeClusters(rasterbackend::RunUnits(runs), language, clusters, starts);
    std::vector<std::string> pieces(1);
    for (const graphics::Cluster& cluster : clusters) {
        pieces.back() += text.substr(cluster.textOffset, cluster.textLength);
        if (cluster.breakAfter != LineBreak::none) pieces.emplace_back();
    }
    return pieces;
}

} // namespace

TEST(ClusterMaker, BreaksThaiBetweenWords) { EXPECT_THAT(pieces("ภาษาไทยง่าย", "th"), ElementsAre("ภาษา", "ไทย", "ง่าย")); }

TEST(ClusterMaker, BeginsNoLineOfJapaneseWithASmallLetter) {
    EXPECT_THAT(pieces("ション", "ja-u-lw-normal"), ElementsAre("ショ", "ン"));
    EXPECT_THAT(pieces("ラー", "ja"), ElementsAre("ラー"));
}

TEST(ClusterMaker, BreaksJapaneseBetweenPhrases) {
    EXPECT_THAT(pieces("毎日増える、プレミアムテンプレート。", "ja"), ElementsAre("毎日", "増える、", "プレミアムテンプレート。"));
}

TEST(ClusterMaker, BreaksKoreanBetweenWords) { EXPECT_THAT(pieces("매일 새롭게.", "ko"), ElementsAre("매일 ", "새롭게.")); }

TEST(ClusterMaker, KeepsAPriceAndItsPeriodTogether) {
    EXPECT_THAT(pieces("($8.33/month)", "en"), ElementsAre("($8.33/month)"));
    EXPECT_THAT(pieces("$8.33／月", "zh"), ElementsAre("$8.33／月"));
}

TEST(ClusterMaker, BreaksByTheRulesThatTheLanguageAsksFor) {
    EXPECT_THAT(pieces("ション", "ja-u-lb-loose"), ElementsAre("シ", "ョ", "ン"));
}

TEST(ClusterMaker, TakesAnyLanguage) {
    for (const char* language : {"", "xx", "not a language", "en_US", "zh-Hant-TW", "\xFF"})
        EXPECT_THAT(pieces("per year.", language), ElementsAre("per ", "year.")) << language;
}

TEST(ClusterMaker, BreaksNoLineAtASoftHyphenNorInsideAKoreanWord) {
    EXPECT_THAT(pieces("extra\u00ADordinary", "en"), ElementsAre("extra\u00ADordinary"));
    EXPECT_THAT(pieces("\uAC00\uD7A3\uAC00", "ko"), ElementsAre("\uAC00\uD7A3\uAC00"));
}

TEST(ClusterMaker, TakesBlanksAndEndsOfLinesForWhitespaceButNoBlankThatHoldsWordsTogether) {
    rasterbackend::ClusterMaker maker;
    std::ostringstream whitespace;
    whitespace << std::hex << std::uppercase;
    for (char32_t character = 1; character < 0xD800; ++character) {
        std::string text;
        foundation::appendUtf8(text, character);
        std::vector<graphics::Cluster> clusters;
        std::vector<std::uint32_t> starts;
        const std::vector<graphics::StyledRun> runs{{text, {}, 0}};
        maker.makeClusters(rasterbackend::RunUnits(runs), "en", clusters, starts);
        ASSERT_EQ(clusters.size(), 1u);
        if (clusters.front().isWhitespace) whitespace << std::uint32_t(character) << ' ';
    }

    EXPECT_EQ(whitespace.str(), "9 A B C D 20 85 1680 2000 2001 2002 2003 2004 2005 2006 2008 2009 200A 2028 2029 205F 3000 ");
}

TEST(ClusterMaker, KeepsACarriageReturnAndItsLineFeedOnOneLineEvenInTwoRuns) {
    rasterbackend::ClusterMaker maker;
    const auto breaks = [&](const std::vector<graphics::StyledRun>& runs) {
        std::vector<graphics::Cluster> clusters;
        std::vector<std::uint32_t> starts;
        maker.makeClusters(rasterbackend::RunUnits(runs), "en", clusters, starts);
        std::vector<std::pair<int, LineBreak>> result;
        for (const graphics::Cluster& cluster : clusters) result.push_back({cluster.run, cluster.breakAfter});
        return result;
    };
    using Breaks = std::vector<std::pair<int, LineBreak>>;

    EXPECT_EQ(breaks({{"a\r", {}, 0}, {"\nb", {}, 0}}),
              (Breaks{{0, LineBreak::none}, {0, LineBreak::none}, {1, LineBreak::mandatory}, {1, LineBreak::none}}));
    EXPECT_EQ(breaks({{"a\r", {}, 0}, {"b\r", {}, 0}}),
              (Breaks{{0, LineBreak::none}, {0, LineBreak::mandatory}, {1, LineBreak::none}, {1, LineBreak::mandatory}}));
    EXPECT_EQ(breaks({{"\n", {}, 0}, {"\n", {}, 0}}), (Breaks{{0, LineBreak::mandatory}, {1, LineBreak::mandatory}}));
}

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Backends/Raster/ClusterMaker.hpp"

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

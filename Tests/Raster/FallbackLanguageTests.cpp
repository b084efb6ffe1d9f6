#include <gtest/gtest.h>

#include <tuple>

#include "Backends/Raster/FallbackLanguage.hpp"

namespace proupsells::rasterbackend {
namespace {

TEST(FallbackLanguages, AreTheTextsOwnWhereItIsWrittenInTheScript) {
    for (const auto& [language, script, expected] :
         {std::tuple{"ja", "Hira", "ja"}, {"ja", "Hani", "ja"},         {"ja-JP", "Kana", "ja"},      {"mr", "Deva", "mr"},
          {"zh", "Hani", "zh-cn"},        {"zh-Hant", "Hani", "zh-tw"}, {"de-AT", "Zyyy", "de"},      {"ja", "Kana", "ja"},
          {"ko", "Hani", "ko"},           {"ko", "Hang", "ko"},         {"zh-Hans", "Bopo", "zh-cn"}, {"zh-Hant", "Bopo", "zh-tw"},
          {"zh-HK", "Bopo", "zh-hk"},     {"zh-Hans", "Hani", "zh-cn"}, {"zh-HK", "Hani", "zh-hk"},   {"sr", "Cyrl", "sr"},
          {"sr-Latn", "Latn", "sr"},      {"fr", "Zinh", "fr"},         {"fr", "Zzzz", "fr"},         {"fr", "Zyyy", "fr"}})
        EXPECT_EQ(fallbackLanguage(language, script), expected) << language << " in " << script;
}

TEST(FallbackLanguages, AreTheScriptsMostUsualOnesElsewhere) {
    for (const auto& [language, script, expected] : {std::tuple{"", "Arab", "ar"},
                                                     {"en", "Hani", "zh-cn"},
                                                     {"en", "Deva", "hi"},
                                                     {"no language", "Thai", "th"},
                                                     {"", "Grek", "el"},
                                                     {"en", "Bopo", "zh-tw"},
                                                     {"ja", "Hang", "ko"},
                                                     {"ko", "Hira", "ja"},
                                                     {"zh-Hans", "Kana", "ja"},
                                                     {"ja", "Latn", "en"},
                                                     {"", "Zyyy", ""},
                                                     {"", "Zinh", ""},
                                                     {"", "Zzzz", ""}})
        EXPECT_EQ(fallbackLanguage(language, script), expected) << language << " in " << script;
}

} // namespace
} // namespace proupsells::rasterbackend

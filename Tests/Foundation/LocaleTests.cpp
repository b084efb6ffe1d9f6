#include "Platform/Foundation/Locale.hpp"
#include "Tests/Foundation/LocaleFixture.hpp"

using namespace proupsells;

using foundation::Locale;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

TEST(LocaleIdentifier, HasUnderscoresBetweenItsParts) {
    EXPECT_EQ(Locale("de-AT").identifier(), "de_AT");
    EXPECT_EQ(Locale("zh-Hant_TW").identifier(), "zh_Hant_TW");
}

TEST(LocaleIdentifier, MeansTheSameWithEitherSign) {
    EXPECT_EQ(Locale("de-AT"), Locale("de_AT"));
    EXPECT_FALSE(Locale("de-AT") == Locale("de"));
}

TEST(LanguageTag, IsTheMostExactLanguage) {
    EXPECT_EQ(Locale("de_AT").languageTag(), "de-AT");
    EXPECT_EQ(Locale("zh_Hant_TW@calendar=roc").languageTag(), "zh-Hant-TW");
    EXPECT_EQ(Locale("de__AT_").languageTag(), "de-AT");
}

TEST(LanguageTag, IsEmptyWhereNoLanguageIsNamed) {
    for (const char* identifier : {"", "@euro", "_", "__", ".UTF-8", "-"})
        EXPECT_EQ(Locale(identifier).languageTag(), "") << identifier;
}

TEST(LanguageChain, GoesFromTheMostExactToTheLanguage) {
    EXPECT_THAT(Locale("de_AT").languageChain(), ElementsAre("de-AT", "de"));
    EXPECT_THAT(Locale("en").languageChain(), ElementsAre("en"));
    EXPECT_THAT(Locale("zh-Hant-TW").languageChain(), ElementsAre("zh-Hant-TW", "zh-Hant", "zh"));
    EXPECT_THAT(Locale("ca_ES_VALENCIA").languageChain(), ElementsAre("ca-ES-VALENCIA", "ca-ES", "ca"));
}

TEST(LanguageChain, KnowsInWhichScriptChineseIsWritten) {
    EXPECT_THAT(Locale("zh_TW").languageChain(), ElementsAre("zh-TW", "zh-Hant", "zh"));
    EXPECT_THAT(Locale("zh-HK").languageChain(), ElementsAre("zh-HK", "zh-Hant", "zh"));
    EXPECT_THAT(Locale("ZH_mo").languageChain(), ElementsAre("ZH-mo", "zh-Hant", "ZH"));
    EXPECT_THAT(Locale("zh_CN").languageChain(), ElementsAre("zh-CN", "zh-Hans", "zh"));
    EXPECT_THAT(Locale("zh_SG").languageChain(), ElementsAre("zh-SG", "zh-Hans", "zh"));
    EXPECT_THAT(Locale("zh").languageChain(), ElementsAre("zh", "zh-Hans"));
    EXPECT_THAT(Locale("zh_Hans_HK").languageChain(), ElementsAre("zh-Hans-HK", "zh-Hans", "zh"));
    EXPECT_THAT(Locale("zh_Hant").languageChain(), ElementsAre("zh-Hant", "zh"));
    EXPECT_THAT(Locale("zha_TW").languageChain(), ElementsAre("zha-TW", "zha"));
}

TEST(LanguageChain, MakesPseudoLanguagesOfEnglish) {
    EXPECT_THAT(Locale("en_XA").languageChain(), ElementsAre("en-XA", "en"));
    EXPECT_THAT(Locale("ar_XB").languageChain(), ElementsAre("ar-XB", "en"));
    EXPECT_THAT(Locale("ar_XA").languageChain(), ElementsAre("ar-XA", "ar"));
}

TEST(LanguageChain, LeavesKeywordsAndCodesetsOut) {
    EXPECT_THAT(Locale("de_DE@currency=EUR").languageChain(), ElementsAre("de-DE", "de"));
    EXPECT_THAT(Locale("pt_BR.UTF-8").languageChain(), ElementsAre("pt-BR", "pt"));
}

TEST(LanguageChain, SurvivesOddIdentifiers) {
    EXPECT_THAT(Locale("").languageChain(), IsEmpty());
    EXPECT_THAT(Locale("@x").languageChain(), IsEmpty());
    EXPECT_THAT(Locale("__").languageChain(), IsEmpty());
    EXPECT_THAT(Locale("de__AT_").languageChain(), ElementsAre("de-AT", "de"));
}

using CurrentLocale = tests::LocaleFixture;

TEST_F(CurrentLocale, IsAmericanEnglishUntilItIsSet) { EXPECT_EQ(Locale::current().identifier(), "en_US"); }

TEST_F(CurrentLocale, IsTheOneThatWasSetLast) {
    Locale::setCurrent(Locale("fr_FR"));
    Locale::setCurrent(Locale("de_AT"));

    EXPECT_EQ(Locale::current(), Locale("de_AT"));
}

} // namespace

#include <rapidcheck/gtest.h>

#include "Platform/Foundation/Format.hpp"
#include "Platform/Foundation/PseudoLanguage.hpp"
#include "Tests/Foundation/AnyText.hpp"
#include "Tests/Foundation/LocaleFixture.hpp"
#include "Tests/Support/TemporaryFolder.hpp"

using namespace proupsells;

using foundation::Locale;
using foundation::localizedString;
using foundation::PseudoLanguage;
using foundation::pseudoLanguageOf;
using foundation::pseudoTranslation;

namespace {

std::string accented(std::string_view text) { return pseudoTranslation(text, PseudoLanguage::accented); }
std::string mirrored(std::string_view text) { return pseudoTranslation(text, PseudoLanguage::mirrored); }

// What the mirrored language makes of a word.
std::string word(const std::string& letters) { return "\u200F\u202E" + letters + "\u202C\u200F"; }

std::size_t characterCount(std::string_view text) {
    std::size_t count = 0;
    for (std::size_t at = 0; at < text.size(); at += foundation::decodeUtf8(text, at).length) ++count;
    return count;
}

// In the text's order.
std::string placeholdersOf(std::string_view text) {
    std::string found;
    while (!text.empty()) {
        const std::size_t length = foundation::placeholderLength(text);
        found.append(text.substr(0, length));
        text.remove_prefix(std::max<std::size_t>(length, 1));
    }
    return found;
}

TEST(PseudoLanguages, AreAskedForByTheirTag) {
    EXPECT_EQ(pseudoLanguageOf("en-XA"), PseudoLanguage::accented);
    EXPECT_EQ(pseudoLanguageOf("AR-xb"), PseudoLanguage::mirrored);
    for (const char* other : {"en", "en-US", "ar", "ar-XA", "en-XB", "en-XA-x", ""})
        EXPECT_EQ(pseudoLanguageOf(other), std::nullopt) << other;
}

TEST(AccentedLanguage, KeepsTextsLegibleInBrackets) {
    EXPECT_EQ(accented("Monthly"), "[Möööñţĥļýý]");
    EXPECT_EQ(accented("Subscribe Now"), "[Šüüübšçŕîîîbéé Ñööŵ]");
    EXPECT_EQ(accented("AI"), "[ÅåÎ]");
}

TEST(AccentedLanguage, LeavesPlaceholdersAndMarksAlone) {
    EXPECT_EQ(accented("**%1$@** per year (%2$@/month)."), "[**%1$@** péééŕ ýýýéééåååŕ (%2$@/möööñţĥ).]");
    EXPECT_EQ(accented("Save %1$@%%."), "[Šåååvéé %1$@%%.]");
    EXPECT_EQ(accented("60k+ %d 100 %"), "[60ķ+ %đ 100 %~~~~~~]");
}

TEST(AccentedLanguage, MakesTextsFortyPercentLonger) {
    for (const std::string text :
         {"Pro", "Close", "Privacy Policy", "Add your logos, fonts and color palettes to use within your projects."}) {
        const std::size_t brackets = 2;

        const std::size_t length = characterCount(accented(text)) - brackets;

        EXPECT_EQ(length, (text.size() * 14 + 9) / 10) << text;
    }
}

TEST(MirroredLanguage, WritesEveryWordFromRightToLeft) {
    EXPECT_EQ(mirrored("Subscribe Now"), word("Subscribe") + " " + word("Now"));
    EXPECT_EQ(mirrored("It's on-the-go."), word("It's") + " " + word("on") + "-" + word("the") + "-" + word("go") + ".");
    EXPECT_EQ(mirrored("won\u2019t"), word("won\u2019t"));
}

TEST(MirroredLanguage, LeavesPlaceholdersMarksAndNumbersAlone) {
    EXPECT_EQ(mirrored("**%1$@** per year"), "**%1$@** " + word("per") + " " + word("year"));
    EXPECT_EQ(mirrored("Save%@now"), word("Save") + "%@" + word("now"));
    EXPECT_EQ(mirrored("7 of 500+"), "7 " + word("of") + " 500+");
    EXPECT_EQ(mirrored("60k"), "60" + word("k"));
}

TEST(PseudoLanguages, LeaveAnEmptyTextEmpty) {
    EXPECT_EQ(accented(""), "");
    EXPECT_EQ(mirrored(""), "");
}

RC_GTEST_PROP(PseudoLanguages, KeepEveryPlaceholderOfAnyText, ()) {
    const std::string text = *tests::anyText("%@$1290aeZ* ");

    RC_ASSERT(placeholdersOf(accented(text)) == placeholdersOf(text));
    RC_ASSERT(placeholdersOf(mirrored(text)) == placeholdersOf(text));
}

RC_GTEST_PROP(PseudoLanguages, SurviveAnyBytes, ()) {
    const std::string bytes = *tests::anyBytes();

    RC_ASSERT(accented(bytes).size() >= bytes.size());
    RC_ASSERT(mirrored(bytes).size() >= bytes.size());
}

class PseudoLocale : public tests::LocaleFixture {
protected:
    tests::TemporaryFolder folder;
};

TEST_F(PseudoLocale, IsInForceOnlyWhereItIsAskedFor) {
    EXPECT_EQ(localizedString("Close"), "Close");

    Locale::setCurrent(Locale("en_XA"));
    EXPECT_EQ(localizedString("Close"), "[Çļööšéé]");

    Locale::setCurrent(Locale("ar_XB"));
    EXPECT_EQ(localizedString("Close"), word("Close"));
}

TEST_F(PseudoLocale, IsMadeOfTheHostsEnglish) {
    folder.write("en.lproj/Localizable.strings", "Close = Bye;");
    folder.write("ar.lproj/Localizable.strings", "Close = No;");
    foundation::Bundle::setMain(folder.path());

    Locale::setCurrent(Locale("en_XA"));
    EXPECT_EQ(localizedString("Close"), "[Býýéé]");

    Locale::setCurrent(Locale("ar_XB"));
    EXPECT_EQ(localizedString("Close"), word("Bye"));
}

TEST_F(PseudoLocale, RunsLikeItsBase) {
    const auto direction = [](const char* locale) { return foundation::LocaleServices::current().layoutDirection(Locale(locale)); };

    EXPECT_EQ(direction("en_XA"), geometry::LayoutDirection::leftToRight);
    EXPECT_EQ(direction("ar_XB"), geometry::LayoutDirection::rightToLeft);
}

} // namespace

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <numeric>

#include "Backends/Raster/ScriptRuns.hpp"

namespace proupsells::rasterbackend {
namespace {

using ::testing::IsEmpty;

// The scripts' codes, each unit being a cluster.
std::string scriptsOf(std::u16string_view units) {
    std::vector<std::uint32_t> starts(units.size() + 1);
    std::iota(starts.begin(), starts.end(), 0u);
    std::vector<hb_script_t> scripts{HB_SCRIPT_THAI};
    findScripts(units, starts, scripts);
    std::string text;
    for (const hb_script_t script : scripts) {
        char code[4];
        hb_tag_to_string(hb_script_to_iso15924_tag(script), code);
        text += (text.empty() ? "" : " ") + std::string(code, 4);
    }
    return text;
}

TEST(ScriptRuns, GiveWhatBelongsToNoScriptTheOneOfTheLetterBefore) {
    EXPECT_EQ(scriptsOf(u"a1."), "Latn Latn Latn");
    EXPECT_EQ(scriptsOf(u"a\u0301\u0431!\u05D0 7"), "Latn Latn Cyrl Cyrl Hebr Hebr Hebr");
}

TEST(ScriptRuns, GiveItTheFirstLettersAtTheBeginning) {
    EXPECT_EQ(scriptsOf(u"1. \u0431a"), "Cyrl Cyrl Cyrl Cyrl Latn");
    EXPECT_EQ(scriptsOf(u"$1"), "Zyyy Zyyy");
    EXPECT_EQ(scriptsOf(u""), "");
}

TEST(ScriptRuns, KnowTheLettersOfAsciiFromWhatStandsAroundThem) {
    for (const char16_t letter : {u'A', u'Z', u'a', u'z'}) EXPECT_EQ(scriptsOf(std::u16string(1, letter)), "Latn");
    for (const char16_t other : {u'@', u'[', u'`', u'{', u'0', u' ', u'\u00A0', u'\u20AC'})
        EXPECT_EQ(scriptsOf(std::u16string(1, other)), "Zyyy");
}

TEST(ScriptRuns, LookAtAClustersFirstCharacter) {
    const std::uint32_t starts[] = {0, 2, 4};
    std::vector<hb_script_t> scripts;
    findScripts(u"\U00010900\u0431a", starts, scripts);
    EXPECT_THAT(scripts, ::testing::ElementsAre(HB_SCRIPT_PHOENICIAN, HB_SCRIPT_CYRILLIC));

    findScripts(u"", {}, scripts);
    EXPECT_THAT(scripts, IsEmpty());
}

} // namespace
} // namespace proupsells::rasterbackend

#include <gmock/gmock.h>
#include <rapidcheck/gtest.h>

#include <map>
#include <string>

#include "Platform/Foundation/StringsFile.hpp"
#include "Tests/Foundation/AnyText.hpp"
#include "Tests/Foundation/Utf16.hpp"

using namespace proupsells;

using foundation::StringsFile;
using testing::IsEmpty;
using testing::Pair;
using testing::UnorderedElementsAre;
using tests::ByteOrder;

namespace {

// The texts of a file that has no error.
StringsFile::Texts texts(std::string_view bytes) {
    StringsFile file = StringsFile::parse(bytes);
    if (file.error) ADD_FAILURE() << "line " << file.error->line << ": " << file.error->message;
    return file.texts;
}

// The text of the only entry, whose value is written as `written` in quotes.
std::string unescaped(const std::string& written) { return texts("k = \"" + written + "\";")["k"]; }

TEST(StringsFile, MayBeEmpty) {
    EXPECT_THAT(texts(""), IsEmpty());
    EXPECT_THAT(texts(" \n\t\r\n"), IsEmpty());
    EXPECT_THAT(texts("/* nothing */ // yet"), IsEmpty());
    EXPECT_THAT(texts("\xEF\xBB\xBF"), IsEmpty());
    EXPECT_THAT(texts("\xFF\xFE"), IsEmpty());
}

TEST(StringsFile, PairsKeysWithTexts) {
    EXPECT_THAT(texts("\"Annually\" = \"J\u00E4hrlich\";\n\"Monthly\" = \"Monatlich\";\n"),
                UnorderedElementsAre(Pair("Annually", "J\u00E4hrlich"), Pair("Monthly", "Monatlich")));
}

TEST(StringsFile, TakesBlanksAndLinesAsTheyCome) {
    EXPECT_THAT(texts("\"a\"=\"1\";\"b\"\r\n=\t\"2\"\v;\f\"c\" =\r\"3\" ;"),
                UnorderedElementsAre(Pair("a", "1"), Pair("b", "2"), Pair("c", "3")));
}

TEST(StringsFile, SkipsCommentsEverywhereBetweenSigns) {
    EXPECT_THAT(texts("/* title */ \"a\" /* x */ = // y\n /**/ \"1\" /* ; */ ; // \"b\" = \"2\";\n/* \"c\" = \"3\"; */"),
                UnorderedElementsAre(Pair("a", "1")));
}

TEST(StringsFile, EndsACommentAtTheFirstEnd) {
    EXPECT_THAT(texts("/* /* */ a = b;"), UnorderedElementsAre(Pair("a", "b")));
    EXPECT_THAT(texts("/***/ a = b; /*/ */"), UnorderedElementsAre(Pair("a", "b")));
    EXPECT_THAT(texts("a = b; // end\rc = d;"), UnorderedElementsAre(Pair("a", "b"), Pair("c", "d")));
}

TEST(StringsFile, KeepsCommentSignsInQuotes) {
    EXPECT_THAT(texts("\"https://a\" = \"/* no */ // comment\";"), UnorderedElementsAre(Pair("https://a", "/* no */ // comment")));
}

TEST(StringsFile, TakesPlainWordsWithoutQuotes) {
    EXPECT_THAT(texts("NSName_1 = a.b-c:d$e/f; x//comment\n=y/*comment*/;"),
                UnorderedElementsAre(Pair("NSName_1", "a.b-c:d$e/f"), Pair("x", "y")));
}

TEST(StringsFile, KeepsLineBreaksInQuotes) { EXPECT_EQ(unescaped("one\ntwo"), "one\ntwo"); }

TEST(StringsFile, KeepsEmptyKeysAndTexts) {
    EXPECT_THAT(texts("\"\" = \"empty key\"; \"e\" = \"\";"), UnorderedElementsAre(Pair("", "empty key"), Pair("e", "")));
}

TEST(StringsFile, TakesTheLastTextOfAKeyThatOccursTwice) {
    EXPECT_THAT(texts("a = first; \"a\" = second;"), UnorderedElementsAre(Pair("a", "second")));
}

TEST(StringsFile, UnderstandsEscapes) {
    EXPECT_EQ(unescaped(R"(\"quoted\" \\ back)"), "\"quoted\" \\ back");
    EXPECT_EQ(unescaped(R"(a\nb\tc\rd\ae\bf\vg\fh)"), "a\nb\tc\rd\ae\bf\vg\fh");
    EXPECT_EQ(unescaped(R"(\'\?\%\x\é)"), "'?%x\u00E9");
    EXPECT_EQ(unescaped("one\\\ntwo"), "one\ntwo");
}

TEST(StringsFile, UnderstandsCharacterNumbers) {
    EXPECT_EQ(unescaped(R"(\U00e9\u20AC\U0041)"), "\u00E9\u20ACA");
    EXPECT_EQ(unescaped(R"(\U00e9e9)"), "\u00E9e9");
    EXPECT_EQ(unescaped(R"(\101\62z\7)"), "A2z\a");
    EXPECT_EQ(unescaped(R"(\0)"), std::string(1, '\0'));
    EXPECT_EQ(unescaped(R"(\1019)"), "A9");
}

TEST(StringsFile, JoinsSurrogatePairs) {
    EXPECT_EQ(unescaped(R"(\Ud83d\ude00)"), "\U0001F600");
    EXPECT_EQ(unescaped(R"(\uDBFF\UDFFF)"), "\U0010FFFF");
}

TEST(StringsFile, ReadsKeysLikeTexts) { EXPECT_THAT(texts(R"("a\n\U00e9" = b;)"), UnorderedElementsAre(Pair("a\n\u00E9", "b"))); }

struct Broken {
    const char* name;
    std::string bytes;
    std::size_t line;
    const char* message;
};

class BrokenStringsFile : public testing::TestWithParam<Broken> {};

TEST_P(BrokenStringsFile, NamesTheLineAndHasNoTexts) {
    const StringsFile file = StringsFile::parse(GetParam().bytes);

    EXPECT_THAT(file.texts, IsEmpty());
    ASSERT_TRUE(file.error);
    EXPECT_EQ(file.error->line, GetParam().line);
    EXPECT_EQ(file.error->message, GetParam().message);
}

INSTANTIATE_TEST_SUITE_P(
    Table, BrokenStringsFile,
    testing::Values(
        Broken{"NoKey", "a = b;\n= c;", 2, "expected a key"},
        Broken{"NoEqualsSign", "a = b;\n\n\"c\" \"d\";", 3, "expected \"=\" after the key"},
        Broken{"NoText", "a = b;\nc = ;", 2, "expected a text after \"=\""},
        Broken{"NoSemicolon", "a = b\nc = d;\n", 1, "expected \";\" after the text"},
        Broken{"NoSemicolonAtEnd", "a = b;\nc = d", 2, "expected \";\" after the text"},
        Broken{"OnlyKey", "a", 1, "expected \"=\" after the key"},
        Broken{"NoClosingQuote", "a = b;\nc = \"d;\ne = f;\n", 2, "the text that begins here has no closing quote"},
        Broken{"NoClosingQuoteOfKey", "\n\"", 2, "the text that begins here has no closing quote"},
        Broken{"BackslashAtEnd", "a = \"\\", 1, "the text that begins here has no closing quote"},
        Broken{"NoEndOfComment", "a = b;\n\n/* c = d;", 3, "the comment that begins here has no end"},
        Broken{"NoEndOfCommentBeforeASign", "a\n/* = b;", 2, "the comment that begins here has no end"},
        Broken{"SlashInsteadOfComment", "a = b;\n/ comment", 2, "expected \"=\" after the key"},
        Broken{"ShortUnicode", "a = \"\\U12\";", 1, "expected four hexadecimal digits after \"\\U\""},
        Broken{"NoHexadecimal", "a = \"\n\\U12g4\";", 2, "expected four hexadecimal digits after \"\\U\""},
        Broken{"UnicodeAtEnd", "a = \"\\u004", 1, "expected four hexadecimal digits after \"\\U\""},
        Broken{"HighSurrogateAlone", "a = \"\\Ud83d\";", 1, "expected both halves of a surrogate pair"},
        Broken{"HighSurrogateAtTheStartOfALine", "a = \"\n\\Ud83d\";", 2, "expected both halves of a surrogate pair"},
        Broken{"LowSurrogateAlone", "a = \"\\Ude00\";", 1, "expected both halves of a surrogate pair"},
        Broken{"TwoHighSurrogates", "a = \"\\Ud83d\\Ud83d\";", 1, "expected the second half of a surrogate pair"},
        Broken{"InvalidUtf8", "a = b;\nc = \"\xC3\";", 2, "expected valid UTF-8 or UTF-16"},
        Broken{"InvalidUtf8AtStart", "\xFF", 1, "expected valid UTF-8 or UTF-16"},
        Broken{"Latin1", "a = b;\r\n\r\nc = \"J\xE4hrlich\";", 3, "expected valid UTF-8 or UTF-16"},
        Broken{"HalfAUnit", tests::byteOrderMark(ByteOrder::littleEndian) + tests::utf16("a = b;\n", ByteOrder::littleEndian) + "c",
               2, "expected valid UTF-8 or UTF-16"},
        Broken{"Utf16SurrogateAlone", tests::byteOrderMark(ByteOrder::bigEndian) + std::string("\xD8\x3D\0a", 4), 1,
               "expected valid UTF-8 or UTF-16"},
        Broken{"Utf16SurrogateAtEnd", tests::byteOrderMark(ByteOrder::bigEndian) + "\xD8\x3D", 1, "expected valid UTF-8 or UTF-16"},
        Broken{"Utf16LowSurrogateFirst", tests::byteOrderMark(ByteOrder::bigEndian) + std::string("\xDE\x3D\0a", 4), 1,
               "expected valid UTF-8 or UTF-16"},
        Broken{"Nul", std::string("a = b;\n\0", 8), 2, "expected a key"}, Broken{"Dictionary", "{ a = b; }", 1, "expected a key"},
        Broken{"PropertyList", "<?xml version=\"1.0\"?>", 1, "expected a key"}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(BrokenStringsFileLines, AreCountedWithEveryKindOfLineEnd) {
    for (const char* lineEnd : {"\n", "\r", "\r\n"}) {
        const std::string bytes = std::string("a = b;") + lineEnd + lineEnd + "c";
        EXPECT_EQ(StringsFile::parse(bytes).error->line, 3u);
    }
}

TEST(StringsFileEncoding, IsFoundByTheByteOrderMarkOrTheFirstCharacter) {
    const std::string utf8 = "/* \u00C4 */ \"Monthly\" = \"\u6708\u984D \U0001F600\";";
    const auto expected = UnorderedElementsAre(Pair("Monthly", "\u6708\u984D \U0001F600"));
    EXPECT_THAT(texts(utf8), expected);
    EXPECT_THAT(texts("\xEF\xBB\xBF" + utf8), expected);
    for (const ByteOrder order : {ByteOrder::littleEndian, ByteOrder::bigEndian}) {
        EXPECT_THAT(texts(tests::byteOrderMark(order) + tests::utf16(utf8, order)), expected);
        EXPECT_THAT(texts(tests::utf16(utf8, order)), expected);
    }
}

// Writes a text as a careful translator's tool would.
std::string quoted(const std::string& text) {
    std::string result = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\') result += '\\';
        result += c;
    }
    return result + '"';
}

RC_GTEST_PROP(StringsFileProperty, ReadsBackWhatWasWrittenInEveryEncoding, ()) {
    const auto written = *rc::gen::resize(
        30, rc::gen::container<std::map<std::string, std::string>>(tests::anyText("\"\\/*\n;= "), tests::anyText("\"\\/*\n;=%@ ")));
    std::string utf8;
    for (const auto& [key, text] : written) utf8 += quoted(key) + " = " + quoted(text) + ";\n";
    const StringsFile::Texts expected(written.begin(), written.end());

    RC_ASSERT(StringsFile::parse(utf8).texts == expected);
    for (const ByteOrder order : {ByteOrder::littleEndian, ByteOrder::bigEndian}) {
        RC_ASSERT(StringsFile::parse(tests::byteOrderMark(order) + tests::utf16(utf8, order)).texts == expected);
        RC_ASSERT(StringsFile::parse(tests::utf16(utf8, order)).texts == expected);
    }
}

RC_GTEST_PROP(StringsFileProperty, SaysTheSameOfATextInEveryEncoding, ()) {
    const std::string utf8 = "/**/" + *tests::anyText("\"\\=;ab/*\n Uu0d8e\t");

    const StringsFile file = StringsFile::parse(utf8);
    const StringsFile same = StringsFile::parse(tests::utf16(utf8, ByteOrder::littleEndian));

    RC_ASSERT(file.texts == same.texts);
    RC_ASSERT(file.error.has_value() == same.error.has_value());
    if (file.error) RC_ASSERT(file.error->line == same.error->line && file.error->message == same.error->message);
}

RC_GTEST_PROP(StringsFileProperty, HasTextsOrAnErrorInsideTheFile, ()) {
    const std::string bytes = *rc::gen::oneOf(tests::anyBytes(), tests::anyText("\"\\=;ab/*\n Uu0d8e"));

    const StringsFile file = StringsFile::parse(bytes);

    if (file.error) {
        RC_ASSERT(file.texts.empty());
        RC_ASSERT(file.error->line >= 1 && file.error->line <= bytes.size() + 1);
    }
    for (const auto& [key, text] : file.texts) RC_ASSERT(foundation::isValidUtf8(key) && foundation::isValidUtf8(text));
}

} // namespace

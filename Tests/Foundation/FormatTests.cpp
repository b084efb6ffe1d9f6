#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <string>
#include <vector>

#include "Platform/Foundation/Format.hpp"
#include "Tests/Foundation/AnyText.hpp"

using namespace proupsells;

using foundation::format;

namespace {

struct FormatCase {
    const char* name;
    const char* text;
    const char* filled; // with the arguments "one" and "two"
};

class Format : public testing::TestWithParam<FormatCase> {};

TEST_P(Format, FillsTwoArguments) { EXPECT_EQ(format(GetParam().text, {"one", "two"}), GetParam().filled); }

INSTANTIATE_TEST_SUITE_P(
    Table, Format,
    testing::Values(FormatCase{"NoPlaceholder", "plain", "plain"}, FormatCase{"Empty", "", ""},
                    FormatCase{"Next", "%@ and %@", "one and two"}, FormatCase{"Numbered", "%1$@ (%2$@/month)", "one (two/month)"},
                    FormatCase{"Swapped", "%2$@, %1$@", "two, one"}, FormatCase{"Repeated", "%1$@%1$@", "oneone"},
                    FormatCase{"NumberedDoesNotMoveOn", "%2$@ %@ %1$@ %@", "two one one two"},
                    FormatCase{"Percent", "Save %1$@%%.", "Save one%."}, FormatCase{"PercentBeforePlaceholder", "%%%@", "%one"},
                    FormatCase{"PercentBeforeAt", "%%@", "%@"}, FormatCase{"TooManyNext", "%@%@[%@]", "onetwo[]"},
                    FormatCase{"OutOfRange", "[%3$@]", "[]"}, FormatCase{"NumberZero", "[%0$@]", "[]"},
                    FormatCase{"LeadingZeros", "%01$@ %002$@", "one two"},
                    FormatCase{"HugeNumber", "[%99999999999999999999999999$@]", "[]"},
                    FormatCase{"LargestNumber", "[%18446744073709551615$@]", "[]"},
                    FormatCase{"JustTooLargeNumber", "[%18446744073709551617$@]", "[]"},
                    FormatCase{"LonePercentAtEnd", "100 %", "100 %"}, FormatCase{"LonePercent", "100 % of", "100 % of"},
                    FormatCase{"CutShort", "%1$", "%1$"}, FormatCase{"OnlyNumber", "%1", "%1"},
                    FormatCase{"OnlyDollar", "%$@", "%$@"}, FormatCase{"Integer", "%d %1$d %ld", "%d %1$d %ld"},
                    FormatCase{"CString", "%s%n%1$s", "%s%n%1$s"}, FormatCase{"Width", "%5@ %-1$@", "%5@ %-1$@"},
                    FormatCase{"WidePercent", "%5%", "%5%"}, FormatCase{"BrokenThenGood", "%1%@", "%1one"},
                    FormatCase{"NegativeNumber", "%-1$@", "%-1$@"}, FormatCase{"Markup", "**%1$@** per year", "**one** per year"},
                    FormatCase{"OtherScript", "\u20AC%@\u2026", "\u20ACone\u2026"}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(FormatArguments, AreNotSearchedForPlaceholders) { EXPECT_EQ(format("%@|%@|%1$@", {"%2$@", "100%"}), "%2$@|100%|%2$@"); }

TEST(FormatArguments, MayBeMissingAltogether) { EXPECT_EQ(format("a%@b%1$@c%%", {}), "abc%"); }

TEST(FormatArguments, MayHoldAnyBytes) { EXPECT_EQ(format("<%@>", {std::string_view("\0\xFF", 2)}), std::string("<\0\xFF>", 4)); }

RC_GTEST_PROP(FormatProperty, HasEveryTextThatItCannotReadAsItStands, ()) {
    const std::string text = *tests::anyText("%$@0123456789");
    RC_PRE(text.find('@') == std::string::npos && text.find("%%") == std::string::npos);

    RC_ASSERT(format(text, {"argument"}) == text);
}

RC_GTEST_PROP(FormatProperty, MakesSomethingOfAnyBytes, ()) {
    const std::string text = *rc::gen::oneOf(tests::anyBytes(), tests::anyText("%$@0123456789"));
    const std::string longArgument(*rc::gen::inRange(0, 300), 'x');

    const std::string filled = format(text, {longArgument, ""});

    RC_ASSERT(filled.size() <= text.size() * (longArgument.size() + 1));
    RC_ASSERT(filled == format(text, {longArgument, ""}));
}

RC_GTEST_PROP(FormatProperty, PutsArgumentsInTheirOrder, ()) {
    const auto parts = *rc::gen::resize(
        20, rc::gen::container<std::vector<std::string>>(3, rc::gen::map(tests::anyText(" .,"), [](std::string text) {
                                                             std::erase(text, '%');
                                                             return text;
                                                         })));
    const std::string one = *tests::anyText("%@1$"), two = *tests::anyText("%@1$");

    RC_ASSERT(format(parts[0] + "%@" + parts[1] + "%@" + parts[2], {one, two}) == parts[0] + one + parts[1] + two + parts[2]);
    RC_ASSERT(format(parts[0] + "%2$@" + parts[1] + "%1$@" + parts[2], {one, two}) == parts[0] + two + parts[1] + one + parts[2]);
}

RC_GTEST_PROP(FormatProperty, EscapedTextComesBack, ()) {
    const std::string text = *tests::anyText("%%%@$1");
    std::string escaped;
    for (const char c : text) escaped += c == '%' ? "%%" : std::string(1, c);

    RC_ASSERT(format(escaped, {"argument"}) == text);
}

} // namespace

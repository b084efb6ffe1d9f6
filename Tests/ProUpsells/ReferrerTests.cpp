#include "ProUpsells/Referrer.hpp"

#include <gmock/gmock.h>

#include "ProUpsells/Entitlement.hpp"
#include "ProUpsells/Version.hpp"

namespace proupsells::tests {
namespace {

using namespace std::string_literals;

TEST(Referrer, IsANameWhenMadeFromAText) {
    const Referrer referrer = "Home";

    EXPECT_EQ(referrer.description(), "Home");
    EXPECT_FALSE(referrer.elementID.has_value());
}

TEST(Referrer, DescribesItsElement) {
    EXPECT_EQ((Referrer{"Home", 5}).description(), "Home - elementIDint(5)");
    EXPECT_EQ((Referrer{"Home", 0}).description(), "Home - elementIDint(0)");
    EXPECT_EQ((Referrer{"Feed", "A1"}).description(), "Feed - elementIDuuid(\"A1\")");
    EXPECT_EQ((Referrer{"Feed", "5"}).description(), "Feed - elementIDuuid(\"5\")");
}

TEST(Referrer, HoldsNumbersOf64Bits) {
    EXPECT_EQ((Referrer{"Home", std::int64_t{-9223372036854775807 - 1}}).description(),
              "Home - elementIDint(-9223372036854775808)");
}

TEST(Referrer, HasNoElementWhenTheNumberIsAbsent) {
    EXPECT_EQ((Referrer{"Home", std::optional<std::int64_t>{}}).description(), "Home");
    EXPECT_EQ((Referrer{"Home", std::optional<std::int64_t>{7}}).description(), "Home - elementIDint(7)");
}

TEST(Referrer, EscapesWhatCannotStandBetweenQuotes) {
    const auto described = [](const std::string& text) {
        return Referrer::ElementID{Referrer::ElementID::Uuid{text}}.description();
    };

    EXPECT_EQ(described("a\"b\\c"), R"(uuid("a\"b\\c"))");
    EXPECT_EQ(described("\n\t\r\0"s), R"(uuid("\n\t\r\0"))");
    EXPECT_EQ(described("\x01\x1F\x7F"), R"(uuid("\u{1}\u{1F}\u{7F}"))");
    EXPECT_EQ(described("\xC2\x85"), R"(uuid("\u{85}"))");
    EXPECT_EQ(described("a\xC2\x80\xC2\x9F"
                        "b"),
              R"(uuid("a\u{80}\u{9F}b"))");
    EXPECT_EQ(described("\xC3\x85\xC2\xBF ~"), "uuid(\"\xC3\x85\xC2\xBF ~\")");
    EXPECT_EQ(described("a\xC2"), "uuid(\"a\xC2\")");
    EXPECT_EQ(described("\x10\x19\x1A"), R"(uuid("\u{10}\u{19}\u{1A}"))");
    EXPECT_EQ(described("it's ü \xC2\xA0"), "uuid(\"it's ü \xC2\xA0\")");
}

TEST(Referrer, CanBeChanged) {
    Referrer referrer{"Home", 5};
    referrer.name = "Feed";
    referrer.elementID.reset();

    EXPECT_EQ(referrer, Referrer{"Feed"});
}

TEST(Entitlement, HasAnAnalyticsValue) { EXPECT_EQ(analyticsValue(Entitlement::velaPRO), "VELA_PRO"); }

TEST(Version, CanBeReadFromTheBinary) {
    EXPECT_EQ(ProUpsellsVersionNumber, 1);
    EXPECT_STREQ(reinterpret_cast<const char*>(ProUpsellsVersionString), "@(#)PROGRAM:ProUpsells  PROJECT:ProUpsells-1\n");
}

} // namespace
} // namespace proupsells::tests

// Which sightings are one finding, and which of them is told.
#include <gmock/gmock.h>

#include <nlohmann/json.hpp>

#include "Apps/ProUpsellsHost/AuditOffers.hpp"

namespace proupsells::hostprogram {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using tooling::AuditRule;
using tooling::Finding;

namespace {

class LedgerOfAnAudit : public ::testing::Test {
protected:
    void beginWith(geometry::Size size, graphics::ColorScheme appearance = graphics::ColorScheme::light) {
        Device device;
        device.size = size;
        device.appearance = appearance;
        ledger.begin(device);
    }
    static Finding findingAt(const std::string& path, const std::string& identifier = {},
                             const std::string& detail = "It is wrong") {
        return {AuditRule::truncated, path, detail, identifier};
    }

    AuditLedger ledger;
};

} // namespace

TEST_F(LedgerOfAnAudit, TellsTheConfigurationInWords) {
    Device device{.size = {320.5, 568}, .appearance = graphics::ColorScheme::dark, .locale = "de_AT"};
    device.textSize = graphics::ContentSizeCategory::accessibilityLarge;
    ledger.begin(device);
    ledger.add("paywall", findingAt("0.1", "close"));
    device = {.size = {375, 667.25}};
    ledger.begin(device);
    ledger.add("paywall", findingAt("0.2", "close"));

    ASSERT_THAT(ledger.entries(), SizeIs(2));
    EXPECT_EQ(ledger.entries()[0].configuration, "de_AT accessibilityLarge 320.5x568 dark");
    EXPECT_EQ(ledger.entries()[0].smallestWidth, 320.5);
    EXPECT_EQ(ledger.entries()[1].configuration, "en_US large 375x667.25 light");
    EXPECT_EQ(ledger.entries()[0].rule, "truncated");
    EXPECT_EQ(ledger.entries()[0].path, "0.1");
    EXPECT_EQ(ledger.entries()[0].identifier, "close");
    EXPECT_EQ(ledger.entries()[0].message, "It is wrong");
    EXPECT_EQ(ledger.entries()[0].advice, tooling::adviceOf(AuditRule::truncated));
}

TEST_F(LedgerOfAnAudit, CountsAFindingOnceInAConfigurationAndOnceMoreInEachOther) {
    beginWith({375, 667});
    ledger.add("paywall", findingAt("0.1"));
    ledger.add("paywall", findingAt("0.1"));
    beginWith({375, 667}, graphics::ColorScheme::dark);
    ledger.add("paywall", findingAt("0.1"));
    beginWith({375, 667});
    ledger.add("paywall", findingAt("0.1"));

    ASSERT_THAT(ledger.entries(), SizeIs(1));
    EXPECT_EQ(ledger.entries()[0].configurations, 2u);
    EXPECT_EQ(ledger.entries()[0].configuration, "en_US large 375x667 light");
}

TEST_F(LedgerOfAnAudit, TellsTheFirstSightingOfTheSmallestWidth) {
    for (const geometry::Size size :
         {geometry::Size{375, 667}, geometry::Size{320, 568}, geometry::Size{320, 900}, geometry::Size{768, 1024}}) {
        beginWith(size);
        ledger.add("paywall", findingAt("0.1", "", "It is wrong at " + std::to_string(int(size.height))));
    }

    ASSERT_THAT(ledger.entries(), SizeIs(1));
    EXPECT_EQ(ledger.entries()[0].configuration, "en_US large 320x568 light");
    EXPECT_EQ(ledger.entries()[0].message, "It is wrong at 568");
    EXPECT_EQ(ledger.entries()[0].smallestWidth, 320);
    EXPECT_EQ(ledger.entries()[0].configurations, 4u);
}

TEST_F(LedgerOfAnAudit, TellsFindingsApartByScreenRuleAndPath) {
    beginWith({375, 667});
    ledger.add("paywall", findingAt("0.1"));
    ledger.add("store", findingAt("0.1"));
    ledger.add("paywall", findingAt("0.2"));
    ledger.add("paywall", {AuditRule::brokenWord, "0.1", "It is wrong", ""});

    EXPECT_THAT(ledger.entries(), SizeIs(4));
}

TEST_F(LedgerOfAnAudit, TellsApartByIdentifierOrElseByWordsWhatHasNoPath) {
    beginWith({375, 667});
    ledger.add("paywall", findingAt("0.1", "close", "This"));
    ledger.add("paywall", findingAt("0.1", "subscribe", "That"));
    EXPECT_THAT(ledger.entries(), SizeIs(1));

    ledger.add("paywall", findingAt("", "close", "This"));
    ledger.add("paywall", findingAt("", "close", "That"));
    ledger.add("paywall", findingAt("", "subscribe", "That"));
    EXPECT_THAT(ledger.entries(), SizeIs(3));

    ledger.add("paywall", findingAt("", "", "This"));
    ledger.add("paywall", findingAt("", "", "That"));
    ledger.add("paywall", findingAt("", "", "That"));
    EXPECT_THAT(ledger.entries(), SizeIs(5));
}

TEST_F(LedgerOfAnAudit, AddsUpWhatSeveralHaveFound) {
    beginWith({375, 667});
    ledger.add("paywall", findingAt("0.1"));
    beginWith({430, 932});
    ledger.add("paywall", findingAt("0.1"));
    AuditLedger whole;
    for (const AuditEntry& entry : ledger.entries()) whole.merge(auditEntryOf(toJson(entry)));
    AuditEntry narrow = ledger.entries()[0];
    narrow.smallestWidth = 320;
    narrow.configuration = "de large 320x568 light";
    narrow.configurations = 3;

    whole.merge(narrow);

    ASSERT_THAT(whole.entries(), SizeIs(1));
    EXPECT_EQ(whole.entries()[0].configurations, 5u);
    EXPECT_EQ(whole.entries()[0].configuration, "de large 320x568 light");
    EXPECT_EQ(toJson(whole.entries()[0]), Json({{"screen", "paywall"},
                                                {"rule", "truncated"},
                                                {"path", "0.1"},
                                                {"identifier", ""},
                                                {"message", "It is wrong"},
                                                {"advice", tooling::adviceOf(AuditRule::truncated)},
                                                {"configuration", "de large 320x568 light"},
                                                {"smallestWidth", 320.0},
                                                {"configurations", 5}}));
}

TEST_F(LedgerOfAnAudit, NamesIdentifiersThatOneLanguageHasAlone) {
    const Json english{{"paywall", {"close", "subscribe"}}, {"store", {"store.close"}}};
    const Json german{{"paywall", {"close", "kaufen"}}, {"store", {"store.close", "kaufen"}}};
    Device device{.size = {375, 667}, .locale = "de_AT"};

    compareIdentifiers(english, english, device, ledger);
    EXPECT_THAT(ledger.entries(), IsEmpty());
    compareIdentifiers(english, german, device, ledger);

    std::vector<std::string> told;
    for (const AuditEntry& entry : ledger.entries())
        told.push_back(entry.screen + ": " + entry.rule + ": " + entry.identifier + ": " + entry.message + " [" +
                       entry.configuration + "]");
    const std::string rule(nameOf(AuditRule::languageIdentifier));
    EXPECT_THAT(told,
                ElementsAre("paywall: " + rule + ": kaufen: kaufen is an identifier in de_AT only [de_AT large 375x667 light]",
                            "store: " + rule + ": kaufen: kaufen is an identifier in de_AT only [de_AT large 375x667 light]"));
}

} // namespace proupsells::hostprogram

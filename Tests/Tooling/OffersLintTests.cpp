#include <gmock/gmock.h>

#include "Backends/Headless/TestBed.hpp"
#include "Tests/ProUpsells/Offers.hpp"
#include "Tooling/OffersLint.hpp"
#include "Tooling/PriceText.hpp"

using namespace proupsells;

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;
using tooling::OffersToLint;
using tooling::readPriceText;
using Type = SubscriptionOption::SubscriptionType;

namespace {

SubscriptionOption yearly(std::string price, std::optional<std::string> trialLength = std::nullopt, bool hasUsedFreeTrial = false) {
    return {"pro.yearly", Type::Yearly{price, "$8.33", std::nullopt, std::move(trialLength)}, hasUsedFreeTrial};
}
SubscriptionOption monthly(std::string price) { return {"pro.monthly", Type::Monthly{std::move(price), {}, {}}, false}; }

class OffersLint : public testing::Test {
protected:
    // "rule place: message".
    std::vector<std::string> findings(const OffersToLint& offers) {
        std::vector<std::string> lines;
        for (const auto& finding : tooling::lint(offers))
            lines.push_back(finding.rule + " " + finding.place + ": " + finding.message);
        return lines;
    }

    headless::TestBed bed;
};

TEST_F(OffersLint, HasNothingToSayOfGoodOffers) {
    EXPECT_THAT(findings({.options = {yearly("$99.99", "1 week"), monthly("$14.99")}, .annualComparisonPrice = "$119.99"}),
                IsEmpty());
    EXPECT_THAT(findings({.options = {}}), IsEmpty());
}

TEST_F(OffersLint, FindsAPriceThatCannotBeReadWhereTheFixedSavingIsUntrue) {
    EXPECT_THAT(findings({.options = {yearly("$134.91"), monthly("$14.99")}}),
                ElementsAre(StartsWith("fixed saving /options/0/price: \"$134.91\" cannot be read, so that a saving of 45 % shows, "
                                       "although the prices say 25 %"),
                            StartsWith("fixed saving /options/1/price: ")));
}

TEST_F(OffersLint, FindsAPriceThatNobodyCanRead) {
    EXPECT_THAT(
        findings({.options = {yearly("free"), monthly("$14.99")}}),
        ElementsAre(StartsWith("fixed saving /options/0/price: \"free\" cannot be read, so that a saving of 45 % shows; write"),
                    StartsWith("fixed saving /options/1/price: ")));
}

TEST_F(OffersLint, FindsAYearDearerThanTwelveMonths) {
    EXPECT_THAT(
        findings({.options = {yearly("$180"), monthly("$14.99")}}),
        testing::Contains(StartsWith("dear year /options/0/price: a year at \"$180\" is dearer than twelve months at \"$14.99\"")));
    EXPECT_THAT(findings({.options = {yearly("$179.88"), monthly("$14.99")}}),
                testing::Not(testing::Contains(StartsWith("dear year"))));
}

TEST_F(OffersLint, FindsSevenDaysBesideAnotherTrial) {
    for (const char* length : {"2 weeks", "3 days", "1 month", "7 weeks", "14 Tage", "un mois"})
        EXPECT_THAT(findings({.options = {yearly("$99.99", length), monthly("$14.99")}}),
                    ElementsAre(StartsWith("other trial length /options/0/introductoryPeriodLength: ")))
            << length;
    for (const char* length : {"7 days", "7-day", "1 week", "One Week", "1 Woche", "7 jours", "1週間"})
        EXPECT_THAT(findings({.options = {yearly("$99.99", length), monthly("$14.99")}}), IsEmpty()) << length;
}

TEST_F(OffersLint, LetsATrialBeThatHasBeenUsed) {
    EXPECT_THAT(findings({.options = {yearly("$99.99", "2 weeks", true), monthly("$14.99")}}), IsEmpty());
}

TEST_F(OffersLint, FindsALifetimePlan) {
    EXPECT_THAT(findings({.options = {{"forever", Type::Lifetime{"$299"}, false}}}),
                ElementsAre("plan never shown /options/0/type: the paywall shows no lifetime plans, so nobody can buy \"forever\"; "
                            "leave it out"));
}

TEST_F(OffersLint, FindsDoubledSKUs) {
    EXPECT_THAT(findings({.options = {monthly("$14.99"), monthly("$9.99"), monthly("$4.99")}}),
                ElementsAre(AllOf(StartsWith("doubled SKU /options/1/SKU: "), HasSubstr("/options/0/SKU")),
                            StartsWith("doubled SKU /options/2/SKU: ")));
}

TEST_F(OffersLint, FindsAMonthlyPriceThatReadsAsZero) {
    SubscriptionOption year{"y", Type::Yearly{"99.99", "8.33", {}, {}}, false};
    for (const char* zero : {"0", "0.00", "-0"})
        EXPECT_THAT(findings({.options = {year, monthly(zero)}}),
                    testing::Contains(StartsWith("monthly price of 0 /options/1/price: ")))
            << zero;
}

TEST_F(OffersLint, FindsOtherCurrencySigns) {
    EXPECT_THAT(findings({.options = {yearly("$99.99"), monthly("14.99 €")}}),
                ElementsAre(StartsWith("other currency /options/1/price: \"14.99 €\" has \"€\", the first price has \"$\"")));
    EXPECT_THAT(
        findings({.options = {monthly("$14.99")}, .monthlyComparisonPrice = "19.99"}),
        ElementsAre(StartsWith("other currency /monthlySubscriptionPriceForComparisonWithPromotionalPrice: \"19.99\" has no "
                               "currency sign")));
}

TEST(PriceText, IsReadAsAPersonReadsIt) {
    const auto amount = [](std::string_view text) { return readPriceText(text).value().amount; };
    EXPECT_EQ(amount("$1,299.00"), 1299);
    EXPECT_EQ(amount("1.299,00 €"), 1299);
    EXPECT_EQ(amount("1\u202F299,5\u00A0zł"), 1299.5);
    EXPECT_EQ(amount("¥1,200"), 1200);
    EXPECT_EQ(amount("1’299.90 CHF"), 1299.9);
    EXPECT_EQ(amount("₹1,23,456"), 123456);
    EXPECT_EQ(amount("\u200F٩٩٫٩٩ د.إ"), 99.99);
    EXPECT_EQ(amount("14.99"), 14.99);
    EXPECT_FALSE(readPriceText("free"));
    EXPECT_FALSE(readPriceText(""));
}

TEST(PriceText, HasASignWithoutBlanks) {
    EXPECT_EQ(readPriceText("US$ 9.99")->sign, "US$");
    EXPECT_EQ(readPriceText("9,99\u00A0€")->sign, "€");
    EXPECT_EQ(readPriceText("9.99")->sign, "");
}

} // namespace

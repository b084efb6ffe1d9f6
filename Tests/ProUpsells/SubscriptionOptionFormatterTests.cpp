#include "ProUpsells/SubscriptionOptionFormatter.hpp"

#include <gmock/gmock.h>
#include <rapidcheck.h>

#include "Tests/ProUpsells/HostTranslations.hpp"
#include "Tests/ProUpsells/MainThread.hpp"
#include "Tests/ProUpsells/Offers.hpp"
#include "Tests/ProUpsells/StubLocaleServices.hpp"

namespace proupsells::tests {
namespace {

using Formatter = SubscriptionOptionFormatter;

// "plain", «bold» and ~struck through~ runs, one after the other, parted by bars.
std::string sketch(const graphics::AttributedString& text) {
    std::string result;
    for (const graphics::AttributedRun& run : text.runs()) {
        const bool isBold = run.attributes.font.weightOption == 2;
        if (!result.empty()) result += '|';
        result += run.attributes.isStruckThrough ? "~" + run.text + "~" : isBold ? "<" + run.text + ">" : run.text;
    }
    return result;
}

std::int64_t savings(std::vector<SubscriptionOption> options) {
    UpsellViewModel model;
    model.options = std::move(options);
    return Formatter::savingsPercentage(model);
}

std::int64_t savings(std::string yearlyPrice, std::string monthlyPrice) {
    return savings({yearly(std::move(yearlyPrice)), monthly(std::move(monthlyPrice))});
}

std::optional<std::string> badge(const SubscriptionOption& option, std::vector<SubscriptionOption> options) {
    UpsellViewModel model;
    model.options = std::move(options);
    return Formatter::badgeText(option, model);
}

TEST(BoldMarkup, SetsTheMarkedWordBold) {
    EXPECT_EQ(sketch(Formatter::boldMarkup("**first** word is bold")), "<first>| word is bold");
    EXPECT_EQ(sketch(Formatter::boldMarkup("bold word is **bold** okay?")), "bold word is |<bold>| okay?");
    EXPECT_EQ(sketch(Formatter::boldMarkup("all bold down here")), "all bold down here");
    EXPECT_EQ(sketch(Formatter::boldMarkup("**all of it**")), "<all of it>");
}

TEST(BoldMarkup, ReadsTheFirstPairOnly) { EXPECT_EQ(sketch(Formatter::boldMarkup("a **b** c **d** e")), "a |<b>| c **d** e"); }

TEST(BoldMarkup, LeavesALoneMarkerAsItStands) {
    EXPECT_EQ(sketch(Formatter::boldMarkup("only **one marker")), "only **one marker");
    EXPECT_EQ(sketch(Formatter::boldMarkup("***")), "***");
}

TEST(BoldMarkup, MayHaveNothingBetweenItsMarkers) { EXPECT_EQ(Formatter::boldMarkup("a****b").text(), "ab"); }

TEST(BoldMarkup, UsesTwoWeightsOfTheDefaultFont) {
    const auto runs = Formatter::boldMarkup("a **b**").runs();

    EXPECT_EQ(runs[0].attributes.font.name, "velaDefaultFont");
    EXPECT_EQ(runs[0].attributes.font.weightOption, 1);
    EXPECT_EQ(runs[0].attributes.font.size, 16);
    EXPECT_EQ(runs[0].attributes.color.name, "velaSecondaryLabel");
    EXPECT_EQ(runs[1].attributes.font.weightOption, 2);
    EXPECT_EQ(runs[1].attributes.font.size, 18);
    EXPECT_EQ(runs[1].attributes.color.name, "velaLabel");
}

TEST(BoldMarkup, LosesNothingButTheFirstPairOfMarkers) {
    EXPECT_TRUE(rc::check("bold markup keeps the text", [] {
        const auto pieces =
            *rc::gen::container<std::vector<std::string>>(rc::gen::element<std::string>("**", "*", "a", " ", "ü", "%"));
        std::string text;
        for (const std::string& piece : pieces) text += piece;

        std::string expected = text;
        if (const auto first = text.find("**"); first != std::string::npos)
            if (const auto second = text.find("**", first + 2); second != std::string::npos)
                expected = text.substr(0, first) + text.substr(first + 2, second - first - 2) + text.substr(second + 2);
        RC_ASSERT(Formatter::boldMarkup(text).text() == expected);
    }));
}

TEST(PickerRow, SpellsOutAYearlyPlan) {
    MainThread main;
    const auto texts = Formatter::titleAndSubtitle(yearly("$99.99"), std::nullopt);

    EXPECT_EQ(texts.title, "Annually");
    EXPECT_EQ(sketch(texts.subtitle), " |<$99.99>| per year ($8.33/month).");
}

TEST(PickerRow, SpellsOutAMonthlyPlan) {
    MainThread main;
    const auto texts = Formatter::titleAndSubtitle(monthly("$14.99"), "");

    EXPECT_EQ(texts.title, "Monthly");
    EXPECT_EQ(sketch(texts.subtitle), " |<$14.99>| per month");
}

TEST(PickerRow, WordsALifetimePlanAsAMonthlyOne) {
    MainThread main;
    const auto texts = Formatter::titleAndSubtitle(lifetime("$299"), std::nullopt);

    EXPECT_EQ(texts.title, "Monthly");
    EXPECT_EQ(sketch(texts.subtitle), " |<$299>| per month");
}

TEST(PickerRow, StrikesTheComparisonPriceThrough) {
    MainThread main;
    const auto subtitle = Formatter::titleAndSubtitle(yearly("$99.99"), "$119.99").subtitle;

    EXPECT_EQ(sketch(subtitle), "~$119.99~| |<$99.99>| per year ($8.33/month).");
    EXPECT_EQ(subtitle.runs()[0].attributes.font.size, 18);
    EXPECT_EQ(subtitle.runs()[0].attributes.color.name, "velaLabel");
}

TEST(PickerRow, GivesEachKindItsOwnComparisonPrice) {
    MainThread main;
    UpsellViewModel model;
    model.annualSubscriptionPriceForComparisonWithPromotionalPrice = "$119";
    model.monthlySubscriptionPriceForComparisonWithPromotionalPrice = "$19";

    EXPECT_EQ(Formatter::makePickerRow(yearly(), model).subtitle.runs()[0].text, "$119");
    EXPECT_EQ(Formatter::makePickerRow(monthly(), model).subtitle.runs()[0].text, "$19");
    EXPECT_EQ(Formatter::makePickerRow(lifetime(), model).subtitle.runs()[0].text, "$19");
}

TEST(PickerRow, CarriesTheOptionsOwnValues) {
    MainThread main;
    UpsellViewModel model;
    const RadioPickerItem row =
        Formatter::makePickerRow(monthly("$1", {.introductoryPeriodLength = "1 week", .hasUsedFreeTrial = true}, "sku"), model);

    EXPECT_EQ(row.id, "sku");
    EXPECT_EQ(row.trialLength, "1 week");
    EXPECT_TRUE(row.hasUsedFreeTrial);
    EXPECT_FALSE(row.offersTrial());
    EXPECT_FALSE(row.badge.has_value());
}

TEST(PickerRow, IsTheSameAloneAndInTheList) {
    MainThread main;
    UpsellViewModel model;
    model.options = std::vector{yearly("99.99", {.introductoryPeriodLength = "1 week"}), yearly("60", {}, "pro.other"),
                                monthly("14.99"), lifetime()};
    model.annualSubscriptionPriceForComparisonWithPromotionalPrice = "$119";

    std::vector<RadioPickerItem> rows;
    for (const SubscriptionOption& option : model.options.get()) rows.push_back(Formatter::makePickerRow(option, model));

    EXPECT_EQ(Formatter::makePickerRows(model), rows);
    EXPECT_EQ(rows[0].badge, "Save 45%");
    EXPECT_EQ(rows[1].badge, "Save 45%");
    EXPECT_FALSE(rows[2].badge.has_value());
}

TEST(PickerRow, SaysLargeSavingsToo) {
    MainThread main;
    UpsellViewModel model;
    model.options = std::vector{yearly("8.99"), monthly("14.99")};

    EXPECT_EQ(Formatter::makePickerRows(model)[0].badge, "Save 95%");
}

TEST(PickerRow, DoesNotReadPlaceholdersInPrices) {
    MainThread main;

    EXPECT_EQ(Formatter::titleAndSubtitle(monthly("%@ %1$@ %%"), std::nullopt).subtitle.text(), " %@ %1$@ %% per month");
}

TEST(PickerRow, SurvivesATranslationWithAWrongPlaceholder) {
    MainThread main;
    HostTranslations host{{{"**%@** per month", "**%7$@** pro Monat, %d"}, {"Monthly", "Monatlich"}}, "de"};
    const auto texts = Formatter::titleAndSubtitle(monthly("1 €"), std::nullopt);

    EXPECT_EQ(texts.title, "Monatlich");
    EXPECT_EQ(texts.subtitle.text(), "  pro Monat, %d");
}

TEST(Savings, AreRoundedAndSnapped) {
    EXPECT_EQ(savings("9.99", "1.99"), 55);
    EXPECT_EQ(savings("99.99", "14.99"), 45);
}

TEST(Savings, MayBeNegative) {
    EXPECT_EQ(savings("240", "10"), -100);
    EXPECT_EQ(savings("130", "10"), -5);
}

TEST(Savings, FallBackTo45WithoutPlainNumbers) {
    EXPECT_EQ(savings("$99.99", "14.99"), 45);
    EXPECT_EQ(savings("99.99", "$14.99"), 45);
    EXPECT_EQ(savings("", "14.99"), 45);
    EXPECT_EQ(savings(" 99.99", "14.99"), 45);
    EXPECT_EQ(savings("1,000.00", "14.99"), 45);
    EXPECT_EQ(savings("0x10", "14.99"), 45);
    EXPECT_EQ(savings("nan", "14.99"), 45);
    EXPECT_EQ(savings("100", "inf"), 45);
}

TEST(Savings, ReadSignsAndExponents) {
    EXPECT_EQ(savings("+6e1", "10"), 50);
    EXPECT_EQ(savings("60", "1E+1"), 50);
}

TEST(Savings, FallBackTo45WithoutBothKinds) {
    EXPECT_EQ(savings({yearly("60")}), 45);
    EXPECT_EQ(savings({monthly("10")}), 45);
    EXPECT_EQ(savings({yearly("60"), lifetime("10")}), 45);
    EXPECT_EQ(savings(std::vector<SubscriptionOption>{}), 45);
}

TEST(Savings, CompareTheFirstPlanOfEachKind) {
    EXPECT_EQ(savings({lifetime("1"), monthly("10"), yearly("60"), monthly("1"), yearly("1")}), 50);
}

TEST(Savings, SnapOnlyTheLastOfFiveUpwards) {
    EXPECT_EQ(Formatter::snappedToMultipleOfFive(41), 40);
    EXPECT_EQ(Formatter::snappedToMultipleOfFive(43), 40);
    EXPECT_EQ(Formatter::snappedToMultipleOfFive(44), 45);
    EXPECT_EQ(Formatter::snappedToMultipleOfFive(45), 45);
    EXPECT_EQ(Formatter::snappedToMultipleOfFive(-8), -5);
    EXPECT_EQ(Formatter::snappedToMultipleOfFive(-9), -5);
}

TEST(Savings, SnapToANearMultipleOfFive) {
    EXPECT_TRUE(rc::check("snapping", [](int percentage) {
        const std::int64_t snapped = Formatter::snappedToMultipleOfFive(percentage);
        RC_ASSERT(snapped % 5 == 0);
        RC_ASSERT(snapped - percentage <= (percentage > 0 ? 1 : 4));
        RC_ASSERT(percentage - snapped <= 3);
        RC_ASSERT(Formatter::snappedToMultipleOfFive(snapped) == snapped);
    }));
}

TEST(Savings, FollowFromTheRatioOfThePrices) {
    EXPECT_TRUE(rc::check("savings", [] {
        const int yearlyPrice = *rc::gen::inRange(0, 100000);
        const int monthlyPrice = *rc::gen::inRange(1, 10000);
        const std::int64_t result = savings(std::to_string(yearlyPrice), std::to_string(monthlyPrice));

        RC_ASSERT(result % 5 == 0);
        // Rounding moves the exact value by at most a half, snapping by at most three, or four below zero.
        const double exact = 100 - 100.0 * yearlyPrice / (12.0 * monthlyPrice);
        RC_ASSERT(std::abs(static_cast<double>(result) - exact) <= 4.5 + 1e-9);
    }));
}

TEST(SavingsDeathTest, StopTheProgramWhereThereIsNoSuchNumber) {
    EXPECT_DEATH(savings("99", "0"), "The savings percentage is not a whole number that can be shown");
    EXPECT_DEATH(savings("0", "0"), "The savings percentage is not a whole number that can be shown");
    EXPECT_DEATH(savings("1e300", "1e-5"), "The savings percentage is not a whole number that can be shown");
}

TEST(Savings, HoldNumbersOf64Bits) { EXPECT_EQ(savings("12e12", "1"), -99999999999900); }

TEST(Badge, StandsOnYearlyPlansOnly) {
    EXPECT_FALSE(badge(monthly(), {yearly(), monthly()}).has_value());
    EXPECT_FALSE(badge(lifetime(), {yearly(), monthly()}).has_value());
}

TEST(Badge, TellsTheSaving) {
    EXPECT_EQ(badge(yearly("99.99"), {yearly("99.99"), monthly("14.99")}), "Save 45%");
    EXPECT_EQ(badge(yearly(), {yearly()}), "Save 45%");
    EXPECT_EQ(badge(yearly(), {yearly("60"), monthly("10")}), "Save 50%");
}

TEST(Badge, SaysBestValueWhereTheSavingCannotBeFormatted) {
    StubLocaleServices services;
    services.cannotFormatPercent();

    EXPECT_EQ(badge(yearly(), {yearly()}), "Best Value");
}

TEST(Badge, FollowsTheModelAtOnce) {
    UpsellViewModel model;
    model.options = std::vector{yearly("60"), monthly("10")};
    const auto before = Formatter::badgeText(yearly(), model);
    model.options = std::vector{yearly("90"), monthly("10")};

    EXPECT_EQ(before, "Save 50%");
    EXPECT_EQ(Formatter::badgeText(yearly(), model), "Save 25%");
}

} // namespace
} // namespace proupsells::tests

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Backends/QtQuick/OptionReader.hpp"
#include "Tests/Support/LogRecorder.hpp"

using namespace proupsells;

using qtquick::readOptions;
using testing::ElementsAre;
using testing::IsEmpty;
using Type = SubscriptionOption::SubscriptionType;

TEST(OptionsOfQml, AreReadWithAllThatTheySay) {
    const QVariantList options{QVariantMap{{"sku", "pro.monthly"},
                                           {"period", "monthly"},
                                           {"price", "$14.99"},
                                           {"introductoryPrice", "$4.99"},
                                           {"trial", "1 week"}},
                               QVariantMap{{"sku", "pro.yearly"},
                                           {"period", "yearly"},
                                           {"price", "$99.99"},
                                           {"monthlyPrice", "$8.33"},
                                           {"introductoryPrice", "$49.99"},
                                           {"trial", "3 days"},
                                           {"hasUsedFreeTrial", true}},
                               QVariantMap{{"sku", "pro.lifetime"}, {"period", "lifetime"}, {"price", "$299"}}};

    EXPECT_THAT(readOptions(options),
                ElementsAre(SubscriptionOption("pro.monthly", Type::Monthly{"$14.99", "$4.99", "1 week"}, false),
                            SubscriptionOption("pro.yearly", Type::Yearly{"$99.99", "$8.33", "$49.99", "3 days"}, true),
                            SubscriptionOption("pro.lifetime", Type::Lifetime{"$299"}, false)));
}

TEST(OptionsOfQml, HaveNoOfferWhereTheySayNothingOfIt) {
    const QVariantList options{
        QVariantMap{{"sku", "a"}, {"period", "monthly"}, {"price", "$1"}},
        QVariantMap{{"sku", "b"}, {"period", "yearly"}, {"price", "$9"}, {"monthlyPrice", "$1"}, {"trial", "1 day"}}};

    EXPECT_THAT(readOptions(options), ElementsAre(SubscriptionOption("a", Type::Monthly{"$1", std::nullopt, std::nullopt}, false),
                                                  SubscriptionOption("b", Type::Yearly{"$9", "$1", std::nullopt, "1 day"}, false)));
    EXPECT_THAT(readOptions({}), IsEmpty());
}

TEST(OptionsOfQml, AreLeftOutOneByOneWithWhatTheyLack) {
    const tests::LogRecorder log;
    const QVariantList options{QVariantMap{{"sku", ""}, {"period", "monthly"}, {"price", "$1"}},
                               QVariantMap{{"sku", "b"}, {"price", "$1"}},
                               QVariantMap{{"sku", "c"}, {"period", "monthly"}},
                               QVariantMap{{"sku", "d"}, {"period", "yearly"}, {"price", "$1"}},
                               QVariantMap{{"sku", "e"}, {"period", "weekly"}, {"price", "$1"}},
                               QVariantMap{{"sku", "f"}, {"period", "lifetime"}, {"price", "$1"}},
                               QVariant("no map")};

    EXPECT_THAT(readOptions(options), ElementsAre(SubscriptionOption("f", Type::Lifetime{"$1"}, false)));

    EXPECT_THAT(
        log.messages(),
        ElementsAre("Paywall - option number 1 is left out: it has no \"sku\"",
                    "Paywall - option number 2 is left out: it has no \"period\"",
                    "Paywall - option number 3 is left out: it has no \"price\"",
                    "Paywall - option number 4 is left out: it has no \"monthlyPrice\"",
                    "Paywall - option number 5 is left out: its \"period\" is none of \"monthly\", \"yearly\" and \"lifetime\"",
                    "Paywall - option number 7 is left out: it has no \"sku\""));
    EXPECT_EQ(log.records().front().function, "options");
    EXPECT_EQ(log.records().front().severity, commons::DefaultLogger::errorSeverity);
}

// What QML says of a paywall, and what of it changes.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAccessible>
#include <QGuiApplication>
#include <QPalette>

#include "Backends/Qt/DesktopSettings.hpp"
#include "Backends/QtQuick/PaywallItem.hpp"
#include "Platform/Accessibility/Search.hpp"
#include "Platform/Commons/DefaultLogger.hpp"
#include "Tests/Qt/Events.hpp"
#include "Tests/QtQuick/Items.hpp"

using namespace proupsells;

using qtquick::PaywallItem;
using testing::ElementsAre;
using tests::Items;
using tests::settle;

TEST_F(Items, StayShutWhereQmlSaysSo) {
    show("import ProUpsells\n import QtQuick\n Item { Paywall { objectName: \"paywall\"; open: false;"
         "options: [{ sku: 'a', period: 'monthly', price: '$1' }] } }");
    EXPECT_FALSE(paywall->isOpen());
    paywall->setOpen(true);

    EXPECT_TRUE(paywall->isOpen());
}

TEST_F(Items, PassOnOptionsAndPricesWhileTheyAreOpen) {
    show();
    paywall->setOptions({QVariantMap{{"sku", "new"}, {"period", "monthly"}, {"price", "$5"}}});
    paywall->setMonthlyComparisonPrice("$9");
    settle();
    const accessibility::SemanticNode screen = paywall->uiWindow().semanticTree();

    EXPECT_NE(accessibility::findByIdentifier(screen, "plan.new"), nullptr);
    EXPECT_EQ(paywall->paywall()->monthlySubscriptionPriceForComparisonWithPromotionalPrice(), "$9");
}

TEST_F(Items, LeaveOutOptionsThatLackSomething) {
    std::vector<std::string> messages;
    const auto former =
        commons::DefaultLogger::shared().setSink([&](const commons::LogRecord& record) { messages.push_back(record.message); });
    show("import ProUpsells\n import QtQuick\n Item { Paywall { objectName: \"paywall\"; options: ["
         "{ period: 'monthly', price: '$1' }, { sku: 'b', period: 'weekly', price: '$1' }, { sku: 'c', period: 'yearly', price: "
         "'$1' },"
         "{ sku: 'd', period: 'monthly', price: '$1' }] } }");
    commons::DefaultLogger::shared().setSink(former);

    EXPECT_THAT(
        messages,
        ElementsAre("Paywall - option number 1 is left out: it has no \"sku\"",
                    "Paywall - option number 2 is left out: its \"period\" is none of \"monthly\", \"yearly\" and \"lifetime\"",
                    "Paywall - option number 3 is left out: it has no \"monthlyPrice\""));
    EXPECT_EQ(paywall->paywall()->options().size(), 1u);
}

TEST_F(Items, FollowTheirProperties) {
    show();
    paywall->setColorScheme(PaywallItem::ColorScheme::Dark);
    paywall->setDirection(PaywallItem::Direction::RightToLeft);
    paywall->setReducesMotion(true);
    paywall->setTextSize(99);
    const uikit::UITraitCollection& traits = paywall->uiWindow().traits();

    EXPECT_EQ(traits.userInterfaceStyle, graphics::ColorScheme::dark);
    EXPECT_EQ(traits.layoutDirection, geometry::LayoutDirection::rightToLeft);
    EXPECT_TRUE(traits.reduceMotion);
    EXPECT_EQ(traits.preferredContentSizeCategory, graphics::ContentSizeCategory::accessibilityExtraExtraExtraLarge);
    EXPECT_EQ(paywall->textSize(), 8);
    paywall->setColorScheme(PaywallItem::ColorScheme::System);
    EXPECT_EQ(traits.userInterfaceStyle, graphics::ColorScheme::light);
}

TEST_F(Items, SayWhatTheirPropertiesAreAndWhenTheyBecomeOthers) {
    show();
    int changes = 0;
    QObject::connect(paywall, &PaywallItem::traitsChanged, [&] { ++changes; });
    for (const auto scheme : {PaywallItem::ColorScheme::Light, PaywallItem::ColorScheme::Dark, PaywallItem::ColorScheme::System}) {
        paywall->setColorScheme(scheme);
        paywall->setColorScheme(scheme);
        EXPECT_EQ(paywall->colorScheme(), scheme);
    }
    EXPECT_EQ(changes, 3);
    for (const auto direction :
         {PaywallItem::Direction::RightToLeft, PaywallItem::Direction::LeftToRight, PaywallItem::Direction::System}) {
        paywall->setDirection(direction);
        EXPECT_EQ(paywall->direction(), direction);
    }
    EXPECT_EQ(changes, 6);
    EXPECT_FALSE(paywall->reducesMotion());
    paywall->setReducesMotion(true);
    EXPECT_TRUE(paywall->reducesMotion());
    paywall->setReducesMotion(false);
    EXPECT_FALSE(paywall->reducesMotion());
    EXPECT_EQ(changes, 8);
    EXPECT_EQ(paywall->textSize(), 0);
    paywall->setTextSize(2);
    EXPECT_EQ(paywall->textSize(), 2);
    paywall->setTextSize(-99);
    EXPECT_EQ(paywall->textSize(), -3);
    EXPECT_EQ(paywall->uiWindow().traits().preferredContentSizeCategory, graphics::ContentSizeCategory::extraSmall);
    paywall->resetTextSize();
    EXPECT_EQ(paywall->textSize(), 0);
    EXPECT_EQ(changes, 11);
}

TEST_F(Items, SayWhenWhatIsSoldHasBecomeSomethingElse) {
    show();
    std::vector<std::string> changes;
    QObject::connect(paywall, &PaywallItem::optionsChanged, [&] { changes.push_back("options"); });
    QObject::connect(paywall, &PaywallItem::pricesChanged, [&] { changes.push_back("prices"); });
    QObject::connect(paywall, &PaywallItem::referrerChanged, [&] { changes.push_back("referrer"); });
    QObject::connect(paywall, &PaywallItem::openChanged, [&] { changes.push_back("open"); });
    for (int time = 0; time < 2; ++time) {
        paywall->setOptions({QVariantMap{{"sku", "new"}, {"period", "monthly"}, {"price", "$5"}}});
        paywall->setAnnualComparisonPrice("$120");
        paywall->setMonthlyComparisonPrice("$12");
        paywall->setReferrer("editor");
    }
    EXPECT_THAT(changes, ElementsAre("options", "prices", "prices", "referrer"));
    EXPECT_EQ(paywall->paywall()->annualSubscriptionPriceForComparisonWithPromotionalPrice(), "$120");
    EXPECT_EQ(paywall->paywall()->monthlySubscriptionPriceForComparisonWithPromotionalPrice(), "$12");
    paywall->setAnnualComparisonPrice("");
    paywall->setMonthlyComparisonPrice("");
    EXPECT_EQ(paywall->paywall()->annualSubscriptionPriceForComparisonWithPromotionalPrice(), std::nullopt);
    EXPECT_EQ(paywall->paywall()->monthlySubscriptionPriceForComparisonWithPromotionalPrice(), std::nullopt);

    changes.clear();
    paywall->setAnnualComparisonPrice("$99");
    paywall->setOpen(true);
    paywall->setOpen(false);
    paywall->setOpen(false);
    EXPECT_EQ(paywall->controller(), nullptr);
    paywall->setMonthlyComparisonPrice("$9");
    paywall->setOpen(true);
    EXPECT_THAT(changes, ElementsAre("prices", "open", "prices", "open"));
    EXPECT_EQ(paywall->paywall()->annualSubscriptionPriceForComparisonWithPromotionalPrice(), "$99");
    EXPECT_EQ(paywall->paywall()->monthlySubscriptionPriceForComparisonWithPromotionalPrice(), "$9");
    EXPECT_EQ(paywall->paywall()->referrer(), Referrer{"editor"});
}

TEST_F(Items, FollowTheirOwnSize) {
    show();
    paywall->setSize({300, 500});
    settle();

    EXPECT_EQ(paywall->uiWindow().frame().size, (geometry::Size{300, 500}));
    EXPECT_EQ(QAccessible::queryAccessibleInterface(paywall)->rect().size(), QSize(300, 500));
    EXPECT_EQ(QAccessible::queryAccessibleInterface(paywall)->rect().topLeft(), window.mapToGlobal(QPoint(0, 50)));
}

TEST_F(Items, ShowNothingOfTheirFormerSizeInTheNextPictureOfTheScene) {
    show();
    window.setColor(Qt::green);
    paywall->setSize({300, 500});
    const QImage shown = window.grabWindow();

    EXPECT_NE(shown.pixelColor(299, 549), QColor(Qt::green));
    EXPECT_EQ(shown.pixelColor(300, 549), QColor(Qt::green));
    EXPECT_EQ(shown.pixelColor(299, 550), QColor(Qt::green));
}

TEST_F(Items, TellTheirSizeToThoseWhoDependOnIt) {
    show(R"(
        import QtQuick
        import ProUpsells 1.0
        Item {
            width: 375; height: 900
            property real farEdge: paywall.x + paywall.width
            Paywall { id: paywall; objectName: "paywall"; width: 200; height: 800 }
        })");
    paywall->setSize({300, 500});
    EXPECT_EQ(root->property("farEdge").toDouble(), 300);
    paywall->setX(50);
    EXPECT_EQ(root->property("farEdge").toDouble(), 350);
}

TEST_F(Items, FollowTheDesktopUnlessTheHostDecides) {
    auto& desktop = qtbackend::DesktopSettings::shared();
    show();
    const uikit::UITraitCollection& traits = paywall->uiWindow().traits();
    desktop.adopt("org.gnome.desktop.interface", "text-scaling-factor", 2.0);
    desktop.adopt("org.gnome.desktop.interface", "enable-animations", false);
    EXPECT_EQ(traits.preferredContentSizeCategory, graphics::ContentSizeCategory::accessibilityLarge);
    EXPECT_TRUE(traits.reduceMotion);

    paywall->setTextSize(0);
    paywall->setReducesMotion(false);
    EXPECT_EQ(traits.preferredContentSizeCategory, graphics::ContentSizeCategory::large);
    EXPECT_FALSE(traits.reduceMotion);

    paywall->resetTextSize();
    paywall->resetReducesMotion();
    EXPECT_EQ(traits.preferredContentSizeCategory, graphics::ContentSizeCategory::accessibilityLarge);
    EXPECT_TRUE(traits.reduceMotion);
    desktop.adopt("org.gnome.desktop.interface", "text-scaling-factor", 1.0);
    desktop.adopt("org.gnome.desktop.interface", "enable-animations", true);
}

TEST_F(Items, FollowTheApplicationsPaletteAndDirection) {
    show();
    const QPalette former = QGuiApplication::palette();
    QPalette dark = former;
    dark.setColor(QPalette::Window, Qt::black);
    dark.setColor(QPalette::WindowText, Qt::white);
    QGuiApplication::setPalette(dark);
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    settle();
    const uikit::UITraitCollection traits = paywall->uiWindow().traits();
    QGuiApplication::setPalette(former);
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);

    EXPECT_EQ(traits.userInterfaceStyle, graphics::ColorScheme::dark);
    EXPECT_EQ(traits.layoutDirection, geometry::LayoutDirection::rightToLeft);
}

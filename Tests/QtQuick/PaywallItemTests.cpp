#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAccessible>
#include <QGuiApplication>
#include <QHoverEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPalette>
#include <QPointer>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QWheelEvent>

#include "Backends/Qt/DesktopSettings.hpp"
#include "Backends/QtQuick/PaywallItem.hpp"
#include "Platform/Accessibility/Search.hpp"
#include "Platform/Commons/DefaultLogger.hpp"
#include "Platform/RunLoop/MainRunLoop.hpp"
#include "Tests/Qt/Events.hpp"

using namespace proupsells;

using qtquick::PaywallItem;
using testing::ElementsAre;
using testing::IsEmpty;
using tests::settle;

namespace {

const char* const usualPaywall = R"(
    import QtQuick
    import ProUpsells
    Item {
        width: 375; height: 900
        property var told: []
        TextInput { objectName: "before"; activeFocusOnTab: true; width: 100; height: 20 }
        Paywall {
            objectName: "paywall"
            y: 50; width: 375; height: 800
            options: [
                { sku: "pro.monthly", period: "monthly", price: "$14.99" },
                { sku: "pro.yearly", period: "yearly", price: "$99.99", monthlyPrice: "$8.33", trial: "1 week" }
            ]
            onPurchaseRequested: sku => { told.push("buy " + sku); open = false }
            onRestoreRequested: told.push("restore")
            onClosed: reason => told.push("closed " + reason)
        }
        TextInput { objectName: "after"; activeFocusOnTab: true; y: 860; width: 100; height: 20 }
    })";

class Items : public testing::Test {
protected:
    void show(const char* qml = usualPaywall) {
        QQmlComponent component(&engine);
        component.setData(qml, {});
        root.reset(qobject_cast<QQuickItem*>(component.create()));
        ASSERT_TRUE(root) << component.errorString().toStdString();
        root->setParentItem(window.contentItem());
        paywall = root->findChild<PaywallItem*>("paywall");
        window.resize(375, 900);
        window.show();
        window.requestActivate();
        settle();
    }

    void click(QPointF at) {
        for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            QMouseEvent event(type, at, window.mapToGlobal(at), Qt::LeftButton,
                              type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, {});
            QCoreApplication::sendEvent(&window, &event);
        }
    }
    void clickOn(std::string_view identifier) {
        const accessibility::SemanticNode screen = paywall->uiWindow().semanticTree();
        const accessibility::SemanticNode* node = accessibility::findByIdentifier(screen, identifier);
        ASSERT_NE(node, nullptr) << identifier;
        click(paywall->mapToScene({node->frame.midX(), node->frame.midY()}));
        settle();
    }
    void pressKey(int key) {
        QKeyEvent event(QEvent::KeyPress, key, {});
        QCoreApplication::sendEvent(&window, &event);
    }
    std::vector<std::string> told() const {
        std::vector<std::string> lines;
        for (const QVariant& line : root->property("told").toList()) lines.push_back(line.toString().toStdString());
        return lines;
    }

    QQmlEngine engine;
    QQuickWindow window;
    std::unique_ptr<QQuickItem> root;
    QPointer<PaywallItem> paywall;
};

} // namespace

TEST_F(Items, ShowThePaywallInTheScene) {
    show();
    const QImage scene = window.grabWindow();
    const QImage own = paywall->uiWindow().paintCount() > 0 ? scene.copy(0, 50, 375, 800) : QImage();

    ASSERT_FALSE(own.isNull());
    int distinct = 0;
    for (int y = 0; y < own.height(); y += 10)
        for (int x = 0; x < own.width(); x += 10) distinct += own.pixel(x, y) != own.pixel(1, 790);
    EXPECT_GT(distinct, 500) << "the header picture, the plans and the button";
    EXPECT_EQ(paywall->implicitWidth(), 375);
    EXPECT_EQ(paywall->implicitHeight(), 800);
}

TEST_F(Items, SellAndCloseByQml) {
    show();
    clickOn("plan.pro.monthly");
    clickOn("subscribe");

    EXPECT_THAT(told(), ElementsAre("buy pro.monthly", "closed 0"));
    EXPECT_FALSE(paywall->isOpen());
    EXPECT_EQ(paywall->controller(), nullptr);
}

TEST_F(Items, ShowAHandOverWhatCanBeTapped) {
    show();
    const auto hover = [&](geometry::Point at) {
        const QPointF place(at.x, at.y);
        QHoverEvent moves(QEvent::HoverMove, place, place, place);
        QCoreApplication::sendEvent(paywall, &moves);
        return paywall->cursor().shape();
    };
    const accessibility::SemanticNode screen = paywall->uiWindow().semanticTree();
    const accessibility::SemanticNode* plan = accessibility::findByIdentifier(screen, "plan.pro.monthly");
    ASSERT_NE(plan, nullptr);

    EXPECT_EQ(hover(plan->frame.center()), Qt::PointingHandCursor);
    EXPECT_EQ(hover({plan->frame.midX(), 20}), Qt::ArrowCursor);
    EXPECT_EQ(hover(plan->frame.center()), Qt::PointingHandCursor);
    QHoverEvent leaves(QEvent::HoverLeave, {-1, -1}, {-1, -1}, {-1, -1});
    QCoreApplication::sendEvent(paywall, &leaves);
    EXPECT_EQ(paywall->cursor().shape(), Qt::ArrowCursor);
}

TEST_F(Items, CloseByTheirOwnButtonAndByEscape) {
    show();
    clickOn("close");
    EXPECT_THAT(told(), ElementsAre("closed 1"));
    paywall->setOpen(true);
    settle();
    paywall->forceActiveFocus();
    pressKey(Qt::Key_Escape);

    EXPECT_THAT(told(), ElementsAre("closed 1", "closed 1"));
}

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

TEST_F(Items, ScrollByTheWheelAndByAFinger) {
    show();
    paywall->setHeight(400);
    settle();
    const auto closeTop = [&] {
        const accessibility::SemanticNode screen = paywall->uiWindow().semanticTree();
        return accessibility::findByIdentifier(screen, "plan.pro.monthly")->frame.minY();
    };
    const double before = closeTop();
    QWheelEvent notch({100, 100}, paywall->mapToGlobal(QPointF(100, 100)), {}, {0, -120}, {}, {}, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(paywall, &notch);
    settle();

    EXPECT_EQ(closeTop(), before - 60);
}

TEST_F(Items, FollowTheirOwnSize) {
    show();
    paywall->setSize({300, 500});
    settle();

    EXPECT_EQ(paywall->uiWindow().frame().size, (geometry::Size{300, 500}));
    EXPECT_EQ(QAccessible::queryAccessibleInterface(paywall)->rect().size(), QSize(300, 500));
    EXPECT_EQ(QAccessible::queryAccessibleInterface(paywall)->rect().topLeft(), window.mapToGlobal(QPoint(0, 50)));
}

TEST_F(Items, GiveUpAPressThatTheSceneTakesAway) {
    show();
    const accessibility::SemanticNode screen = paywall->uiWindow().semanticTree();
    const accessibility::SemanticNode* subscribe = accessibility::findByIdentifier(screen, "subscribe");
    ASSERT_NE(subscribe, nullptr);
    const QPointF at = paywall->mapToScene({subscribe->frame.midX(), subscribe->frame.midY()});
    QMouseEvent press(QEvent::MouseButtonPress, at, window.mapToGlobal(at), Qt::LeftButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&window, &press);
    EXPECT_TRUE(paywall->hasActiveFocus());
    settle();
    paywall->ungrabMouse();
    settle();
    QMouseEvent release(QEvent::MouseButtonRelease, at, window.mapToGlobal(at), Qt::LeftButton, Qt::NoButton, {});
    QCoreApplication::sendEvent(&window, &release);
    settle();

    EXPECT_THAT(told(), IsEmpty());
}

TEST_F(Items, LeaveKeysThatMeanNothingToThoseAround) {
    show(R"(
        import QtQuick
        import ProUpsells
        Item {
            property var told: []
            Keys.onPressed: event => told.push("key " + event.key)
            Paywall { objectName: "paywall"; width: 375; height: 800; options: [{ sku: "a", period: "monthly", price: "$1" }] }
        })");
    paywall->forceActiveFocus();
    pressKey(Qt::Key_F);
    pressKey(Qt::Key_Escape);

    EXPECT_THAT(told(), ElementsAre("key " + std::to_string(int(Qt::Key_F))));
}

TEST_F(Items, StandInTheItemAroundThemThatIsMarkedAndAreCalledAsQmlCallsThem) {
    show(R"(
        import QtQuick
        import ProUpsells
        Item {
            objectName: "marked"
            Accessible.role: Accessible.Pane
            Item {
                Paywall {
                    objectName: "paywall"; Accessible.name: "The paywall"
                    options: [{ sku: "a", period: "monthly", price: "$1" }]
                }
            }
        })");
    QAccessibleInterface* const tree = QAccessible::queryAccessibleInterface(paywall);

    EXPECT_EQ(tree->parent(), QAccessible::queryAccessibleInterface(root.get()));
    EXPECT_EQ(tree->text(QAccessible::Name), "The paywall");
    EXPECT_EQ(tree->window(), &window);
}

TEST_F(Items, GetTheFocusWhenAssistiveTechnologyGivesItToOneOfTheirControls) {
    show();
    root->findChild<QQuickItem*>("before")->forceActiveFocus();
    ASSERT_FALSE(paywall->hasActiveFocus());
    QAccessibleInterface* const dialog = QAccessible::queryAccessibleInterface(paywall)->child(0);
    for (int index = 0; index < dialog->childCount(); ++index) {
        auto* const actions = dialog->child(index)->actionInterface();
        if (!actions->actionNames().contains(QAccessibleActionInterface::setFocusAction())) continue;
        actions->doAction(QAccessibleActionInterface::setFocusAction());
        break;
    }

    EXPECT_TRUE(paywall->hasActiveFocus());
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

TEST_F(Items, RunNothingWhileTheyAreInvisible) {
    show();
    EXPECT_TRUE(paywall->uiWindow().isSeen());
    paywall->setVisible(false);
    EXPECT_FALSE(paywall->uiWindow().isSeen());
    paywall->setVisible(true);
    EXPECT_TRUE(paywall->uiWindow().isSeen());
    window.hide();
    settle();

    EXPECT_FALSE(paywall->uiWindow().isSeen());
}

TEST_F(Items, LetTheFocusInAndOut) {
    show();
    root->findChild<QQuickItem*>("before")->forceActiveFocus();
    pressKey(Qt::Key_Tab);
    EXPECT_TRUE(paywall->hasActiveFocus());
    for (int presses = 0; paywall->hasActiveFocus() && presses < 50; ++presses) pressKey(Qt::Key_Tab);
    EXPECT_TRUE(root->findChild<QQuickItem*>("after")->hasActiveFocus());
    pressKey(Qt::Key_Backtab);
    EXPECT_TRUE(paywall->hasActiveFocus());
}

TEST_F(Items, MoveToAnotherWindow) {
    show();
    QQuickWindow other;
    other.resize(375, 900);
    other.show();
    root->setParentItem(other.contentItem());
    settle();

    EXPECT_TRUE(paywall->uiWindow().isSeen());
    EXPECT_NE(other.grabWindow().pixel(187, 450), window.grabWindow().pixel(187, 450));
}

TEST_F(Items, RunNothingInAWindowThatIsHiddenYet) {
    show();
    QQuickWindow other;
    other.resize(375, 900);
    root->setParentItem(other.contentItem());
    EXPECT_FALSE(paywall->uiWindow().isSeen());
    other.show();
    EXPECT_TRUE(paywall->uiWindow().isSeen());
    window.hide();
    EXPECT_TRUE(paywall->uiWindow().isSeen());

    root->setParentItem(nullptr);
    EXPECT_FALSE(paywall->uiWindow().isSeen());
}

TEST_F(Items, MayBeDeletedFromInsideACallback) {
    show();
    QObject::connect(paywall, &PaywallItem::purchaseRequested, [this] { root.reset(); });
    clickOn("subscribe");

    EXPECT_TRUE(paywall.isNull());
}

TEST_F(Items, TellNothingWhileNobodySeesThem) {
    show();
    QAccessibleInterface* const tree = QAccessible::queryAccessibleInterface(paywall);
    ASSERT_EQ(tree->childCount(), 1);
    paywall->setVisible(false);
    settle();
    EXPECT_EQ(tree->childCount(), 0);
    EXPECT_EQ(tree->focusChild(), nullptr);
    paywall->setVisible(true);
    settle();

    EXPECT_EQ(tree->childCount(), 1);
}

TEST_F(Items, StandInTheScenesAccessibleTree) {
    show();
    QAccessibleInterface* const tree = QAccessible::queryAccessibleInterface(paywall);
    ASSERT_NE(tree, nullptr);
    QAccessibleInterface* const scene = QAccessible::queryAccessibleInterface(&window);
    ASSERT_NE(scene, nullptr);
    bool isListed = false;
    for (int index = 0; index < scene->childCount(); ++index) isListed |= scene->child(index) == tree;

    EXPECT_TRUE(isListed);
    ASSERT_EQ(tree->childCount(), 1);
    EXPECT_EQ(tree->child(0)->parent(), tree);
    EXPECT_GT(tree->child(0)->childCount(), 5);
}

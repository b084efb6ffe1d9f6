#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAccessible>
#include <QHoverEvent>
#include <QMouseEvent>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>
#include <QWheelEvent>

#include "Backends/QtQuick/PaywallItem.hpp"
#include "Platform/Accessibility/Search.hpp"
#include "Tests/Qt/Events.hpp"
#include "Tests/QtQuick/Items.hpp"

using namespace proupsells;

using qtquick::PaywallItem;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using tests::Items;
using tests::settle;

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

TEST_F(Items, ScrollByTheWheel) {
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

TEST_F(Items, AreTappedByAFinger) {
    show();
    const QPointF at = placeOf("subscribe");
    // The application's, as long as it lives.
    static QPointingDevice* const device = QTest::createTouchDevice();
    QTest::touchEvent(&window, device).press(1, at.toPoint());
    settle();
    QTest::touchEvent(&window, device).release(1, at.toPoint());
    settle();

    // Not by way of a mouse that the scene makes of it.
    EXPECT_TRUE(paywall->acceptTouchEvents());
    EXPECT_THAT(told(), Not(IsEmpty()));
}

TEST_F(Items, GiveUpAPressThatTheSceneTakesAway) {
    show();
    const QPointF at = placeOf("subscribe");
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
    std::vector<QQuickWindow*> windows;
    const QObject listener;
    QObject::connect(paywall, &QQuickItem::windowChanged, &listener, [&](QQuickWindow* window) { windows.push_back(window); });
    root->setParentItem(other.contentItem());
    settle();

    EXPECT_TRUE(paywall->uiWindow().isSeen());
    EXPECT_EQ(windows.back(), &other);
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

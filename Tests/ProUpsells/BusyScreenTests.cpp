// Screens that are on their way, or covered by another one: nothing in them can be operated, by whatever means.
#include <gmock/gmock.h>

#include "Tests/ProUpsells/KeyboardScreen.hpp"

namespace proupsells::tests {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class BusyScreen : public KeyboardScreen {
protected:
    // What somebody does who looked at the screen before.
    std::function<void()> operation(const std::string& identifier) { return told(identifier).activate; }
    std::function<void(int)> adjustment(const std::string& identifier) { return told(identifier).adjust; }
    // Half of the way that screens take.
    void goHalfWay() { bed.runFor(0.25); }
};

TEST_F(BusyScreen, SellsNothingWhileItComes) {
    entry->dismiss(false);
    window->rootViewController()->present(entry, true);
    goHalfWay();
    ledger.clear();

    ASSERT_TRUE(window->reading().isBusy);
    operation("subscribe")();
    EXPECT_THAT(ledger, IsEmpty());

    bed.runFor(1);
    operation("subscribe")();
    EXPECT_THAT(ledger, ElementsAre("delegate.didContinueWith(pro.yearly)"));
}

TEST_F(BusyScreen, SellsNothingWhileItGoes) {
    const auto subscribe = operation("subscribe");
    operation("close")();
    goHalfWay();

    subscribe();
    operation("restorePurchases")();

    EXPECT_THAT(ledger, IsEmpty());
}

TEST_F(BusyScreen, SellsNothingBehindAnotherScreen) {
    const auto subscribe = operation("subscribe");
    tap("comparePlans");

    subscribe();

    EXPECT_THAT(ledger, IsEmpty());
}

TEST_F(BusyScreen, TurnsNoPageBehindAnotherScreen) {
    const auto turn = adjustment("carousel.pageControl");
    operation("comparePlans")();
    turn(1);
    bed.runFor(1);
    turn(1);
    tap("comparison.close");

    EXPECT_EQ(valueOf("carousel.pageControl"), "page 1 of 4");
}

TEST_F(BusyScreen, OpensNoCategoryWhileItComes) {
    operation("comparePlans")();
    goHalfWay();
    operation("comparison.category.Creation Tools")();
    bed.runFor(1);

    EXPECT_FALSE(isExpanded("comparison.category.Creation Tools"));
}

TEST_F(BusyScreen, ClosesTheStorePageOnce) {
    const auto tracker = std::make_shared<LedgerTracker>(ledger);
    entry->setTracker(tracker);
    openStore();
    const auto close = operation("store.close");
    ledger.clear();

    close();
    close();
    bed.runFor(1);
    close();

    EXPECT_THAT(ledger, ElementsAre("dismissed(Home, Vela Pro Store Page, VELA_PRO)"));
}

TEST_F(BusyScreen, MovesNoShelfThatHasGone) {
    openStore();
    tabTo("store.shelf.ShapesShelf");
    const auto turn = adjustment("store.shelf.ShapesShelf");
    window->setRootViewController(nullptr);
    bed.runFor(1);

    turn(1);

    const accessibility::SemanticNode tree = window->semanticTree();
    EXPECT_EQ(accessibility::findByIdentifier(tree, "store.shelf.ShapesShelf"), nullptr);
}

TEST_F(BusyScreen, MovesNoShelfWhileItGoes) {
    openStore();
    tabTo("store.shelf.ShapesShelf");
    const auto turn = adjustment("store.shelf.ShapesShelf");
    const auto offset = [&] {
        const accessibility::SemanticNode tree = window->semanticTree();
        return accessibility::findByIdentifier(tree, "store.strip.ShapesShelf.0")->scroll->contentOffset.x;
    };
    const double before = offset();
    window->key(host::Key::escape);

    turn(1);
    bed.runFor(0.3);

    EXPECT_EQ(offset(), before);
}

} // namespace
} // namespace proupsells::tests

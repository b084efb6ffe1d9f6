// The three screens by keys alone: nobody buys by accident.
#include <gmock/gmock.h>

#include "Tests/ProUpsells/KeyboardScreen.hpp"
#include "Tests/ProUpsells/SemanticSearch.hpp"

namespace proupsells::tests {
namespace {

using host::Key;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Keyboard : public KeyboardScreen {};

TEST_F(Keyboard, BuysOnceWhileReturnIsHeld) {
    tabTo("subscribe");

    window->key(Key::activate);
    for (int repetition = 0; repetition < 24; ++repetition) window->key(Key::activate, true);
    bed.runFor(2);

    EXPECT_THAT(ledger, ElementsAre(::testing::StartsWith("delegate.didContinueWith(")));
}

// The control that has the focus when another screen comes, and one on that screen that leads back. The host opens the store page.
struct Way {
    const char* opener;
    const char* back;
    bool isToStore = false;
};

class KeyboardWays : public KeyboardScreen, public ::testing::WithParamInterface<Way> {
protected:
    void go() {
        tabTo(GetParam().opener);
        if (GetParam().isToStore)
            openStore();
        else
            window->key(Key::activate);
        bed.runFor(1);
        ASSERT_NE(window->frontMostViewController(), entry.get());
    }
    void expectToBeBack() {
        EXPECT_EQ(window->frontMostViewController(), entry.get());
        EXPECT_EQ(inFocus(), GetParam().opener);
        EXPECT_THAT(ledger, IsEmpty());
    }
};

INSTANTIATE_TEST_SUITE_P(All, KeyboardWays,
                         ::testing::Values(Way{"comparePlans", "comparison.choosePlan"}, Way{"comparePlans", "comparison.close"},
                                           Way{"plan.pro.yearly", "store.choosePlan", true},
                                           Way{"subscribe", "store.close", true}));

TEST_P(KeyboardWays, LeadBackToTheControlThatHadTheFocus) {
    go();
    tabTo(GetParam().back);
    press(Key::activate);

    expectToBeBack();
}

// The person has not let go of the key yet.
TEST_P(KeyboardWays, DoNothingMoreWhileTheKeyIsHeld) {
    go();
    tabTo(GetParam().back);
    window->key(Key::activate);
    for (int repetition = 0; repetition < 40; ++repetition) {
        bed.runFor(0.04);
        window->key(Key::activate, true);
    }

    expectToBeBack();
}

TEST_P(KeyboardWays, LeadBackByEscape) {
    go();
    press(Key::escape);

    expectToBeBack();
}

TEST_P(KeyboardWays, BeginAtAControlOfTheScreenThatHasCome) {
    go();

    EXPECT_NE(inFocus(), "");
    EXPECT_NE(inFocus(), GetParam().opener);
}

// Return on any screen's first control must not buy.
TEST_F(Keyboard, BeginsAtClose) {
    window->key(Key::tab);

    EXPECT_EQ(inFocus(), "close");
}

// A touch reaches further than the plate that is seen of the comparison's button.
TEST_F(Keyboard, RingsWhatIsSeenOfAButton) {
    tap("comparePlans");
    tabTo("comparison.choosePlan");
    graphics::DisplayList list;
    window->paint(list);
    const accessibility::SemanticNode tree = window->semanticTree();
    const accessibility::SemanticNode button = find(tree, "comparison.choosePlan");
    const geometry::Rect plate = firstOfType(button, "Capsule").frame, ring = list.commands.back().frame;

    ASSERT_EQ(list.commands.back().kind, graphics::CommandKind::strokeRoundedRectangle);
    ASSERT_EQ(button.frame.height(), 64);
    ASSERT_EQ(plate.height(), 56);
    EXPECT_EQ(ring, plate.insetBy(-4.5, -4.5));
}

TEST_F(Keyboard, FollowsTheOrderInWhichThePaywallIsRead) {
    std::vector<std::string> order;
    for (int step = 0; step < 9; ++step) {
        window->key(Key::tab);
        order.push_back(inFocus());
    }

    EXPECT_THAT(order, ElementsAre("close", "carousel.pageControl", "comparePlans", "plan.pro.yearly", "subscribe",
                                   "termsOfService", "privacyPolicy", "restorePurchases", "close"));
}

TEST_F(Keyboard, ArrowsChooseAmongThePlans) {
    tabTo("plan.pro.yearly");

    press(Key::down);
    EXPECT_EQ(inFocus(), "plan.pro.monthly");
    EXPECT_TRUE(isChecked("plan.pro.monthly"));

    press(Key::right); // from the last one to the first one
    EXPECT_TRUE(isChecked("plan.pro.yearly"));
    press(Key::up);
    EXPECT_TRUE(isChecked("plan.pro.monthly"));

    window->key(Key::tab);
    EXPECT_EQ(inFocus(), "subscribe");
    window->key(Key::backTab);
    EXPECT_EQ(inFocus(), "plan.pro.monthly"); // the chosen one
    EXPECT_THAT(ledger, IsEmpty());
}

TEST_F(Keyboard, BuysTheMonthlyPlan) {
    tabTo("plan.pro.yearly");
    press(Key::down);
    window->key(Key::tab);
    press(Key::space);

    ASSERT_EQ(ledger.size(), 1U);
    EXPECT_THAT(ledger[0], ::testing::HasSubstr("pro.monthly"));
}

TEST_F(Keyboard, ArrowsTurnTheHeadersPages) {
    tabTo("carousel.pageControl");

    press(Key::right);
    EXPECT_EQ(valueOf("carousel.pageControl"), "page 2 of 4");
    press(Key::left);
    EXPECT_EQ(valueOf("carousel.pageControl"), "page 1 of 4");
    EXPECT_FALSE(window->key(Key::activate)); // a press would jump
    EXPECT_EQ(valueOf("carousel.pageControl"), "page 1 of 4");
}

TEST_F(Keyboard, ArrowsTurnTheHeadersPagesTheOtherWayWhereTextsReadFromRightToLeft) {
    uikit::UITraitCollection traits = window->traits();
    traits.layoutDirection = geometry::LayoutDirection::rightToLeft;
    window->setTraits(traits);
    bed.settle();
    tabTo("carousel.pageControl");

    press(Key::left);

    EXPECT_EQ(valueOf("carousel.pageControl"), "page 2 of 4");
}

TEST_F(Keyboard, ArrowsAndReturnOpenAndCloseACategory) {
    tap("comparePlans");
    tabTo("comparison.category.Creation Tools");

    press(Key::right);
    EXPECT_TRUE(isExpanded("comparison.category.Creation Tools"));
    press(Key::right); // is open
    EXPECT_TRUE(isExpanded("comparison.category.Creation Tools"));
    press(Key::left);
    EXPECT_FALSE(isExpanded("comparison.category.Creation Tools"));
    press(Key::activate);
    EXPECT_TRUE(isExpanded("comparison.category.Creation Tools"));
}

TEST_F(Keyboard, ScrollsThePage) {
    window->setSize({375, 600}, {});
    bed.settle();
    const double top = frameOf("subscribe").minY();
    const auto moved = [&] {
        bed.settle();
        return top - frameOf("subscribe").minY();
    };

    EXPECT_TRUE(window->key(Key::down));
    EXPECT_EQ(moved(), 60);
    EXPECT_TRUE(window->key(Key::up));
    EXPECT_EQ(moved(), 0);
    EXPECT_TRUE(window->key(Key::end));
    const double bottom = moved();
    EXPECT_GT(bottom, 60);
    EXPECT_TRUE(window->key(Key::home));
    EXPECT_EQ(moved(), 0);
    EXPECT_TRUE(window->key(Key::space)); // nothing is in focus
    EXPECT_EQ(moved(), std::min(bottom, 0.9 * 600));
    window->key(Key::pageUp);
    EXPECT_EQ(moved(), 0);
    window->key(Key::pageDown);
    EXPECT_EQ(moved(), std::min(bottom, 0.9 * 600));
}

TEST_F(Keyboard, ReachesEveryShelf) {
    openStore();
    std::vector<std::string> reached;
    for (int step = 0; step < 12; ++step) {
        window->key(Key::tab);
        bed.settle();
        if (inFocus() == "store.choosePlan") break;
        reached.push_back(inFocus());
        EXPECT_TRUE(isOnScreen(inFocus())) << inFocus();
    }

    EXPECT_THAT(reached, ElementsAre("store.close", "store.shelf.BrandAssetsShelf", "store.shelf.TemplatesShelf",
                                     "store.shelf.PDFsShelf", "store.shelf.LayoutCollectionsShelf", "store.shelf.PremiumFontsShelf",
                                     "store.shelf.ShapesShelf", "store.shelf.VideoImageLibrariesShelf"));
}

TEST_F(Keyboard, ArrowsTurnAShelfsStrips) {
    openStore();
    tabTo("store.shelf.ShapesShelf");
    const auto offset = [&] {
        const accessibility::SemanticNode tree = window->semanticTree();
        return accessibility::findByIdentifier(tree, "store.strip.ShapesShelf.0")->scroll->contentOffset.x;
    };
    const double before = offset();

    window->key(Key::right);
    bed.runFor(0.4);

    EXPECT_NE(offset(), before);
}

// The first category opens as it comes into sight, above the one that comes into focus.
TEST_F(Keyboard, KeepsACategoryInSightThatAnotherPushesAway) {
    window->setSize({375, 330}, {});
    tap("comparePlans");
    tap("comparison.category.Content And Assets");
    tabTo("comparison.category.Business Growth Tools");
    ASSERT_FALSE(isExpanded("comparison.category.Content And Assets"));
    ASSERT_FALSE(isOnScreen("comparison.category.Content And Assets"));

    press(Key::backTab);

    EXPECT_EQ(inFocus(), "comparison.category.Creation Tools");
    EXPECT_TRUE(isExpanded("comparison.category.Content And Assets"));
    EXPECT_TRUE(isOnScreen("comparison.category.Creation Tools"));
}

// Neither under the white gradient nor beyond an edge.
TEST_F(Keyboard, BringsTheWholeControlInSight) {
    for (const double height : {800.0, 600.0, 400.0}) {
        window->setSize({375, height}, {});
        bed.settle();
        window->dropFocus();
        window->takeFocus(host::FocusEnd::first);
        for (int step = 0; step < 8; ++step) {
            const geometry::Rect frame = frameOf(inFocus());
            EXPECT_GE(frame.minY(), 0) << inFocus() << " at " << height;
            if (inFocus() == "close") continue;
            EXPECT_LE(frame.maxY(), height - 32) << inFocus() << " at " << height;
            window->key(Key::tab);
            bed.settle();
        }
    }
}

} // namespace
} // namespace proupsells::tests

// What moves by itself is held while a person rests on it.
#include <gmock/gmock.h>

#include "Tests/ProUpsells/KeyboardScreen.hpp"

namespace proupsells::tests {
namespace {

using host::Key;

class Attention : public KeyboardScreen {
protected:
    double stripOffset() {
        const accessibility::SemanticNode tree = window->semanticTree();
        return accessibility::findByIdentifier(tree, "store.strip.ShapesShelf.0")->scroll->contentOffset.x;
    }
    bool drifts() {
        const double before = stripOffset();
        bed.runFor(1);
        return stripOffset() != before;
    }
    std::string page() { return valueOf("carousel.pageControl"); }
};

TEST_F(Attention, APointerHoldsTheCarouselUntilItLeaves) {
    window->pointer(geometry::Point{100, 100});
    bed.runFor(60);
    EXPECT_EQ(page(), "page 1 of 4");

    window->pointer(std::nullopt);
    bed.runFor(5);
    EXPECT_EQ(page(), "page 2 of 4");
}

TEST_F(Attention, APointerElsewhereHoldsNothing) {
    window->pointer(geometry::Point{100, 500});
    bed.runFor(6);

    EXPECT_EQ(page(), "page 2 of 4");
}

TEST_F(Attention, TheKeysHoldTheCarouselWhileTheyTurnItsPages) {
    tabTo("carousel.pageControl");
    bed.runFor(60);
    EXPECT_EQ(page(), "page 1 of 4");

    window->key(Key::tab);
    bed.runFor(5);
    EXPECT_EQ(page(), "page 2 of 4");
}

TEST_F(Attention, TheKeysHoldAShelfsStripsWhileTheyAreThere) {
    openStore();
    tabTo("store.shelf.ShapesShelf");
    EXPECT_FALSE(drifts());

    window->key(Key::backTab);
    tabTo("store.shelf.PremiumFontsShelf");
    window->key(Key::tab);
    EXPECT_FALSE(drifts());
    window->dropFocus();
    EXPECT_TRUE(drifts());
}

TEST_F(Attention, APointerHoldsAStripUntilItLeaves) {
    openStore();
    tabTo("store.shelf.ShapesShelf");
    window->dropFocus();
    ASSERT_TRUE(drifts());

    window->pointer(frameOf("store.shelf.ShapesShelf").center());
    window->pointer([&] {
        const accessibility::SemanticNode tree = window->semanticTree();
        return std::optional(accessibility::findByIdentifier(tree, "store.strip.ShapesShelf.0")->frame.center());
    }());
    bed.runFor(0.2); // a step that has begun comes to its end
    EXPECT_FALSE(drifts());

    window->pointer(std::nullopt);
    EXPECT_TRUE(drifts());
}

} // namespace
} // namespace proupsells::tests

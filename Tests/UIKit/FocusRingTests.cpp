// Where the ring around the control in focus stands.
#include <gmock/gmock.h>

#include "Platform/UIKit/Controllers/FocusRing.hpp"
#include "Tests/Support/PrintGeometry.hpp"

namespace proupsells::uikit {
namespace {

using geometry::Rect;

constexpr Rect window{{0, 0}, {375, 800}};
constexpr double halfWidth = 2.5; // of the line with its rims

bool crosses(const Rect& ring, const Rect& text) {
    const Rect inner = ring.insetBy(halfWidth, halfWidth);
    const bool isInside =
        text.minX() >= inner.minX() && text.maxX() <= inner.maxX() && text.minY() >= inner.minY() && text.maxY() <= inner.maxY();
    return ring.insetBy(-halfWidth, -halfWidth).intersects(text) && !isInside;
}

TEST(FocusRing, StandsALittleOutside) {
    EXPECT_EQ(focusRingAround({{100, 100}, {50, 40}}, window, {}), (Rect{{95.5, 95.5}, {59, 49}}));
}

TEST(FocusRing, StaysInTheWindow) {
    EXPECT_EQ(focusRingAround(window, window, {}), window.insetBy(halfWidth, halfWidth));
    EXPECT_EQ(focusRingAround({{331, 0}, {44, 44}}, window, {}).maxX(), 375 - halfWidth);
}

// Rows without a gap, each with its heading at its very top.
TEST(FocusRing, CrossesNeitherTheRowsOwnTextNorTheNextOnes) {
    const Rect row{{24, 573}, {327, 53}}, own{{24, 573}, {91, 16}}, next{{24, 626}, {136, 16}};

    const Rect ring = focusRingAround(row, window, {own, next});

    EXPECT_FALSE(crosses(ring, own.insetBy(0, 2.5)));
    EXPECT_FALSE(crosses(ring, next.insetBy(0, 2.5)));
}

TEST(FocusRing, PassesAboveABadgeOnTheControlsEdge) {
    const Rect card{{16, 323}, {343, 90}}, badge{{299, 317}, {40, 12}}, above{{44, 293}, {208, 20}};

    const Rect ring = focusRingAround(card, window, {badge, above});

    EXPECT_FALSE(crosses(ring, badge.insetBy(0, 1.2))); // its letters
    EXPECT_FALSE(crosses(ring, above.insetBy(0, 3)));
}

TEST(FocusRing, StandsAroundTheTextsOfTheControl) {
    const Rect button{{16, 549}, {343, 56}}, title{{98, 566}, {178, 21}};

    const Rect ring = focusRingAround(button, window, {title});

    EXPECT_EQ(ring, button.insetBy(-4.5, -4.5));
}

TEST(FocusRing, IsThereWhereEveryPlaceCrossesAText) {
    const Rect control{{100, 100}, {50, 40}};

    EXPECT_EQ(focusRingAround(control, window, {window}), control.insetBy(-4.5, -4.5));
}

TEST(FocusRing, PassesBesideATextAtTheControlsSide) {
    const Rect control{{100, 100}, {50, 40}}, before{{92, 112}, {8, 14}}, behind{{150, 112}, {8, 14}};

    const Rect ring = focusRingAround(control, window, {before, behind});

    EXPECT_FALSE(crosses(ring, before.insetBy(0, 2.5)));
    EXPECT_FALSE(crosses(ring, behind.insetBy(0, 2.5)));
    EXPECT_EQ(ring.minY(), 95.5);
    EXPECT_EQ(ring.maxY(), 144.5);
}

} // namespace
} // namespace proupsells::uikit

// A strip that comes in from its end, under somebody's pointer.
#include "ProUpsells/RepeatableShelfImageView.hpp"
#include "Tests/ProUpsells/StoreScreen.hpp"

namespace proupsells::tests {
namespace {

using ScrollDirection = StorePageShelfViewController::ScrollDirection;

uikit::UIImage pictureOf(geometry::Size size) {
    auto image = std::make_shared<graphics::Image>();
    image->size = size;
    return image;
}

class StripAttention : public StoreTest {
protected:
    // 21 tiles of 100 points, 20 gaps and two edges of 16: 2452 points, 75 steps past the 2077 at which its end is seen.
    std::shared_ptr<StorePageShelfViewController> showStrip() {
        auto strip = StorePageShelfViewController::create(RepeatableShelfImageView({pictureOf({100, 50})}), 16);
        strip->setScrollDirection(ScrollDirection::right);
        show(strip);
        return strip;
    }
};

TEST_F(StripAttention, HoldsNothingBeforeThereIsSomethingToSee) {
    const auto strip = showStrip();
    const double start = strip->scrollView()->contentOffset().x;
    EXPECT_EQ(start, 2452);

    window->pointer(geometry::Point{187, 20});
    bed.runFor(60);

    EXPECT_NEAR(strip->scrollView()->contentOffset().x, 2077, 1e-6);
}

TEST_F(StripAttention, LeavesAStripThatFitsWhereItIs) {
    uikit::UITraitCollection traits = window->traits();
    traits.reduceMotion = true;
    window->setTraits(traits);
    const auto strip = StorePageShelfViewController::create(pictureOf({100, 50}));
    strip->setScrollDirection(ScrollDirection::right);

    show(strip);

    EXPECT_EQ(strip->scrollView()->contentOffset().x, 0);
}

} // namespace
} // namespace proupsells::tests

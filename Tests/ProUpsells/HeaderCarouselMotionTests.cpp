// The header carousel where motion is to be reduced.
#include <gmock/gmock.h>

#include "Tests/ProUpsells/Carousel.hpp"

namespace proupsells::tests {
namespace {

using geometry::Point;
using ::testing::ElementsAre;

class StillCarousel : public Carousel {
public:
    explicit StillCarousel(int count, uikit::UITraitCollection traits = {}) : Carousel(count, {.traits = reduced(traits)}) {}

    // The opacities of the pages that can be seen, by their number, all of them in the middle of the header.
    std::vector<std::pair<int, double>> shownPages() const {
        std::vector<std::pair<int, double>> result;
        const auto pages = allOfType(tree(), "Color");
        for (std::size_t page = 0; page < pages.size(); ++page) {
            if (!pages[page].isOnScreen) continue;
            EXPECT_EQ(pages[page].frame.minX(), 0);
            result.emplace_back(int(page), pages[page].opacity);
        }
        return result;
    }
    void setReduceMotion(bool reduceMotion) {
        uikit::UITraitCollection traits = window().traits();
        traits.reduceMotion = reduceMotion;
        window().setTraits(traits);
        settle();
    }

private:
    static uikit::UITraitCollection reduced(uikit::UITraitCollection traits) {
        traits.reduceMotion = true;
        return traits;
    }
};

auto isPage(int page, double opacity) { return ::testing::Pair(page, ::testing::DoubleNear(opacity, 1e-9)); }

TEST(HeaderCarouselWithReducedMotion, FadesFor2SecondsByEaseInOut) {
    StillCarousel carousel(3);

    carousel.runUntil(5.5);
    EXPECT_THAT(carousel.shownPages(), ElementsAre(isPage(0, 1), isPage(1, motion::TimingCurve::easeInOut().valueAt(0.25))));
    carousel.runUntil(7);
    EXPECT_THAT(carousel.shownPages(), ElementsAre(isPage(1, 1)));
}

TEST(HeaderCarouselWithReducedMotion, FadesFromTheLastPageToTheFirstWithoutThoseBetween) {
    StillCarousel carousel(3);

    carousel.runUntil(15.5);

    EXPECT_THAT(carousel.shownPages(), ElementsAre(isPage(0, 1), isPage(2, 1 - motion::TimingCurve::easeInOut().valueAt(0.25))));
}

TEST(HeaderCarouselWithReducedMotion, AdvancesEvery5SecondsAsEver) {
    StillCarousel carousel(3);

    std::vector<std::string> titles;
    for (int tick = 0; tick <= 4; ++tick) {
        carousel.runUntil(5.0 * tick + 2.5);
        titles.push_back(carousel.shownTitle());
    }

    EXPECT_THAT(titles, ElementsAre("page 0", "page 1", "page 2", "page 0", "page 1"));
}

TEST(HeaderCarouselWithReducedMotion, ChangesItsTitleInItsPlace) {
    StillCarousel carousel(3);
    const auto frameOf = [&](const std::string& title) {
        return allWhere(carousel.tree(), [&](const auto& node) { return node.text && node.text->text == title; }).at(0).frame;
    };
    const geometry::Rect place = frameOf("page 0");

    for (const double time_s : {5.1, 5.3, 6.1, 6.3, 7.0}) {
        carousel.runUntil(time_s);
        EXPECT_EQ(frameOf("page 1"), place);
        if (time_s < 5.35) {
            EXPECT_EQ(frameOf("page 0"), place);
        }
    }
}

TEST(HeaderCarouselWithReducedMotion, FadesToATappedDot) {
    StillCarousel carousel(4);
    const auto standard = motion::Animation::standard();
    carousel.runUntil(2);
    const auto control = carousel.frame("carousel.pageControl");

    carousel.tap(Point{control.minX() + 25, control.midY()});
    EXPECT_EQ(carousel.indicatorPage(), 2);
    carousel.runUntil(2.1);
    EXPECT_THAT(carousel.shownPages(), ElementsAre(isPage(0, 1), isPage(2, standard.progressAt(0.1))));

    carousel.runUntil(2 + standard.end_s());
    EXPECT_THAT(carousel.shownPages(), ElementsAre(isPage(2, 1)));
}

TEST(HeaderCarouselWithReducedMotion, FollowsAFingerAsEver) {
    StillCarousel carousel(4);

    carousel.touch(host::TouchPhase::began, {300, 100});
    carousel.runUntil(0.1);
    carousel.touch(host::TouchPhase::moved, {80, 100});
    EXPECT_NEAR(carousel.position(), 210.0 / 375, 1e-9);
    carousel.touch(host::TouchPhase::ended, {80, 100});
    carousel.runUntil(2);

    EXPECT_EQ(carousel.position(), 1);
    EXPECT_EQ(carousel.shownTitle(), "page 1");
}

TEST(HeaderCarouselWithReducedMotion, FadesFromRightToLeftToo) {
    StillCarousel carousel(3, {.layoutDirection = geometry::LayoutDirection::rightToLeft});

    carousel.runUntil(5.5);

    EXPECT_THAT(carousel.shownPages(), ElementsAre(isPage(0, 1), isPage(1, motion::TimingCurve::easeInOut().valueAt(0.25))));
}

TEST(HeaderCarouselWithReducedMotion, FollowsTheSettingWhileItIsShown) {
    StillCarousel carousel(4);
    const auto control = carousel.frame("carousel.pageControl");

    carousel.setReduceMotion(false);
    carousel.runUntil(1);
    carousel.tap(Point{control.minX() + 15, control.midY()});
    EXPECT_EQ(carousel.position(), 1); // a tapped dot is there at once
    carousel.runUntil(11);
    EXPECT_NEAR(carousel.position(), 1.5, 1e-3); // and a tick slides

    carousel.setReduceMotion(true);
    EXPECT_THAT(carousel.shownPages(), ElementsAre(isPage(2, 1)));
    carousel.runUntil(15.5);
    EXPECT_THAT(carousel.shownPages(), ElementsAre(isPage(2, 1), isPage(3, motion::TimingCurve::easeInOut().valueAt(0.25))));
}

} // namespace
} // namespace proupsells::tests

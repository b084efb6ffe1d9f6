#include <gmock/gmock.h>

#include "Platform/Graphics/ContentSize.hpp"
#include "ProUpsells/CustomPageControl.hpp"
#include "Tests/ProUpsells/Carousel.hpp"

namespace proupsells::tests {
namespace {

using geometry::Point;
using ::testing::ElementsAre;

TEST(CustomPageControl, MakesAPagerWithItsDotsAlone) {
    const CustomPageControl control{.numberOfPages = 4, .currentPage = swiftui::Binding<int>::constant(0)};
    const auto coordinator = control.makeCoordinator();

    const auto view = control.makeUIView({coordinator, swiftui::EnvironmentValues{}});

    EXPECT_EQ(view->numberOfPages(), 4);
    EXPECT_EQ(view->backgroundStyle(), uikit::UIPageControl::BackgroundStyle::minimal);
    EXPECT_EQ(view->accessibilitySpoken.role, accessibility::Role::pager);
    EXPECT_EQ(view->accessibilityIdentifier, "carousel.pageControl");
}

TEST(Page, HasAnIdOfItsOwn) { EXPECT_NE(Page{}.id, Page{}.id); }

TEST(HeaderCarousel, AdvancesEvery5SecondsForAMinute) {
    Carousel carousel(4);

    std::vector<std::string> titles;
    for (int tick = 0; tick <= 12; ++tick) {
        carousel.runUntil(5.0 * tick + 2.5);
        titles.push_back(carousel.shownTitle());
    }

    EXPECT_THAT(titles, ElementsAre("page 0", "page 1", "page 2", "page 3", "page 0", "page 1", "page 2", "page 3", "page 0",
                                    "page 1", "page 2", "page 3", "page 0"));
}

TEST(HeaderCarousel, BeginsAgainAfterTheLastOfThreePages) {
    Carousel carousel(3);

    std::vector<std::string> titles;
    std::vector<int> dots;
    std::vector<double> positions;
    for (int tick = 0; tick <= 6; ++tick) {
        carousel.runUntil(5.0 * tick + 2.5);
        titles.push_back(carousel.shownTitle());
        dots.push_back(carousel.indicatorPage());
        positions.push_back(carousel.position());
    }

    EXPECT_THAT(titles, ElementsAre("page 0", "page 1", "page 2", "page 0", "page 1", "page 2", "page 0"));
    EXPECT_THAT(dots, ElementsAre(0, 1, 2, 0, 1, 2, 0));
    EXPECT_THAT(positions, ElementsAre(0, 1, 2, 0, 1, 2, 0));
    EXPECT_EQ(carousel.frame("carousel.pageControl").width(), 30);
    EXPECT_EQ(carousel.frame("carousel.pageControl").maxX(), 375 - 30);
}

TEST(HeaderCarousel, AdvancesExactlyAtTheTick) {
    Carousel carousel(3);

    carousel.runUntil(4.999);
    EXPECT_EQ(carousel.shownTitle(), "page 0");
    carousel.runUntil(5);
    EXPECT_EQ(carousel.shownTitle(), "page 1");
}

TEST(HeaderCarousel, SlidesFor2SecondsByEaseInOut) {
    Carousel carousel(3);

    carousel.runUntil(5.5);
    EXPECT_NEAR(carousel.position(), motion::TimingCurve::easeInOut().valueAt(0.25), 1e-9);
    carousel.runUntil(6);
    EXPECT_NEAR(carousel.position(), 0.5, 1e-3);
    carousel.runUntil(7);
    EXPECT_EQ(carousel.position(), 1);
}

TEST(HeaderCarousel, ChangesItsTitleByFadingOneOutAndThenTheOtherIn) {
    Carousel carousel(3);
    const double quarter = 0.35 / 4;

    carousel.runUntil(5 + quarter);
    EXPECT_NEAR(carousel.titleOpacity("page 0"), 1 - motion::TimingCurve::easeIn().valueAt(0.25), 1e-9);
    EXPECT_EQ(carousel.titleOpacity("page 1"), 0);
    carousel.runUntil(5.4);
    EXPECT_EQ(carousel.titleOpacity("page 0"), 0);
    carousel.runUntil(6 + quarter);
    EXPECT_NEAR(carousel.titleOpacity("page 1"), motion::TimingCurve::easeOut().valueAt(0.25), 1e-9);
    carousel.runUntil(6.36);
    EXPECT_EQ(carousel.titleOpacity("page 1"), 1);
}

TEST(HeaderCarousel, GoesToATappedDotAndOnFromThere) {
    Carousel carousel(4);

    carousel.runUntil(2);
    const auto control = carousel.frame("carousel.pageControl");
    carousel.tap(Point{control.minX() + 25, control.midY()});
    EXPECT_EQ(carousel.shownTitle(), "page 2");
    EXPECT_EQ(carousel.position(), 2);

    // The tick at 5 s falls into the pause of the tap, which ends at 7 s.
    carousel.runUntil(9.9);
    EXPECT_EQ(carousel.shownTitle(), "page 2");
    carousel.runUntil(10);
    EXPECT_EQ(carousel.shownTitle(), "page 3");
}

TEST(HeaderCarousel, GoesToASwipedPageAndOnFromThere) {
    Carousel carousel(4);

    carousel.runUntil(1);
    swipe(carousel, 300, 60);
    EXPECT_EQ(carousel.shownTitle(), "page 1");
    EXPECT_EQ(carousel.indicatorPage(), 1);

    carousel.runUntil(9.9);
    EXPECT_EQ(carousel.shownTitle(), "page 1");
    carousel.runUntil(10);
    EXPECT_EQ(carousel.shownTitle(), "page 2");
}

TEST(HeaderCarousel, IsSwipedByItsTitleToo) {
    Carousel carousel(4);
    const geometry::Rect title =
        allWhere(carousel.tree(), [](const auto& node) { return node.text && node.text->text == "page 0"; }).front().frame;

    swipe(carousel, title.maxX() - 1, title.maxX() - 241, title.midY());

    EXPECT_EQ(carousel.shownTitle(), "page 1");
}

TEST(HeaderCarousel, EndsItsPause5SecondsAfterTheFirstOfSeveralChanges) {
    Carousel carousel(4);
    const auto control = carousel.frame("carousel.pageControl");

    carousel.runUntil(4);
    carousel.tap(Point{control.minX() + 15, control.midY()});
    carousel.runUntil(8);
    carousel.tap(Point{control.minX() + 25, control.midY()});
    // At 9 s the first change's reset ends the pause, although the second change is 1 s old.
    carousel.runUntil(10);
    EXPECT_EQ(carousel.shownTitle(), "page 3");
}

TEST(HeaderCarousel, KeepsTheTimeOfItsTicksWhateverIsTouched) {
    Carousel carousel(4);
    const auto control = carousel.frame("carousel.pageControl");
    std::vector<double> changes_s;
    std::string before = carousel.shownTitle();

    carousel.runUntil(12);
    carousel.tap(Point{control.minX() + 5, control.midY()});
    before = carousel.shownTitle();
    for (int tenth = 121; tenth <= 600; ++tenth) {
        carousel.runUntil(tenth / 10.0);
        if (carousel.shownTitle() != before) changes_s.push_back(tenth / 10.0);
        before = carousel.shownTitle();
    }

    // The reset that belongs to the advance at 10 s ends the tap's pause, just before the tick at 15 s.
    EXPECT_THAT(changes_s, ElementsAre(15, 20, 25, 30, 35, 40, 45, 50, 55, 60));
}

TEST(HeaderCarousel, StaysWhereItIsWithOnePage) {
    Carousel carousel(1);

    carousel.runUntil(60);

    EXPECT_EQ(carousel.shownTitle(), "page 0");
    EXPECT_EQ(carousel.position(), 0);
    EXPECT_EQ(carousel.frame("carousel.pageControl").width(), 10);
}

TEST(HeaderCarousel, IsReadInTheDarkSchemeOverItsPictures) {
    Carousel carousel(2);
    graphics::DisplayList list;
    carousel.window().paint(list);

    bool foundTitle = false;
    for (const graphics::Command& command : list.commands) {
        if (command.kind != graphics::CommandKind::text) continue;
        foundTitle = true;
        EXPECT_EQ(command.color, graphics::rgb(0xF3F5F4));
    }
    EXPECT_TRUE(foundTitle);
}

// Beside the title are 10 before it, 10 of indicator and 30 behind that, and three gaps of 8.
TEST(HeaderCarousel, SetsALongTitleInHalfItsSizeAtTheLeast) {
    const auto titleOf = [](std::size_t words, double width) {
        std::string title;
        for (std::size_t word = 0; word < words; ++word) title += "nine more ";
        const auto pages = std::make_shared<std::vector<Page>>();
        Screen screen(std::function<swiftui::View()>([=]() -> swiftui::View {
                          if (pages->empty()) pages->push_back({.image = image(ImageResource::paywallHeaderA()), .title = title});
                          return HeaderCarousel{pages};
                      }),
                      geometry::Size{width, 254});
        return *firstOfType(screen.tree(), "Text").text;
    };

    // 670 points have three lines of 55 letters in 24 points, or of 111 in 12.
    EXPECT_EQ(titleOf(15, 744).size, 24);
    const auto smaller = titleOf(25, 744);
    EXPECT_LT(smaller.size, 24);
    EXPECT_GT(smaller.size, 12);
    EXPECT_EQ(smaller.lineCount, 3);
    EXPECT_FALSE(smaller.isTruncated);
    EXPECT_NEAR(titleOf(40, 744).size, 12, 1e-6);
    EXPECT_TRUE(titleOf(40, 744).isTruncated);
    // In 18 points half would be less than anybody can read.
    EXPECT_EQ(titleOf(9, 375).size, 18);
    EXPECT_EQ(titleOf(40, 375).size, graphics::leastTextSize);
    EXPECT_TRUE(titleOf(40, 375).isTruncated);
}

// The pictures fill their pages, so they are wider: one that were not cut would lie over its neighbour.
TEST(HeaderCarousel, ClipsEachPictureToItsPage) {
    Carousel carousel(3);
    carousel.runUntil(6); // half-way from the first page to the second
    graphics::DisplayList list;
    carousel.window().paint(list);

    std::vector<geometry::Rect> seen, whole;
    for (const graphics::Command& command : list.commands) {
        if (command.kind != graphics::CommandKind::image) continue;
        seen.push_back(command.clip);
        whole.push_back(command.frame);
    }
    ASSERT_EQ(seen.size(), 2u);
    EXPECT_NEAR(seen[0].maxX(), 187.5, 0.5);
    EXPECT_NEAR(seen[1].minX(), 187.5, 0.5);
    EXPECT_GT(whole[0].maxX(), seen[0].maxX() + 1);
    EXPECT_LT(whole[1].minX(), seen[1].minX() - 1);
}

TEST(HeaderCarousel, StopsItsTimerWhenItGoesAway) {
    headless::TestBed bed;
    const auto window = uikit::UIWindow::create({375, 254});
    auto pages = std::make_shared<const std::vector<Page>>(
        std::vector<Page>{{.image = image(ImageResource::paywallHeaderA()), .title = "page"}});
    window->setRootViewController(hosting::UIHostingController::create(HeaderCarousel{pages}));
    bed.settle();
    ASSERT_TRUE(bed.loop().nextDueTime_s().has_value());

    window->setRootViewController(nullptr);
    bed.settle();

    EXPECT_FALSE(bed.loop().nextDueTime_s().has_value());
}

TEST(HeaderCarouselDeathTest, StopsTheProgramWithoutPages) {
    EXPECT_DEATH(Carousel(0), "Division by zero: the header carousel has no pages");
}

} // namespace
} // namespace proupsells::tests

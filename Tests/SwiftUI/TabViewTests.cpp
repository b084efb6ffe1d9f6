#include <gmock/gmock.h>

#include "Tests/SwiftUI/Pages.hpp"

using namespace proupsells;

using namespace swiftui;
using namespace proupsells::tests;

namespace {

struct ImagePager {
    const std::vector<graphics::ImageRef>* images;
    std::optional<Binding<int>>* selection;

    View body(BuildContext& context) const {
        selection->emplace(context.state(0));
        return TabView{.selection = **selection, .content = {ForEach(int(images->size()), [images = images](int page) {
                                                     return Image{(*images)[std::size_t(page)]};
                                                 })}};
    }
};

TEST(TabView, ShowsTheSelectedPageOnly) {
    Pages pages;

    EXPECT_THAT(pages.shown(), testing::ElementsAre(0));
    EXPECT_EQ(pages.screen.frame("page0"), (geometry::Rect{{0, 100}, {300, 200}}));
}

TEST(TabView, TurnsAtOnceWithoutAnAnimation) {
    Pages pages;

    pages.select(2);

    EXPECT_EQ(pages.position(), 2);
    EXPECT_THAT(pages.shown(), testing::ElementsAre(2));
    EXPECT_FALSE(pages.screen.host().isAnimating());
}

TEST(TabView, SlidesWithTheAnimationOfTheChange) {
    Pages pages;

    pages.select(1, slow);
    EXPECT_EQ(pages.position(), 0);

    pages.screen.wait(0.5);
    EXPECT_NEAR(pages.position(), 0.25, 1e-9);
    EXPECT_THAT(pages.shown(), testing::ElementsAre(0, 1));

    pages.screen.wait(1.5);
    EXPECT_EQ(pages.position(), 1);
    EXPECT_THAT(pages.shown(), testing::ElementsAre(1));
    EXPECT_FALSE(pages.screen.host().isAnimating());
}

TEST(TabView, FollowsTheCurveOfTheAnimation) {
    Pages pages;
    const motion::Animation easing{motion::TimingCurve::easeInOut(), 2};

    pages.select(1, easing);
    pages.screen.wait(0.5);

    EXPECT_NEAR(pages.position(), easing.progressAt(0.5), 1e-9);
}

TEST(TabView, SlidesFromTheLastPageToTheFirstPastThoseBetween) {
    Pages pages;
    pages.select(3);

    pages.select(0, slow);
    pages.screen.wait(1);

    EXPECT_NEAR(pages.position(), 1.5, 1e-9);
    EXPECT_THAT(pages.shown(), testing::ElementsAre(1, 2));
}

TEST(TabView, TurnsRoundOnTheWay) {
    Pages pages;
    pages.select(1, slow);
    pages.screen.wait(1);

    pages.select(0, slow);
    EXPECT_NEAR(pages.position(), 0.5, 1e-9);

    pages.screen.wait(1);
    EXPECT_NEAR(pages.position(), 0.25, 1e-9);
}

TEST(TabView, IsNotDisturbedByRebuilds) {
    Pages pages;
    pages.select(1, slow);

    for (int turn = 0; turn < 10; ++turn) {
        pages.screen.wait(0.1);
        pages.screen.rebuild();
    }

    EXPECT_NEAR(pages.position(), 0.5, 1e-9);
}

TEST(TabView, PaintsOnlyThePagesThatCanBeSeen) {
    Pages pages{500};
    EXPECT_EQ(pages.screen.host().displayList().commands.size(), 1u);

    pages.select(1, slow);
    pages.screen.wait(1);

    EXPECT_EQ(pages.screen.host().displayList().commands.size(), 2u);
}

TEST(TabView, ClipsItsPages) {
    Pages pages;
    pages.select(1, slow);
    pages.screen.wait(1);

    for (const graphics::Command& command : pages.screen.host().displayList().commands)
        EXPECT_EQ(command.clip, (geometry::Rect{{0, 100}, {300, 200}}));
}

// --- Tags and changes

TEST(TabView, SelectsByTag) {
    int selected = 7;
    TouchScreen screen{[&selected] {
        return TabView{
            .selection = Binding<int>([&selected] { return selected; }, [&selected](const int& tag) { selected = tag; }),
            .content = {box(300, 400, "three") | tag(3), box(300, 400, "seven") | tag(7), box(300, 400, "nine") | tag(9)}};
    }};
    EXPECT_TRUE(screen.isOnScreen("seven"));

    screen.drag({290, 200}, {60, 200}, 1);
    screen.wait(2);

    EXPECT_EQ(selected, 9);
    EXPECT_TRUE(screen.isOnScreen("nine"));
}

TEST(TabView, StaysWhereNoPageIsSelected) {
    Pages pages;
    pages.select(1);

    pages.select(99, slow);
    pages.screen.wait(3);

    EXPECT_EQ(pages.position(), 1);
}

TEST(TabView, ComesBackWhenItsPageIsGone) {
    Pages pages;
    pages.select(3);

    pages.pager.count = 2;
    pages.select(99);

    EXPECT_EQ(pages.position(), 1);
}

TEST(TabView, ComesBackWhenThePageThatItSlidesToGoes) {
    Pages pages;
    pages.select(3, slow);
    pages.screen.wait(0.2);

    pages.pager.count = 2;
    pages.select(99);
    pages.screen.wait(3);

    EXPECT_EQ(pages.position(), 1);
}

TEST(TabView, KeepsItsPageWhenItsWidthChanges) {
    Pages pages;
    pages.select(2);

    pages.screen.host().setSize({200, 400});
    pages.screen.settle();

    EXPECT_EQ(pages.screen.frame("page2"), (geometry::Rect{{0, 100}, {200, 200}}));
}

TEST(TabView, TakesWhatItIsOfferedAndItsLargestPagesSizeOtherwise) {
    TouchScreen screen{[] {
        return TabView{.selection = Binding<int>::constant(0), .content = {box(100, 50, "small"), box(80, 90, "high")}} |
               accessibilityIdentifier("pager") | fixedSize(false, true);
    }};

    EXPECT_EQ(screen.frame("pager"), (geometry::Rect{{0, 155}, {300, 90}}));
    EXPECT_EQ(screen.frame("small").center(), (geometry::Point{150, 200}));
}

TEST(TabView, WithoutPagesIsEmptyAndTakesNoTouches) {
    Pages pages{0};

    pages.screen.drag({250, 200}, {50, 200}, 0.3);

    EXPECT_THAT(pages.pager.writes, testing::IsEmpty());
}

TEST(TabView, TellsPagesThatTheyComeOnScreen) {
    std::vector<std::string> events;
    int selected = 0;
    TouchScreen screen{[&] {
        return TabView{.selection = Binding<int>([&] { return selected; }, [&](const int& page) { selected = page; }),
                       .content = {ForEach(3, [&events](int page) {
                           return ColorView{graphics::Color::black} |
                                  onAppear([&events, page] { events.push_back("+" + std::to_string(page)); }) |
                                  onDisappear([&events, page] { events.push_back("-" + std::to_string(page)); });
                       })}};
    }};
    screen.drag({290, 200}, {60, 200}, 1);
    screen.wait(3);

    EXPECT_THAT(events, testing::IsSupersetOf({"+0", "+1", "-0"}));
    EXPECT_THAT(events, testing::Not(testing::Contains("+2")));
}

TEST(TabView, LooksAheadAtTheNextPageWhileNothingMoves) {
    std::vector<graphics::ImageRef> images;
    for (int page = 0; page < 3; ++page) {
        auto image = std::make_shared<graphics::Image>();
        image->size = {10, 10};
        images.push_back(image);
    }
    std::optional<Binding<int>> selection;
    TouchScreen screen{[&] { return ImagePager{&images, &selection}; }};
    const auto pagesAhead = [&] {
        graphics::DisplayList list;
        graphics::PaintContext context{list};
        screen.host().paint(context, {});
        std::vector<int> pages;
        for (const graphics::Command& command : list.ahead) {
            EXPECT_EQ(command.frame, (geometry::Rect{{145, 195}, {10, 10}})); // where it will be seen
            const auto& image = list.images[std::size_t(command.resource)];
            pages.push_back(int(std::find(images.begin(), images.end(), image) - images.begin()));
        }
        return pages;
    };

    EXPECT_THAT(pagesAhead(), testing::ElementsAre(1));
    withAnimation(slow, [&] { selection->set(1); });
    screen.wait(1);
    EXPECT_THAT(pagesAhead(), testing::IsEmpty());
    screen.wait(2);
    EXPECT_THAT(pagesAhead(), testing::ElementsAre(2));
    selection->set(2);
    screen.settle();
    EXPECT_THAT(pagesAhead(), testing::ElementsAre(0));
}

} // namespace

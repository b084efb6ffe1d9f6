// What a scroll view does with its content: changes, safe areas, revealing, what is on screen.
#include <gmock/gmock.h>

#include "Tests/SwiftUI/Rows.hpp"

using namespace proupsells;

using namespace swiftui;
using namespace proupsells::tests;

namespace {

// --- Changes

TEST(ScrollView, MovesInWhenItsContentShrinks) {
    int count = 10;
    TouchScreen screen{[&] { return rows(count); }};
    screen.host().scroll({150, 200}, {0, 600});

    count = 6;
    screen.rebuild();

    EXPECT_EQ(screen.offset().y, 200);
}

TEST(ScrollView, MovesInWithTheAnimationOfTheChange) {
    int count = 10;
    TouchScreen screen{[&] { return rows(count); }};
    screen.host().scroll({150, 200}, {0, 600});

    withAnimation(motion::Animation{motion::TimingCurve::linear(), 1}, [&] {
        count = 6;
        screen.rebuild();
    });
    EXPECT_DOUBLE_EQ(screen.offset().y, 600);

    screen.wait(0.5);
    EXPECT_NEAR(screen.offset().y, 400, 1e-9);

    screen.wait(0.5);
    EXPECT_EQ(screen.offset().y, 200);
}

TEST(ScrollView, IsNotMovedByARebuildWhileItCoasts) {
    const auto offsetAfterHalfASecond = [](bool rebuilds) {
        Rows rows;
        rows.screen.drag({150, 380}, {150, 300}, 0.1);
        for (int turn = 0; turn < 10; ++turn) {
            rows.screen.wait(0.05);
            if (rebuilds) rows.screen.rebuild();
        }
        return rows.offset();
    };

    EXPECT_EQ(offsetAfterHalfASecond(true), offsetAfterHalfASecond(false));
}

TEST(ScrollView, KeepsItsEndWhenTheWindowGrows) {
    Rows rows;
    rows.screen.host().scroll({150, 200}, {0, 600});

    rows.screen.host().setSize({300, 700});
    rows.screen.settle();

    EXPECT_EQ(rows.offset(), 300);
}

// --- Safe area

TEST(ScrollView, LetsItsContentBeScrolledClearOfTheSafeAreaThatItReachesOver) {
    TouchScreen screen{[] { return rows() | ignoresSafeArea(Edge::bottom); }, {300, 400}, {.bottom = 34}};
    EXPECT_EQ(screen.scrollInfo().contentInset, (geometry::PhysicalInsets{.bottom = 34}));

    screen.host().scroll({150, 200}, {0, 5000});

    EXPECT_EQ(screen.offset().y, 634);
    EXPECT_EQ(screen.frame("row9").maxY(), 366);
}

TEST(ScrollView, StartsBelowTheSafeAreaThatItReachesOver) {
    TouchScreen screen{[] { return rows() | ignoresSafeArea(); }, {300, 400}, {.top = 20, .bottom = 34}};

    EXPECT_EQ(screen.offset().y, -20);
    EXPECT_EQ(screen.frame("row0").minY(), 20);
}

TEST(ScrollView, HasNoInsetInsideTheSafeArea) {
    TouchScreen screen{[] { return rows(); }, {300, 400}, {.top = 20, .bottom = 34}};

    EXPECT_EQ(screen.scrollInfo().contentInset, geometry::PhysicalInsets{});
    EXPECT_EQ(screen.frame("row0").minY(), 20);
}

// --- What is on screen

TEST(ScrollView, ShowsWhatIsInItsViewportOnly) {
    Rows rows;
    EXPECT_TRUE(rows.screen.isOnScreen("row3"));
    EXPECT_FALSE(rows.screen.isOnScreen("row4"));

    rows.screen.host().scroll({150, 200}, {0, 150});

    EXPECT_FALSE(rows.screen.isOnScreen("row0"));
    EXPECT_TRUE(rows.screen.isOnScreen("row5"));
}

struct WatchedRows {
    std::vector<std::string> events;
    TouchScreen screen{[this] {
        return ScrollView{
            .content = {VStack{.spacing = 0, .content = {ForEach(10, [this](int row) {
                                                 return box(300, 100, "row" + std::to_string(row)) |
                                                        onAppear([this, row] { events.push_back("+" + std::to_string(row)); }) |
                                                        onDisappear([this, row] { events.push_back("-" + std::to_string(row)); });
                                             })}}}};
    }};
};

TEST(ScrollView, TellsViewsThatTheyComeOnScreen) {
    WatchedRows rows;
    EXPECT_THAT(rows.events, testing::ElementsAre("+0", "+1", "+2", "+3"));
    rows.events.clear();

    rows.screen.host().scroll({150, 200}, {0, 150});
    rows.screen.settle();

    EXPECT_THAT(rows.events, testing::UnorderedElementsAre("-0", "+4", "+5"));
}

TEST(ScrollView, TellsViewsThatTheyComeOnScreenWhileItCoasts) {
    WatchedRows rows;
    rows.events.clear();

    rows.screen.drag({150, 380}, {150, 300}, 0.05);
    rows.screen.wait(0.2);
    EXPECT_THAT(rows.events, testing::Contains("-0"));
    EXPECT_THAT(rows.events, testing::Contains("+5"));
    EXPECT_THAT(rows.events, testing::Not(testing::Contains("+9")));

    rows.screen.wait(5);
    EXPECT_THAT(rows.events, testing::Contains("+9"));
}

TEST(ScrollView, TellsAViewAgainWhenItComesBack) {
    WatchedRows rows;
    rows.screen.host().scroll({150, 200}, {0, 150});
    rows.screen.settle();
    rows.events.clear();

    rows.screen.host().scroll({150, 200}, {0, -150});
    rows.screen.settle();

    EXPECT_THAT(rows.events, testing::Contains("+0"));
}

// --- Revealing

TEST(ScrollView, RevealsByAsLittleAsItTakes) {
    Rows rows;

    rows.screen.find("row7").reveal();
    EXPECT_EQ(rows.offset(), 351); // the row's middle, at 750, is the viewport's last point

    rows.screen.find("row1").reveal();
    EXPECT_EQ(rows.offset(), 150); // the row's middle is the first point

    rows.screen.find("row2").reveal();
    EXPECT_EQ(rows.offset(), 150);
}

TEST(ScrollView, RevealsFromAnOldTreeToo) {
    Rows rows;
    const accessibility::SemanticNode before = rows.screen.tree();
    rows.screen.host().scroll({150, 200}, {0, 300});

    accessibility::findByIdentifier(before, "row7")->reveal();

    EXPECT_EQ(rows.offset(), 351);
}

TEST(ScrollView, RevealsThroughScrollViewsAround) {
    TouchScreen screen{[] {
        return ScrollView{
            .content = {VStack{
                .spacing = 0,
                .content = {
                    box(300, 1000, "above"),
                    ScrollView{.axis = Axis::horizontal,
                               .content = {HStack{.spacing = 0, .content = {box(700, 100, "left"), box(100, 100, "right")}}}} |
                        frame(300, 100)}}}};
    }};

    screen.find("right").reveal();

    const geometry::Point centre = screen.frame("right").center();
    EXPECT_TRUE((geometry::Rect{{0, 0}, {300, 400}}.contains(centre)));
    EXPECT_EQ(centre, (geometry::Point{299, 399}));
}

// Ten rows at their end, of which some go in a second.
struct ShrinkingRows {
    explicit ShrinkingRows(int remaining) {
        screen.host().scroll({150, 200}, {0, 600});
        withAnimation(motion::Animation{motion::TimingCurve::linear(), 1}, [&] {
            count = remaining;
            screen.rebuild();
        });
    }

    int count = 10;
    TouchScreen screen{[this] { return rows(count); }};
};

TEST(ScrollView, RevealsAtOnceWhatAChangeHasYetToBringBack) {
    ShrinkingRows rows(6);
    ASSERT_EQ(rows.screen.frame("row3").minY(), -300);

    rows.screen.find("row3").reveal();
    EXPECT_EQ(rows.screen.frame("row3").minY(), 100);

    rows.screen.wait(0.5);
    EXPECT_EQ(rows.screen.frame("row3").minY(), 100);
}

TEST(ScrollView, LeavesTheAnimationOfAChangeToWhatIsInSight) {
    ShrinkingRows rows(8);
    ASSERT_EQ(rows.screen.frame("row7").minY(), 100);

    rows.screen.find("row7").reveal();
    EXPECT_EQ(rows.screen.frame("row7").minY(), 100);

    rows.screen.wait(0.5);
    EXPECT_NEAR(rows.screen.frame("row7").minY(), 200, 1e-9);
}

// What stands above the target changes its height in a second.
struct MovingTarget {
    MovingTarget(double before, double after, double below) : above(before), below(below) {
        screen.rebuild();
        withAnimation(motion::Animation{motion::TimingCurve::linear(), 1}, [&] {
            above = after;
            screen.rebuild();
        });
    }
    double top() { return screen.frame("target").minY(); }

    double above;
    double below;
    TouchScreen screen{[this] {
        return ScrollView{
            .content = {
                VStack{.spacing = 0, .content = {box(300, above, "above"), box(300, 100, "target"), box(300, below, "below")}}}};
    }};
};

TEST(ScrollView, RevealsWhatIsPushedOutOfSightWhereItComesToRest) {
    MovingTarget target(100, 600, 1000);
    ASSERT_EQ(target.top(), 100);

    target.screen.find("target").reveal();
    EXPECT_EQ(target.top(), 349); // its middle is the viewport's last point
    target.screen.wait(1);
    EXPECT_EQ(target.top(), 349);
}

TEST(ScrollView, RevealsAtOnceWhatIsOnItsWayIntoSight) {
    MovingTarget target(600, 100, 200);
    ASSERT_EQ(target.top(), 600);

    target.screen.find("target").revealWhole();
    EXPECT_EQ(target.top(), 100);
    target.screen.wait(1);
    EXPECT_EQ(target.top(), 100);
}

TEST(ScrollView, RevealsNothingOnceItIsGone) {
    bool isThere = true;
    TouchScreen screen{[&] { return isThere ? rows() : View{}; }};
    const accessibility::SemanticNode row = screen.find("row7");

    isThere = false;
    screen.rebuild();

    row.reveal();
}

// --- Horizontal

View strip() {
    return ScrollView{.axis = Axis::horizontal, .content = {HStack{.spacing = 0, .content = {ForEach(10, [](int tile) {
                                                                                     return box(100, 80,
                                                                                                "tile" + std::to_string(tile));
                                                                                 })}}}};
}

TEST(ScrollView, ScrollsSidewaysToo) {
    TouchScreen screen{strip};
    screen.pull({200, 200}, {150, 200}, 0.2);

    EXPECT_EQ(screen.offset(), (geometry::Point{40, 0}));
    EXPECT_EQ(screen.frame("tile1").minX(), 60);
}

TEST(ScrollView, BeginsAtTheRightFromRightToLeft) {
    TouchScreen screen{strip};
    screen.setRightToLeft();
    EXPECT_EQ(screen.frame("tile0").maxX(), 300);
    EXPECT_EQ(screen.offset().x, 700);

    screen.pull({100, 200}, {150, 200}, 0.2);

    EXPECT_DOUBLE_EQ(screen.frame("tile0").maxX(), 340);
    EXPECT_DOUBLE_EQ(screen.offset().x, 660);

    screen.find("tile7").reveal();
    EXPECT_GE(screen.frame("tile7").midX(), 0);
}

// --- Picture

std::size_t roundedRectangles(TouchScreen& screen) {
    std::size_t count = 0;
    for (const graphics::Command& command : screen.host().displayList().commands)
        if (command.kind == graphics::CommandKind::fillRoundedRectangle && command.opacity > 0) ++count;
    return count;
}

TEST(ScrollIndicator, ShowsWhileTheContentMovesAndFadesAfterwards) {
    Rows rows;
    EXPECT_EQ(roundedRectangles(rows.screen), 0u);

    rows.screen.pull({150, 300}, {150, 200}, 0.3);
    EXPECT_EQ(roundedRectangles(rows.screen), 1u);

    rows.screen.wait(5);
    EXPECT_EQ(roundedRectangles(rows.screen), 1u);

    rows.screen.up({150, 200});
    rows.screen.wait(5);
    EXPECT_EQ(roundedRectangles(rows.screen), 0u);
}

TEST(ScrollIndicator, StaysAwayWhereItIsNotWantedOrNotNeeded) {
    for (const bool isWanted : {false, true}) {
        TouchScreen screen{[isWanted] {
            return ScrollView{.showsIndicators = isWanted, .content = {box(300, isWanted ? 200 : 1000, "content")}};
        }};
        screen.pull({150, 100}, {150, 150}, 0.3);
        EXPECT_EQ(roundedRectangles(screen), 0u);
    }
}

// The view stands between two others in the window, so that what it did not cut would be seen there.
TEST(ScrollView, PaintsNothingOfWhatIsScrolledAway) {
    TouchScreen screen{[] {
        return VStack{.spacing = 0,
                      .content = {box(300, 100, "above"), rows(2000) | frame({.height = 250}), box(300, 50, "below")}};
    }};
    constexpr geometry::Rect viewport{{0, 100}, {300, 250}};
    const auto paintedRows = [&] {
        std::vector<geometry::Rect> seen;
        for (const graphics::Command& command : screen.host().displayList().commands)
            if (command.kind == graphics::CommandKind::fillRectangle && command.frame.height() == 100 && command.frame.minY() != 0)
                seen.push_back(command.frame.intersection(command.clip));
        return seen;
    };
    const auto rect = [](double y, double height) { return geometry::Rect{{0, y}, {300, height}}; };
    EXPECT_THAT(paintedRows(), testing::ElementsAre(rect(100, 100), rect(200, 100), rect(300, 50)));

    for (const double offset : {30.0, 150'030.0}) {
        screen.host().scroll({150, 200}, {0, offset - screen.offset().y});
        screen.settle();
        const std::size_t visitsBefore = screen.host().paintVisitCount();

        EXPECT_THAT(paintedRows(), testing::ElementsAre(rect(100, 70), rect(170, 100), rect(270, 80)));
        // Nor does it look at each of the two thousand.
        EXPECT_LT(screen.host().paintVisitCount() - visitsBefore, 40u);
        for (const graphics::Command& command : screen.host().displayList().commands)
            if (command.frame.width() < 300) { // the indicator
                EXPECT_TRUE(viewport.contains(command.frame.center()));
            }
    }
}

} // namespace

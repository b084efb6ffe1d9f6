// Pages that fade where motion is to be reduced.
#include <gmock/gmock.h>

#include "Tests/SwiftUI/TouchScreen.hpp"

namespace proupsells::tests {
namespace {

using namespace swiftui;
using ::testing::ElementsAre;

constexpr motion::Animation slow{motion::TimingCurve::linear(), 2};

// Four pages as wide as the screen, 300.
class FadingPages : public ::testing::Test {
protected:
    FadingPages() { setReduceMotion(true); }

    void setReduceMotion(bool reduceMotion) {
        EnvironmentValues values = screen.host().environment();
        values.reduceMotion = reduceMotion;
        screen.host().setEnvironment(values);
        screen.settle();
    }
    void select(int page, const motion::Animation& animation = slow) {
        withAnimation(animation, [&] {
            selected = page;
            screen.host().setNeedsUpdate();
        });
        screen.settle();
    }
    // The opacity of each page that is on the screen, as it stands in its middle.
    double opacity(int page) {
        const auto& node = screen.find("page" + std::to_string(page));
        EXPECT_TRUE(node.isOnScreen);
        EXPECT_EQ(node.frame, (geometry::Rect{{0, 0}, {300, 400}}));
        return node.opacity;
    }
    std::vector<int> shown() {
        std::vector<int> result;
        for (int page = 0; page < 4; ++page)
            if (screen.isOnScreen("page" + std::to_string(page))) result.push_back(page);
        return result;
    }

    int selected = 0;
    TouchScreen screen{[this] {
        return TabView{.selection = Binding<int>([this] { return selected; }, [this](const int& page) { selected = page; }),
                       .content = ForEach(4, [](int page) { return box(300, 400, "page" + std::to_string(page)) | tag(page); })};
    }};
};

TEST_F(FadingPages, FadeInOverThoseBeforeThemByTheAnimationOfTheChange) {
    select(1);
    screen.wait(0.5);

    EXPECT_THAT(shown(), ElementsAre(0, 1));
    EXPECT_EQ(opacity(0), 1);
    EXPECT_NEAR(opacity(1), 0.25, 1e-9);

    screen.wait(1.5);
    EXPECT_THAT(shown(), ElementsAre(1));
    EXPECT_EQ(opacity(1), 1);
    EXPECT_FALSE(screen.host().isAnimating());
    EXPECT_FALSE(screen.bed().loop().nextDueTime_s());
}

TEST_F(FadingPages, FadeOutOverThoseBeforeThem) {
    select(3, {motion::TimingCurve::linear(), 0});
    screen.settle();
    select(0);
    screen.wait(0.5);

    EXPECT_THAT(shown(), ElementsAre(0, 3));
    EXPECT_EQ(opacity(0), 1);
    EXPECT_NEAR(opacity(3), 0.75, 1e-9);
    // Those between them take no part.
    EXPECT_EQ(screen.find("page1").frame.minX(), 300);
}

TEST_F(FadingPages, StandStillFromRightToLeftToo) {
    screen.setRightToLeft();
    select(1);
    screen.wait(0.5);

    EXPECT_EQ(opacity(0), 1);
    EXPECT_NEAR(opacity(1), 0.25, 1e-9);
}

TEST_F(FadingPages, GoOnFromWhatIsShownWhenThePageChangesAgain) {
    select(1);
    screen.wait(1); // half of page 0, half of page 1
    select(2);
    EXPECT_EQ(opacity(0), 1);
    EXPECT_NEAR(opacity(1), 0.5, 1e-9);
    EXPECT_EQ(screen.find("page2").opacity, 0);

    screen.wait(1); // a quarter of each of them, half of page 2
    EXPECT_NEAR(opacity(1), 0.5, 1e-9);
    EXPECT_NEAR(opacity(2), 0.5, 1e-9);
}

TEST_F(FadingPages, AreThereAtOnceWithoutAnAnimation) {
    select(1);
    screen.wait(0.5);
    selected = 2;
    screen.rebuild();

    EXPECT_THAT(shown(), ElementsAre(2));
    EXPECT_EQ(opacity(2), 1);
}

TEST_F(FadingPages, FollowTheFingerThatTakesHoldOfThem) {
    select(1);
    screen.wait(1);

    screen.pull({250, 200}, {150, 200}, 0.3);

    EXPECT_EQ(screen.find("page1").opacity, 1);
    EXPECT_NEAR(screen.frame("page1").minX(), -90, 1e-9);
    screen.up({60, 200});
    screen.wait(2);
    EXPECT_EQ(selected, 2);
    EXPECT_THAT(shown(), ElementsAre(2));
}

TEST_F(FadingPages, TakeTouchesOnlyOnceTheyStay) {
    std::string tapped;
    TouchScreen buttons{[&] {
        return TabView{.selection = Binding<int>([this] { return selected; }, [this](const int& page) { selected = page; }),
                       .content = ForEach(2, [&](int page) {
                           return Button{.action = [&tapped, page] { tapped += std::to_string(page); },
                                         .label = box(300, 400, "")} |
                                  tag(page);
                       })};
    }};
    EnvironmentValues values = buttons.host().environment();
    values.reduceMotion = true;
    buttons.host().setEnvironment(values);
    selected = 1;
    buttons.rebuild();
    withAnimation(slow, [&] {
        selected = 0;
        buttons.host().setNeedsUpdate();
    });
    buttons.wait(0.5);

    buttons.tap({150, 200}); // page 1 still lies over page 0

    EXPECT_EQ(tapped, "0");
}

TEST_F(FadingPages, SlideAgainWhenTheSettingIsTakenBack) {
    setReduceMotion(false);
    select(1);
    screen.wait(1);

    EXPECT_NEAR(screen.frame("page0").minX(), -150, 1e-9);
    EXPECT_EQ(screen.find("page1").opacity, 1);
}

TEST_F(FadingPages, EndASlideThatIsUnderWayWhenTheSettingComes) {
    setReduceMotion(false);
    select(1);
    screen.wait(1);

    setReduceMotion(true);

    EXPECT_THAT(shown(), ElementsAre(1));
    EXPECT_EQ(opacity(1), 1);
    EXPECT_FALSE(screen.bed().loop().nextDueTime_s());
}

TEST_F(FadingPages, MixToTheWholePictureAtAllTimes) {
    select(2);
    for (int step = 0; step < 40; ++step) {
        screen.wait(0.1);
        if (step == 7) select(3);
        if (step == 12) select(0);
        // What is left of the background behind pages that are painted one over the other.
        double background = 1;
        for (int page = 0; page < 4; ++page)
            if (screen.isOnScreen("page" + std::to_string(page))) background *= 1 - opacity(page);
        EXPECT_NEAR(background, 0, 1e-12) << step;
    }
}

} // namespace
} // namespace proupsells::tests

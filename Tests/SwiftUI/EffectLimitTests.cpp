// Transitions, safe areas, pages and what modifiers say of a view, at their limits.

#include "Tests/SwiftUI/Screen.hpp"

namespace proupsells::swiftui::tests {
namespace {

using testing::ElementsAre;

// --- Transitions ---

// What a way does to a view of 100 by 40 that is present by a quarter.
TransitionEffect quarterOf(const AnyTransition& transition) {
    TransitionEffect effect;
    transition.insertion().apply(0.25, {100, 40}, effect);
    return effect;
}

TEST(TransitionEffects, FadeGrowAndSlideInFromAnyEdge) {
    EXPECT_EQ(quarterOf(AnyTransition::identity()).opacity, 1);
    EXPECT_EQ(quarterOf(AnyTransition::opacity()).opacity, 0.25);
    EXPECT_EQ(quarterOf(AnyTransition::scale()).scale, 0.25);
    EXPECT_EQ(quarterOf(AnyTransition::move(Edge::leading)).offset, (geometry::Point{-75, 0}));
    EXPECT_EQ(quarterOf(AnyTransition::move(Edge::trailing)).offset, (geometry::Point{75, 0}));
    EXPECT_EQ(quarterOf(AnyTransition::move(Edge::top)).offset, (geometry::Point{0, -30}));
    EXPECT_EQ(quarterOf(AnyTransition::move(Edge::bottom)).offset, (geometry::Point{0, 30}));
}

TEST(TransitionEffects, JoinAndKeepTheirWaysApart) {
    const auto slow = motion::Animation{motion::TimingCurve::linear(), 2},
               quick = motion::Animation{motion::TimingCurve::linear(), 1};
    const AnyTransition both = AnyTransition::opacity().combined(AnyTransition::scale().animation(slow));
    EXPECT_EQ(quarterOf(both).opacity, 0.25);
    EXPECT_EQ(quarterOf(both).scale, 0.25);
    EXPECT_EQ(both.insertion().animation, slow);
    EXPECT_EQ(both.removal().animation, slow);
    EXPECT_EQ(both.animation(quick).combined(both).insertion().animation, quick);
    EXPECT_TRUE(both.insertion().fades());
    EXPECT_FALSE(AnyTransition::scale().insertion().fades());

    const AnyTransition apart = AnyTransition::asymmetric(AnyTransition::opacity(), AnyTransition::scale());
    EXPECT_TRUE(apart.insertion().fades());
    EXPECT_FALSE(apart.removal().fades());
    TransitionEffect leaving;
    apart.removal().apply(0.5, {100, 40}, leaving);
    EXPECT_EQ(leaving.scale, 0.5);
    EXPECT_EQ(leaving.opacity, 1);
}

class Entering : public testing::Test {
protected:
    // Half-way in, with a block of 20 by 10 in a window of 100.
    void enter(AnyTransition transition) {
        screen = std::make_unique<Screen>(
            [this, transition]() -> View {
                return isThere ? View{block("box", 20, 10) | proupsells::swiftui::transition(transition)} : View{};
            },
            Size{100, 100});
        if (isRightToLeft) {
            EnvironmentValues values = screen->host().environment();
            values.layoutDirection = geometry::LayoutDirection::rightToLeft;
            screen->host().setEnvironment(values);
            screen->settle();
        }
        change(true);
        screen->runFor(0.5);
    }
    void change(bool isThereNow) {
        const Transaction::Scope scope(motion::Animation{motion::TimingCurve::linear(), 1});
        isThere = isThereNow;
        screen->host().setNeedsUpdate();
        screen->settle();
    }

    bool isThere = false, isRightToLeft = false;
    std::unique_ptr<Screen> screen;
};

TEST_F(Entering, GrowsAboutItsMiddle) {
    enter(AnyTransition::scale());

    EXPECT_EQ(screen->frame("box"), rect(45, 47.5, 10, 5));
    EXPECT_EQ(screen->node("box").scale, 0.5);
    screen->runFor(0.5);
    EXPECT_EQ(screen->frame("box"), rect(40, 45, 20, 10));
    EXPECT_EQ(screen->node("box").scale, std::nullopt);
}

TEST_F(Entering, SlidesFromItsEdge) {
    enter(AnyTransition::move(Edge::leading));
    EXPECT_EQ(screen->frame("box"), rect(30, 45, 20, 10));
}

TEST_F(Entering, SlidesFromTheOtherSideFromRightToLeft) {
    isRightToLeft = true;
    enter(AnyTransition::move(Edge::leading));
    EXPECT_EQ(screen->frame("box"), rect(50, 45, 20, 10));
}

// On its way out it has no identifier.
TEST_F(Entering, LeavesHalfWayByTheWayOut) {
    enter(AnyTransition::asymmetric(AnyTransition::opacity(), AnyTransition::move(Edge::bottom)));
    const auto top = [&] { return screen->host().displayList().commands.at(0).frame.minY(); };
    EXPECT_EQ(screen->node("box").opacity, 0.5);

    change(false);
    EXPECT_FALSE(screen->has("box"));
    EXPECT_EQ(top(), 50);
    screen->runFor(0.5);
    EXPECT_EQ(top(), 52.5);
    change(true);
    screen->runFor(0.5);
    EXPECT_EQ(top(), 48.75);
}

// --- Animations of an update ---

TEST(AnimationOfAnUpdate, IsForgottenWhereNothingIsLaidOut) {
    Screen screen{[] { return block("box", 10, 10) | frame({.maxWidth = geometry::infinity, .alignment = Alignment::trailing}); },
                  {100, 100}};
    {
        const Transaction::Scope scope(motion::Animation{motion::TimingCurve::linear(), 1});
        screen.host().setNeedsUpdate();
    }
    screen.settle();

    screen.host().setSize({200, 100}, {});
    screen.settle();

    EXPECT_EQ(screen.frame("box").minX(), 190);
    EXPECT_FALSE(screen.host().isAnimating());
}

TEST(AnimationOfAnUpdate, EndsWithTheLayoutThatItMoves) {
    double width = 10;
    Screen screen{
        [&] { return block("box", width, 10) | frame({.maxWidth = geometry::infinity, .alignment = Alignment::leading}); },
        {100, 100}};
    {
        const Transaction::Scope scope(motion::Animation{motion::TimingCurve::linear(), 1});
        width = 30;
        screen.host().setNeedsUpdate();
    }
    screen.settle();
    screen.runFor(0.5);
    EXPECT_EQ(screen.frame("box").width(), 20);
    screen.runFor(1);
    width = 50;
    screen.host().setNeedsUpdate();
    screen.settle();

    EXPECT_EQ(screen.frame("box").width(), 50);
}

// --- Transforms ---

TEST(TransformedView, IsScaledAboutItsAnchorAndTurnedAboutItsMiddle) {
    Screen screen{[] {
                      return ZStack{.content = {block("corner", 20, 10) | scaleEffect(2, {0, 1}),
                                                block("turned", 20, 10) | rotationEffect(90),
                                                block("plain", 20, 10) | rotationEffect(0)}};
                  },
                  {100, 100}};

    EXPECT_EQ(screen.frame("corner"), rect(40, 35, 40, 20));
    EXPECT_EQ(screen.node("corner").scale, 2);
    EXPECT_NEAR(screen.frame("turned").minX(), 45, 1e-9);
    EXPECT_NEAR(screen.frame("turned").minY(), 40, 1e-9);
    EXPECT_NEAR(screen.frame("turned").height(), 20, 1e-9);
    EXPECT_EQ(screen.node("turned").rotation_degrees, 90);
}

TEST(TransformedView, CountsAllTransformsAroundIt) {
    Screen screen{[] { return block("box", 20, 10) | scaleEffect(2) | scaleEffect(3) | rotationEffect(10) | rotationEffect(20); },
                  {100, 100}};

    EXPECT_EQ(screen.node("box").scale, 6);
    EXPECT_EQ(screen.node("box").rotation_degrees, 30);
}

// --- Safe areas ---

TEST(UnsafeEdges, AreReachedWhereAViewTouchesThem) {
    const auto frameIgnoring = [](Edge edges, double padded = 0) {
        Screen screen{[=] { return filler("box") | ignoresSafeArea(edges) | padding(padded); }, {200, 100}, {10, 20, 30, 40}};
        return screen.frame("box");
    };
    EXPECT_EQ(frameIgnoring(Edge::all), rect(0, 0, 200, 100));
    EXPECT_EQ(frameIgnoring(Edge::top), rect(20, 0, 140, 70));
    EXPECT_EQ(frameIgnoring(Edge::leading), rect(0, 10, 160, 60));
    EXPECT_EQ(frameIgnoring(Edge::bottom), rect(20, 10, 140, 90));
    EXPECT_EQ(frameIgnoring(Edge::trailing), rect(20, 10, 180, 60));
    EXPECT_EQ(frameIgnoring(Edge::all, 0.5), rect(0, 0, 200, 100));
    EXPECT_EQ(frameIgnoring(Edge::all, 0.6), rect(20.6, 10.6, 138.8, 58.8));
}

TEST(UnsafeEdges, FollowTheLayoutDirection) {
    const auto frameIgnoring = [](Edge edges) {
        Screen screen{
            [=] { return filler("box") | ignoresSafeArea(edges) | layoutDirection(geometry::LayoutDirection::rightToLeft); },
            {200, 100},
            {10, 20, 30, 40}};
        return screen.frame("box");
    };
    EXPECT_EQ(frameIgnoring(Edge::leading), rect(20, 10, 180, 60));
    EXPECT_EQ(frameIgnoring(Edge::trailing), rect(0, 10, 160, 60));
}

TEST(UnsafeEdges, AreKnownToAReader) {
    geometry::EdgeInsets seen;
    geometry::Size size;
    const auto read = [&](const GeometryProxy& proxy) -> View {
        seen = proxy.safeAreaInsets;
        size = proxy.size;
        return View{};
    };
    const auto insetsOf = [&](const PaddingModifier& around) {
        Screen screen{[&] { return GeometryReader{read} | around; }, {200, 100}, {10, 20, 30, 40}};
        return seen;
    };
    EXPECT_EQ(insetsOf(padding(0)), (geometry::EdgeInsets{10, 20, 30, 40}));
    EXPECT_EQ(size, (Size{140, 60}));
    EXPECT_EQ(insetsOf(padding(Edge::top, 1)), (geometry::EdgeInsets{0, 20, 30, 40}));
    EXPECT_EQ(insetsOf(padding(Edge::leading, 1)), (geometry::EdgeInsets{10, 0, 30, 40}));
    EXPECT_EQ(insetsOf(padding(Edge::bottom, 1)), (geometry::EdgeInsets{10, 20, 0, 40}));
    EXPECT_EQ(insetsOf(padding(Edge::trailing, 1)), (geometry::EdgeInsets{10, 20, 30, 0}));
    EXPECT_EQ(insetsOf(padding(0.5)), (geometry::EdgeInsets{10, 20, 30, 40}));
}

TEST(UnsafeEdges, ABackgroundReachesThem) {
    Screen screen{
        [] { return View{ColorView{graphics::Color::white}} | background(filler("behind")) | background(graphics::Color::black); },
        {200, 100},
        {10, 20, 30, 40}};

    EXPECT_EQ(screen.frame("behind"), rect(20, 10, 140, 60));
    const auto& commands = screen.host().displayList().commands;
    ASSERT_EQ(commands.size(), 3u);
    EXPECT_EQ(commands[0].frame, rect(0, 0, 200, 100));
}

// --- Stacks ---

TEST(StackLimits, ViewsStayAtTheStartOfUnlimitedRoom) {
    Screen screen{[] {
                      return ScrollView{.axis = Axis::horizontal,
                                        .content = {HStack{.spacing = 3, .content = {block("a", 10, 10), block("b", 20, 30)}}}};
                  },
                  {100, 100}};

    EXPECT_EQ(screen.frame("a"), rect(0, 45, 10, 10));
    EXPECT_EQ(screen.frame("b"), rect(13, 35, 20, 30));
}

TEST(StackLimits, LowerPrioritiesKeepTheirLeast) {
    Screen screen{[] {
                      return HStack{.spacing = 0,
                                    .content = {filler("greedy") | layoutPriority(2),
                                                filler("least") | frame({.minWidth = 30, .maxWidth = geometry::infinity}),
                                                filler("middle") | frame({.minWidth = 10, .maxWidth = 25}) | layoutPriority(1)}};
                  },
                  {100, 100}};

    EXPECT_EQ(screen.frame("greedy").width(), 60);
    EXPECT_EQ(screen.frame("middle").width(), 10);
    EXPECT_EQ(screen.frame("least").width(), 30);
}

TEST(StackLimits, NobodyIsOfferedLessThanNothing) {
    Screen screen{[] {
                      return HStack{.spacing = 30, .content = {block("a", 40, 10), filler("b"), filler("c")}} |
                             frame({.width = 50, .alignment = Alignment::leading});
                  },
                  {200, 100}};

    EXPECT_EQ(screen.frame("a").width(), 40);
    EXPECT_EQ(screen.frame("b").width(), 0);
    EXPECT_EQ(screen.frame("c").width(), 0);
    Screen one{[] { return HStack{.content = {filler("only")}} | padding(80); }, {100, 100}};
    EXPECT_EQ(one.frame("only").width(), 0);
}

// --- What modifiers say ---

TEST(SaidOfAView, TheOutermostModifierCounts) {
    using accessibility::Role;
    Screen screen{[] {
                      return block("inner", 10, 10) | accessibilityLabel("inner label") | accessibilityValue("inner value") |
                             accessibilityRole(Role::group, "inner name") | accessibilityReadingOrder(1) | padding(5) |
                             accessibilityLabel("outer label") | accessibilityValue("outer value") |
                             accessibilityRadioButton("outer name", true) | accessibilityReadingOrder(2) | accessibilityPlate();
                  },
                  {100, 100}};

    const auto node = screen.node("inner");

    EXPECT_EQ(node.label, "outer label");
    EXPECT_EQ(node.value, "outer value");
    EXPECT_EQ(node.spoken.role, Role::radioButton);
    EXPECT_EQ(node.spoken.name, "outer name");
    EXPECT_EQ(node.spoken.isChecked, true);
    EXPECT_EQ(node.spoken.order, 2);
    EXPECT_TRUE(node.spoken.isPlate);
    EXPECT_FALSE(node.spoken.isSilent);
    EXPECT_EQ(node.spoken.isExpanded, std::nullopt);
}

TEST(SaidOfAView, InnerModifiersAddWhatOuterOnesLeaveOut) {
    using accessibility::Role;
    Screen screen{[] {
                      return block("box", 10, 10) | accessibilityDisclosure(true) | accessibilitySilent() |
                             accessibilityValue("v") | accessibilityReadingOrder(3) | accessibilitySpokenName("name") |
                             accessibilityLabel("label");
                  },
                  {100, 100}};

    const auto node = screen.node("box");

    EXPECT_EQ(node.spoken.role, Role::disclosure);
    EXPECT_EQ(node.spoken.isExpanded, true);
    EXPECT_TRUE(node.spoken.isSilent);
    EXPECT_EQ(node.spoken.order, 3);
    EXPECT_EQ(node.spoken.name, "name");
    EXPECT_EQ(node.value, "v");
    EXPECT_EQ(node.label, "label");
}

TEST(SaidOfAView, TheOutermostIdentifierNamesItsOwnFrame) {
    Screen screen{[] {
                      return ColorView{graphics::Color::black} | frame(10, 10) | accessibilityIdentifier("inner") | padding(5) |
                             accessibilityIdentifier("outer") | padding(10) | accessibilityLabel("label");
                  },
                  {100, 100}};

    EXPECT_FALSE(screen.has("inner"));
    EXPECT_EQ(screen.frame("outer"), rect(40, 40, 20, 20));
}

} // namespace
} // namespace proupsells::swiftui::tests

// How views come and go.
#include "Tests/SwiftUI/Animating.hpp"

namespace proupsells::swiftui::tests {
namespace {

using testing::ElementsAre;

class Transitions : public Animating {
protected:
    void showBranch(AnyTransition how) {
        show([this, how] {
            return VStack{.content = {isOn ? block("branch", 10, 40) | transition(how) : View{}, block("other", 10, 10)}} |
                   frame({.width = 100, .height = 100, .alignment = Alignment::topLeading});
        });
    }
    // Of the first view, which has no identifier while it leaves.
    accessibility::SemanticNode branch() {
        accessibility::SemanticNode root = screen->tree();
        return root.children.size() > 1 ? root.children.front() : accessibility::SemanticNode{};
    }
};

TEST_F(Transitions, AreNotShownAtTheFirstBuild) {
    isOn = true;
    showBranch(AnyTransition::opacity().animation(linear(1)));

    EXPECT_EQ(screen->node("branch").opacity, 1);
}

TEST_F(Transitions, FadeInAndOut) {
    showBranch(AnyTransition::opacity());

    change(linear(1));
    EXPECT_THAT(sampled([&] { return branch().opacity; }), ElementsAre(0, 0.25, 0.5, 0.75, 1));

    change(linear(1));
    EXPECT_THAT(sampled([&] { return branch().opacity; }), ElementsAre(1, 0.75, 0.5, 0.25, 1));
    EXPECT_TRUE(branch().type.empty());
}

TEST_F(Transitions, WithoutAnAnimationViewsComeAndGoAtOnce) {
    showBranch(AnyTransition::opacity());

    change(std::nullopt);
    EXPECT_EQ(branch().opacity, 1);
    change(std::nullopt);
    EXPECT_TRUE(branch().type.empty());
}

TEST_F(Transitions, ALeavingViewKeepsItsPlaceAndTakesNoTouches) {
    show([this] {
        return ZStack{.alignment = Alignment::topLeading,
                      .content = {isOn ? block("branch", 100, 60) | transition(AnyTransition::opacity()) : View{}}} |
               frame({.width = 100, .height = 100, .alignment = Alignment::topLeading});
    });
    change(std::nullopt);
    ASSERT_TRUE(screen->host().hits({50, 50}));

    change(linear(1));
    screen->runFor(0.5);

    EXPECT_FALSE(screen->host().hits({50, 50}));
    ASSERT_EQ(screen->host().displayList().commands.size(), 1u);
    EXPECT_EQ(screen->host().displayList().commands.front().frame, rect(0, 0, 100, 60));
    EXPECT_FLOAT_EQ(screen->host().displayList().commands.front().opacity, 0.5f);
}

TEST_F(Transitions, AViewThatEndsInSightIsTakenOutOfThePictureAndDestroyed) {
    const auto owned = std::make_shared<int>();
    const std::weak_ptr<int> remains = owned;
    show([this, remains] {
        // Moved by its own width, which leaves it in sight.
        const auto branch = [&] {
            return block("branch", 10, 40) | onTapGesture([kept = remains.lock()] {}) |
                   transition(AnyTransition::move(Edge::trailing));
        };
        return VStack{.content = {isOn ? branch() : View{}, block("other", 10, 10)}} |
               frame({.width = 100, .height = 100, .alignment = Alignment::topLeading});
    });
    change(std::nullopt);
    const long users = owned.use_count();
    change(linear(1));
    screen->runFor(0.9);
    screen->host().displayList();
    int pictures = 0;
    screen->host().setNeedsDisplayHandler([&] { ++pictures; });

    screen->runFor(0.2);

    EXPECT_EQ(pictures, 1);
    EXPECT_GT(users, 1);
    EXPECT_EQ(owned.use_count(), 1);
}

TEST_F(Transitions, TurnBackHalfWay) {
    showBranch(AnyTransition::opacity());
    change(std::nullopt);

    change(linear(1));
    screen->runFor(0.5);
    change(linear(1));

    EXPECT_THAT(sampled([&] { return screen->node("branch").opacity; }), ElementsAre(0.5, 0.625, 0.75, 0.875, 1));
}

TEST_F(Transitions, HaveTheirOwnAnimations) {
    showBranch(AnyTransition::asymmetric(AnyTransition::opacity().animation(linear(0.5, 0.25)),
                                         AnyTransition::opacity().animation(linear(0.25))));

    change(std::nullopt);
    EXPECT_THAT(sampled([&] { return branch().opacity; }), ElementsAre(0, 0, 0.5, 1, 1));

    change(linear(1));
    screen->runFor(0.125);
    EXPECT_EQ(branch().opacity, 0.5);
    screen->runFor(0.125);
    EXPECT_TRUE(branch().type.empty());
}

TEST_F(Transitions, AnotherIdLeavesAndEntersAtOnce) {
    show([this] { return Text{isOn ? "new" : "old"} | id(isOn ? 1 : 0) | transition(AnyTransition::opacity()) | padding(); });

    change(linear(1));
    screen->runFor(0.25);

    EXPECT_EQ(screen->text("old").opacity, 0.75);
    EXPECT_EQ(screen->text("new").opacity, 0.25);
}

struct Curtain {
    Shape shape;
};
geometry::Path curtainPath(const Rect& rect, double share) {
    return geometry::Path::rectangle({rect.origin, {rect.width(), rect.height() * share}});
}

TEST_F(Transitions, JoinAClipWithAFade) {
    const auto at = [](double share) { return Curtain{Shape(CustomShape{.path = curtainPath, .animatableData = share})}; };
    showBranch(AnyTransition::modifier(at(0), at(1)).combined(AnyTransition::opacity()));

    change(linear(1));
    const auto heights = sampled([&] { return branch().clip.value_or(Rect{{}, {0, 40}}).height(); });

    EXPECT_THAT(heights, ElementsAre(0, 10, 20, 30, 40));
}

TEST_F(Transitions, MoveFromAnEdge) {
    showBranch(AnyTransition::move(Edge::top));
    change(std::nullopt);

    change(linear(1));

    EXPECT_THAT(sampled([&] { return branch().frame.minY(); }), ElementsAre(0, -10, -20, -30, 0));
    EXPECT_TRUE(branch().type.empty());
}

TEST_F(Transitions, SubtreesInsideAnInsertedViewDoNotMoveByThemselves) {
    show([this] { return isOn ? VStack{.content = {block("inner", 10, 10) | transition(AnyTransition::opacity())}} : View{}; });

    change(linear(1));

    EXPECT_EQ(screen->node("inner").opacity, 1);
}

TEST_F(Transitions, EndTheirTimersWithTheTree) {
    showBranch(AnyTransition::opacity());
    change(std::nullopt);
    change(linear(1));

    screen->host().setRoot([] { return View{}; });
    screen->settle();

    screen->runFor(2);
    EXPECT_FALSE(screen->bed().loop().nextDueTime_s().has_value());
}

TEST_F(Transitions, ReducedMotionKeepsOnlyTheFade) {
    showBranch(AnyTransition::move(Edge::top).combined(AnyTransition::opacity()));
    EnvironmentValues values = screen->host().environment();
    values.reduceMotion = true;
    screen->host().setEnvironment(values);
    screen->settle();

    change(linear(1));
    const double start = branch().frame.minY();
    screen->runFor(0.5);

    EXPECT_EQ(branch().opacity, 0.5);
    EXPECT_EQ(branch().frame.minY(), start);
}

} // namespace
} // namespace proupsells::swiftui::tests

// What a tree says of itself as a whole, of what leaves it, and when it is asked to do nothing.
#include "Tests/SwiftUI/TouchScreen.hpp"

#include <gmock/gmock.h>

#include "Tests/SwiftUI/Screen.hpp"

namespace proupsells::swiftui::tests {
namespace {

using proupsells::tests::box;
using proupsells::tests::TouchScreen;
using testing::ElementsAre;

// --- The whole tree ---

TEST(WholeTree, OfSeveralViewsIsTheHosts) {
    Screen screen{[] { return Group{.content = {block("a", 10, 10), block("b", 10, 10)}}; }, {100, 80}};

    const auto tree = screen.tree();

    EXPECT_EQ(tree.type, "ViewHost");
    EXPECT_EQ(tree.frame, rect(0, 0, 100, 80));
    EXPECT_TRUE(tree.isOnScreen);
    EXPECT_EQ(tree.children.size(), 2u);
    Screen none{[] { return Group{.content = {block("a", 10, 10), block("b", 10, 10)}}; }, {0, 80}};
    EXPECT_FALSE(none.tree().isOnScreen);
}

TEST(WholeTree, StandsInTheMiddleOfWhatIsSafeHoweverLittleThatIs) {
    Screen screen{[] { return block("a", 10, 10); }, {100, 80}, {10, 20, 30, 40}};
    EXPECT_EQ(screen.frame("a"), rect(20 + 15, 10 + 15, 10, 10));

    Screen tiny{[] { return filler("a"); }, {20, 20}, {15, 15, 15, 15}};
    EXPECT_EQ(tiny.frame("a").size, (Size{0, 0}));
}

TEST(WholeTree, IsBuiltAnewOnlyForWhatIsOther) {
    int builds = 0;
    Screen screen{[&] {
                      ++builds;
                      return block("a", 10, 10);
                  },
                  {100, 80},
                  {1, 2, 3, 4}};
    screen.settle();
    builds = 0;

    screen.host().setSize({100, 80}, {1, 2, 3, 4});
    screen.host().setEnvironment(screen.host().environment());
    screen.settle();
    EXPECT_EQ(builds, 0);
    screen.host().setSize({100, 90}, {1, 2, 3, 4});
    screen.settle();
    EXPECT_EQ(builds, 0);
    screen.host().setSize({100, 90}, {1, 2, 3, 5});
    screen.settle();
    EXPECT_EQ(builds, 1);
    EnvironmentValues values = screen.host().environment();
    values.colorScheme = graphics::ColorScheme::dark;
    values.safeAreaInsets = {};
    screen.host().setEnvironment(values);
    screen.settle();

    EXPECT_EQ(builds, 2);
    EXPECT_EQ(screen.host().environment().safeAreaInsets, (geometry::PhysicalInsets{1, 2, 3, 5}));
    screen.host().setRoot([] { return block("other", 10, 10); });
    screen.settle();
    EXPECT_TRUE(screen.has("other"));
}

// --- What leaves ---

TEST(LeavingView, IsSeenButNeitherReadNorUsedNorFound) {
    bool isThere = true;
    int taps = 0;
    Screen screen{[&]() -> View {
                      return isThere ? View{Button{.action = [&] { ++taps; }, .label = block("label", 30, 30)} |
                                            accessibilityIdentifier("button") | transition(AnyTransition::opacity())}
                                     : View{};
                  },
                  {100, 100}};
    const auto present = screen.node("button");
    EXPECT_TRUE(present.isControl);
    EXPECT_TRUE(present.activate);
    EXPECT_EQ(present.leastTarget, 44);
    EXPECT_FALSE(present.spoken.isSilent);
    {
        const Transaction::Scope scope(motion::Animation{motion::TimingCurve::linear(), 1});
        isThere = false;
        screen.host().setNeedsUpdate();
    }
    screen.settle();
    screen.runFor(0.5);

    const auto leaving = screen.tree();

    EXPECT_EQ(leaving.type, "Button");
    EXPECT_EQ(leaving.opacity, 0.5);
    EXPECT_EQ(leaving.identifier, "");
    EXPECT_FALSE(leaving.isControl);
    EXPECT_FALSE(leaving.activate);
    EXPECT_TRUE(leaving.spoken.isSilent);
    EXPECT_FALSE(screen.has("label"));
    EXPECT_FALSE(screen.host().hits({50, 50}));
    present.activate();
    EXPECT_EQ(taps, 0);
}

TEST(LeavingView, CannotBeScrolledTo) {
    bool isThere = true;
    Screen screen{
        [&] {
            return ScrollView{
                .content = {
                    VStack{.content = {block("first", 30, 30),
                                       isThere ? View{block("second", 30, 30) | transition(AnyTransition::opacity())} : View{}}}}};
        },
        {100, 100}};
    EXPECT_TRUE(screen.node("first").reveal);
    EXPECT_TRUE(screen.node("second").revealWhole);
    {
        const Transaction::Scope scope(motion::Animation{motion::TimingCurve::linear(), 1});
        isThere = false;
        screen.host().setNeedsUpdate();
    }
    screen.settle();
    screen.runFor(0.5);

    const auto tree = screen.tree();
    const auto* leaving = Screen::findNode(tree, [](const auto& node) { return node.type == "Color" && node.opacity < 1; });

    ASSERT_TRUE(leaving);
    EXPECT_FALSE(leaving->reveal);
    EXPECT_FALSE(leaving->revealWhole);
    EXPECT_TRUE(screen.node("first").reveal);
}

// --- Touches ---

TEST(FaintView, TakesTouchesFromOneHundredthOn) {
    const auto isHit = [](double value) {
        Screen screen{[=] { return ColorView{graphics::Color::black} | opacity(value); }, {100, 100}};
        return screen.host().hits({50, 50});
    };
    EXPECT_TRUE(isHit(0.01));
    EXPECT_FALSE(isHit(0.009));
}

TEST(ClearColour, LetsTouchesThrough) {
    const auto isHit = [](const graphics::Color& color) {
        Screen screen{[&] { return ColorView{color}; }, {100, 100}};
        return screen.host().hits({50, 50});
    };
    EXPECT_FALSE(isHit({"clear", graphics::rgb(0, 0), graphics::rgb(0, 0)}));
    EXPECT_TRUE(isHit({"lightOnly", graphics::rgb(0, 1), graphics::rgb(0, 0)}));
    EXPECT_TRUE(isHit({"darkOnly", graphics::rgb(0, 0), graphics::rgb(0, 1)}));
}

TEST(HiddenTree, LetsGoOfTheFinger) {
    int taps = 0;
    TouchScreen screen{[&] { return Button{.action = [&] { ++taps; }, .label = box(100, 50, "label")}; }};
    screen.down({150, 200});

    screen.host().setVisible(false);
    screen.host().setVisible(true);
    screen.up({150, 200});
    EXPECT_EQ(taps, 0);
    screen.tap({150, 200});
    EXPECT_EQ(taps, 1);
}

// --- Objects in the environment ---

struct NamedModel : combine::ObservableObject {
    explicit NamedModel(std::string name) : name(std::move(name)) {}
    std::string name;
};
struct UnnamedModel : combine::ObservableObject {};

struct ModelName {
    View body(BuildContext& context) const {
        return Text{context.environmentObject<NamedModel>()->name} | accessibilityIdentifier("name");
    }
    bool operator==(const ModelName&) const = default;
};

TEST(ObjectsOfTheEnvironment, AreTheInnermostOfTheirTypes) {
    const auto outer = std::make_shared<NamedModel>("outer"), inner = std::make_shared<NamedModel>("inner");
    const auto other = std::make_shared<UnnamedModel>();
    Screen screen{
        [=] {
            return VStack{.content = {View{ModelName{}} | environmentObject(other) | environmentObject(inner), ModelName{}}} |
                   environmentObject(outer);
        },
        {100, 100}};

    EXPECT_THAT(screen.texts(), ElementsAre("inner", "outer"));
}

} // namespace
} // namespace proupsells::swiftui::tests

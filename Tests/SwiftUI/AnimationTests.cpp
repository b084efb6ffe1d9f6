// What moves, fades and grows, and where it is at which time.
#include "Platform/Graphics/Palette.hpp"
#include "Tests/SwiftUI/Animating.hpp"

namespace proupsells::swiftui::tests {
namespace {

using testing::ElementsAre;

TEST_F(Animating, FramesMoveFromWhereTheyAreSeen) {
    show([&] {
        return block("box", 10, 10) |
               frame({.width = 100, .height = 10, .alignment = isOn ? Alignment::trailing : Alignment::leading});
    });

    withAnimation(linear(1), [&] {
        isOn = true;
        screen->host().setNeedsUpdate();
    });
    screen->settle();

    EXPECT_THAT(sampled([&] { return screen->frame("box").minX(); }), ElementsAre(0, 22.5, 45, 67.5, 90));
    EXPECT_FALSE(screen->host().isAnimating());
}

TEST_F(Animating, SizesGrow) {
    show([&] { return block("box", isOn ? 50 : 10, 10) | frame({.width = 100, .alignment = Alignment::leading}); });

    change(linear(1));

    EXPECT_THAT(sampled([&] { return screen->frame("box").width(); }), ElementsAre(10, 20, 30, 40, 50));
}

TEST_F(Animating, WithoutAnAnimationTheyJump) {
    show([&] { return block("box", isOn ? 50 : 10, 10); });

    change(std::nullopt);

    EXPECT_EQ(screen->frame("box").width(), 50);
    EXPECT_FALSE(screen->host().isAnimating());
}

// A box behind another one, half a second after one of the two has begun to grow from 10 to 50 points.
class MovingBox : public Animating {
protected:
    void begin(double& grown) {
        show([this] {
            return HStack{.spacing = 0, .content = {block("before", before, 10), block("box", own, 10)}} |
                   frame({.width = 100, .alignment = Alignment::leading});
        });
        grown = 50;
        change(linear(1));
        screen->runFor(0.5);
    }

    double before = 10, own = 10;
};

TEST_F(MovingBox, GoesOnItsWayWhenOnlyItsSizeJumps) {
    begin(before);

    own = 30;
    change(std::nullopt);

    EXPECT_EQ(screen->frame("box"), (Rect{{30, 45}, {30, 10}}));
    screen->runFor(0.25);
    EXPECT_EQ(screen->frame("box"), (Rect{{40, 45}, {30, 10}}));
}

TEST_F(MovingBox, GoesOnGrowingWhenOnlyItsPlaceJumps) {
    begin(own);

    before = 20;
    change(std::nullopt);

    EXPECT_EQ(screen->frame("box"), (Rect{{20, 45}, {30, 10}}));
    screen->runFor(0.25);
    EXPECT_EQ(screen->frame("box"), (Rect{{20, 45}, {40, 10}}));
}

TEST_F(Animating, ReducedMotionJumpsButFades) {
    show([&] { return block("box", isOn ? 50 : 10, 10) | opacity(isOn ? 0 : 1); });
    EnvironmentValues values = screen->host().environment();
    values.reduceMotion = true;
    screen->host().setEnvironment(values);
    screen->settle();

    change(linear(1));
    screen->runFor(0.5);

    EXPECT_EQ(screen->frame("box").width(), 50);
    EXPECT_EQ(screen->node("box").opacity, 0.5);
}

TEST_F(Animating, OpacityScaleAndRotationAreFunctionsOfTime) {
    show(
        [&] { return block("box", 10, 10) | opacity(isOn ? 0 : 1) | scaleEffect(isOn ? 2 : 1) | rotationEffect(isOn ? 90 : -90); });

    change(linear(1));
    screen->runFor(0.25);

    const auto node = screen->node("box");
    EXPECT_DOUBLE_EQ(node.opacity, 0.75);
    EXPECT_DOUBLE_EQ(node.scale.value(), 1.25);
    EXPECT_DOUBLE_EQ(node.rotation_degrees.value(), -45);
}

TEST_F(Animating, ColoursMixAtTheTimeOfPainting) {
    const graphics::Color from{"from", graphics::rgb(0x000000), graphics::rgb(0x000000)};
    const graphics::Color to{"to", graphics::rgb(0x6496C8), graphics::rgb(0x6496C8)};
    show([&] { return ColorView{isOn ? to : from}; });

    change(linear(1));
    screen->runFor(0.5);

    EXPECT_EQ(screen->host().displayList().commands.front().color, graphics::rgb(0x324B64));
}

TEST_F(Animating, ColoursMixAsAPaletteShowsThem) {
    graphics::Palette palette;
    palette.set("to", graphics::ColorScheme::light, graphics::rgb(0x6496C8));
    graphics::Palette::setCurrent(palette);
    const graphics::Color from{"from", graphics::rgb(0x000000), graphics::rgb(0x000000)};
    const graphics::Color to{"to", graphics::rgb(0xFFFFFF), graphics::rgb(0xFFFFFF)};
    show([&] { return ColorView{isOn ? to : from}; });

    change(linear(1));
    screen->runFor(0.5);
    const graphics::RGBA halfway = screen->host().displayList().commands.front().color;
    screen->runFor(0.5);
    const graphics::RGBA atLast = screen->host().displayList().commands.front().color;
    graphics::Palette::setCurrent({});

    EXPECT_EQ(halfway, graphics::rgb(0x324B64));
    EXPECT_EQ(atLast, graphics::rgb(0x6496C8));
}

TEST_F(Animating, AChangeOnTheWayStartsFromWhatIsSeen) {
    show([&] { return block("box", 10, 10) | opacity(isOn ? 0 : 1); });

    change(linear(1));
    screen->runFor(0.5);
    change(linear(1));

    EXPECT_THAT(sampled([&] { return screen->node("box").opacity; }), ElementsAre(0.5, 0.625, 0.75, 0.875, 1));
}

TEST_F(Animating, AnotherUpdateOnTheWayDoesNotDisturb) {
    show([&] {
        return block("box", isOn ? 50 : 10, 10) | opacity(isOn ? 0 : 1) | frame({.width = 100, .alignment = Alignment::leading});
    });

    change(linear(1));
    screen->runFor(0.5);
    screen->host().setNeedsUpdate();
    screen->settle();

    EXPECT_EQ(screen->node("box").opacity, 0.5);
    EXPECT_EQ(screen->frame("box").width(), 30);
}

TEST_F(Animating, ADelayHoldsTheOldValue) {
    show([&] { return block("box", 10, 10) | opacity(isOn ? 0 : 1); });

    change(linear(0.5, 0.5));

    EXPECT_THAT(sampled([&] { return screen->node("box").opacity; }), ElementsAre(1, 1, 1, 0.5, 0));
}

TEST_F(Animating, TheAnimationModifierAnimatesWhenItsValueChanges) {
    int value = 0;
    show([&] { return block("box", isOn ? 50 : 10, 10) | opacity(isOn ? 0 : 1) | animation(linear(1), value); });

    isOn = true;
    ++value;
    screen->host().setNeedsUpdate();
    screen->settle();
    screen->runFor(0.5);
    EXPECT_EQ(screen->node("box").opacity, 0.5);
    EXPECT_EQ(screen->frame("box").width(), 30);

    isOn = false;
    screen->host().setNeedsUpdate();
    screen->settle();
    EXPECT_EQ(screen->node("box").opacity, 1);
}

TEST_F(Animating, AppearanceSwitchesAtOnce) {
    const graphics::Color ink{"ink", graphics::rgb(0x000000), graphics::rgb(0xFFFFFF)};
    show([&] { return ColorView{ink}; });
    EnvironmentValues dark = screen->host().environment();
    dark.colorScheme = graphics::ColorScheme::dark;

    withAnimation(linear(1), [&] { screen->host().setEnvironment(dark); });
    screen->settle();

    EXPECT_EQ(screen->host().displayList().commands.front().color, ink.dark);
}

// A bar whose length is a state that the test can write.
struct Bar {
    std::string name;
    std::vector<Binding<double>>* lengths;

    View body(BuildContext& context) const {
        const Binding<double> length = context.state<double>(10);
        if (length.get() == 10) lengths->push_back(length);
        return block(name, 10, 10) | opacity(length.get() / 10);
    }
};

TEST(AnimatedState, OnlyWhatWasWrittenInsideIsAnimated) {
    std::vector<Binding<double>> lengths;
    Screen screen{[&] { return VStack{.content = {Bar{"first", &lengths}, Bar{"second", &lengths}}}; }, {100, 100}};

    withAnimation(linear(1), [&] { lengths.at(0).set(0); });
    lengths.at(1).set(0);
    screen.settle();
    screen.runFor(0.25);

    EXPECT_EQ(screen.node("first").opacity, 0.75);
    EXPECT_EQ(screen.node("second").opacity, 0);
}

} // namespace
} // namespace proupsells::swiftui::tests

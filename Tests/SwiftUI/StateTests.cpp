// States, bindings, observed objects and the environment.
#include "Platform/Combine/ObservableObject.hpp"
#include "Tests/SwiftUI/Screen.hpp"

namespace proupsells::swiftui::tests {
namespace {

using testing::ElementsAre;

// Hands its state out, so that a test can write it.
struct Holder {
    std::optional<Binding<int>>* binding;
    int* builds;

    View body(BuildContext& context) const {
        ++*builds;
        const Binding<int> value = context.state<int>(1);
        binding->emplace(value);
        return Text{std::to_string(value.get())};
    }
    bool operator==(const Holder&) const = default;
};

class State : public testing::Test {
protected:
    std::optional<Binding<int>> binding;
    int builds = 0;
    Screen screen{[this] { return Holder{&binding, &builds} | padding(1); }, {100, 100}};
};

TEST_F(State, AWriteShowsAtTheEndOfTheTurn) {
    binding->set(2);
    EXPECT_EQ(builds, 1);

    screen.settle();

    EXPECT_THAT(screen.texts(), ElementsAre("2"));
}

TEST_F(State, AllWritesOfATurnAreOneUpdate) {
    screen.bed().loop().schedule(1, [this] {
        binding->set(2);
        binding->set(3);
        binding->set(4);
    });
    screen.runFor(1);

    EXPECT_EQ(builds, 2);
    EXPECT_THAT(screen.texts(), ElementsAre("4"));
}

TEST_F(State, WritingTheSameValueChangesNothing) {
    binding->set(1);
    screen.settle();

    EXPECT_EQ(builds, 1);
}

TEST_F(State, OutlivesItsView) {
    screen.host().setRoot([] { return View{}; });
    screen.settle();

    binding->set(7);

    EXPECT_EQ(binding->get(), 7);
}

TEST_F(State, IsReadAfterItWasWrittenBeforeTheUpdate) {
    binding->set(5);

    EXPECT_EQ(binding->get(), 5);
}

TEST(Binding, DerivesAnother) {
    int stored = 3;
    const Binding<int> number([&] { return stored; }, [&](const int& value) { stored = value; });
    const Binding<std::string> text = number.map<std::string>([](const int& value) { return std::to_string(value); },
                                                              [](const std::string& value) { return std::stoi(value); });

    EXPECT_EQ(text.get(), "3");
    text.set("8");
    EXPECT_EQ(stored, 8);
}

TEST(Binding, EqualsAnotherOfTheSameValue) {
    int value = 1;
    const auto bind = [&] { return Binding<int>([&] { return value; }, [&](const int& v) { value = v; }); };
    const Binding<int> first = bind();

    EXPECT_EQ(first, bind());
    value = 2;
    EXPECT_FALSE(first == bind());
}

TEST(Binding, AConstantStaysWhatItIs) {
    const auto constant = Binding<std::string>::constant("b");
    constant.set("c");

    EXPECT_EQ(constant.get(), "b");
}

struct Model : combine::ObservableObject {
    combine::Published<int> number{*this, 1};
};

struct Observer {
    std::shared_ptr<Model> model;
    int* builds;

    View body(BuildContext& context) const {
        ++*builds;
        return Text{std::to_string(context.observe(model)->number.get())};
    }
    bool operator==(const Observer&) const = default;
};

TEST(Observation, ChangesOfAnObjectBuildItsObserversOnce) {
    const auto model = std::make_shared<Model>();
    int builds = 0;
    Screen screen{[&] { return VStack{.content = {Observer{model, &builds}, Observer{model, &builds}}}; }, {100, 100}};

    model->number = 2;
    model->number = 3;
    screen.settle();

    EXPECT_EQ(builds, 4);
    EXPECT_THAT(screen.texts(), ElementsAre("3", "3"));
}

TEST(Observation, EndsWithTheView) {
    const auto model = std::make_shared<Model>();
    int builds = 0;
    Screen screen{[&] { return Observer{model, &builds}; }, {100, 100}};
    screen.host().setRoot([] { return View{}; });
    screen.settle();

    model->number = 9;
    screen.settle();

    EXPECT_EQ(builds, 1);
    EXPECT_EQ(model.use_count(), 1);
}

TEST(Observation, FollowsTheViewToAnotherObject) {
    const auto first = std::make_shared<Model>(), second = std::make_shared<Model>();
    auto shown = first;
    int builds = 0;
    Screen screen{[&] { return Observer{shown, &builds}; }, {100, 100}};
    shown = second;
    screen.host().setNeedsUpdate();
    screen.settle();
    builds = 0;

    first->number = 5;
    screen.settle();
    EXPECT_EQ(builds, 0);
    second->number = 6;
    screen.settle();
    EXPECT_EQ(builds, 1);
}

struct FromEnvironment {
    View body(BuildContext& context) const { return Text{std::to_string(context.environmentObject<Model>()->number.get())}; }
    bool operator==(const FromEnvironment&) const = default;
};

TEST(EnvironmentObject, ReachesViewsInsideAndIsObserved) {
    const auto model = std::make_shared<Model>();
    Screen screen{[&] { return VStack{.content = {FromEnvironment{}}} | environmentObject(model); }, {100, 100}};

    model->number = 4;
    screen.settle();

    EXPECT_THAT(screen.texts(), ElementsAre("4"));
}

TEST(EnvironmentObjectDeathTest, AMissingOneStopsTheProgram) {
    EXPECT_DEATH(Screen([] { return FromEnvironment{}; }, {100, 100}),
                 "No object of type Model in the environment; an environmentObject\\(\\) further out is missing");
}

struct Fickle {
    bool* asksForText;

    View body(BuildContext& context) const {
        if (*asksForText) return Text{context.state<std::string>("x").get()};
        return Text{std::to_string(context.state<int>(1).get())};
    }
};

TEST(StateDeathTest, AnotherOrderOfStatesStopsTheProgram) {
    bool asksForText = false;
    Screen screen{[&] { return Fickle{&asksForText}; }, {100, 100}};
    asksForText = true;
    screen.host().setNeedsUpdate();

    EXPECT_DEATH(screen.settle(), "asks for its states in another order");
}

TEST(Environment, TheInnermostValueCounts) {
    const graphics::Color red{"red", graphics::rgb(0xFF0000), graphics::rgb(0xFF0000)};
    const graphics::Color blue{"blue", graphics::rgb(0x0000FF), graphics::rgb(0x0000FF)};
    Screen screen{[&] {
                      return VStack{.content = {Text{"inner"} | foregroundStyle(red), Text{"outer"},
                                                RoundedRectangle(2) | frame(10, 10) | accessibilityIdentifier("shape")}} |
                             foregroundStyle(blue);
                  },
                  {100, 100}};

    EXPECT_EQ(screen.text("inner").text->color, "red");
    EXPECT_EQ(screen.text("outer").text->color, "blue");
    EXPECT_EQ(screen.node("shape").shape->fill, "blue");
}

TEST(Environment, DisabledStaysDisabledInside) {
    bool isEnabled = true;
    struct Asking {
        bool* isEnabled;
        View body(BuildContext& context) const {
            *isEnabled = context.environment().isEnabled;
            return Text{"x"};
        }
    };
    Screen screen{[&] { return Asking{&isEnabled} | disabled(false) | disabled(true); }, {100, 100}};

    EXPECT_FALSE(isEnabled);
}

TEST(Environment, AColorSchemeHoldsInside) {
    const graphics::Color ink{"ink", graphics::rgb(0x111111), graphics::rgb(0xEEEEEE)};
    Screen screen{[&] {
                      return HStack{.content = {ColorView{ink}, ColorView{ink} | colorScheme(graphics::ColorScheme::dark)}};
                  },
                  {100, 100}};

    const auto& commands = screen.host().displayList().commands;

    ASSERT_EQ(commands.size(), 2u);
    EXPECT_EQ(commands[0].color, ink.light);
    EXPECT_EQ(commands[1].color, ink.dark);
}

} // namespace
} // namespace proupsells::swiftui::tests

// Who keeps being who from one build to the next.
#include "Tests/SwiftUI/Screen.hpp"

namespace proupsells::swiftui::tests {
namespace {

using testing::ElementsAre;

// Counts how often it has come on screen, in a state of its own.
int nextBirth = 0;
struct Person {
    std::string name;

    View body(BuildContext& context) const {
        const Binding<int> birth = context.state<int>(nextBirth);
        if (birth.get() == nextBirth) ++nextBirth;
        return Text{name + " " + std::to_string(birth.get())};
    }
    bool operator==(const Person&) const = default;
};

class Reconciliation : public testing::Test {
protected:
    void SetUp() override { nextBirth = 0; }
    void rebuild(Screen& screen) {
        screen.host().setNeedsUpdate();
        screen.settle();
    }
};

TEST_F(Reconciliation, AnAbsentBranchKeepsItsSlot) {
    bool isShown = false;
    Screen screen{[&] { return VStack{.content = {isShown ? View{Person{"extra"}} : View{}, Person{"stays"}}}; }, {100, 100}};
    ASSERT_THAT(screen.texts(), ElementsAre("stays 0"));

    isShown = true;
    rebuild(screen);
    EXPECT_THAT(screen.texts(), ElementsAre("extra 1", "stays 0"));

    isShown = false;
    rebuild(screen);
    EXPECT_THAT(screen.texts(), ElementsAre("stays 0"));
}

TEST_F(Reconciliation, AViewThatComesBackIsAnotherOne) {
    bool isShown = true;
    Screen screen{[&] { return isShown ? View{Person{"p"}} : View{}; }, {100, 100}};

    isShown = false;
    rebuild(screen);
    isShown = true;
    rebuild(screen);

    EXPECT_THAT(screen.texts(), ElementsAre("p 1"));
}

TEST_F(Reconciliation, MovedElementsKeepTheirState) {
    std::vector<std::string> names{"a", "b", "c"};
    Screen screen{[&] {
                      return VStack{
                          .content = {ForEach(
                              names, [](const auto& name) { return name; }, [](const auto& name) { return Person{name}; })}};
                  },
                  {100, 100}};

    names = {"c", "d", "a"};
    rebuild(screen);

    EXPECT_THAT(screen.texts(), ElementsAre("c 2", "d 3", "a 0"));
}

TEST_F(Reconciliation, EqualKeysAreToldApartByTheirOrder) {
    std::vector<std::string> names{"a", "a", "b"};
    Screen screen{[&] {
                      return VStack{
                          .content = {ForEach(
                              names, [](const auto& name) { return name; }, [](const auto& name) { return Person{name}; })}};
                  },
                  {100, 100}};

    names = {"b", "a", "a", "a"};
    rebuild(screen);

    EXPECT_THAT(screen.texts(), ElementsAre("b 2", "a 0", "a 1", "a 3"));
}

TEST_F(Reconciliation, AnotherIdIsAnotherView) {
    std::string identity = "one";
    Screen screen{[&] { return Person{"p"} | id(identity) | padding(); }, {100, 100}};
    ASSERT_THAT(screen.texts(), ElementsAre("p 0"));

    rebuild(screen);
    EXPECT_THAT(screen.texts(), ElementsAre("p 0"));
    identity = "two";
    rebuild(screen);
    EXPECT_THAT(screen.texts(), ElementsAre("p 1"));
}

TEST_F(Reconciliation, AnotherTypeInTheSlotIsAnotherView) {
    bool isPadded = false;
    Screen screen{[&] { return isPadded ? Person{"p"} | padding() : View{Person{"p"}}; }, {100, 100}};

    isPadded = true;
    rebuild(screen);

    EXPECT_THAT(screen.texts(), ElementsAre("p 1"));
}

TEST_F(Reconciliation, ALoopOfTenThousandIsReversed) {
    std::vector<int> numbers(10'000);
    for (int i = 0; i < int(numbers.size()); ++i) numbers[std::size_t(i)] = i;
    Screen screen{[&] {
                      return VStack{.spacing = 0,
                                    .content = {ForEach(
                                        numbers, [](int n) { return n; }, [](int n) { return Person{std::to_string(n)}; })}};
                  },
                  {100, 100}};

    std::reverse(numbers.begin(), numbers.end());
    rebuild(screen);

    const auto texts = screen.texts();
    ASSERT_EQ(texts.size(), 10'000u);
    EXPECT_EQ(texts.front(), "9999 9999");
    EXPECT_EQ(texts.back(), "0 0");
}

int bodyCount = 0;
struct Counting {
    std::string words;
    Action action;

    View body(BuildContext&) const {
        ++bodyCount;
        return Text{words};
    }
    bool operator==(const Counting&) const = default;
};

TEST(Skipping, AnEqualViewIsNotBuiltAgain) {
    std::string words = "same";
    Screen screen{[&] { return Counting{words, [] {}}; }, {100, 100}};
    bodyCount = 0;

    screen.host().setNeedsUpdate();
    screen.settle();
    EXPECT_EQ(bodyCount, 0);

    words = "other";
    screen.host().setNeedsUpdate();
    screen.settle();
    EXPECT_EQ(bodyCount, 1);
    EXPECT_THAT(screen.texts(), ElementsAre("other"));
}

TEST(Skipping, AnotherEnvironmentBuildsEverythingAgain) {
    Screen screen{[&] { return Counting{"text", {}}; }, {100, 100}};
    bodyCount = 0;
    EnvironmentValues dark = screen.host().environment();
    dark.colorScheme = graphics::ColorScheme::dark;

    screen.host().setEnvironment(dark);
    screen.settle();

    EXPECT_EQ(bodyCount, 1);
}

struct Acting {
    Action action;

    View body(BuildContext&) const {
        return Text{"x"} | onAppear([this] { action(); });
    }
    bool operator==(const Acting&) const = default;
};

TEST(Skipping, TheNewestActionIsAdoptedAllTheSame) {
    int called = 0;
    int current = 1;
    Screen screen{[&] { return Acting{[&called, current] { called = current; }}; }, {100, 100}};
    EXPECT_EQ(called, 1);

    current = 2;
    screen.host().setVisible(false);
    screen.host().setNeedsUpdate();
    screen.settle();
    screen.host().setVisible(true);
    screen.settle();

    EXPECT_EQ(called, 2);
}

TEST(ViewDeathTest, AViewIsGoodForOneBuildOnly) {
    Screen screen{[] { return Text{"x"}; }, {100, 100}};
    const View old = Text{"old"};
    screen.host().setNeedsUpdate();
    screen.settle();

    EXPECT_DEATH(old.element(), "A View was used after the build in which it was made");
}

} // namespace
} // namespace proupsells::swiftui::tests

// Bindings that lead to another place than before, also where bodies are not evaluated again.
#include "Tests/SwiftUI/QuickTap.hpp"

namespace proupsells::swiftui::tests {
namespace {

using proupsells::tests::box;
using proupsells::tests::TouchScreen;

// On or off, like the simplest of switches.
struct Switch {
    Binding<bool> isOn;
    int* builds = nullptr;

    View body(BuildContext&) const {
        if (builds) ++*builds;
        return buttonInTheMiddle([isOn = isOn] { isOn.set(!isOn.get()); });
    }
    bool operator==(const Switch&) const = default;
};

struct Row {
    Binding<bool> isOn;
    int* builds = nullptr;

    View body(BuildContext&) const { return Switch{isOn, builds}; }
    bool operator==(const Row&) const = default;
};

class RepointedBinding : public testing::Test {
protected:
    Binding<bool> binding() {
        return Binding<bool>([place = place] { return *place; }, [place = place](const bool& value) { *place = value; });
    }

    bool left = false, right = false;
    bool* place = &left;
};

TEST_F(RepointedBinding, WritesToTheNewPlaceThoughNoBodyIsEvaluatedAgain) {
    int builds = 0;
    TouchScreen screen{[&] { return Row{binding(), &builds}; }};
    place = &right;
    screen.rebuild();
    EXPECT_EQ(builds, 1);

    quickTap(screen);

    EXPECT_FALSE(left);
    EXPECT_TRUE(right);
}

TEST_F(RepointedBinding, TakesWhatIsDerivedFromItAlong) {
    struct Negated {
        Binding<bool> isOff;
        View body(BuildContext&) const {
            const auto negated = [](const bool& value) { return !value; };
            return Switch{isOff.map<bool>(negated, negated)};
        }
        bool operator==(const Negated&) const = default;
    };
    TouchScreen screen{[&] { return Negated{binding()}; }};
    place = &right;
    screen.rebuild();

    quickTap(screen);

    EXPECT_FALSE(left);
    EXPECT_TRUE(right);
}

TEST_F(RepointedBinding, BetweenTwoStatesWritesToTheNewOne) {
    struct TwoStates {
        std::vector<Binding<bool>>* states;
        bool* isSecond;
        View body(BuildContext& context) const {
            *states = {context.state(false), context.state(false)};
            return Row{(*states)[*isSecond ? 1 : 0]};
        }
    };
    std::vector<Binding<bool>> states;
    bool isSecond = false;
    TouchScreen screen{[&] { return TwoStates{&states, &isSecond}; }};
    isSecond = true;
    screen.rebuild();

    quickTap(screen);

    EXPECT_FALSE(states[0].get());
    EXPECT_TRUE(states[1].get());
}

TEST(RepointedSelection, OfPagesIsWrittenToTheNewPlace) {
    struct Pages {
        Binding<int> selection;
        View body(BuildContext&) const {
            return TabView{.selection = selection, .content = {box(300, 400, "first"), box(300, 400, "second")}};
        }
        bool operator==(const Pages&) const = default;
    };
    int left = 0, right = 0;
    int* place = &left;
    TouchScreen screen{
        [&] { return Pages{Binding<int>([place] { return *place; }, [place](const int& value) { *place = value; })}; }};
    place = &right;
    screen.rebuild();

    screen.drag({280, 200}, {20, 200}, 0.2);
    screen.wait(2);

    EXPECT_EQ(left, 0);
    EXPECT_EQ(right, 1);
}

} // namespace
} // namespace proupsells::swiftui::tests

// What views do is always the newest that they were given, also where their bodies are not evaluated again.
#include "Platform/Accessibility/Search.hpp"
#include "Tests/SwiftUI/QuickTap.hpp"

namespace proupsells::swiftui::tests {
namespace {

using geometry::Point;
using proupsells::tests::box;
using proupsells::tests::TouchScreen;

// A view with an action, written in the most natural way.
struct Innermost {
    Action action;
    int* builds = nullptr;

    View body(BuildContext&) const {
        if (builds) ++*builds;
        return buttonInTheMiddle(action);
    }
    bool operator==(const Innermost&) const = default;
};

struct Between {
    Action action;
    int* builds = nullptr;

    View body(BuildContext&) const { return Innermost{action, builds}; }
    bool operator==(const Between&) const = default;
};

struct Outermost {
    Action action;
    int* builds = nullptr;

    View body(BuildContext&) const { return Between{action, builds}; }
    bool operator==(const Outermost&) const = default;
};

// Counts which of three closures a tap has reached. The closures differ, and so does what they hold.
struct Closures {
    int first = 0, second = 0, third = 0;
    int current = 1;

    Action newest() {
        if (current == 1) return [this] { ++first; };
        if (current == 2) return [this, step = std::make_shared<int>(1)] { second += *step; };
        return [count = &third] { ++*count; };
    }
};

class NewestAction : public testing::Test {
protected:
    // Shows `view(newest action)`, and then again with each of the other closures.
    template <class ViewOf>
    void expectTheNewestToRun(const ViewOf& view) {
        TouchScreen screen{[&] { return View(view(closures.newest())); }};
        quickTap(screen);
        EXPECT_EQ(closures.first, 1);

        closures.current = 2;
        screen.rebuild();
        quickTap(screen);
        EXPECT_EQ(closures.first, 1);
        EXPECT_EQ(closures.second, 1);

        closures.current = 3;
        screen.rebuild();
        quickTap(screen);
        EXPECT_EQ(closures.second, 1);
        EXPECT_EQ(closures.third, 1);
    }

    Closures closures;
};

TEST_F(NewestAction, RunsThreeViewsDeepThoughNoBodyIsEvaluatedAgain) {
    int builds = 0;
    expectTheNewestToRun([&](Action action) { return Outermost{std::move(action), &builds}; });

    TouchScreen screen{[&] { return Outermost{closures.newest(), &builds}; }};
    builds = 0;
    screen.rebuild();
    EXPECT_EQ(builds, 0);
}

TEST_F(NewestAction, RunsFromAClosureThatHoldsACopy) {
    struct Wrapping {
        Action action;
        View body(BuildContext&) const {
            return buttonInTheMiddle([action = action] { action(); });
        }
        bool operator==(const Wrapping&) const = default;
    };

    expectTheNewestToRun([](Action action) { return Wrapping{std::move(action)}; });
}

TEST_F(NewestAction, RunsFromAClosureThatHoldsTheView) {
    struct Referring {
        Action action;
        View body(BuildContext&) const {
            return buttonInTheMiddle([this] { action(); });
        }
        bool operator==(const Referring&) const = default;
    };
    struct Copying {
        Action action;
        View body(BuildContext&) const {
            return buttonInTheMiddle([self = *this] { self.action(); });
        }
        bool operator==(const Copying&) const = default;
    };

    expectTheNewestToRun([](Action action) { return Referring{std::move(action)}; });
    closures = {};
    expectTheNewestToRun([](Action action) { return Copying{std::move(action)}; });
}

struct Entry {
    std::string title;
    Action action;
    bool operator==(const Entry&) const = default;
};
struct Menu {
    std::vector<Entry> entries;
    View body(BuildContext&) const {
        return VStack{.content = ForEach(
                          entries, [](const Entry& entry) { return Key(entry.title); },
                          [](const Entry& entry) { return buttonInTheMiddle(entry.action); })};
    }
    bool operator==(const Menu&) const = default;
};

TEST_F(NewestAction, RunsFromAListOfThem) {
    expectTheNewestToRun([](const Action& action) { return Menu{{{"only", action}}}; });
}

TEST_F(NewestAction, RunsInsideAGeometryReader) {
    struct Reading {
        Action action;
        View body(BuildContext&) const {
            return GeometryReader{[action = action](const GeometryProxy& proxy) {
                return buttonInTheMiddle(action) | frame(proxy.size.width, proxy.size.height);
            }};
        }
        bool operator==(const Reading&) const = default;
    };

    expectTheNewestToRun([](Action action) { return Reading{std::move(action)}; });
}

TEST_F(NewestAction, RunsFromAGesture) {
    struct Tappable {
        Action action;
        View body(BuildContext&) const { return box(100, 50, "box") | onTapGesture(action); }
        bool operator==(const Tappable&) const = default;
    };

    expectTheNewestToRun([](Action action) { return Tappable{std::move(action)}; });
}

TEST_F(NewestAction, RunsAfterOtherThingsOfTheViewHaveChanged) {
    struct Titled {
        std::string title;
        Action action;
        View body(BuildContext&) const { return Text{title} | overlay(Innermost{action}); }
        bool operator==(const Titled&) const = default;
    };

    int build = 0;
    expectTheNewestToRun([&](Action action) { return Titled{build++ % 2 == 0 ? "even" : "odd", std::move(action)}; });
}

TEST(Actions, OfTwoViewsThatShareOneGoTheirOwnWays) {
    struct Pair {
        Action shared;
        View body(BuildContext& context) const {
            const auto isApart = context.state(false);
            return VStack{.spacing = 0,
                          .content = {Innermost{isApart.get() ? Action([isApart] { isApart.set(false); }) : shared},
                                      Innermost{shared},
                                      Button{.action = [isApart] { isApart.set(true); }, .label = box(100, 50, "part")}}};
        }
        bool operator==(const Pair&) const = default;
    };
    int shared = 0;
    TouchScreen screen{[&] { return Pair{[&] { ++shared; }}; }, {100, 150}};
    quickTap(screen, {50, 25});
    quickTap(screen, {50, 75});
    EXPECT_EQ(shared, 2);

    quickTap(screen, {50, 125}); // the first has an action of its own now
    quickTap(screen, {50, 75});
    EXPECT_EQ(shared, 3);
    quickTap(screen, {50, 25}); // which gives it back
    EXPECT_EQ(shared, 3);
    quickTap(screen, {50, 25});
    EXPECT_EQ(shared, 4);
}

TEST(Actions, ThatComeLaterAreFoundAndThoseTakenAwayAreNot) {
    int taps = 0;
    bool isThere = false;
    TouchScreen screen{[&] { return Outermost{isThere ? Action([&] { ++taps; }) : Action()}; }};
    quickTap(screen);
    EXPECT_EQ(taps, 0);

    isThere = true;
    screen.rebuild();
    quickTap(screen);
    EXPECT_EQ(taps, 1);

    isThere = false;
    screen.rebuild();
    quickTap(screen);
    EXPECT_EQ(taps, 1);
}

TEST(Actions, StayAliveWhileTheyAreReplaced) {
    ViewHost* host = nullptr;
    int taps = 0;
    TouchScreen screen{[&] {
        return Outermost{[&, bytes = std::string(100, 'x')] {
            host->setNeedsUpdate();
            host->update();
            taps += int(bytes.size());
        }};
    }};
    host = &screen.host();

    quickTap(screen);
    quickTap(screen);

    EXPECT_EQ(taps, 200);
}

TEST(Actions, LetGoOfWhatOlderOnesHeld) {
    auto held = std::make_shared<int>(1);
    TouchScreen screen{[&] { return Outermost{[held] { ++*held; }}; }};
    const std::weak_ptr<int> before = held;

    held = std::make_shared<int>(10);
    screen.rebuild();

    EXPECT_TRUE(before.expired());
    quickTap(screen);
    EXPECT_EQ(*held, 11);
}

TEST(Actions, KeptOutsideReachTheNewestForAsLongAsTheViewIsThere) {
    struct Lender {
        Action action;
        std::optional<Action>* kept;
        View body(BuildContext&) const {
            *kept = action;
            return box(10, 10, "lender");
        }
        bool operator==(const Lender&) const = default;
    };
    std::optional<Action> kept;
    int sum = 0, step = 1;
    bool isThere = true;
    TouchScreen screen{[&] { return isThere ? Lender{[&sum, step] { sum += step; }, &kept} : View{}; }};
    const Action earliest = *kept;

    step = 10;
    screen.rebuild();
    earliest();
    EXPECT_EQ(sum, 10);

    isThere = false;
    screen.rebuild();
    earliest();
    EXPECT_EQ(sum, 20);
}

TEST(Actions, HandedBackToTheirOwnViewGoOn) {
    struct Lender {
        Action action;
        std::optional<Action>* kept;
        View body(BuildContext&) const {
            *kept = action;
            return buttonInTheMiddle(action);
        }
        bool operator==(const Lender&) const = default;
    };
    std::optional<Action> kept;
    int taps = 0;
    TouchScreen screen{[&] { return Lender{kept ? *kept : Action([&] { ++taps; }), &kept}; }};

    screen.rebuild();
    screen.rebuild();
    quickTap(screen);

    EXPECT_EQ(taps, 1);
}

TEST(Actions, OutsideTheTreeArePlainValues) {
    int first = 0, second = 0;
    Action action = [&] { ++first; };
    const Action copy = action;

    action = [before = action, &second] {
        ++second;
        before();
    };
    action();
    EXPECT_EQ(first, 1);
    EXPECT_EQ(second, 1);

    copy();
    EXPECT_EQ(first, 2);
    EXPECT_EQ(second, 1);
}

TEST(Callback, WithoutAFunctionDoesNothing) {
    const Action none{};
    const Action copy = none;

    none();
    copy();

    EXPECT_FALSE(none);
    EXPECT_FALSE(copy);
}

TEST(CallbackDeathTest, WithoutAFunctionStopsTheProgramWhereAResultIsExpected) {
    const Callback<int()> none{};

    EXPECT_DEATH(none(), "An empty callback was asked for a result");
}

// What they give back may change the picture, so views that hold one are built again.
static_assert(std::equality_comparable<Callback<void(int)>>);
static_assert(!std::equality_comparable<Callback<View()>>);

} // namespace
} // namespace proupsells::swiftui::tests

#include "Tests/Hosting/HostingScreen.hpp"

#include "Platform/SwiftUI/Modifiers/TapGestureModifier.hpp"
#include "Platform/SwiftUI/Views/Button.hpp"
#include "Platform/SwiftUI/Views/ScrollView.hpp"

namespace proupsells::hosting {
namespace {

using geometry::Rect;
using testing::ElementsAre;
using testing::IsEmpty;
using namespace swiftui;

struct Counter : combine::ObservableObject {
    combine::Published<int> count{*this, 0};
};

struct CountView {
    std::shared_ptr<Counter> counter;
    std::shared_ptr<int> builds = std::make_shared<int>(0);

    View body(BuildContext& context) const {
        context.observe(counter);
        ++*builds;
        return Text{std::to_string(counter->count)} | accessibilityIdentifier("count");
    }
    bool operator==(const CountView&) const = default;
};

TEST_F(HostingTest, ShowsADeclarativeViewInTheMiddleOfTheSafeArea) {
    window->setSize({400, 800}, {20, 0, 40, 0});

    show([]() -> View { return Text{"ab"} | font({.size = 16}) | accessibilityIdentifier("text"); });

    EXPECT_EQ(window->semanticTree().type, "UIHostingView");
    EXPECT_EQ(find("text").frame, (Rect{{192, 380}, {16, 20}}));
}

TEST_F(HostingTest, ChangesOfOneTurnBecomeOneBuildAndOnePicture) {
    const auto counter = std::make_shared<Counter>();
    const CountView view{counter};
    const auto builds = view.builds;
    show(view);
    bed.settle();
    painted();
    *builds = 0;
    int pictures = 0;
    window->setNeedsDisplayHandler([&] {
        ++pictures;
        painted();
    });

    counter->count = 1;
    counter->count = 2;
    EXPECT_EQ(*builds, 0);
    bed.settle();
    bed.runFor(1);

    EXPECT_EQ(*builds, 1);
    EXPECT_EQ(pictures, 1);
    EXPECT_THAT(texts(), ElementsAre("2"));
}

TEST_F(HostingTest, TheSemanticTreeIsUpToDateBeforeTheTurnEnds) {
    const auto counter = std::make_shared<Counter>();
    show(CountView{counter});

    counter->count = 7;

    EXPECT_THAT(texts(), ElementsAre("7"));
}

struct EnvironmentProbe {
    std::shared_ptr<EnvironmentValues> seen;

    View body(BuildContext& context) const {
        *seen = context.environment();
        return Text{"probe"};
    }
    bool operator==(const EnvironmentProbe&) const = default;
};

TEST_F(HostingTest, TraitsReachTheEnvironment) {
    const auto seen = std::make_shared<EnvironmentValues>();
    window->setTraits({.userInterfaceStyle = graphics::ColorScheme::dark, .displayScale = 3});
    show(EnvironmentProbe{seen});
    EXPECT_EQ(seen->colorScheme, graphics::ColorScheme::dark);
    EXPECT_EQ(seen->displayScale, 3);
    EXPECT_EQ(seen->horizontalSizeClass, SizeClass::compact);

    window->setTraits({.userInterfaceStyle = graphics::ColorScheme::light,
                       .layoutDirection = geometry::LayoutDirection::rightToLeft,
                       .preferredContentSizeCategory = graphics::ContentSizeCategory::extraLarge,
                       .reduceMotion = true});
    window->setSize({700, 800}, {0, 0, 34, 0});
    bed.settle();

    EXPECT_EQ(seen->colorScheme, graphics::ColorScheme::light);
    EXPECT_EQ(seen->layoutDirection, geometry::LayoutDirection::rightToLeft);
    EXPECT_EQ(seen->contentSize, graphics::ContentSizeCategory::extraLarge);
    EXPECT_TRUE(seen->reduceMotion);
    EXPECT_EQ(seen->horizontalSizeClass, SizeClass::regular);
    EXPECT_EQ(seen->safeAreaInsets, (geometry::PhysicalInsets{0, 0, 34, 0}));
}

TEST_F(HostingTest, TheLocaleReachesTheEnvironment) {
    foundation::Locale::setCurrent(foundation::Locale("de_AT"));
    const auto seen = std::make_shared<EnvironmentValues>();

    show(EnvironmentProbe{seen});

    EXPECT_EQ(seen->localeIdentifier, "de_AT");
}

TEST_F(HostingTest, TheFirstBuildSeesTheFinalEnvironment) {
    struct Collector {
        std::vector<graphics::ColorScheme>* seen;
        View body(BuildContext& context) const {
            seen->push_back(context.environment().colorScheme);
            return Text{"probe"};
        }
        bool operator==(const Collector&) const = default;
    };
    window->setTraits({.userInterfaceStyle = graphics::ColorScheme::dark});
    std::vector<graphics::ColorScheme> seen;

    show(Collector{&seen});
    bed.settle();

    EXPECT_THAT(seen, ElementsAre(graphics::ColorScheme::dark));
}

TEST_F(HostingTest, TouchesReachTheTree) {
    int taps = 0;
    struct Tapped {
        int* taps;
        View body(BuildContext&) const {
            return Button{.action = [taps = taps] { ++*taps; }, .label = Text{"tap"} | frame({.width = 100, .height = 50})};
        }
        bool operator==(const Tapped&) const = default;
    };
    const auto controller = show(Tapped{&taps});

    tap({200, 400});
    tap({20, 20});

    EXPECT_EQ(taps, 1);
}

TEST_F(HostingTest, TouchesFollowTheHostingViewsPlace) {
    int taps = 0;
    struct Tapped {
        int* taps;
        View body(BuildContext&) const {
            return Button{.action = [taps = taps] { ++*taps; }, .label = Text{"tap"} | frame({.width = 20, .height = 20})};
        }
        bool operator==(const Tapped&) const = default;
    };
    const auto root = std::make_shared<uikit::UIViewController>();
    const auto controller = UIHostingController::create(Tapped{&taps});
    window->setRootViewController(root);
    root->addChild(controller);
    controller->view()->setFrame({{100, 200}, {20, 20}});
    root->view()->addSubview(controller->view());
    bed.settle();

    tap({110, 210});

    EXPECT_EQ(taps, 1);
    const accessibility::SemanticNode screen = window->semanticTree();
    EXPECT_EQ(accessibility::controls(screen).size(), 1u);
}

// --- Appearing ---

struct Announced {
    std::vector<std::string>* calls;
    View body(BuildContext&) const {
        return Text{"x"} | onAppear([calls = calls] { calls->push_back("appear"); }) |
               onDisappear([calls = calls] { calls->push_back("disappear"); });
    }
    bool operator==(const Announced&) const = default;
};

TEST_F(HostingTest, TheTreeAppearsAndDisappearsWithItsController) {
    const auto controller = UIHostingController::create(Announced{&calls});
    controller->view();
    bed.settle();
    EXPECT_THAT(calls, IsEmpty());

    window->setRootViewController(controller);
    bed.settle();
    EXPECT_THAT(calls, ElementsAre("appear"));

    window->setRootViewController(nullptr);
    EXPECT_THAT(calls, ElementsAre("appear", "disappear"));
}

TEST_F(HostingTest, ASheetOverTheTreeLeavesItOnScreenAndAFullScreenOneDoesNot) {
    const auto controller = show(Announced{&calls});
    bed.settle();
    calls.clear();

    const auto sheet = std::make_shared<uikit::UIViewController>();
    controller->present(sheet, false);
    bed.settle();
    EXPECT_THAT(calls, IsEmpty());
    sheet->dismiss(false);

    const auto full = std::make_shared<uikit::UIViewController>();
    full->setModalPresentationStyle(uikit::UIModalPresentationStyle::fullScreen);
    controller->present(full, false);
    EXPECT_THAT(calls, ElementsAre("disappear"));
    full->dismiss(false);
    bed.settle();
    EXPECT_THAT(calls, ElementsAre("disappear", "appear"));
}

TEST_F(HostingTest, APresentedTreeIsBuiltAndAppearsInThePresentingCall) {
    const auto root = std::make_shared<uikit::UIViewController>();
    window->setRootViewController(root);
    const auto presented = UIHostingController::create(Announced{&calls});

    root->present(presented, true);

    EXPECT_THAT(calls, ElementsAre("appear"));
    EXPECT_THAT(texts(), ElementsAre("x"));
    bed.runFor(1);
    presented->dismiss(true);
    bed.runFor(1);
    EXPECT_THAT(calls, ElementsAre("appear", "disappear"));
}

TEST_F(HostingTest, NothingOfTheTreeOutlivesItsController) {
    const auto counter = std::make_shared<Counter>();
    auto controller = UIHostingController::create(CountView{counter});
    const std::weak_ptr<UIHostingController> gone = controller;
    const std::weak_ptr<ViewHost> host = controller->host().weak_from_this();
    window->setRootViewController(controller);
    bed.settle();

    window->setRootViewController(nullptr);
    controller.reset();
    counter->count = 1;
    bed.settle();

    EXPECT_TRUE(gone.expired());
    EXPECT_TRUE(host.expired());
}

TEST_F(HostingTest, ANewRootViewReplacesTheOldOne) {
    const auto controller = show(Text{"old"});

    controller->setRootView(Text{"new"});

    EXPECT_THAT(texts(), ElementsAre("new"));
}

TEST_F(HostingTest, TheHostingViewIsNaturallyAsLargeAsItsContent) {
    const auto controller = UIHostingController::create([]() -> View { return Text{"abcd efgh"} | font({.size = 16}); });

    EXPECT_EQ(controller->view()->intrinsicContentSize(), (geometry::Size{72, 20}));
    EXPECT_EQ(controller->view()->sizeThatFits({40, std::nullopt}), (geometry::Size{32, 40}));
}

TEST_F(HostingTest, OnlyAHostingViewUnderConstraintsTellsOfNewNaturalSizes) {
    class Parent : public uikit::UIView {
    public:
        void subviewDidInvalidateIntrinsicContentSize(uikit::UIView&) override { ++invalidations; }
        int invalidations = 0;
    };
    const auto counter = std::make_shared<Counter>();
    const auto view = UIHostingView::create([counter]() -> View { return CountView{counter}; });
    const auto parent = std::make_shared<Parent>();
    parent->addSubview(view);
    view->setFrame({{0, 0}, {100, 100}});
    view->layoutIfNeeded();
    counter->count = 1;
    bed.settle();
    EXPECT_EQ(parent->invalidations, 0);

    view->setTranslatesAutoresizingMaskIntoConstraints(false);
    counter->count = 22;
    bed.settle();

    EXPECT_EQ(parent->invalidations, 1);
}

TEST_F(HostingTest, AWheelScrollsTheTree) {
    struct Long {
        View body(BuildContext&) const {
            return ScrollView{
                .content = {Text{"top"} | frame({.width = 100, .height = 2000}) | accessibilityIdentifier("content")}};
        }
        bool operator==(const Long&) const = default;
    };
    show(Long{});
    EXPECT_EQ(find("content").frame.minY(), 0);

    window->scroll({200, 400}, {0, 50});

    EXPECT_EQ(std::abs(find("content").frame.minY()), 50);
}

struct Fading {
    std::shared_ptr<Counter> counter;
    View body(BuildContext& context) const {
        context.observe(counter);
        return Rectangle() | opacity(counter->count == 0 ? 1.0 : 0.0) | accessibilityIdentifier("faded");
    }
    bool operator==(const Fading&) const = default;
};

TEST_F(HostingTest, AnimatesWhileTheTreeMoves) {
    const auto counter = std::make_shared<Counter>();
    show(Fading{counter});
    bed.settle();
    painted();
    EXPECT_FALSE(window->isAnimating());

    withAnimation(motion::Animation{motion::TimingCurve::linear(), 1, 0}, [&] { counter->count = 1; });
    bed.settle();
    painted();
    EXPECT_TRUE(window->isAnimating());
    bed.runFor(0.25);
    EXPECT_NEAR(find("faded").opacity, 0.75, 1e-9);
    bed.runFor(0.75);
    EXPECT_FALSE(window->isAnimating());
}

} // namespace
} // namespace proupsells::hosting

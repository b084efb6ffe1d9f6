#include "Tests/Hosting/HostingScreen.hpp"

#include "Platform/Hosting/UIViewRepresentable.hpp"
#include "Platform/SwiftUI/Views/ScrollView.hpp"
#include "Platform/UIKit/Controls/UIButton.hpp"
#include "Platform/UIKit/Controls/UIPageControl.hpp"

namespace proupsells::hosting {
namespace {

using geometry::Rect;
using geometry::Size;
using testing::ElementsAre;
using testing::IsEmpty;
using namespace swiftui;

// The page indicator with a two-way connection to its page.
struct Dots {
    int numberOfPages = 0;
    Binding<int> currentPage = Binding<int>::constant(0);
    Calls* calls = nullptr;

    using UIViewType = uikit::UIPageControl;
    struct Coordinator {
        Binding<int> currentPage;
        void pageChanged(uikit::UIControl& sender) { currentPage.set(static_cast<uikit::UIPageControl&>(sender).currentPage()); }
    };

    std::shared_ptr<Coordinator> makeCoordinator() const { return std::make_shared<Coordinator>(Coordinator{currentPage}); }
    std::shared_ptr<UIViewType> makeUIView(const UIViewRepresentableContext<Dots>& context) const {
        if (calls) calls->push_back("make");
        auto control = std::make_shared<uikit::UIPageControl>();
        control->setNumberOfPages(numberOfPages);
        control->accessibilityIdentifier = "dots";
        control->addTarget(std::weak_ptr(context.coordinator), &Coordinator::pageChanged, uikit::UIControl::Event::valueChanged);
        return control;
    }
    void updateUIView(UIViewType& control, const UIViewRepresentableContext<Dots>&) const {
        if (calls) calls->push_back("update");
        control.setNumberOfPages(numberOfPages);
        control.setCurrentPage(currentPage.get());
    }
    Element* makeElement() && { return newRepresentable(std::move(*this)); }
};

struct Settings : combine::ObservableObject {
    combine::Published<int> pages{*this, 4};
    combine::Published<int> page{*this, 0};
    combine::Published<bool> isShown{*this, true};
    combine::Published<bool> isDark{*this, false};
};

struct DotsScreen {
    std::shared_ptr<Settings> settings;
    Calls* calls = nullptr;

    View body(BuildContext& context) const {
        context.observe(settings);
        const Binding<int> page([settings = settings] { return settings->page.get(); },
                                [settings = settings](const int& value) { settings->page = value; });
        return VStack{.spacing = 0,
                      .content = {Text{"page " + std::to_string(settings->page)} | frame({.width = 100, .height = 100}),
                                  settings->isShown.get() ? View(Dots{settings->pages, page, calls} |
                                                                 colorScheme(settings->isDark.get() ? graphics::ColorScheme::dark
                                                                                                    : graphics::ColorScheme::light))
                                                          : View{},
                                  Rectangle() | frame({.width = 10, .height = 674})}};
    }
    bool operator==(const DotsScreen&) const = default;
};

class RepresentableTest : public HostingTest {
protected:
    RepresentableTest() : controller(show(DotsScreen{settings, &calls})) { bed.settle(); }

    std::shared_ptr<Settings> settings = std::make_shared<Settings>();
    std::shared_ptr<UIHostingController> controller;
};

TEST_F(RepresentableTest, TheViewIsMadeOnceAndUpdatedWithEveryNewerValue) {
    EXPECT_THAT(calls, ElementsAre("make", "update"));

    settings->page = 2;
    bed.settle();

    EXPECT_THAT(calls, ElementsAre("make", "update", "update"));
    EXPECT_EQ(find("dots").value, "page 3 of 4");
}

TEST_F(RepresentableTest, ItTakesItsNaturalSizeInTheLayout) {
    EXPECT_EQ(find("dots").frame, (Rect{{180, 100}, {40, 26}}));

    settings->pages = 6;
    bed.settle();

    EXPECT_EQ(find("dots").frame, (Rect{{170, 100}, {60, 26}}));
}

TEST_F(RepresentableTest, AFrameAroundItSetsItsSize) {
    struct Framed {
        View body(BuildContext&) const { return Dots{4} | frame({.width = 40, .height = 50}) | accessibilityIdentifier("frame"); }
        bool operator==(const Framed&) const = default;
    };

    show(Framed{});

    EXPECT_EQ(find("frame").frame.size, (Size{40, 50}));
    EXPECT_EQ(find("dots").frame.center(), (geometry::Point{200, 400}));
}

TEST_F(RepresentableTest, ATouchOnItWritesBackThroughTheCoordinator) {
    tap({205, 113}); // the third dot

    EXPECT_EQ(settings->page.get(), 2);
    EXPECT_THAT(texts(), ElementsAre("page 2"));
    EXPECT_EQ(find("dots").value, "page 3 of 4");
}

TEST_F(RepresentableTest, ItsCoordinatorWritesToTheNewestPlace) {
    struct Repointed {
        std::shared_ptr<Settings> settings;
        std::shared_ptr<int> other;
        View body(BuildContext& context) const {
            if (context.observe(settings)->isDark.get())
                return Dots{4,
                            Binding<int>([other = other] { return *other; }, [other = other](const int& page) { *other = page; })};
            return Dots{4, Binding<int>([settings = settings] { return settings->page.get(); },
                                        [settings = settings](const int& page) { settings->page = page; })};
        }
    };
    const auto other = std::make_shared<int>(0);
    show(Repointed{settings, other});
    bed.settle();
    settings->isDark = true;
    bed.settle();

    find("dots").adjust(1);

    EXPECT_EQ(settings->page.get(), 0);
    EXPECT_EQ(*other, 1);
}

TEST_F(RepresentableTest, ItIsPaintedWhereItStandsInTheEnvironmentOfItsPlace) {
    settings->page = 1;
    settings->isDark = true;
    bed.settle();
    std::vector<Rect> dots;
    std::vector<graphics::RGBA> colors;
    for (const graphics::Command& command : painted().commands) {
        if (command.kind != graphics::CommandKind::fillEllipse) continue;
        dots.push_back(command.frame);
        colors.push_back(command.color);
    }

    ASSERT_EQ(dots.size(), 4u);
    EXPECT_EQ(dots[0], (Rect{{181.5, 109.5}, {7, 7}}));
    EXPECT_EQ(colors[0], graphics::rgb(0xFFFFFF));
}

TEST_F(RepresentableTest, ItIsDescribedOnceInsideItsValue) {
    const accessibility::SemanticNode tree = window->semanticTree();

    const auto values = accessibility::findAllByType(tree, "Dots");
    ASSERT_EQ(values.size(), 1u);
    ASSERT_EQ(values[0]->children.size(), 1u);
    EXPECT_EQ(values[0]->children[0].type, "UIPageControl");
    EXPECT_EQ(accessibility::findAllByType(tree, "UIPageControl").size(), 1u);
    EXPECT_THAT(accessibility::findAllByType(tree, "RepresentableStage"), IsEmpty());
}

TEST_F(RepresentableTest, AChangeOfItsOwnAsksForAPicture) {
    painted();
    bed.settle();
    int pictures = 0;
    window->setNeedsDisplayHandler([&] {
        ++pictures;
        painted();
    });

    find("dots").adjust(1);
    bed.settle();

    EXPECT_EQ(pictures, 1);
    EXPECT_EQ(settings->page.get(), 1);
}

TEST_F(RepresentableTest, ItLeavesWithItsValueAndReleasesItsView) {
    ASSERT_EQ(controller->hostingView().subviews().size(), 1u);
    const std::weak_ptr<uikit::UIView> gone = controller->hostingView().subviews().front()->subviews().front();

    settings->isShown = false;
    bed.settle();

    EXPECT_THAT(controller->hostingView().subviews(), IsEmpty());
    EXPECT_TRUE(gone.expired());
}

TEST_F(RepresentableTest, ItGoesAwayWithItsHostingView) {
    const std::weak_ptr<uikit::UIView> gone = controller->hostingView().subviews().front()->subviews().front();

    window->setRootViewController(nullptr);
    controller.reset();

    EXPECT_TRUE(gone.expired());
}

TEST_F(RepresentableTest, ItsTraitsFollowTheWindow) {
    const auto control = controller->hostingView().subviews().front()->subviews().front();

    window->setTraits(
        {.userInterfaceStyle = graphics::ColorScheme::light, .layoutDirection = geometry::LayoutDirection::rightToLeft});
    bed.settle();

    EXPECT_TRUE(control->isRightToLeft());
    tap({205, 113}); // the second dot from the right
    EXPECT_EQ(settings->page.get(), 1);
}

// --- Other views ---

struct Blank {
    std::function<void()> tapped;

    using UIViewType = uikit::UIButton;
    std::shared_ptr<UIViewType> makeUIView(const UIViewRepresentableContext<Blank>& context) const {
        EXPECT_EQ(context.coordinator, nullptr);
        auto button = std::make_shared<uikit::UIButton>();
        button->accessibilityIdentifier = "blank";
        button->addAction([tapped = tapped](uikit::UIControl&) { tapped(); }, uikit::UIControl::Event::touchUpInside);
        return button;
    }
    void updateUIView(UIViewType&, const UIViewRepresentableContext<Blank>&) const {}
    Element* makeElement() && { return newRepresentable(std::move(*this)); }
};

struct Missing {
    using UIViewType = uikit::UIView;
    std::shared_ptr<UIViewType> makeUIView(const UIViewRepresentableContext<Missing>&) const { return nullptr; }
    void updateUIView(UIViewType&, const UIViewRepresentableContext<Missing>&) const {}
    Element* makeElement() && { return newRepresentable(std::move(*this)); }
};

struct ScrolledBlank {
    std::function<void()> tapped;

    View body(BuildContext&) const {
        return ScrollView{
            .content = {Blank{tapped} | frame({.width = 100, .height = 60}), Rectangle() | frame({.width = 10, .height = 2000})}};
    }
};

TEST_F(HostingTest, StopsTheProgramWhereNoViewIsMade) {
    EXPECT_DEATH(show(Missing{}), "UIViewRepresentable: makeUIView has made no view");
}

TEST_F(HostingTest, AViewWithoutANaturalSizeTakesWhatItIsOffered) {
    show(ScrolledBlank{[] {}});

    EXPECT_EQ(find("blank").frame, (Rect{{150, 0}, {100, 60}}));
}

TEST_F(HostingTest, AScrollViewClaimsTheTouchFromTheViewInside) {
    int taps = 0;
    show(ScrolledBlank{[&] { ++taps; }});
    bed.settle();

    touch(host::TouchPhase::began, {200, 30});
    bed.runFor(0.1);
    touch(host::TouchPhase::moved, {200, 15});
    bed.runFor(0.2);
    touch(host::TouchPhase::ended, {200, 15});
    bed.runFor(2);
    EXPECT_EQ(taps, 0);
    EXPECT_LT(find("blank").frame.minY(), 0);

    // The place that touches find has moved with the content.
    tap({200, find("blank").frame.maxY() - 1});
    EXPECT_EQ(taps, 1);
}

TEST_F(HostingTest, ActionsWithoutATargetGoOnInTheRetainedLayer) {
    class Answering : public uikit::UIViewController {
    public:
        bool respond(uikit::Selector action, uikit::UIResponder*) override {
            return action == uikit::Selector{"close"} && ++answers;
        }
        int answers = 0;
    };
    const auto root = std::make_shared<Answering>();
    window->setRootViewController(root);
    const auto controller = UIHostingController::create(DotsScreen{std::make_shared<Settings>()});
    root->addChild(controller);
    controller->view()->fillSuperview();
    root->view()->addSubview(controller->view());
    window->layoutIfNeeded();

    EXPECT_TRUE(
        controller->hostingView().subviews().front()->subviews().front()->sendUpTheChain(uikit::Selector{"close"}, nullptr));
    EXPECT_EQ(root->answers, 1);
}

} // namespace
} // namespace proupsells::hosting

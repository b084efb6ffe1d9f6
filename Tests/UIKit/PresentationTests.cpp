#include "Tests/UIKit/Screen.hpp"

#include "Platform/Motion/TimingCurve.hpp"

namespace proupsells::uikit {
namespace {

class Moving : public UIView {
public:
    bool isAnimating() const override { return true; }
};

using geometry::Point;
using geometry::Rect;
using geometry::Size;
using testing::ElementsAre;
using testing::IsEmpty;

class PresentationTest : public ScreenTest {
protected:
    PresentationTest() {
        root = showRoot();
        sheet = controller("sheet");
        sheet->setModalPresentationStyle(UIModalPresentationStyle::formSheet);
        sheet->setPreferredContentSize({375, 800});
    }
    // The vertical place of the presented view, as it is seen now.
    double seenTop() { return window->semanticTree().frame.minY(); }

    std::shared_ptr<RecordingController> root, sheet;
};

TEST_F(PresentationTest, AnAnimatedPresentationAppearsAtItsEnd) {
    bool isComplete = false;

    root->present(sheet, true, [&] { isComplete = true; });

    EXPECT_THAT(takeCalls(), ElementsAre("sheet.didLoad", "sheet.willAppear"));
    EXPECT_TRUE(window->isTransitioning());
    EXPECT_TRUE(sheet->isBeingPresented());
    bed.runUntil(transition_s - 0.001);
    EXPECT_THAT(takeCalls(), IsEmpty());
    EXPECT_FALSE(isComplete);
    bed.runUntil(transition_s);
    EXPECT_THAT(takeCalls(), ElementsAre("sheet.didAppear"));
    EXPECT_TRUE(isComplete);
    EXPECT_FALSE(window->isTransitioning());
    EXPECT_FALSE(sheet->isBeingPresented());
    EXPECT_EQ(root->presentedViewController(), sheet.get());
    EXPECT_EQ(sheet->presentingViewController(), root.get());
    EXPECT_EQ(window->frontMostViewController(), sheet.get());
}

TEST_F(PresentationTest, AScreenOnItsWayIsReadAsBusy) {
    EXPECT_FALSE(window->reading().isBusy);
    root->present(sheet, true);
    EXPECT_TRUE(window->reading().isBusy);
    bed.runUntil(transition_s);
    EXPECT_FALSE(window->reading().isBusy);
}

TEST_F(PresentationTest, AnUnanimatedPresentationIsOverWhenTheCallReturns) {
    root->present(sheet, false, [&] { calls.push_back("complete"); });

    EXPECT_THAT(takeCalls(), ElementsAre("sheet.didLoad", "sheet.willAppear", "sheet.didAppear", "complete"));

    sheet->dismiss(false, [&] { calls.push_back("complete"); });

    EXPECT_THAT(takeCalls(), ElementsAre("sheet.willDisappear", "sheet.didDisappear", "complete"));
    EXPECT_EQ(window->frontMostViewController(), root.get());
    EXPECT_EQ(root->presentedViewController(), nullptr);
    EXPECT_EQ(sheet->presentingViewController(), nullptr);
}

TEST_F(PresentationTest, SlidesInByTheCurve) {
    root->present(sheet, true);

    EXPECT_NEAR(seenTop(), 800, 1e-9);
    bed.runUntil(0.125);
    EXPECT_NEAR(seenTop(), 800 * (1 - motion::TimingCurve::easeInOut().valueAt(0.25)), 1e-9);
    bed.runUntil(0.25);
    EXPECT_NEAR(seenTop(), 400, 1e-6);
    bed.runUntil(0.5);
    EXPECT_EQ(seenTop(), 0);
}

TEST_F(PresentationTest, SlidesOutAndIsGone) {
    root->present(sheet, false);
    takeCalls();

    sheet->dismiss(true);

    EXPECT_THAT(takeCalls(), ElementsAre("sheet.willDisappear"));
    EXPECT_TRUE(sheet->isBeingDismissed());
    bed.runUntil(0.25);
    EXPECT_NEAR(seenTop(), 400, 1e-6);
    bed.runUntil(0.5);
    EXPECT_THAT(takeCalls(), ElementsAre("sheet.didDisappear"));
    EXPECT_FALSE(sheet->isBeingDismissed());
    EXPECT_EQ(window->subviews().size(), 1u);
}

TEST_F(PresentationTest, FadesWhereMotionIsToBeReduced) {
    window->setTraits({.reduceMotion = true});
    root->present(sheet, true);
    bed.runUntil(0.25);

    const accessibility::SemanticNode tree = window->semanticTree();

    EXPECT_EQ(tree.frame.minY(), 0);
    EXPECT_NEAR(tree.opacity, 0.5, 1e-6);
}

TEST_F(PresentationTest, AnimatesOnlyUntilItsEnd) {
    EXPECT_FALSE(window->isAnimating());
    root->present(sheet, true);
    EXPECT_TRUE(window->isAnimating());
    bed.runUntil(transition_s);
    EXPECT_FALSE(window->isAnimating());
}

TEST_F(PresentationTest, ASheetTellsThePresenterNothingAndAFullScreenOneDoes) {
    root->present(sheet, false);
    sheet->dismiss(false);
    for (const std::string& call : takeCalls()) EXPECT_EQ(call.substr(0, 5), "sheet");

    const auto full = controller("full");
    full->setModalPresentationStyle(UIModalPresentationStyle::fullScreen);
    root->present(full, true);
    bed.runFor(transition_s);
    EXPECT_THAT(takeCalls(),
                ElementsAre("full.didLoad", "root.willDisappear", "full.willAppear", "full.didAppear", "root.didDisappear"));

    full->dismiss(true);
    bed.runFor(transition_s);
    EXPECT_THAT(takeCalls(), ElementsAre("full.willDisappear", "root.willAppear", "root.didAppear", "full.didDisappear"));
}

TEST_F(PresentationTest, ThePresentersTimersGoOn) {
    int ticks = 0;
    const auto timer = bed.loop().scheduleRepeating(0.25, [&] { ++ticks; });
    root->present(sheet, true);

    bed.runUntil(1);

    EXPECT_EQ(ticks, 4);
    timer->invalidate();
}

TEST_F(PresentationTest, PresentingAgainAndAgainLeavesNothingBehind) {
    std::weak_ptr<UIViewController> last;
    for (int round = 0; round < 1000; ++round) {
        auto next = controller("next");
        last = next;
        root->present(next, true);
        bed.runFor(transition_s);
        next->dismiss(true);
        bed.runFor(transition_s);
    }

    EXPECT_TRUE(last.expired());
    EXPECT_EQ(window->subviews().size(), 1u);
    EXPECT_FALSE(bed.loop().nextDueTime_s().has_value());
}

// --- Place, picture and touches ---

TEST_F(PresentationTest, AFormSheetStandsInTheMiddleOfALargeWindow) {
    window->setSize({744, 1133}, {24, 0, 20, 0});

    root->present(sheet, false);

    EXPECT_EQ(window->semanticTree().frame, (Rect{{184.5, 166.5}, {375, 800}}));
    EXPECT_EQ(sheet->view()->safeAreaInsets(), geometry::PhysicalInsets{});
    EXPECT_EQ(sheet->traitCollection().horizontalSizeClass, UIUserInterfaceSizeClass::compact);
    EXPECT_EQ(root->traitCollection().horizontalSizeClass, UIUserInterfaceSizeClass::regular);
}

TEST_F(PresentationTest, APresentedViewKnowsItsSafeAreaAndTraitsBeforeItLoads) {
    window->setSize({375, 800}, {20, 0, 34, 0});
    window->setTraits({.userInterfaceStyle = graphics::ColorScheme::dark});
    geometry::PhysicalInsets safeArea;
    UITraitCollection traits;
    sheet->onDidLoad = [&] {
        safeArea = sheet->view()->safeAreaInsets();
        traits = sheet->traitCollection();
    };

    root->present(sheet, true);

    EXPECT_EQ(safeArea, (geometry::PhysicalInsets{20, 0, 34, 0}));
    EXPECT_EQ(traits.userInterfaceStyle, graphics::ColorScheme::dark);
    EXPECT_EQ(sheet->view()->safeAreaInsets(), safeArea);
}

TEST_F(PresentationTest, AResizedWindowMovesTheSheet) {
    root->present(sheet, false);
    window->setSize({744, 1133}, {});
    EXPECT_EQ(window->semanticTree().frame, (Rect{{184.5, 166.5}, {375, 800}}));
    window->setSize({320, 568}, {});
    EXPECT_EQ(window->semanticTree().frame, (Rect{{0, 0}, {320, 568}}));
}

TEST_F(PresentationTest, WhatIsFullyCoveredIsNotPainted) {
    constexpr UIColor paper{"paper", graphics::rgb(0xFFFFFF), graphics::rgb(0x000000)};
    root->view()->setBackgroundColor(UIColor::black);
    sheet->view()->setBackgroundColor(paper);

    root->present(sheet, true);
    bed.runUntil(0.25);
    EXPECT_EQ(painted().commands.size(), 3u); // the host, the dimming, the sheet
    bed.runUntil(0.5);
    EXPECT_EQ(painted().commands.size(), 1u);

    window->setSize({744, 1133}, {});
    const auto list = painted();
    ASSERT_EQ(list.commands.size(), 3u);
    EXPECT_FLOAT_EQ(list.commands[1].opacity, 0.4f);
    EXPECT_EQ(list.commands[2].clipRadius, 12);
}

TEST_F(PresentationTest, ASheetHasFourRoundCornersAndInTheDarkAnEdge) {
    window->setSize({1024, 768}, {});
    window->setTraits({.userInterfaceStyle = graphics::ColorScheme::dark});
    root->view()->setBackgroundColor(UIColor::black);
    sheet->view()->setBackgroundColor(UIColor::white);

    root->present(sheet, false);

    const Rect card{{324.5, 0}, {375, 768}};
    const auto list = painted();
    ASSERT_EQ(list.commands.size(), 4u); // the host, the dimming, the edge, the sheet
    EXPECT_EQ(list.commands[2].kind, graphics::CommandKind::strokeRoundedRectangle);
    EXPECT_EQ(list.commands[2].frame, card);
    EXPECT_EQ(list.commands[2].color, graphics::rgb(0x343C40));
    EXPECT_EQ(list.commands[3].roundedClip, card);
    EXPECT_EQ(list.commands[3].clipRadius, 12);
}

// --- Cards on cards ---

class CardOnCardTest : public PresentationTest {
protected:
    CardOnCardTest() {
        window->setSize({1024, 768}, {});
        root->view()->setBackgroundColor(UIColor::white);
        sheet->view()->setBackgroundColor(lowerPaper);
        page->view()->setBackgroundColor(upperPaper);
        page->setModalPresentationStyle(UIModalPresentationStyle::pageSheet);
        root->present(sheet, false);
    }
    // How much of the host's light comes through all that dims it.
    double lightOnHost() {
        double light = 1;
        for (const graphics::Command& command : painted().commands)
            if (command.color == graphics::rgb(0x000000)) light *= 1 - double(command.opacity);
        return light;
    }
    // 0 where nothing of it is painted.
    double opacityOf(const UIColor& paper) {
        for (const graphics::Command& command : painted().commands)
            if (command.color == paper.light) return double(command.opacity);
        return 0;
    }

    static constexpr UIColor lowerPaper{"lowerPaper", graphics::rgb(0x112233), graphics::rgb(0x112233)};
    static constexpr UIColor upperPaper{"upperPaper", graphics::rgb(0x445566), graphics::rgb(0x445566)};
    std::shared_ptr<RecordingController> page = controller("page");
};

TEST_F(CardOnCardTest, DimTheHostOnce) {
    EXPECT_NEAR(lightOnHost(), 0.6, 1e-6);

    sheet->present(page, true);

    for (int step = 0; step <= 5; ++step) {
        EXPECT_NEAR(lightOnHost(), 0.6, 1e-6);
        bed.runFor(transition_s / 5);
    }
    EXPECT_NEAR(lightOnHost(), 0.6, 1e-6);
}

TEST_F(CardOnCardTest, TheLowerOneGoesBackAndReturns) {
    EXPECT_EQ(opacityOf(lowerPaper), 1);

    sheet->present(page, true);
    bed.runFor(transition_s / 2);
    EXPECT_NEAR(opacityOf(lowerPaper), 0.5, 1e-6);
    bed.runFor(transition_s / 2);
    EXPECT_EQ(opacityOf(lowerPaper), 0);
    EXPECT_EQ(opacityOf(upperPaper), 1);

    page->dismiss(true);
    bed.runFor(transition_s / 2);
    EXPECT_NEAR(opacityOf(lowerPaper), 0.5, 1e-6);
    bed.runFor(transition_s / 2);
    EXPECT_EQ(opacityOf(lowerPaper), 1);
}

TEST_F(CardOnCardTest, AllLeaveByOneDimming) {
    sheet->present(page, false);

    root->dismiss(true);

    EXPECT_NEAR(lightOnHost(), 0.6, 1e-6);
    bed.runFor(transition_s / 2);
    EXPECT_EQ(opacityOf(lowerPaper), 0);
    EXPECT_NEAR(lightOnHost(), 0.8, 1e-6);
    bed.runFor(transition_s / 2);
    EXPECT_EQ(lightOnHost(), 1);
}

TEST_F(CardOnCardTest, AskForNoFramesForTheOneThatIsNotSeen) {
    sheet->view()->addSubview(std::make_shared<Moving>());
    EXPECT_TRUE(window->isAnimating());

    sheet->present(page, false);

    EXPECT_FALSE(window->isAnimating());
}

TEST_F(PresentationTest, WhatMovesBehindASheetThatCoversItAsksForNoFrames) {
    root->view()->addSubview(std::make_shared<Moving>());
    EXPECT_TRUE(window->isAnimating());
    sheet->view()->setBackgroundColor(UIColor::white);

    root->present(sheet, false);
    EXPECT_FALSE(window->isAnimating());

    window->setSize({744, 1133}, {});
    EXPECT_TRUE(window->isAnimating());
}

TEST_F(PresentationTest, ASeeThroughSheetLeavesThePresenterInThePicture) {
    root->view()->setBackgroundColor(UIColor::black);

    root->present(sheet, false);

    EXPECT_EQ(painted().commands.size(), 2u); // the host and the dimming
}

class TouchedView : public UIView {
public:
    void touchesBegan(const UITouch&) override { ++touches; }
    void touchesCancelled(const UITouch&) override { ++cancellations; }
    int touches = 0, cancellations = 0;
};

TEST_F(PresentationTest, CoveredControllersGetNoTouches) {
    window->setSize({744, 1133}, {});
    const auto below = std::make_shared<TouchedView>(), above = std::make_shared<TouchedView>();
    below->fillSuperview();
    above->fillSuperview();
    root->view()->addSubview(below);
    sheet->view()->addSubview(above);
    root->present(sheet, true);

    tap({372, 500}); // still on its way
    bed.runUntil(transition_s);
    tap({372, 500});
    tap({5, 5}); // beside the sheet

    EXPECT_EQ(below->touches, 0);
    EXPECT_EQ(above->touches, 1);
}

TEST_F(PresentationTest, AFingerThatIsDownLosesItsViewToAPresentation) {
    const auto below = std::make_shared<TouchedView>();
    below->fillSuperview();
    root->view()->addSubview(below);
    window->layoutIfNeeded();
    touch(host::TouchPhase::began, {10, 10});

    root->present(sheet, true);

    EXPECT_EQ(below->cancellations, 1);
}

} // namespace
} // namespace proupsells::uikit

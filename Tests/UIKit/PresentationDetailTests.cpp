// What presented screens hand down, how they leave, and what is around them.
#include "Platform/Motion/TimingCurve.hpp"
#include "Platform/UIKit/Controllers/FocusRing.hpp"
#include "Platform/UIKit/Controllers/UINavigationController.hpp"
#include "Platform/UIKit/Controls/UIButton.hpp"
#include "Tests/UIKit/Screen.hpp"

namespace proupsells::uikit {
namespace {

using geometry::PhysicalInsets;
using geometry::Rect;
using geometry::Size;
using testing::ElementsAre;
using testing::IsEmpty;

class SheetTest : public ScreenTest {
protected:
    SheetTest() : root(showRoot()), sheet(controller("sheet")) {
        sheet->setModalPresentationStyle(UIModalPresentationStyle::formSheet);
        sheet->setPreferredContentSize({375, 800});
    }
    // The safe area and the traits that the sheet finds while it loads.
    std::pair<PhysicalInsets, UITraitCollection> foundWhileLoading() {
        std::pair<PhysicalInsets, UITraitCollection> found;
        sheet->onDidLoad = [&] { found = {sheet->view()->safeAreaInsets(), sheet->view()->traitCollection()}; };
        root->present(sheet, false);
        return found;
    }

    std::shared_ptr<RecordingController> root, sheet;
};

TEST_F(SheetTest, ExpectsTheUnsafeEdgesThatReachUnderIt) {
    window->setSize({744, 1133}, {200, 190, 180, 186});
    const auto [safeArea, traits] = foundWhileLoading();

    // The sheet stands at 184.5, 166.5 and is 375 by 800.
    EXPECT_EQ(safeArea, (PhysicalInsets{33.5, 5.5, 13.5, 1.5}));
    EXPECT_EQ(sheet->view()->safeAreaInsets(), safeArea);
    EXPECT_EQ(traits.horizontalSizeClass, UIUserInterfaceSizeClass::compact);
}

TEST_F(SheetTest, ExpectsNoUnsafeEdgesFarAway) {
    window->setSize({744, 1133}, {20, 20, 20, 20});

    EXPECT_EQ(foundWhileLoading().first, PhysicalInsets{});
}

TEST_F(SheetTest, IsWideFromSixHundredPointsOn) {
    window->setSize({1024, 1133}, {});
    sheet->setPreferredContentSize({600, 800});

    EXPECT_EQ(foundWhileLoading().second.horizontalSizeClass, UIUserInterfaceSizeClass::regular);
    EXPECT_EQ(sheet->traitCollection().horizontalSizeClass, UIUserInterfaceSizeClass::regular);
    sheet->dismiss(false);
    const auto narrow = controller("narrow");
    narrow->setModalPresentationStyle(UIModalPresentationStyle::formSheet);
    narrow->setPreferredContentSize({599, 800});
    root->present(narrow, false);
    EXPECT_EQ(narrow->traitCollection().horizontalSizeClass, UIUserInterfaceSizeClass::compact);
}

TEST_F(SheetTest, DimsWhatIsAroundItAsFarAsItIsIn) {
    window->setSize({744, 1133}, {});
    root->view()->setBackgroundColor(UIColor::white);
    sheet->view()->setBackgroundColor(UIColor::white);
    const auto dimming = [&] { return double(painted().commands.at(1).opacity); };

    root->present(sheet, true);
    EXPECT_EQ(painted().commands.size(), 1u);
    bed.runFor(transition_s / 2);
    EXPECT_NEAR(dimming(), 0.2, 1e-6);
    EXPECT_EQ(painted().commands.at(1).frame, (Rect{{0, 0}, {744, 1133}}));
    bed.runFor(transition_s / 2);
    EXPECT_NEAR(dimming(), 0.4, 1e-6);

    sheet->dismiss(true);
    bed.runFor(transition_s / 4);
    EXPECT_NEAR(dimming(), 0.4 * (1 - motion::TimingCurve::easeInOut().valueAt(0.25)), 1e-6);
}

TEST_F(SheetTest, ComesFromBelowTheWindowWithItsEdge) {
    window->setSize({1024, 768}, {});
    window->setTraits({.userInterfaceStyle = graphics::ColorScheme::dark});
    root->view()->setBackgroundColor(UIColor::black);
    sheet->setPreferredContentSize({375, 368});
    sheet->view()->setBackgroundColor(UIColor::white);

    root->present(sheet, true);
    bed.runFor(transition_s / 2);

    // It stands at 200 in the end, and so has 568 points to go.
    const auto commands = painted().commands;
    ASSERT_EQ(commands.size(), 4u);
    EXPECT_NEAR(commands[2].frame.minY(), 200 + 284, 1e-6);
    EXPECT_NEAR(commands[2].frame.minX(), 324.5, 1e-6);
    EXPECT_EQ(commands[2].lineWidth, 2);
    EXPECT_EQ(commands[2].cornerRadius, 12);
    EXPECT_EQ(commands[2].opacity, 1);
    EXPECT_NEAR(window->semanticTree().frame.minY(), 200 + 284, 1e-6);
}

TEST_F(SheetTest, FadesWithItsEdgeWhereMotionIsToBeReduced) {
    window->setSize({1024, 768}, {});
    window->setTraits({.userInterfaceStyle = graphics::ColorScheme::dark, .reduceMotion = true});
    sheet->view()->setBackgroundColor(UIColor::white);
    sheet->setPreferredContentSize({375, 368});

    root->present(sheet, true);
    bed.runFor(transition_s / 2);

    const auto commands = painted().commands; // the dimming, the edge, the sheet
    ASSERT_EQ(commands.size(), 3u);
    EXPECT_NEAR(commands[1].opacity, 0.5, 1e-6);
    EXPECT_NEAR(commands[2].opacity, 0.5, 1e-6);
    EXPECT_EQ(commands[1].frame, (Rect{{324.5, 200}, {375, 368}}));
}

TEST_F(SheetTest, StandsInItsCard) {
    root->present(sheet, false);
    UIView& card = *sheet->view()->superview();

    EXPECT_EQ(card.typeName(), "UIPresentationCard");
    EXPECT_EQ(card.superview()->superview(), window.get());
    EXPECT_FALSE(card.clipsToBounds());
    EXPECT_EQ(card.cornerRadius(), 0);
    window->setSize({744, 1133}, {});
    bed.settle();
    EXPECT_TRUE(card.clipsToBounds());
    EXPECT_EQ(card.cornerRadius(), 12);
    EXPECT_EQ(sheet->view()->frame(), (Rect{{0, 0}, {375, 800}}));
}

TEST_F(SheetTest, MovesByItselfOnItsWayOnly) {
    root->present(sheet, true);
    EXPECT_TRUE(window->isAnimating());
    bed.runFor(transition_s);
    EXPECT_FALSE(window->isAnimating());

    sheet->dismiss(true);
    EXPECT_TRUE(window->isAnimating());
    bed.runFor(transition_s);
    EXPECT_FALSE(window->isAnimating());
}

TEST_F(SheetTest, AsksForAPictureWhenItLeavesAndWhenItRests) {
    root->present(sheet, true);
    bed.settle();
    int pictures = 0;
    window->setNeedsDisplayHandler([&] { ++pictures; });

    bed.runFor(transition_s);
    EXPECT_EQ(pictures, 1);
    sheet->dismiss(true);
    bed.settle();
    EXPECT_EQ(pictures, 2);
}

TEST_F(SheetTest, APlainScreenNeitherAnswersToEscapeNorHasAName) {
    const auto inner = controller("inner");
    EXPECT_FALSE(root->accessibilityPerformEscape());
    EXPECT_EQ(root->accessibilityScreenName(), "");

    root->addChild(inner);
    inner->setTitle("Inner");
    EXPECT_EQ(root->accessibilityScreenName(), "Inner");
    root->setTitle("Root");
    EXPECT_EQ(root->accessibilityScreenName(), "Root");
    EXPECT_EQ(window->reading().name, "Root");
}

TEST_F(SheetTest, TheLastChildNamesTheScreen) {
    const auto first = controller("first"), second = controller("second"), third = controller("third");
    for (const auto& child : {first, second, third}) root->addChild(child);
    first->setTitle("First");
    second->setTitle("Second");

    EXPECT_EQ(root->accessibilityScreenName(), "Second");
}

TEST_F(SheetTest, StylesHaveNames) {
    EXPECT_EQ(presentationStyleName(UIModalPresentationStyle::formSheet), "formSheet");
    EXPECT_EQ(presentationStyleName(UIModalPresentationStyle::fullScreen), "fullScreen");
    EXPECT_EQ(presentationStyleName(UIModalPresentationStyle::pageSheet), "pageSheet");
    EXPECT_EQ(presentationStyleName(UIModalPresentationStyle::automatic), "pageSheet");
}

TEST(PresentationFrame, IsNeverLargerThanItsWindow) {
    using enum UIModalPresentationStyle;
    EXPECT_EQ(presentationFrame(formSheet, {900, 100}, {700, 600}), (Rect{{0, 250}, {700, 100}}));
    EXPECT_EQ(presentationFrame(formSheet, {100, 0}, {700, 700}), (Rect{{80, 40}, {540, 620}}));
    EXPECT_EQ(presentationFrame(formSheet, {0, 100}, {700, 700}), (Rect{{80, 40}, {540, 620}}));
    EXPECT_EQ(presentationFrame(pageSheet, {}, {800, 30}), (Rect{{48, 15}, {704, 0}}));
}

// --- The navigation bar ---

class BarTest : public SheetTest {
protected:
    BarTest() { sheet->setModalPresentationStyle(UIModalPresentationStyle::fullScreen); }
    void show() {
        navigation = UINavigationController::create(sheet);
        navigation->setModalPresentationStyle(UIModalPresentationStyle::fullScreen);
        root->present(navigation, false);
        bed.settle();
    }
    UIView& bar() { return *navigation->view()->subviews().back(); }
    UIView& title() { return *bar().subviews().at(0); }
    UIView& button() { return *bar().subviews().at(1); }
    static UIBarButtonItem item(std::string text) {
        UIBarButtonItem item;
        item.title = std::move(text);
        item.action = [] {};
        item.accessibilityIdentifier = "item";
        item.accessibilityLabel = "Item";
        return item;
    }

    std::shared_ptr<UINavigationController> navigation;
};

TEST_F(BarTest, TheTitleStaysAsFarFromTheEmptyEndAsFromTheButton) {
    sheet->setTitle("Plans");
    show();
    EXPECT_EQ(bar().frame(), (Rect{{0, 0}, {375, 56}}));
    EXPECT_EQ(title().frame(), (Rect{{8, 28 - title().frame().height() / 2}, {359, title().frame().height()}}));
    EXPECT_GT(title().frame().height(), 0);

    sheet->setRightBarButtonItem(item("OK"));
    bed.settle();
    EXPECT_EQ(button().frame(), (Rect{{375 - 8 - 44, 6}, {44, 44}}));
    EXPECT_EQ(title().frame().minX(), 60);
    EXPECT_EQ(title().frame().width(), 375 - 120);
    EXPECT_EQ(button().accessibilityIdentifier, "item");
    EXPECT_EQ(button().accessibilityLabel, "Item");
}

TEST_F(BarTest, AButtonIsAsWideAsItsText) {
    sheet->setRightBarButtonItem(item("A rather long text"));
    show();
    const double width = button().subviews().at(0)->intrinsicContentSize().width;
    ASSERT_GT(width, 44);

    EXPECT_EQ(button().frame(), (Rect{{375 - 8 - width, 6}, {width, 44}}));
    EXPECT_EQ(button().subviews().at(0)->frame(), (Rect{{0, 0}, {width, 44}}));
    window->setTraits({.layoutDirection = geometry::LayoutDirection::rightToLeft});
    bed.settle();
    EXPECT_EQ(button().frame(), (Rect{{8, 6}, {width, 44}}));
}

TEST_F(BarTest, AButtonThatLooksAsBeforeStays) {
    sheet->setRightBarButtonItem(item("OK"));
    show();
    const UIView* before = &button();

    UIBarButtonItem same = item("OK");
    same.accessibilityLabel = "Another";
    sheet->setRightBarButtonItem(same);
    EXPECT_EQ(&button(), before);
    EXPECT_EQ(button().accessibilityLabel, "Another");
    EXPECT_EQ(bar().subviews().size(), 2u);

    const auto kept = bar().subviews().at(1);
    sheet->setRightBarButtonItem(item("Done"));
    EXPECT_NE(&button(), before);
    EXPECT_EQ(bar().subviews().size(), 2u);
    EXPECT_EQ(kept->superview(), nullptr);
    const auto done = bar().subviews().at(1);
    UIBarButtonItem chained = item("Done");
    chained.action = nullptr;
    chained.selector = Selector{"done"};
    sheet->setRightBarButtonItem(chained);
    EXPECT_NE(bar().subviews().at(1), done);
}

TEST_F(BarTest, ATitleOfTheItemStandsForTheControllersOwn) {
    sheet->setTitle("");
    show();
    EXPECT_TRUE(title().isHidden());

    sheet->setTitle("Plans");
    EXPECT_FALSE(title().isHidden());
    EXPECT_TRUE(bar().needsLayout());
}

TEST_F(BarTest, TakesItsColours) {
    constexpr UIColor ground{"ground", graphics::rgb(0x111111), graphics::rgb(0x222222)};
    show();

    navigation->setBarBackgroundColor(ground);
    navigation->setBarTintColor(UIColor::white);

    EXPECT_EQ(navigation->view()->backgroundColor(), ground);
    EXPECT_EQ(bar().tintColor(), UIColor::white);
    EXPECT_EQ(bar().accessibilitySpoken.order, -1);
    EXPECT_TRUE(accessibility::contains(title().accessibilityTraits, accessibility::Traits::header));
}

TEST_F(BarTest, TakesTheColoursThatItWasGivenBefore) {
    constexpr UIColor ground{"ground", graphics::rgb(0x111111), graphics::rgb(0x222222)};
    navigation = UINavigationController::create(sheet);
    navigation->setBarBackgroundColor(ground);
    navigation->setBarTintColor(UIColor::white);
    EXPECT_FALSE(navigation->isViewLoaded());

    root->present(navigation, false);

    EXPECT_EQ(navigation->view()->backgroundColor(), ground);
    EXPECT_EQ(bar().tintColor(), UIColor::white);
}

TEST_F(BarTest, KeepsTheUnsafeSidesForItsContent) {
    window->setSize({375, 800}, {20, 5, 34, 6});
    show();

    EXPECT_EQ(bar().frame(), (Rect{{0, 0}, {375, 76}}));
    EXPECT_EQ(sheet->view()->frame(), (Rect{{0, 76}, {375, 724}}));
    EXPECT_EQ(sheet->view()->safeAreaInsets(), (PhysicalInsets{0, 5, 34, 6}));
    window->setSize({375, 50}, {20, 5, 34, 6});
    bed.settle();
    EXPECT_EQ(sheet->view()->frame(), (Rect{{0, 76}, {375, 0}}));
}

// --- The ring of the focus ---

TEST(FocusRing, IsALineWithARimOnBothSides) {
    for (const graphics::ColorScheme scheme : {graphics::ColorScheme::light, graphics::ColorScheme::dark}) {
        graphics::DisplayList list;
        graphics::PaintContext context(list);
        graphics::PaintState state;
        state.clip = {{0, 0}, {100, 100}};
        state.scheme = scheme;

        paintFocusRing(context, state, {{10, 10}, {50, 40}});

        ASSERT_EQ(list.commands.size(), 2u);
        EXPECT_EQ(list.commands[0].lineWidth, 5);
        EXPECT_EQ(list.commands[0].color, focusRingRimColor.resolved(scheme));
        EXPECT_EQ(list.commands[1].lineWidth, 2);
        EXPECT_EQ(list.commands[1].color, focusRingColor.resolved(scheme));
        for (const graphics::Command& command : list.commands) {
            EXPECT_EQ(command.kind, graphics::CommandKind::strokeRoundedRectangle);
            EXPECT_EQ(command.frame, (Rect{{10, 10}, {50, 40}}));
            EXPECT_EQ(command.cornerRadius, 6);
            EXPECT_EQ(command.cornerStyle, geometry::CornerStyle::continuous);
        }
    }
}

// Each text leaves its letters a tenth of its height at its top and bottom, of 24 points at most.
TEST(FocusRing, PrefersThePlaceNextToTheControlThatIsFree) {
    constexpr Rect all{{0, 0}, {375, 800}}, control{{100, 100}, {50, 40}};
    const auto topBelow = [&](double textBottom) {
        const Rect text{{100, textBottom - 20}, {50, 20}}; // its letters end 2 points higher
        return control.minY() - focusRingAround(control, all, {text}).minY();
    };

    EXPECT_EQ(topBelow(95), 4.5);
    EXPECT_EQ(topBelow(95.5), 3.5);
    EXPECT_EQ(topBelow(96.5), 2.5);
    EXPECT_EQ(topBelow(97.5), 1.5);
    EXPECT_EQ(topBelow(98.5), 0.5);
    EXPECT_EQ(topBelow(99.5), -0.5);
    EXPECT_EQ(topBelow(100.5), -1.5);
    EXPECT_EQ(topBelow(101.5), -2.5);
}

TEST(FocusRing, GoesFurtherOutWhereTheControlsOwnTextReachesToItsEdge) {
    constexpr Rect all{{0, 0}, {375, 800}}, control{{100, 100}, {50, 40}};
    const auto topAbove = [&](double textTop) {
        const Rect text{{100, textTop}, {50, 140 - textTop}}; // 24 points or more: its letters begin 2.4 points lower
        return control.minY() - focusRingAround(control, all, {text}).minY();
    };

    EXPECT_EQ(topAbove(95.7), 4.5);
    EXPECT_EQ(topAbove(95.5), 5.5);
    EXPECT_EQ(topAbove(94.5), 6.5);
    EXPECT_EQ(topAbove(93.5), 7.5);
    EXPECT_EQ(topAbove(92.5), 8.5);
    EXPECT_EQ(topAbove(91.5), 9.5);
    EXPECT_EQ(topAbove(90.5), 10.5);
    EXPECT_EQ(topAbove(89.5), 11.5);
    EXPECT_EQ(topAbove(88.5), 12.5);
    EXPECT_EQ(topAbove(80), 4.5);
}

} // namespace
} // namespace proupsells::uikit

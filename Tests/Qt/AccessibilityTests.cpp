#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Tests/Qt/ToldScreen.hpp"

using namespace proupsells;

using namespace tests;
using accessibility::ReadingElement;
using accessibility::Role;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class Accessibility : public ToldScreen {};

} // namespace

TEST_F(Accessibility, OffersADialogOfElementsAndGroups) {
    show({told(Role::heading, 7, "Endless templates"), plans(true), button(8, "Subscribe Now")});

    EXPECT_EQ(accessibility.root()->role(), QAccessible::Window);
    EXPECT_THAT(names(accessibility.root()), ElementsAre("Pro"));
    EXPECT_EQ(dialog()->role(), QAccessible::Dialog);
    EXPECT_EQ(dialog()->parent(), accessibility.root());
    EXPECT_THAT(names(dialog()), ElementsAre("Endless templates", "Plans", "Subscribe Now"));
    EXPECT_THAT(names(element(1)), ElementsAre("Monthly", "Yearly"));
    EXPECT_EQ(element(1)->child(1)->parent(), element(1));
    EXPECT_EQ(element(1)->indexOfChild(element(1)->child(1)), 1);
}

TEST_F(Accessibility, OffersNothingWhereNothingIsShown) {
    content.dialog = ReadingElement{.role = Role::dialog};

    EXPECT_EQ(accessibility.root()->childCount(), 0);
}

TEST_F(Accessibility, TellsRoles) {
    show({told(Role::heading, 1, "a"), told(Role::text, 2, "b"), told(Role::image, 3, "c"), button(4, "d"),
          told(Role::link, 5, "e"), category(true), pages(1), plans(true)});

    std::vector<QAccessible::Role> roles;
    for (int index = 0; index < dialog()->childCount(); ++index) roles.push_back(element(index)->role());
    EXPECT_THAT(roles, ElementsAre(QAccessible::Heading, QAccessible::StaticText, QAccessible::Graphic, QAccessible::Button,
                                   QAccessible::Link, QAccessible::Button, QAccessible::Slider, QAccessible::Grouping));
    EXPECT_EQ(element(7)->child(0)->role(), QAccessible::RadioButton);
}

TEST_F(Accessibility, TellsWhichPlanIsChosenOfHowMany) {
    show({plans(false)});
    QAccessibleInterface* const monthly = element(0)->child(0);
    QAccessibleInterface* const yearly = element(0)->child(1);

    EXPECT_TRUE(monthly->state().checkable);
    EXPECT_FALSE(monthly->state().checked);
    EXPECT_TRUE(yearly->state().checked);
    EXPECT_EQ(yearly->text(QAccessible::Description), "2 of 2");
}

TEST_F(Accessibility, TellsWhatIsExpanded) {
    show({category(true), button(8, "Close")});

    EXPECT_TRUE(element(0)->state().expandable);
    EXPECT_TRUE(element(0)->state().expanded);
    EXPECT_FALSE(element(0)->state().collapsed);
    EXPECT_FALSE(element(1)->state().expandable);
    EXPECT_FALSE(element(1)->state().collapsed);

    change({category(false)});

    EXPECT_FALSE(element(0)->state().expanded);
    EXPECT_TRUE(element(0)->state().collapsed);
}

TEST_F(Accessibility, TellsThePageAsANumber) {
    show({pages(2)});
    QAccessibleValueInterface* const value = element(0)->valueInterface();

    ASSERT_NE(value, nullptr);
    EXPECT_EQ(value->currentValue(), 2);
    EXPECT_EQ(value->minimumValue(), 1);
    EXPECT_EQ(value->maximumValue(), 3);
    EXPECT_EQ(element(0)->text(QAccessible::Value), "page 2 of 3");
}

TEST_F(Accessibility, TellsAValueWithoutANumberInWords) {
    ReadingElement volume = told(Role::pager, 1, "Volume");
    volume.value = "half";
    show({volume});

    EXPECT_EQ(element(0)->valueInterface(), nullptr);
    EXPECT_EQ(element(0)->text(QAccessible::Description), "half");
}

TEST_F(Accessibility, TellsWhatCannotBeUsedOrSeen) {
    ReadingElement disabled = told(Role::button, 1, "Subscribe"), away = told(Role::text, 2, "further down");
    disabled.isDisabled = true;
    away.isOnScreen = false;
    show({disabled, away, button(3, "Close")});

    EXPECT_TRUE(element(0)->state().disabled);
    EXPECT_FALSE(element(0)->state().focusable);
    EXPECT_TRUE(element(1)->state().offscreen);
    EXPECT_TRUE(element(1)->state().readOnly);
    EXPECT_TRUE(element(2)->state().focusable);
    EXPECT_FALSE(element(2)->state().readOnly);
}

TEST_F(Accessibility, TellsPlacesOnTheDisplay) {
    show({button(1, "Close")});

    EXPECT_EQ(accessibility.root()->rect(), QRect(7, 9, 200, 100));
    EXPECT_EQ(element(0)->rect(), QRect(17, 29, 100, 44));
    EXPECT_EQ(accessibility.root()->childAt(17, 29), dialog());
    EXPECT_EQ(dialog()->childAt(17, 29), element(0));
    EXPECT_EQ(dialog()->childAt(8, 10), nullptr);
}

TEST_F(Accessibility, PressesWhatHasScrolledAway) {
    std::vector<std::string> calls;
    ReadingElement close = button(1, "Close", [&] { calls.push_back("activate"); });
    close.isOnScreen = false;
    close.reveal = [&] { calls.push_back("reveal"); };
    show({close});

    element(0)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());

    EXPECT_THAT(calls, ElementsAre("reveal", "activate"));
}

TEST_F(Accessibility, DoesNothingThatItDoesNotOffer) {
    int presses = 0;
    show({button(1, "Close", [&] { ++presses; })});

    EXPECT_THAT(element(0)->actionInterface()->actionNames(),
                ElementsAre(QAccessibleActionInterface::pressAction(), QAccessibleActionInterface::setFocusAction()));
    element(0)->actionInterface()->doAction(QAccessibleActionInterface::increaseAction());
    element(0)->actionInterface()->doAction("no such action");

    EXPECT_EQ(presses, 0);
}

TEST_F(Accessibility, TurnsPages) {
    std::vector<int> steps;
    ReadingElement pager = pages(1);
    pager.adjust = [&](int step) { steps.push_back(step); };
    show({pager});

    element(0)->actionInterface()->doAction(QAccessibleActionInterface::increaseAction());
    element(0)->actionInterface()->doAction(QAccessibleActionInterface::decreaseAction());
    element(0)->valueInterface()->setCurrentValue(3);

    EXPECT_THAT(steps, ElementsAre(1, -1, 1, 1));
}

TEST_F(Accessibility, ScrollsIntoViewWhenAsked) {
    int reveals = 0;
    ReadingElement shelf = told(Role::heading, 0, "Shapes");
    shelf.revealWhole = [&] { ++reveals; };
    show({shelf});

    element(0)->actionInterface()->doAction("Scroll into view");

    EXPECT_EQ(reveals, 1);
}

TEST_F(Accessibility, GivesTheFocusToTheHostsPlaceAndToTheControl) {
    int focused = 0;
    ReadingElement close = button(1, "Close");
    close.focus = [&] { ++focused; };
    show({close});

    element(0)->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());

    EXPECT_TRUE(hasFocus);
    EXPECT_EQ(focused, 1);
}

TEST_F(Accessibility, TellsOnceWhereTheFocusHasGone) {
    hasFocus = true;
    ReadingElement focused = button(1, "Close");
    focused.isFocused = true;
    change({focused});
    accessibility.update();

    EXPECT_THAT(events, ElementsAre("Close: came", "Close: focus"));
    EXPECT_TRUE(element(0)->state().focused);
    EXPECT_EQ(accessibility.root()->focusChild(), element(0));
}

TEST_F(Accessibility, TellsOfTheDialogWhileKeysOperateNothing) {
    hasFocus = true;
    show({button(1, "Close")});
    accessibility.update();

    EXPECT_THAT(events, Contains("Pro: focus"));
    EXPECT_TRUE(dialog()->state().focusable);
    EXPECT_TRUE(dialog()->state().focused);
}

TEST_F(Accessibility, TellsNoFocusWhileKeysGoSomewhereElse) {
    ReadingElement focused = button(1, "Close");
    focused.isFocused = true;
    change({focused});

    EXPECT_THAT(events, ElementsAre("Close: came"));
    EXPECT_FALSE(element(0)->state().focused);
}

TEST_F(Accessibility, TellsOfAnotherScreenAsADialogOfItsOwn) {
    dialog();
    content.dialog.id = 2;
    content.dialog.name = "Compare plans";
    show({button(9, "Close")});
    accessibility.update();

    EXPECT_THAT(events, ElementsAre("Pro: went", "Compare plans: came"));
}

TEST_F(Accessibility, TellsTheFocusOnceAScreenStands) {
    hasFocus = true;
    content.dialog.isBusy = true;
    accessibility.update();
    EXPECT_THAT(events, ElementsAre("Pro: came"));

    content.dialog.isBusy = false;
    accessibility.update();

    EXPECT_THAT(events, ElementsAre("Pro: came", "Pro: busy", "Pro: focus"));
}

TEST_F(Accessibility, TellsWhetherAScreenStands) {
    content.dialog.isBusy = true;
    EXPECT_TRUE(dialog()->state().busy);

    content.dialog.isBusy = false;
    accessibility.update();

    EXPECT_FALSE(dialog()->state().busy);
    EXPECT_THAT(events, ElementsAre("Pro: busy"));
}

TEST_F(Accessibility, TellsOnceWhatHasBeenChosenAndWhatThatChanges) {
    show({plans(true), pages(1), category(false), button(8, "Subscribe Now")});
    change({plans(false), pages(2), category(true), told(Role::text, 9, "Grids"), button(8, "Start Your Free Trial")});

    EXPECT_THAT(events, ElementsAre("Monthly: checked", "Yearly: checked", "Features: value 2", "Layouts: expanded", "Grids: came",
                                    "Start Your Free Trial: name"));
}

TEST_F(Accessibility, TellsWhatHasMovedOrCannotBeUsedAnyMore) {
    show({button(1, "Close")});
    ReadingElement moved = button(1, "Close");
    moved.frame.origin.y += 200;
    moved.isOnScreen = false;
    moved.isDisabled = true;
    change({moved});

    EXPECT_THAT(events, ElementsAre("Close: location", "Close: disabled", "Close: offscreen"));
}

TEST_F(Accessibility, KeepsTheObjectsOfWhatStays) {
    ReadingElement remade = button(8, "Subscribe Now");
    remade.identifier = "subscribe";
    show({button(3, "Close"), remade, told(Role::heading, 0, "Shapes")});
    QAccessibleInterface* const close = element(0);
    QAccessibleInterface* const subscribe = element(1);
    QAccessibleInterface* const shapes = element(2);

    remade.id = 9;
    change({told(Role::text, 10, "new"), button(3, "Dismiss"), remade, told(Role::heading, 11, "Shapes")});

    EXPECT_THAT(names(dialog()), ElementsAre("new", "Dismiss", "Subscribe Now", "Shapes"));
    EXPECT_EQ(element(1), close);
    EXPECT_EQ(element(2), subscribe);
    EXPECT_EQ(element(3), shapes);
}

TEST_F(Accessibility, TakesAReusedViewForSomethingElse) {
    ReadingElement cell = button(3, "Shapes");
    cell.identifier = "shelf.shapes";
    show({cell});
    cell.identifier = "shelf.videos";
    cell.name = "Videos";
    change({cell});

    EXPECT_THAT(events, ElementsAre("Shapes: went", "Videos: came"));
}

TEST_F(Accessibility, TellsANewOrder) {
    show({button(1, "a"), button(2, "b")});
    QAccessibleInterface* const a = element(0);
    change({button(2, "b"), button(1, "a")});

    EXPECT_THAT(events, ElementsAre("Pro: order"));
    EXPECT_EQ(element(1), a);
}

TEST_F(Accessibility, TellsNothingWhereNothingHasChanged) {
    show({plans(true), category(true), pages(1)});
    change({plans(true), category(true), pages(1)});

    EXPECT_THAT(events, IsEmpty());
}

TEST_F(Accessibility, ReadsTheContentOnlyForThoseWhoListen) {
    dialog();
    isListening = false;
    accessibility.update();
    accessibility.update();

    EXPECT_EQ(content.readCount, 1);
    isListening = true;
    accessibility.update();
    EXPECT_EQ(content.readCount, 2);
}

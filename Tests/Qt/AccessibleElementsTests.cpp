// What stays, comes and goes on a screen, how it is told of in words, and the little that assistive technology may ask besides.
#include <gmock/gmock.h>

#include <QGuiApplication>
#include <QWindow>

#include "Backends/Qt/QtAccessibility.hpp"
#include "Tests/Qt/Events.hpp"
#include "Tests/Qt/ToldScreen.hpp"

using namespace proupsells;

using namespace tests;
using accessibility::ReadingElement;
using accessibility::Role;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

// Somewhere to go to, which has no view yet.
ReadingElement item(const std::string& name) { return told(Role::heading, 0, name); }

class AccessibleElements : public ToldScreen {
protected:
    QStringList actions(int index) { return element(index)->actionInterface()->actionNames(); }
    void act(int index, const QString& action) { element(index)->actionInterface()->doAction(action); }
};

} // namespace

TEST_F(AccessibleElements, SayTheirValueAndThenWhichOneTheyAreOfHowMany) {
    ReadingElement only = plan(1, "Monthly", true, 2), alone = plan(2, "Yearly", false, 0),
                   heading = told(Role::heading, 3, "Plans");
    only.value = "with video";
    alone.count = 0;
    heading.position = heading.count = 2;
    show({only, alone, heading});

    EXPECT_EQ(element(0)->text(QAccessible::Description), "with video, 2 of 2");
    EXPECT_EQ(element(1)->text(QAccessible::Description), "");
    EXPECT_EQ(element(2)->text(QAccessible::Description), "");
    EXPECT_EQ(element(0)->text(QAccessible::Value), "with video");
}

TEST_F(AccessibleElements, SayTheirIdentifierToDevelopers) {
    ReadingElement close = button(1, "Close");
    close.identifier = "paywall.close";
    show({close});

    EXPECT_EQ(element(0)->text(QAccessible::DebugDescription), "paywall.close");
    EXPECT_EQ(element(0)->text(QAccessible::Help), "");
    EXPECT_EQ(element(0)->text(QAccessible::Name), "Close");
    EXPECT_TRUE(element(0)->isValid());
    EXPECT_EQ(element(0)->window(), &window);
}

TEST_F(AccessibleElements, TellANewPlaceAmongOthersInWordsOnly) {
    show({plan(3, "Monthly", true, 1)});
    change({plan(3, "Monthly", true, 2)});

    EXPECT_THAT(events, ElementsAre("Monthly: description"));
}

TEST_F(AccessibleElements, TellANewValueOfWhatHasNoPages) {
    ReadingElement volume = told(Role::pager, 1, "Volume");
    volume.value = "half";
    show({volume});
    volume.value = "full";
    volume.position = 1;
    change({volume});

    EXPECT_THAT(events, ElementsAre("Volume: description"));
}

TEST_F(AccessibleElements, AreReadOnlyWhereNothingCanBeDoneWithThemAndNothingStandsInThem) {
    show({told(Role::heading, 1, "Plans"), plans(true), button(9, "Close"), pages(1)});

    EXPECT_TRUE(element(0)->state().readOnly);
    EXPECT_FALSE(element(1)->state().readOnly);
    EXPECT_FALSE(element(2)->state().readOnly);
    EXPECT_FALSE(element(3)->state().readOnly);
    EXPECT_FALSE(element(0)->state().focusable);
    EXPECT_FALSE(element(0)->state().checkable);
    EXPECT_FALSE(element(0)->state().offscreen);
    EXPECT_FALSE(element(0)->state().disabled);
}

TEST_F(AccessibleElements, SayThatTheDialogOfAnActiveWindowIsActive) {
    show({button(1, "Close")});
    EXPECT_FALSE(dialog()->state().active);
    EXPECT_FALSE(accessibility.root()->state().active);

    window.show();
    window.requestActivate();
    ASSERT_TRUE(handleEventsUntil([&] { return window.isActive(); }));

    EXPECT_TRUE(dialog()->state().active);
    EXPECT_FALSE(element(0)->state().active);
    EXPECT_TRUE(accessibility.root()->state().active);
}

TEST_F(AccessibleElements, OfferExactlyWhatCanBeDoneWithThem) {
    ReadingElement shelf = item("Shapes");
    shelf.revealWhole = [] {};
    show({shelf, pages(1), button(2, "Close"), item("Plans")});

    EXPECT_THAT(actions(0), ElementsAre("Scroll into view"));
    EXPECT_THAT(actions(1),
                ElementsAre(QAccessibleActionInterface::increaseAction(), QAccessibleActionInterface::decreaseAction()));
    EXPECT_THAT(actions(2), ElementsAre(QAccessibleActionInterface::pressAction(), QAccessibleActionInterface::setFocusAction()));
    EXPECT_THAT(actions(3), IsEmpty());
    EXPECT_NE(element(3)->actionInterface(), nullptr);
    EXPECT_EQ(element(3)->valueInterface(), nullptr);
    EXPECT_EQ(element(3)->textInterface(), nullptr);
}

TEST_F(AccessibleElements, AreBroughtIntoSightBeforeAnActionOnlyWhereTheyAreOutOfIt) {
    std::vector<std::string> calls;
    ReadingElement inSight = button(1, "Close", [&] { calls.push_back("close"); });
    inSight.reveal = [&] { calls.push_back("reveal"); };
    ReadingElement fixed = button(2, "Subscribe", [&] { calls.push_back("subscribe"); });
    fixed.isOnScreen = false;
    show({inSight, fixed});

    act(0, QAccessibleActionInterface::pressAction());
    act(1, QAccessibleActionInterface::pressAction());

    EXPECT_THAT(calls, ElementsAre("close", "subscribe"));
}

TEST_F(AccessibleElements, LeadToAPageByItsNumberStepByStep) {
    std::vector<int> steps;
    ReadingElement pager = pages(2), still = pages(2);
    pager.adjust = [&](int step) { steps.push_back(step); };
    still.id = 7;
    still.adjust = {};
    show({pager, still});

    element(0)->valueInterface()->setCurrentValue(2);
    EXPECT_THAT(steps, IsEmpty());
    element(0)->valueInterface()->setCurrentValue(1);
    EXPECT_THAT(steps, ElementsAre(-1));
    element(0)->valueInterface()->setCurrentValue(-5);
    EXPECT_THAT(steps, ElementsAre(-1, -1));
    element(0)->valueInterface()->setCurrentValue(99);
    EXPECT_THAT(steps, ElementsAre(-1, -1, 1));
    element(1)->valueInterface()->setCurrentValue(1);
    EXPECT_EQ(element(0)->valueInterface()->minimumStepSize(), 1);
}

TEST_F(AccessibleElements, SayWhatInThemHasTheFocus) {
    hasFocus = true;
    ReadingElement group = plans(true);
    group.children[1].isFocused = true;
    show({button(1, "Close"), group});
    accessibility.update();
    QAccessibleInterface* const yearly = element(1)->child(1);

    EXPECT_EQ(accessibility.root()->focusChild(), yearly);
    EXPECT_EQ(dialog()->focusChild(), yearly);
    EXPECT_EQ(element(1)->focusChild(), yearly);
    EXPECT_EQ(yearly->focusChild(), yearly);
    EXPECT_EQ(element(0)->focusChild(), nullptr);
    EXPECT_TRUE(yearly->state().focused);
    EXPECT_FALSE(element(1)->state().focused);
}

TEST_F(AccessibleElements, HaveTheFocusToldWheneverItHasGone) {
    hasFocus = true;
    ReadingElement first = button(1, "first"), second = button(2, "second");
    first.isFocused = true;
    show({first, second});
    dialog();
    accessibility.update();
    std::swap(first.isFocused, second.isFocused);
    change({first, second});
    hasFocus = false;
    accessibility.update();
    hasFocus = true;
    accessibility.update();

    EXPECT_THAT(events, ElementsAre("first: focus", "second: focus", "second: focus"));
}

TEST_F(AccessibleElements, HaveNoFocusBeforeTheDialogStands) {
    hasFocus = true;
    ReadingElement first = button(1, "first");
    first.isFocused = true;
    content.dialog.isBusy = true;
    show({first});

    EXPECT_EQ(dialog()->focusChild(), nullptr);
    EXPECT_FALSE(element(0)->state().focused);
}

TEST_F(AccessibleElements, AreFoundByTheirPlaceTheLastToldFirst) {
    ReadingElement below = button(1, "below"), above = button(2, "above"), away = button(3, "away");
    above.frame = {{60, 20}, {100, 44}};
    away.isOnScreen = false;
    show({below, above, away});

    EXPECT_EQ(dialog()->childAt(17, 29), element(0));
    EXPECT_EQ(dialog()->childAt(67, 29), element(1));
    EXPECT_EQ(dialog()->childAt(116, 72), element(1));
    EXPECT_EQ(dialog()->childAt(167, 29), nullptr);
}

TEST_F(AccessibleElements, AreNoneBesidesThoseThatThereAre) {
    show({button(1, "Close"), plans(true)});

    EXPECT_EQ(dialog()->child(-1), nullptr);
    EXPECT_EQ(dialog()->child(2), nullptr);
    EXPECT_EQ(dialog()->indexOfChild(element(1)), 1);
    EXPECT_EQ(dialog()->indexOfChild(element(1)->child(0)), -1);
    EXPECT_EQ(accessibility.root()->indexOfChild(dialog()), 0);
    EXPECT_EQ(accessibility.root()->indexOfChild(element(0)), -1);
}

TEST_F(AccessibleElements, OfViewsThatAreOthersComeAndGoWhateverTheyAreCalled) {
    ReadingElement former = told(Role::heading, 1, "Plans");
    show({former});
    ReadingElement other = former;
    other.id = 2;
    change({other});
    EXPECT_THAT(events, ElementsAre("Plans: went", "Plans: came"));

    events.clear();
    other.role = Role::text;
    change({other});
    EXPECT_THAT(events, ElementsAre("Plans: went", "Plans: came"));

    events.clear();
    other.identifier = "plans";
    change({other});
    EXPECT_THAT(events, ElementsAre("Plans: went", "Plans: came"));
}

TEST_F(AccessibleElements, WithoutAViewAreTheSameByTheirNames) {
    show({item("Shapes"), item("Videos")});
    QAccessibleInterface* const videos = element(1);
    change({item("Grids"), item("Videos")});

    EXPECT_THAT(events, ElementsAre("Shapes: went", "Grids: came"));
    EXPECT_EQ(element(1), videos);

    events.clear();
    change({told(Role::text, 0, "Grids"), item("Videos")});
    EXPECT_THAT(events, ElementsAre("Grids: went", "Grids: came"));
}

TEST_F(AccessibleElements, ThatCannotBeToldApartKeepTheirOrder) {
    show({item("More"), item("More"), item("More")});
    QAccessibleInterface *const first = element(0), *const second = element(1), *const third = element(2);
    change({item("More"), item("More"), item("More")});
    EXPECT_THAT(events, IsEmpty());

    change({button(8, "Close"), item("More"), item("More"), item("More")});
    EXPECT_THAT(events, ElementsAre("Close: came"));
    EXPECT_EQ(element(1), first);
    EXPECT_EQ(element(2), second);
    EXPECT_EQ(element(3), third);
}

TEST_F(AccessibleElements, FindThemselvesAgainWhereverTheyHaveGone) {
    show({button(1, "a"), button(2, "b"), button(3, "c"), button(4, "d")});
    QAccessibleInterface *const b = element(1), *const d = element(3);
    change({button(4, "d"), button(5, "e"), button(2, "b")});

    EXPECT_THAT(names(dialog()), ElementsAre("d", "e", "b"));
    EXPECT_EQ(element(0), d);
    EXPECT_EQ(element(2), b);
    EXPECT_THAT(events, ElementsAre("c: went", "a: went", "Pro: order", "e: came"));
}

TEST_F(AccessibleElements, AreToldOfAtThePlacesThatTheyHadOrHave) {
    show({button(1, "a"), button(2, "b"), button(3, "c")});
    std::vector<int> places;
    recordPlace = [&](QAccessibleInterface* thing) { places.push_back(thing->parent()->indexOfChild(thing)); };
    change({button(2, "b"), button(4, "d"), button(5, "e")});

    EXPECT_THAT(events, ElementsAre("c: went", "a: went", "d: came", "e: came"));
    EXPECT_THAT(places, ElementsAre(2, 0, 1, 2));
}

TEST_F(AccessibleElements, MayBeReadAgainByThoseWhoDoNotListen) {
    show({button(1, "a")});
    QAccessibleInterface* const a = element(0);
    isListening = false;
    change({button(2, "b"), button(1, "a")});

    EXPECT_THAT(names(dialog()), ElementsAre("b", "a"));
    EXPECT_EQ(element(1), a);
}

TEST_F(AccessibleElements, AreNoneWhereNothingCanBeSeen) {
    window.resize(0, 0);
    EXPECT_EQ(accessibility.root()->childCount(), 0);
    EXPECT_TRUE(accessibility.root()->state().invisible);

    window.resize(10, 10);
    accessibility.update();
    EXPECT_EQ(accessibility.root()->childCount(), 1);
    EXPECT_FALSE(accessibility.root()->state().invisible);
}

TEST_F(AccessibleElements, AreThereInADialogWithoutAName) {
    content.dialog.name.clear();
    show({button(1, "Close")});
    EXPECT_EQ(accessibility.root()->childCount(), 1);

    content.dialog.name = "Pro";
    show({});
    accessibility.update();
    EXPECT_EQ(accessibility.root()->childCount(), 1);
}

TEST_F(AccessibleElements, AreToldOfLaterOnceQtHasToldItsOwn) {
    dialog();
    show({button(1, "Close")});
    accessibility.updateLater();
    EXPECT_THAT(events, IsEmpty());

    ASSERT_TRUE(handleEventsUntil([&] { return !events.empty(); }));
    EXPECT_THAT(events, ElementsAre("Close: came"));
}

TEST_F(AccessibleElements, GoWithTheirScreenOutOfQtsRegistry) {
    QWindow other;
    other.resize(10, 10);
    bool otherHasFocus = false;
    auto second = std::make_unique<qtbackend::QtAccessibility>(std::make_unique<Place>(other, otherHasFocus), content);
    show({plans(true)});
    QAccessibleInterface* const root = QAccessible::queryAccessibleInterface(&other);
    ASSERT_EQ(second->root(), root);
    QAccessibleInterface* const group = root->child(0)->child(0);
    const QAccessible::Id ids[] = {QAccessible::uniqueId(root), QAccessible::uniqueId(root->child(0)), QAccessible::uniqueId(group),
                                   QAccessible::uniqueId(group->child(1))};
    second->updateLater();

    second.reset();

    for (const QAccessible::Id id : ids) EXPECT_EQ(QAccessible::accessibleInterface(id), nullptr);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&other), nullptr);
    settle();
}

TEST_F(AccessibleElements, StandInWhatTheHostCallsItsPlace) {
    EXPECT_EQ(accessibility.root()->text(QAccessible::Name), "Host");
    EXPECT_EQ(accessibility.root()->text(QAccessible::Description), "");
    EXPECT_EQ(accessibility.root()->window(), &window);
    EXPECT_EQ(accessibility.root()->parent(), nullptr);
    EXPECT_EQ(accessibility.root()->object(), &window);
}

TEST(AccessiblePlaces, CountPixelsFromTheCornerOfTheirDisplay) {
    const geometry::Rect frame{{110.2, 220}, {30.5, 44}};

    EXPECT_EQ(qtbackend::pixelsOf(frame, {}, 1), QRect(110, 220, 31, 44));
    EXPECT_EQ(qtbackend::pixelsOf(frame, {}, 2), QRect(220, 440, 61, 88));
    EXPECT_EQ(qtbackend::pixelsOf(frame, {100, 200}, 1), QRect(110, 220, 31, 44));
    EXPECT_EQ(qtbackend::pixelsOf(frame, {100, 200}, 2), QRect(120, 240, 61, 88));
    EXPECT_EQ(qtbackend::pixelsOf(frame, {-100, 0}, 1.5), QRect(215, 330, 46, 66));
}

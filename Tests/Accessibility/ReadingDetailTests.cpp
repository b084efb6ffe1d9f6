// What an element is, what it can do, and which nodes are elements at all.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Platform/Accessibility/Reading.hpp"
#include "Platform/Accessibility/Search.hpp"

namespace proupsells::accessibility {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// A node on screen that says something.
SemanticNode shown(std::string words = "words", std::vector<SemanticNode> children = {}) {
    SemanticNode node;
    node.isOnScreen = true;
    if (!words.empty()) node.text = TextInfo{.text = std::move(words)};
    node.children = std::move(children);
    return node;
}

SemanticNode around(std::vector<SemanticNode> children) { return shown("", std::move(children)); }

// The one element that is told of a node.
ReadingElement told(const SemanticNode& node) {
    const ReadingElement reading = readingOf(around({node}));
    EXPECT_EQ(reading.children.size(), 1u);
    return reading.children.empty() ? ReadingElement{} : reading.children[0];
}

bool isTold(const SemanticNode& node) { return !readingOf(around({node})).children.empty(); }

TEST(RoleOfANode, IsWhatItSaysThenWhatItsTraitsSay) {
    const auto roleWith = [](Traits traits) {
        SemanticNode node = shown();
        node.traits = traits;
        return told(node).role;
    };
    EXPECT_EQ(roleWith(Traits::none), Role::text);
    EXPECT_EQ(roleWith(Traits::link | Traits::adjustable), Role::link);
    EXPECT_EQ(roleWith(Traits::adjustable | Traits::button), Role::pager);
    EXPECT_EQ(roleWith(Traits::button | Traits::header), Role::button);
    EXPECT_EQ(roleWith(Traits::header | Traits::image), Role::heading);
    EXPECT_EQ(roleWith(Traits::image), Role::image);

    SemanticNode control = shown();
    control.isControl = true;
    EXPECT_EQ(told(control).role, Role::button);
    control.spoken.role = Role::disclosure;
    EXPECT_EQ(told(control).role, Role::disclosure);
    SemanticNode picture = shown("");
    picture.label = "A tree";
    picture.image = "tree";
    EXPECT_EQ(told(picture).role, Role::image);
    picture.text = TextInfo{.text = "Tree"};
    EXPECT_EQ(told(picture).role, Role::text);
}

TEST(NameOfAnElement, IsSpokenThenALabelThenAllTexts) {
    SemanticNode node = shown("one", {shown("two"), shown(""), around({shown("three")})});
    node.isControl = true;
    EXPECT_EQ(told(node).name, "one, two, three");
    node.label = "label";
    EXPECT_EQ(told(node).name, "label");
    node.spoken.name = "spoken";
    EXPECT_EQ(told(node).name, "spoken");
}

TEST(Element, HasWhatItsNodeHas) {
    SemanticNode node = shown();
    node.id = 7;
    node.identifier = "id";
    node.value = "half";
    node.frame = {{1, 2}, {3, 4}};
    node.isControl = true;
    node.traits = Traits::disabled;
    node.spoken.isChecked = true;
    node.spoken.isExpanded = false;
    node.spoken.page = 2;
    node.spoken.pageCount = 5;
    node.activate = [] {};
    node.adjust = [](int) {};
    node.reveal = [] {};
    node.revealWhole = [] {};

    ReadingElement element = told(node);

    EXPECT_EQ(element.id, 7u);
    EXPECT_EQ(element.identifier, "id");
    EXPECT_EQ(element.value, "half");
    EXPECT_EQ(element.frame, node.frame);
    EXPECT_EQ(element.plate, node.frame);
    EXPECT_TRUE(element.isOnScreen);
    EXPECT_TRUE(element.isDisabled);
    EXPECT_EQ(element.isChecked, true);
    EXPECT_EQ(element.isExpanded, false);
    EXPECT_EQ(element.position, 2);
    EXPECT_EQ(element.count, 5);
    EXPECT_TRUE(element.activate && element.adjust && element.reveal && element.revealWhole);
    EXPECT_FALSE(element.takesFocus);

    node.traits = Traits::none;
    element = told(node);
    EXPECT_FALSE(element.isDisabled);
    EXPECT_TRUE(element.takesFocus);
    node.activate = nullptr;
    node.adjust = nullptr;
    EXPECT_FALSE(told(node).takesFocus);
    node.spoken.takesFocus = true;
    EXPECT_TRUE(told(node).takesFocus);
}

TEST(PlateOfAControl, IsTheFirstOneInsideThatIsNotAnotherControls) {
    SemanticNode plate = shown("plate"), other = shown("other"), inner = shown("inner");
    plate.frame = {{10, 10}, {5, 5}};
    plate.spoken.isPlate = true;
    other.frame = {{20, 20}, {5, 5}};
    other.spoken.isPlate = true;
    inner.isControl = true;
    inner.children = {other};
    SemanticNode control = shown("control", {inner, around({plate}), other});
    control.frame = {{0, 0}, {40, 40}};
    EXPECT_EQ(readingOf(around({control})).children.at(0).plate, control.frame);

    control.isControl = true;
    EXPECT_EQ(told(control).plate, plate.frame);
}

TEST(Element, IsTheOneThatCanBeReached) {
    SemanticNode node = shown();
    EXPECT_TRUE(isTold(node));
    node.opacity = 0;
    EXPECT_FALSE(isTold(node));
    node.opacity = 0.01;
    EXPECT_TRUE(isTold(node));
    node.isOnScreen = false;
    EXPECT_FALSE(isTold(node));
    node.reveal = [] {};
    EXPECT_TRUE(isTold(node));
    node.spoken.isSilent = true;
    EXPECT_FALSE(isTold(node));
}

TEST(Element, HasWordsOrIsAControl) {
    SemanticNode node = shown("");
    EXPECT_FALSE(isTold(node));
    node.isControl = true;
    EXPECT_TRUE(isTold(node));
    node.isControl = false;
    node.label = "label";
    EXPECT_TRUE(isTold(node));
    node.label.clear();
    node.spoken.name = "name";
    EXPECT_TRUE(isTold(node));
    node = shown("");
    node.text = TextInfo{};
    EXPECT_FALSE(isTold(node));
}

TEST(Element, OfASpokenNameStandsForWhatIsInside) {
    SemanticNode named = shown("", {shown("inside")});
    named.spoken.name = "named";
    EXPECT_THAT(readingOf(around({named})).children, testing::SizeIs(1));
    SemanticNode labelled = shown("", {shown("inside")});
    labelled.label = "labelled";
    EXPECT_THAT(readingOf(around({labelled})).children, testing::SizeIs(2));
}

TEST(Groups, KeepTheirElementsInsideThem) {
    SemanticNode first = shown("first"), second = shown("second"), group = around({first, second});
    group.spoken.role = Role::group;
    group.spoken.name = "group";
    second.spoken.order = -1;
    group.children[1] = second;

    const ReadingElement reading = readingOf(around({shown("before"), group}));

    ASSERT_EQ(reading.children.size(), 2u);
    EXPECT_EQ(reading.children[1].role, Role::group);
    EXPECT_EQ(reading.children[1].name, "group");
    ASSERT_EQ(reading.children[1].children.size(), 2u);
    EXPECT_EQ(reading.children[1].children[0].name, "second");
    EXPECT_EQ(elementsOf(reading).size(), 5u);
}

TEST(Groups, AreToldWithoutANameToo) {
    SemanticNode group = around({shown("inside")});
    group.spoken.role = Role::group;
    EXPECT_EQ(told(group).name, "");
    EXPECT_EQ(told(group).children.size(), 1u);
}

TEST(Order, AddsUpFromTheOutsideIn) {
    SemanticNode late = shown("late"), early = shown("early"), middle = shown("middle");
    late.spoken.order = 1;
    SemanticNode block = around({late, early});
    block.spoken.order = -2;

    const ReadingElement reading = readingOf(around({middle, block}));

    ASSERT_EQ(reading.children.size(), 3u);
    EXPECT_EQ(reading.children[0].name, "early");
    EXPECT_EQ(reading.children[1].name, "late");
    EXPECT_EQ(reading.children[2].name, "middle");
}

TEST(ReadingOfAScreen, IsNoControlItself) {
    SemanticNode screen = around({shown("inside")});
    screen.label = "label";
    screen.activate = [] {};
    screen.adjust = [](int) {};
    screen.spoken.takesFocus = true;

    ReadingElement reading = readingOf(screen);

    EXPECT_EQ(reading.role, Role::dialog);
    EXPECT_EQ(reading.name, "label");
    EXPECT_FALSE(reading.activate || reading.adjust || reading.takesFocus);
    screen.spoken.name = "name";
    EXPECT_EQ(readingOf(screen).name, "name");
}

TEST(Names, OfANodeJoinItsTextsWithBlanks) {
    SemanticNode node = shown("one", {shown(""), around({shown("two")})});
    node.children[0].text = TextInfo{};
    node.image = "picture";
    EXPECT_EQ(nameOf(node), "one two");
    SemanticNode picture = around({around({}), around({})});
    picture.children[1].image = "inner";
    EXPECT_EQ(nameOf(picture), "inner");
    picture.image = "outer";
    EXPECT_EQ(nameOf(picture), "outer");
    EXPECT_EQ(nameOf(around({})), "");
}

TEST(Names, OfControlsAreTheirLabelsTheirTextsOrAllOfThem) {
    SemanticNode control = shown("one", {shown("two")});
    control.isControl = true;
    const SemanticNode screen = around({control, shown("one")});

    EXPECT_EQ(controlsNamed(screen, "one").size(), 1u);
    EXPECT_EQ(controlsNamed(screen, "two").size(), 1u);
    EXPECT_EQ(controlsNamed(screen, "one two").size(), 1u);
    EXPECT_THAT(controlsNamed(screen, "one  two"), IsEmpty());
    EXPECT_THAT(controlsNamed(screen, "three"), IsEmpty());
}

} // namespace
} // namespace proupsells::accessibility

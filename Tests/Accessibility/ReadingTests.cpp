// What is told of a screen, and in which order.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Platform/Accessibility/Reading.hpp"

namespace proupsells::accessibility {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

SemanticNode node(std::vector<SemanticNode> children = {}) {
    SemanticNode made;
    made.isOnScreen = true;
    made.children = std::move(children);
    return made;
}

SemanticNode visibleText(std::string text) {
    SemanticNode made = node();
    made.text = TextInfo{.text = std::move(text)};
    return made;
}

SemanticNode button(std::vector<SemanticNode> children) {
    SemanticNode made = node(std::move(children));
    made.isControl = true;
    made.activate = [] {};
    return made;
}

SemanticNode radioButton(std::string name, bool isChecked) {
    SemanticNode made = button({visibleText("text inside")});
    made.spoken = {.role = Role::radioButton, .name = std::move(name), .isChecked = isChecked};
    return made;
}

std::vector<std::string> namesOf(const ReadingElement& reading) {
    std::vector<std::string> names;
    for (const ReadingElement* element : elementsOf(reading))
        if (element != &reading) names.push_back(element->name);
    return names;
}

TEST(Reading, IsADialogOfTheScreensName) {
    SemanticNode screen = node({visibleText("inside")});
    screen.spoken.name = "Plans";

    const ReadingElement reading = readingOf(screen);

    EXPECT_EQ(reading.role, Role::dialog);
    EXPECT_EQ(reading.name, "Plans");
    EXPECT_THAT(namesOf(reading), ElementsAre("inside"));
}

TEST(Reading, TellsOfAControlInOnePiece) {
    const ReadingElement reading = readingOf(node({button({visibleText("Yearly"), node({visibleText("$99.99")})})}));

    ASSERT_THAT(reading.children, SizeIs(1));
    EXPECT_EQ(reading.children[0].role, Role::button);
    EXPECT_EQ(reading.children[0].name, "Yearly, $99.99");
    EXPECT_TRUE(reading.children[0].isOperable());
}

// A category that opens: its rows stand inside of what is tapped.
TEST(Reading, TellsOfWhatHasASpokenNameInsideOfAControl) {
    SemanticNode row = node({visibleText("Templates")});
    row.spoken.name = "Templates: not in Free, in Pro";
    SemanticNode category = button({visibleText("Content"), row});
    category.label = "Content";
    category.spoken = {.role = Role::disclosure, .isExpanded = true};

    const ReadingElement reading = readingOf(node({category}));

    EXPECT_THAT(namesOf(reading), ElementsAre("Content", "Templates: not in Free, in Pro"));
    EXPECT_EQ(reading.children[0].isExpanded, true);
    EXPECT_EQ(reading.children[1].role, Role::text);
}

TEST(Reading, CountsTheRadioButtonsOfAGroup) {
    SemanticNode group = node({radioButton("Yearly", false), visibleText("hint"), radioButton("Monthly", true)});
    group.spoken = {.role = Role::radioGroup, .name = "Plans"};

    const ReadingElement reading = readingOf(node({visibleText("before"), group}));

    ASSERT_THAT(reading.children, SizeIs(2));
    const ReadingElement& plans = reading.children[1];
    EXPECT_EQ(plans.name, "Plans");
    ASSERT_THAT(plans.children, SizeIs(3));
    EXPECT_EQ(plans.children[2].position, 2);
    EXPECT_EQ(plans.children[2].count, 2);
    EXPECT_EQ(plans.children[2].isChecked, true);
    EXPECT_EQ(plans.children[1].count, 0);
}

TEST(Reading, TellsEarlierOfWhatIsToComeFirst) {
    SemanticNode bar = node({visibleText("title"), visibleText("Close")});
    bar.spoken.order = -1;

    EXPECT_THAT(namesOf(readingOf(node({visibleText("page"), bar, visibleText("end")}))),
                ElementsAre("title", "Close", "page", "end"));
}

TEST(Reading, LeavesOutWhatIsSilentWordlessTransparentOrOutOfReach) {
    SemanticNode silent = visibleText("silent"), transparent = visibleText("transparent"), away = visibleText("away");
    silent.spoken.isSilent = true;
    transparent.opacity = 0;
    away.isOnScreen = false;
    SemanticNode scrolledAway = away;
    scrolledAway.text->text = "scrolled away";
    scrolledAway.reveal = [] {};

    EXPECT_THAT(namesOf(readingOf(node({silent, node(), transparent, away, scrolledAway}))), ElementsAre("scrolled away"));
}

TEST(Reading, TellsOfAListsItemsWithoutViewsInTheirPlaces) {
    const auto item = [](std::string name) {
        SemanticNode made;
        made.spoken = {.role = Role::group, .name = std::move(name)};
        made.reveal = [] {};
        return made;
    };
    SemanticNode list = node({visibleText("in sight")});
    list.itemsBefore = {item("above")};
    list.itemsAfter = {item("below"), item("further below")};

    const ReadingElement reading = readingOf(node({list}));

    EXPECT_THAT(namesOf(reading), ElementsAre("above", "in sight", "below", "further below"));
    EXPECT_FALSE(reading.children[0].isOnScreen);
    EXPECT_TRUE(reading.children[0].reveal);
}

// A press would jump to the page in the middle.
TEST(Reading, APagerOnlyTurns) {
    SemanticNode pager = button({});
    pager.spoken = {.role = Role::pager, .name = "Features"};
    pager.value = "page 1 of 4";
    pager.adjust = [](int) {};

    const ReadingElement reading = readingOf(node({pager}));

    EXPECT_FALSE(reading.children[0].activate);
    EXPECT_TRUE(reading.children[0].adjust);
    EXPECT_EQ(reading.children[0].value, "page 1 of 4");
}

TEST(Reading, TellsOfADisabledControlWithoutWords) {
    SemanticNode disabled = button({});
    disabled.traits = Traits::disabled;
    disabled.activate = nullptr;

    const ReadingElement reading = readingOf(node({disabled}));

    ASSERT_THAT(reading.children, SizeIs(1));
    EXPECT_TRUE(reading.children[0].isDisabled);
    EXPECT_FALSE(reading.children[0].isOperable());
}

TEST(Reading, OfNothingIsAnEmptyDialog) { EXPECT_THAT(readingOf(SemanticNode{}).children, IsEmpty()); }

} // namespace
} // namespace proupsells::accessibility

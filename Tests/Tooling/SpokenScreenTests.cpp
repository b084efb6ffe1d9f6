#include <gmock/gmock.h>

#include "Tooling/SpokenScreen.hpp"

using namespace proupsells;

using accessibility::ReadingElement;
using accessibility::Role;
using testing::ElementsAre;
using testing::IsEmpty;
using tooling::announcements;
using tooling::spokenLine;

namespace {

ReadingElement element(Role role, std::uint64_t id, std::string name) { return {.role = role, .id = id, .name = std::move(name)}; }

ReadingElement plan(std::uint64_t id, std::string name, bool isChecked) {
    ReadingElement made = element(Role::radioButton, id, std::move(name));
    made.isChecked = isChecked;
    return made;
}

ReadingElement dialog(std::vector<ReadingElement> children) {
    ReadingElement made = element(Role::dialog, 1, "Plans");
    made.children = std::move(children);
    return made;
}

TEST(SpokenLine, SaysRoleNameStateAndPlace) {
    ReadingElement monthly = plan(2, "Monthly", true);
    monthly.position = 2;
    monthly.count = 3;
    monthly.isDisabled = true;

    EXPECT_EQ(spokenLine(monthly), "radio button \"Monthly\", checked, 2 of 3, disabled");
}

TEST(SpokenLine, SaysThePageOfAPagerOnce) {
    ReadingElement pager = element(Role::pager, 2, "Features");
    pager.position = 1;
    pager.count = 4;
    EXPECT_EQ(spokenLine(pager), "pager \"Features\", 1 of 4");

    pager.value = "page 1 of 4";
    EXPECT_EQ(spokenLine(pager), "pager \"Features\", \"page 1 of 4\"");
}

TEST(SpokenLine, IsOneLineWhateverTheNameHolds) { EXPECT_EQ(spokenLine(element(Role::text, 2, "a\nb")), "text \"a\\nb\""); }

TEST(SpokenLines, StandFurtherInThanWhatTheyStandIn) {
    ReadingElement group = element(Role::radioGroup, 2, "Choices");
    group.children = {plan(3, "Monthly", false)};

    EXPECT_THAT(tooling::spokenLines(dialog({group, element(Role::heading, 4, "End")})),
                ElementsAre("dialog \"Plans\"", "  radio group \"Choices\"", "    radio button \"Monthly\", not checked",
                            "  heading \"End\""));
}

TEST(Announcements, SayNothingOfWhatStays) {
    const ReadingElement screen =
        dialog({plan(2, "Monthly", false), element(Role::text, 0, "item"), element(Role::text, 0, "item")});

    EXPECT_THAT(announcements(screen, screen), IsEmpty());
}

TEST(Announcements, SayWhatWasChosen) {
    EXPECT_THAT(announcements(dialog({plan(2, "Yearly", true), plan(3, "Monthly", false)}),
                              dialog({plan(2, "Yearly", false), plan(3, "Monthly", true)})),
                ElementsAre("radio button \"Yearly\": not checked", "radio button \"Monthly\": checked"));
}

TEST(Announcements, SayWhatOpenedAndWhatCameWithIt) {
    ReadingElement closed = element(Role::disclosure, 2, "Tools");
    closed.isExpanded = false;
    ReadingElement open = closed;
    open.isExpanded = true;

    EXPECT_THAT(announcements(dialog({closed}), dialog({open, element(Role::text, 3, "Fonts")})),
                ElementsAre("disclosure \"Tools\": expanded", "new: text \"Fonts\""));
    EXPECT_THAT(announcements(dialog({open, element(Role::text, 3, "Fonts")}), dialog({closed})),
                ElementsAre("gone: text \"Fonts\"", "disclosure \"Tools\": collapsed"));
}

TEST(Announcements, SayThePageAndTheName) {
    ReadingElement first = element(Role::pager, 2, "Features"), second = first;
    first.value = "page 1 of 4";
    second.value = "page 2 of 4";

    EXPECT_THAT(
        announcements(dialog({first, element(Role::button, 3, "Start")}), dialog({second, element(Role::button, 3, "Buy")})),
        ElementsAre("pager \"Features\": \"page 2 of 4\"", "button \"Start\": now \"Buy\""));
}

TEST(Announcements, SayWhatCanBeUsedAgain) {
    ReadingElement disabled = element(Role::button, 2, "Buy");
    disabled.isDisabled = true;

    EXPECT_THAT(announcements(dialog({disabled}), dialog({element(Role::button, 2, "Buy")})),
                ElementsAre("button \"Buy\": enabled"));
}

TEST(Announcements, SayWhereTheFocusWent) {
    ReadingElement focused = element(Role::button, 2, "Buy");
    focused.isFocused = true;
    const ReadingElement without = dialog({element(Role::button, 2, "Buy")}), with = dialog({focused});

    EXPECT_THAT(announcements(without, with), ElementsAre("focus: button \"Buy\""));
    EXPECT_THAT(announcements(with, with), IsEmpty());
    EXPECT_THAT(announcements(with, without), ElementsAre("focus: none"));
}

TEST(Announcements, FollowAnItemThatGetsAView) {
    ReadingElement item = element(Role::group, 0, "Fonts"), shown = element(Role::group, 7, "Fonts");
    item.identifier = shown.identifier = "shelf";

    EXPECT_THAT(announcements(dialog({item}), dialog({shown})), IsEmpty());
}

TEST(Announcements, TellAnotherScreenWhole) {
    ReadingElement other = element(Role::dialog, 9, "Compare");
    other.children = {element(Role::button, 10, "Close")};

    EXPECT_THAT(announcements(dialog({element(Role::text, 2, "a")}), other),
                ElementsAre("screen: dialog \"Compare\"", "  button \"Close\""));
}

} // namespace

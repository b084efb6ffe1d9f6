#include <gmock/gmock.h>

#include "Tooling/ScreenAudit.hpp"

using namespace proupsells;

using accessibility::ReadingElement;
using accessibility::Role;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

ReadingElement control(Role role, std::string identifier, std::string name) {
    ReadingElement made{.role = role, .id = 1, .identifier = std::move(identifier), .name = std::move(name)};
    made.activate = [] {};
    return made;
}

ReadingElement plan(std::string identifier, std::optional<bool> isChecked) {
    ReadingElement made = control(Role::radioButton, identifier, "Plan " + identifier);
    made.isChecked = isChecked;
    return made;
}

ReadingElement group(std::vector<ReadingElement> children) {
    return {.role = Role::radioGroup, .name = "Plans", .children = std::move(children)};
}

// "rule detail".
std::vector<std::string> findings(std::vector<ReadingElement> children) {
    const ReadingElement dialog{.role = Role::dialog, .name = "Choose", .children = std::move(children)};
    std::vector<std::string> lines;
    for (const auto& finding : tooling::audit(dialog, {}))
        lines.push_back(std::string(tooling::nameOf(finding.rule)) + ": " + finding.detail);
    return lines;
}

TEST(ReadingAudit, HasNothingToSayOfAGoodScreen) {
    ReadingElement disabled{.role = Role::button, .id = 1, .identifier = "buy", .name = "Buy", .isDisabled = true};
    ReadingElement tools = control(Role::disclosure, "tools", "Tools");
    tools.isExpanded = false;

    EXPECT_THAT(findings({control(Role::button, "close", "Close"), disabled, tools, group({plan("a", true), plan("b", false)})}),
                IsEmpty());
}

TEST(ReadingAudit, FindsMissingNames) {
    EXPECT_THAT(findings({control(Role::button, "close", "")}), ElementsAre("no name: button close \"\" has no name"));
}

TEST(ReadingAudit, FindsControlsThatSoundTheSame) {
    EXPECT_THAT(findings({control(Role::button, "a", "Choose"), control(Role::button, "b", "Choose")}),
                ElementsAre("doubled name: button b \"Choose\" sounds like a"));
    EXPECT_THAT(findings({control(Role::button, "a", "Choose"), control(Role::link, "b", "Choose")}), IsEmpty());
}

TEST(ReadingAudit, FindsMissingAndDoubledIdentifiers) {
    EXPECT_THAT(findings({control(Role::button, "", "Close")}), ElementsAre("no identifier: button \"Close\" has no identifier"));
    EXPECT_THAT(findings({control(Role::button, "a", "Close"), control(Role::button, "a", "Buy")}),
                ElementsAre("doubled identifier: button a \"Buy\" has the identifier of \"Close\""));
}

TEST(ReadingAudit, FindsRolesThatDoNotMatchWhatAControlDoes) {
    ReadingElement dead{.role = Role::button, .id = 1, .identifier = "buy", .name = "Buy"};
    EXPECT_THAT(findings({control(Role::heading, "title", "Title"), dead}),
                ElementsAre("wrong role: heading title \"Title\" can be pressed",
                            "wrong role: button buy \"Buy\" cannot be pressed, and is not disabled"));
}

TEST(ReadingAudit, FindsStatesThatAreNotTold) {
    EXPECT_THAT(findings({plan("a", std::nullopt)}),
                ElementsAre("wrong state: radio button a \"Plan a\" does not say whether it is checked"));
    EXPECT_THAT(findings({control(Role::disclosure, "t", "T")}),
                ElementsAre("wrong state: disclosure t \"T\" does not say whether it is open"));
    EXPECT_THAT(findings({group({plan("a", true), plan("b", true)})}),
                ElementsAre("wrong state: radio group \"Plans\" has 2 checked radio buttons"));
    ReadingElement pager{.role = Role::pager, .identifier = "p", .name = "Pages"};
    pager.adjust = [](int) {};
    EXPECT_THAT(findings({pager}), ElementsAre("wrong state: pager p \"Pages\" does not say which page of how many is shown"));
}

} // namespace

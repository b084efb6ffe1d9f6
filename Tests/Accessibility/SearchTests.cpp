#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Platform/Accessibility/Search.hpp"

namespace proupsells::accessibility {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

SemanticNode textNode(std::string text) {
    SemanticNode node{.type = "Text"};
    node.text = TextInfo{.text = std::move(text)};
    return node;
}

SemanticNode button(std::string identifier, std::vector<SemanticNode> children, std::string label = {}) {
    return {.type = "Button",
            .identifier = std::move(identifier),
            .label = std::move(label),
            .isControl = true,
            .children = std::move(children)};
}

std::vector<std::string> identifiersOf(const std::vector<const SemanticNode*>& nodes) {
    std::vector<std::string> identifiers;
    for (const SemanticNode* node : nodes) identifiers.push_back(node->identifier);
    return identifiers;
}

const SemanticNode& screen() {
    static const SemanticNode root{
        .type = "Screen",
        .children =
            {
                textNode("Yearly"),
                button("plan.yearly", {textNode("Yearly"), textNode("$99.99")}),
                button("close", {{.type = "Image", .image = "closeIcon"}}),
                button("terms", {textNode("Terms")}, "Terms of Service"),
                {.type = "Row", .children = {button("nested", {button("inner", {textNode("Inner")})})}},
            },
    };
    return root;
}

TEST(Search, FindsByIdentifierAtAnyDepth) {
    ASSERT_NE(findByIdentifier(screen(), "inner"), nullptr);
    EXPECT_EQ(findByIdentifier(screen(), "inner")->type, "Button");
    EXPECT_EQ(findByIdentifier(screen(), "missing"), nullptr);
}

TEST(Search, FindsEveryNodeOfAnIdentifierTypeOrText) {
    EXPECT_THAT(findAllByIdentifier(screen(), "close"), SizeIs(1));
    EXPECT_THAT(findAllByType(screen(), "Button"), SizeIs(5));
    EXPECT_THAT(findAllByText(screen(), "Yearly"), SizeIs(2));
    EXPECT_THAT(findAllByText(screen(), "Year"), IsEmpty());
}

TEST(Search, ListsControlsFromTheOutsideIn) {
    EXPECT_THAT(identifiersOf(controls(screen())), ElementsAre("plan.yearly", "close", "terms", "nested", "inner"));
}

TEST(Search, ListsShownTextsInOrder) {
    EXPECT_THAT(shownTexts(screen()), ElementsAre("Yearly", "Yearly", "$99.99", "Terms", "Inner"));
}

TEST(NameOfANode, IsItsLabelThenItsTextsThenItsImage) {
    EXPECT_EQ(nameOf(*findByIdentifier(screen(), "terms")), "Terms of Service");
    EXPECT_EQ(nameOf(*findByIdentifier(screen(), "plan.yearly")), "Yearly $99.99");
    EXPECT_EQ(nameOf(*findByIdentifier(screen(), "close")), "closeIcon");
    EXPECT_EQ(nameOf(SemanticNode{}), "");
}

TEST(ControlsNamed, AreFoundByLabelByOneOfTheirTextsOrByAll) {
    EXPECT_THAT(identifiersOf(controlsNamed(screen(), "Terms of Service")), ElementsAre("terms"));
    EXPECT_THAT(identifiersOf(controlsNamed(screen(), "Terms")), ElementsAre("terms"));
    EXPECT_THAT(identifiersOf(controlsNamed(screen(), "Yearly")), ElementsAre("plan.yearly"));
    EXPECT_THAT(identifiersOf(controlsNamed(screen(), "Yearly $99.99")), ElementsAre("plan.yearly"));
    EXPECT_THAT(controlsNamed(screen(), "Nothing of the kind"), IsEmpty());
}

TEST(ControlsNamed, AreTheInnermostOnes) { EXPECT_THAT(identifiersOf(controlsNamed(screen(), "Inner")), ElementsAre("inner")); }

TEST(ControlsNamed, AreNotFoundByAnEmptyName) { EXPECT_THAT(controlsNamed(screen(), ""), IsEmpty()); }

} // namespace
} // namespace proupsells::accessibility

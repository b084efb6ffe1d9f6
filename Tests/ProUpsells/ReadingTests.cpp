// The three screens as a person meets them who hears them.
#include <gmock/gmock.h>

#include "Tests/ProUpsells/KeyboardScreen.hpp"

namespace proupsells::tests {
namespace {

using accessibility::ReadingElement;
using accessibility::Role;
using ::testing::Contains;
using ::testing::ElementsAre;

std::string_view wordFor(Role role) {
    switch (role) {
    case Role::dialog: return "dialog";
    case Role::group: return "group";
    case Role::radioGroup: return "radio group";
    case Role::heading: return "heading";
    case Role::image: return "image";
    case Role::button: return "button";
    case Role::link: return "link";
    case Role::radioButton: return "radio button";
    case Role::disclosure: return "disclosure";
    case Role::pager: return "pager";
    default: return "text";
    }
}

// "role: name", with value and states in brackets.
std::string lineOf(const ReadingElement& element) {
    std::string line = std::string(wordFor(element.role)) + ": " + element.name;
    if (!element.value.empty()) line += " [" + element.value + "]";
    if (element.isChecked) line += *element.isChecked ? " [checked]" : " [not checked]";
    if (element.isExpanded) line += *element.isExpanded ? " [expanded]" : " [collapsed]";
    if (element.count > 0) line += " [" + std::to_string(element.position) + " of " + std::to_string(element.count) + "]";
    return line;
}

class Reading : public KeyboardScreen {
protected:
    std::vector<std::string> lines() {
        std::vector<std::string> lines;
        const ReadingElement reading = window->reading();
        for (const ReadingElement* element : accessibility::elementsOf(reading)) lines.push_back(lineOf(*element));
        return lines;
    }
};

TEST_F(Reading, OfThePaywall) {
    entry->setOptions({yearly("$99.99", {.introductoryPeriodLength = "1 week"}), monthly()});
    entry->setAnnualSubscriptionPriceForComparisonWithPromotionalPrice("$119.99");
    bed.settle();

    EXPECT_THAT(lines(),
                ElementsAre("dialog: Choose Your Plan", "button: Close", "text: Endless premium templates, updated daily.",
                            "pager: Pro features [page 1 of 4] [1 of 4]", "heading: Marwick Folio Pro",
                            "button: Compare Plans: Free vs Pro", "radio group: Plans",
                            "radio button: Annually, Save 45%, 7 Day Free Trial, formerly $119.99, $99.99 per year ($8.33/month). "
                            "[checked] [1 of 2]",
                            "radio button: Monthly, $14.99 per month [not checked] [2 of 2]", "button: Start Your Free Trial",
                            "text: Cancel within 7 days, and you won’t be charged. Payment will be made automatically after the "
                            "trial ends.",
                            "button: Terms of Service", "button: Privacy Policy", "button: Restore Purchases"));
}

TEST_F(Reading, OfTheComparison) {
    tap("comparePlans");

    const std::vector<std::string> told = lines();

    EXPECT_THAT(std::vector(told.begin(), told.begin() + 7),
                ElementsAre("dialog: Compare Plans", "button: Close", "heading: Compare Plans", "text: FREE", "text: PRO",
                            "disclosure: Content And Assets [expanded]", "text: Unlimited Stock Images: in Free and in Pro"));
    EXPECT_THAT(told, Contains("text: Premium Templates: not in Free, in Pro"));
    EXPECT_THAT(told, Contains("disclosure: Creation Tools [collapsed]"));
    EXPECT_EQ(told.back(), "button: Choose Your Plan");
}

TEST_F(Reading, OfACategoryThatWasOpened) {
    tap("comparePlans");
    tap("comparison.category.Creation Tools");

    EXPECT_THAT(lines(), Contains("disclosure: Creation Tools [expanded]"));
    EXPECT_THAT(lines(), Contains("text: Remove Background: 3 free, without limit in Pro"));
}

TEST_F(Reading, OfTheStorePageTellsOfEveryShelf) {
    openStore();

    EXPECT_THAT(lines(),
                ElementsAre("dialog: Marwick Folio Pro", "button: Close", "heading: It's never been easier to look professional.",
                            "image: Marwick Folio Pro", "group: Upload brand assets", "heading: Upload brand assets",
                            "text: Add your logos, fonts and color palettes to use within your projects.",
                            "group: Get full access to all templates", "heading: Get full access to all templates",
                            "text: Design on the go with professionally designed templates, updated daily.",
                            "group: Print with PDF export", "group: Speedy layout collections",
                            "group: Create with premium fonts and graphics", "group: Design with editable shapes",
                            "group: Get inspired with videos and images", "button: Choose Your Plan"));
}

TEST_F(Reading, OfTheStorePageTellsOfTheSameShelvesWhereverItIsScrolledTo) {
    openStore();
    const auto groups = [&] {
        std::vector<std::string> groups;
        for (const std::string& line : lines())
            if (line.starts_with("group: ")) groups.push_back(line);
        return groups;
    };
    const std::vector<std::string> atFirst = groups();

    window->key(host::Key::end);
    bed.settle();

    std::vector<std::string> all = groups();
    ASSERT_EQ(all.front(), "group: It's never been easier to look professional."); // out of sight now
    all.erase(all.begin());
    EXPECT_EQ(all, atFirst);
}

TEST_F(Reading, BringsAShelfInSightWhenAsked) {
    openStore();
    const ReadingElement reading = window->reading();
    for (const ReadingElement* element : accessibility::elementsOf(reading))
        if (element->identifier == "store.shelf.ShapesShelf") element->reveal();
    bed.settle();

    EXPECT_THAT(lines(), Contains("heading: Design with editable shapes"));
}

} // namespace
} // namespace proupsells::tests

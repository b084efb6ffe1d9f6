#include "ProUpsells/ComparisonCatalogue.hpp"

#include <cstdlib>
#include <iostream>

#include <gmock/gmock.h>

#include "Tests/ProUpsells/HostTranslations.hpp"
#include "Tests/ProUpsells/StubLocaleServices.hpp"

namespace proupsells::tests {
namespace {

using ::testing::ElementsAre;

std::vector<std::string> described(const FeatureCategory& category) {
    std::vector<std::string> lines;
    for (const Feature& feature : category.items) {
        const auto* limit = feature.distribution.limit();
        const std::string kind = limit ? "limited " + std::to_string(limit->count) : feature.distribution.isFree() ? "free" : "pro";
        lines.push_back(feature.name + ": " + kind);
    }
    return lines;
}

bool smallCapsule(const std::string& freeHeading, const std::string& proHeading) {
    return ComparisonCatalogue::requiresSmallCapsule(freeHeading, [&] { return proHeading; });
}

TEST(ComparisonCatalogue, HasFourCategoriesOfWhichTheFirstIsOpen) {
    std::vector<std::string> names;
    std::vector<std::size_t> counts;
    std::vector<bool> open;
    for (const FeatureCategory& category : ComparisonCatalogue::categories()) {
        names.push_back(category.name);
        counts.push_back(category.items.size());
        open.push_back(category.expanded);
    }

    EXPECT_THAT(names, ElementsAre("Content And Assets", "Creation Tools", "Business Growth Tools", "Automation (AI Features)"));
    EXPECT_THAT(counts, ElementsAre(7, 6, 5, 2));
    EXPECT_THAT(open, ElementsAre(true, false, false, false));
}

TEST(ComparisonCatalogue, ListsItsFeatures) {
    EXPECT_THAT(described(ComparisonCatalogue::contentAndAssets()),
                ElementsAre("Unlimited Stock Images: free", "Premium Templates: pro", "Unlimited Fonts Library: pro",
                            "Upload Custom Fonts: pro", "Unlimited Graphics Library: pro", "Unlimited Stock Videos: pro",
                            "Layout Collections: pro"));
    EXPECT_THAT(described(ComparisonCatalogue::creationTools()),
                ElementsAre("Video Creation: free", "Remove Background: limited 3", "Image Filters: pro", "Shape Picker: pro",
                            "Upload Custom Logo: pro", "Custom Color Palette: pro"));
    EXPECT_THAT(described(ComparisonCatalogue::businessGrowthTools()),
                ElementsAre("Search and Purchase Domains: free", "Manage Domains: free", "Create a Website: free",
                            "Manage Websites: free", "Take Payments using Pay Links: free"));
    EXPECT_THAT(described(ComparisonCatalogue::automation()), ElementsAre("Logo Generation: free", "Video Generation: free"));
}

// The catalogue's names and first features, and its headings, on standard error.
void printCatalogue() {
    for (const FeatureCategory& category : ComparisonCatalogue::categories())
        std::cerr << category.name << " (" << category.items.front().name << ") ";
    std::cerr << ComparisonCatalogue::freeHeading() << ' ' << ComparisonCatalogue::proHeading() << '\n';
}

// In a program of its own, in which nothing has been used yet.
TEST(ComparisonCatalogueDeathTest, KeepsTheLanguageOfItsFirstUse) {
    ::testing::FLAGS_gtest_death_test_style = "threadsafe";
    const auto useInGermanAndThenInEnglish = [] {
        {
            const HostTranslations german{{{"Content And Assets", "Inhalte"},
                                           {"Creation Tools", "Werkzeuge"},
                                           {"Business Growth Tools", "Wachstum"},
                                           {"Automation (AI Features)", "Automatik"},
                                           {"Unlimited Stock Images", "Bilder"},
                                           {"Video Creation", "Filme"},
                                           {"Search and Purchase Domains", "Domains"},
                                           {"Logo Generation", "Logos"},
                                           {"Free", "Gratis"},
                                           {"Pro", "Profi"}},
                                          "de"};
            printCatalogue();
        }
        printCatalogue();
        std::exit(0);
    };

    const std::string german =
        "Inhalte \\(Bilder\\) Werkzeuge \\(Filme\\) Wachstum \\(Domains\\) Automatik \\(Logos\\) GRATIS PROFI\n";
    EXPECT_EXIT(useInGermanAndThenInEnglish(), ::testing::ExitedWithCode(0), german + german);
}

TEST(ComparisonCatalogue, IsBuiltOnce) {
    EXPECT_EQ(&ComparisonCatalogue::contentAndAssets(), &ComparisonCatalogue::contentAndAssets());
    EXPECT_EQ(&ComparisonCatalogue::creationTools(), &ComparisonCatalogue::creationTools());
    EXPECT_EQ(&ComparisonCatalogue::businessGrowthTools(), &ComparisonCatalogue::businessGrowthTools());
    EXPECT_EQ(&ComparisonCatalogue::automation(), &ComparisonCatalogue::automation());
    EXPECT_EQ(&ComparisonCatalogue::freeHeading(), &ComparisonCatalogue::freeHeading());
    EXPECT_EQ(&ComparisonCatalogue::proHeading(), &ComparisonCatalogue::proHeading());
}

TEST(ComparisonCatalogue, HasUpperCaseHeadings) {
    EXPECT_EQ(ComparisonCatalogue::freeHeading(), "FREE");
    EXPECT_EQ(ComparisonCatalogue::proHeading(), "PRO");
    EXPECT_FALSE(ComparisonCatalogue::requiresSmallCapsule());
}

TEST(ComparisonCatalogue, TakesSmallCapsulesForLongHeadings) {
    EXPECT_TRUE(smallCapsule("GRATIS", "PRO"));
    EXPECT_FALSE(smallCapsule("LIBRE", "PROOO"));
    EXPECT_TRUE(smallCapsule("LIBRE", "PROFES"));
}

TEST(ComparisonCatalogue, CountsWhatAPersonSeesAsCharacters) {
    StubLocaleServices services;
    services.setBytesPerCharacter(3);

    EXPECT_FALSE(smallCapsule(std::string(15, 'x'), "PRO"));
    EXPECT_TRUE(smallCapsule(std::string(18, 'x'), "PRO"));
}

TEST(ComparisonCatalogue, AsksForTheProHeadingOnlyWhenTheFreeOneIsShort) {
    int questions = 0;
    const auto pro = [&] {
        ++questions;
        return std::string("PRO");
    };

    EXPECT_TRUE(ComparisonCatalogue::requiresSmallCapsule("KOSTENLOS", pro));
    EXPECT_EQ(questions, 0);
    EXPECT_FALSE(ComparisonCatalogue::requiresSmallCapsule("FREE", pro));
    EXPECT_EQ(questions, 1);
}

TEST(ComparisonCatalogue, CountsFreeUses) {
    EXPECT_EQ(ComparisonCatalogue::freeUsageText(3), "3 free");
    HostTranslations host{{{"%@ free", "%@ gratis"}}, "de"};
    EXPECT_EQ(ComparisonCatalogue::freeUsageText(1200), "1200 gratis");
}

} // namespace
} // namespace proupsells::tests

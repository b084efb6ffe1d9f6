// What becomes of the screens where a person wants larger or smaller texts.
#include <gmock/gmock.h>

#include "ProUpsells/ComparisonView.hpp"
#include "Tests/ProUpsells/HostTranslations.hpp"
#include "Tests/ProUpsells/Paywall.hpp"
#include "Tests/ProUpsells/StoreScreen.hpp"

namespace proupsells::tests {
namespace {

using accessibility::SemanticNode;
using geometry::Rect;
using geometry::Size;
using graphics::ContentSizeCategory;

constexpr auto largest = ContentSizeCategory::accessibilityExtraExtraExtraLarge;

uikit::UITraitCollection traitsWith(ContentSizeCategory category) {
    uikit::UITraitCollection traits;
    traits.preferredContentSizeCategory = category;
    return traits;
}

double sizeOf(const SemanticNode& tree, std::string_view text) {
    const auto found = allWhere(tree, [&](const SemanticNode& node) { return node.text && node.text->text.starts_with(text); });
    if (found.empty()) ADD_FAILURE() << text << " is not there";
    return found.empty() ? 0 : found.front().text->size;
}

class EveryTextSize : public ::testing::TestWithParam<int> {
protected:
    uikit::UITraitCollection traits() const { return traitsWith(ContentSizeCategory(GetParam())); }
};

TEST_P(EveryTextSize, KeepsTheOrderOfThePaywallsTexts) {
    const SemanticNode tree = Paywall({yearly(), monthly()}, {744, 1133}, {.traits = traits()}).tree();
    const double plan = sizeOf(tree, "Annually"), button = sizeOf(tree, "Subscribe");

    EXPECT_LE(sizeOf(tree, "Compare Plans"), std::min(plan, button));
    EXPECT_LE(sizeOf(tree, "Terms of Service"), std::min(plan, button));
    EXPECT_LE(sizeOf(tree, "Save 45%. Payment"), sizeOf(tree, "Terms of Service"));
}

TEST_P(EveryTextSize, ShowsNothingSmallerThanElevenPoints) {
    const auto expectLegible = [](const SemanticNode& tree) {
        visit(tree, [](const SemanticNode& node) {
            if (!node.text || node.text->text.empty()) return;
            const bool isBadge = node.text->text == "Save 45%";
            EXPECT_GE(node.text->size, isBadge ? 10 : 11) << node.text->text;
        });
    };

    expectLegible(
        Paywall({yearly("$99.99", {.introductoryPeriodLength = "1 week"}), monthly()}, {320, 568}, {.traits = traits()}).tree());
    expectLegible(Screen(ComparisonView{}, {320, 568}, {.traits = traits()}).tree());
}

INSTANTIATE_TEST_SUITE_P(Sizes, EveryTextSize, ::testing::Range(0, graphics::contentSizeCategoryCount));

TEST(LargeText, MakesRoomForNamesAboveTheComparisonsColumns) {
    const Screen comparison(ComparisonView{}, {375, 1400}, {.traits = traitsWith(largest)});
    const SemanticNode row = firstOfType(comparison.tree(), "FeatureChildRow");
    const SemanticNode name = firstOfType(row, "Text");

    EXPECT_NEAR(name.text->size, 15 * graphics::scaleFactor(ContentSizeCategory::accessibilityExtraLarge), 1e-9);
    for (const SemanticNode& mark : allOfType(row, "Image")) {
        EXPECT_GE(mark.frame.minY(), name.frame.maxY());
        EXPECT_GT(mark.frame.minX(), 200);
    }
}

bool isHeaderInTheList(const Screen& comparison) {
    const SemanticNode list = firstOfType(comparison.tree(), "ScrollView");
    return !allWhere(list, [](const SemanticNode& node) { return node.text && node.text->text == "Compare Plans"; }).empty();
}

TEST(LargeText, LetsTheComparisonsHeaderScrollAwayWhereItIsInTheWay) {
    EXPECT_FALSE(isHeaderInTheList(Screen(ComparisonView{}, {375, 667})));
    EXPECT_FALSE(isHeaderInTheList(Screen(ComparisonView{}, {667, 299})));
    EXPECT_TRUE(isHeaderInTheList(Screen(ComparisonView{}, {568, 244})));
    EXPECT_TRUE(isHeaderInTheList(Screen(ComparisonView{}, {375, 667}, {.traits = traitsWith(largest)})));
    EXPECT_TRUE(
        isHeaderInTheList(Screen(ComparisonView{}, {375, 667}, {.traits = traitsWith(ContentSizeCategory::accessibilityMedium)})));
    EXPECT_FALSE(
        isHeaderInTheList(Screen(ComparisonView{}, {375, 667}, {.traits = traitsWith(ContentSizeCategory::extraExtraExtraLarge)})));
}

TEST(LargeText, StandsAboveTheComparisonsColumnsFromAccessibilitySizesOn) {
    for (const auto& [category, isAbove] :
         {std::pair(ContentSizeCategory::extraExtraExtraLarge, false), std::pair(ContentSizeCategory::accessibilityMedium, true)}) {
        const Screen comparison(ComparisonView{}, {744, 1133}, {.traits = traitsWith(category)});
        const Rect title =
            allWhere(comparison.tree(), [](const SemanticNode& node) { return node.text && node.text->text == "Compare Plans"; })
                .front()
                .frame;

        EXPECT_EQ(title.maxY() <= comparison.frameOfType("ComparisonColumnCapsule").minY(), isAbove);
    }
}

// A title that is one word, 150 points wide at most: set in 14.4 points or the next larger step, whatever the text size.
TEST(LargeText, LetsTheComparisonsTitleShrinkToSixTenthsOfItsUsualSize) {
    struct Case {
        ContentSizeCategory category;
        std::string title;
        double size;
    };
    for (const Case& shown :
         {Case{ContentSizeCategory::large, std::string(20, 'x'), 14.4}, Case{ContentSizeCategory::large, std::string(21, 'x'), 24},
          Case{ContentSizeCategory::extraLarge, std::string(19, 'x'), 24 * 19 / 17.0 * 0.55}}) {
        const HostTranslations translations({{"Compare Plans", shown.title}});
        const Screen comparison(ComparisonView{}, {320, 568}, {.traits = traitsWith(shown.category)});

        EXPECT_NEAR(sizeOf(comparison.tree(), shown.title), shown.size, 1e-9) << shown.title.size();
    }
}

class LargeTextStore : public StoreTest {
protected:
    std::shared_ptr<VelaProStorePageViewController> showPageWith(ContentSizeCategory category) {
        window->setTraits(traitsWith(category));
        return showPage();
    }
};

TEST_F(LargeTextStore, GrowsWithEveryTextSize) {
    const auto page = showPageWith(largest);

    EXPECT_GT(sizeOf(tree(), "It's never been easier"), 26);
    EXPECT_GT(sizeOf(tree(), "Upload brand assets"), 22);
    EXPECT_GT(sizeOf(tree(), "Choose Your Plan"), 18);
    scrollTo(*page, 300);
    EXPECT_NEAR(sizeOf(tree(), "Add your logos"), 16 * graphics::scaleFactor(ContentSizeCategory::accessibilityExtraLarge), 8);
}

// The next shelf begins below the texts of the one before.
TEST_F(LargeTextStore, GivesShelvesTheRoomThatTheirTextsNeed) {
    const auto page = showPageWith(largest);

    for (std::size_t section = 0; section < page->shelves().size(); ++section) {
        scrollTo(*page, page->collectionView()->frameForItem({section, 0}).minY());
        const std::string shelf = "store.shelf." + std::string(page->shelves()[section]->className());
        const Rect cell = frame(shelf);
        visit(find(shelf), [&](const SemanticNode& node) {
            if (!node.text || node.text->text.empty()) return;
            EXPECT_LE(node.frame.maxY(), cell.maxY() + 1e-6) << node.text->text;
            EXPECT_FALSE(node.text->isTruncated) << node.text->text;
        });
    }
}

TEST_F(LargeTextStore, FollowsAChangeOfTheTextSize) {
    const auto page = showPageWith(ContentSizeCategory::large);
    const Rect before = frame("store.shelf.BrandAssetsShelf");
    const double headlineBefore = sizeOf(tree(), "It's never been easier");

    window->setTraits(traitsWith(largest));
    bed.settle();
    EXPECT_GT(frame("store.shelf.BrandAssetsShelf").height(), before.height());

    window->setTraits(traitsWith(ContentSizeCategory::large));
    bed.settle();
    EXPECT_EQ(frame("store.shelf.BrandAssetsShelf"), before);
    EXPECT_EQ(sizeOf(tree(), "It's never been easier"), headlineBefore);
}

} // namespace
} // namespace proupsells::tests

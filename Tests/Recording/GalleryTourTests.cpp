// The moments of a gallery: what stands on the screen when each is pictured.
#include <gmock/gmock.h>

#include <map>

#include <nlohmann/json.hpp>

#include "Apps/ProUpsellsHost/GalleryTour.hpp"
#include "Platform/Accessibility/Search.hpp"
#include "Tests/Recording/RecordedSession.hpp"

namespace proupsells::hostprogram {

using accessibility::SemanticNode;

namespace {

using Trees = std::map<std::string, SemanticNode>;

Trees momentsOf(StartScreen screen, geometry::Size size) {
    const Json json = Json::parse(tests::sampleOffersText());
    GalleryTour tour(screen, readOffers(JsonCursor{json, "offers"}), {.size = size, .fonts = FontChoice::fixed});
    Trees trees;
    tour.run([&](const std::string& moment, uikit::UIWindow& window) { trees[moment] = window.semanticTree(); });
    return trees;
}

// The first node of which this is true, from the outside.
template <class Predicate>
const SemanticNode* firstWhere(const SemanticNode& node, const Predicate& isWanted) {
    if (isWanted(node)) return &node;
    for (const SemanticNode& child : node.children)
        if (const SemanticNode* found = firstWhere(child, isWanted)) return found;
    return nullptr;
}

double leftOf(const SemanticNode& tree, const std::string& image) {
    const SemanticNode* const node = firstWhere(tree, [&](const SemanticNode& each) { return each.image == image; });
    return node ? node->frame.minX() : -1e9;
}

const SemanticNode& control(const SemanticNode& tree, const std::string& identifier) {
    static const SemanticNode none;
    const SemanticNode* const found = accessibility::findByIdentifier(tree, identifier);
    EXPECT_TRUE(found) << identifier;
    return found ? *found : none;
}

bool isSelected(const SemanticNode& tree, const std::string& identifier) {
    return accessibility::contains(control(tree, identifier).traits, accessibility::Traits::selected);
}

bool isOpen(const SemanticNode& tree, const std::string& category) {
    return firstWhere(control(tree, "comparison.category." + category),
                      [](const SemanticNode& node) { return node.type == "FeatureChildRow"; });
}

const char* const categoryNames[] = {"Content And Assets", "Creation Tools", "Business Growth Tools", "Automation (AI Features)"};

} // namespace

TEST(MomentsOfThePaywall, HaveEachPageAtRest) {
    const Trees trees = momentsOf(StartScreen::paywall, {320, 568});

    for (const int page : {1, 2, 3, 4}) {
        const std::string number = std::to_string(page);
        const SemanticNode& tree = trees.at("page " + number);
        EXPECT_EQ(control(tree, "carousel.pageControl").value, "page " + number + " of 4");
        const std::string image = std::string("paywallHeader") + "ABCD"[page - 1];
        EXPECT_EQ(leftOf(tree, image), leftOf(trees.at("page 1"), "paywallHeaderA")) << page;
        const SemanticNode* const title =
            firstWhere(tree, [](const SemanticNode& node) { return node.text && node.text->font == "headline"; });
        ASSERT_TRUE(title);
        EXPECT_EQ(title->opacity, 1) << page;
    }
}

TEST(MomentsOfThePaywall, HaveTheHeaderHalfWayToItsSecondPage) {
    const Trees trees = momentsOf(StartScreen::paywall, {320, 568});
    const SemanticNode& turning = trees.at("turning");

    const double moved = leftOf(trees.at("page 1"), "paywallHeaderA") - leftOf(turning, "paywallHeaderA");
    EXPECT_GT(moved, 0.4 * 320);
    EXPECT_LT(moved, 0.75 * 320);
    EXPECT_EQ(leftOf(turning, "paywallHeaderB") - leftOf(turning, "paywallHeaderA"), 320);
}

TEST(MomentsOfThePaywall, HaveEachPlanChosenOnceAndTheFirstOneInAllOthers) {
    for (const auto& [moment, tree] : momentsOf(StartScreen::paywall, {375, 800})) {
        EXPECT_EQ(isSelected(tree, "plan.pro.monthly"), moment == "plan pro.monthly") << moment;
        EXPECT_EQ(isSelected(tree, "plan.pro.yearly"), moment != "plan pro.monthly") << moment;
    }
}

TEST(MomentsOfThePaywall, HaveAllThatIsFurtherDown) {
    const Trees trees = momentsOf(StartScreen::paywall, {320, 568});

    EXPECT_FALSE(control(trees.at("page 1"), "restorePurchases").isOnScreen);
    EXPECT_TRUE(control(trees.at("end"), "restorePurchases").isOnScreen);
    EXPECT_LT(control(trees.at("further down"), "subscribe").frame.minY(), control(trees.at("page 1"), "subscribe").frame.minY());
    EXPECT_FALSE(momentsOf(StartScreen::paywall, {375, 1400}).contains("further down"));
}

TEST(MomentsOfTheComparison, HaveAllCategoriesOpenAndAllClosed) {
    const Trees trees = momentsOf(StartScreen::comparison, {375, 2000});

    for (const char* const category : categoryNames) {
        EXPECT_TRUE(isOpen(trees.at("all open"), category)) << category;
        EXPECT_FALSE(isOpen(trees.at("all closed"), category)) << category;
        EXPECT_EQ(isOpen(trees.at("at first"), category), std::string_view(category) == "Content And Assets") << category;
    }
}

TEST(MomentsOfTheComparison, HaveTheFirstCategoryHalfOpen) {
    const Trees trees = momentsOf(StartScreen::comparison, {375, 800});

    const SemanticNode* const row =
        firstWhere(trees.at("opening"), [](const SemanticNode& node) { return node.type == "FeatureChildRow"; });
    ASSERT_TRUE(row);
    EXPECT_GT(row->opacity, 0.2);
    EXPECT_LT(row->opacity, 0.6);
}

TEST(MomentsOfTheComparison, HaveEachCategoryInSight) {
    const Trees trees = momentsOf(StartScreen::comparison, {375, 500});

    for (const char* const category : categoryNames) {
        const auto& tree = trees.at("category " + std::string(category));
        EXPECT_TRUE(control(tree, "comparison.category." + std::string(category)).isOnScreen) << category;
    }
}

TEST(MomentsOfTheStorePage, HaveStripsThatHaveDriftedFourSeconds) {
    const Trees trees = momentsOf(StartScreen::store, {375, 3200});
    const auto offset = [&](const char* moment) {
        return control(trees.at(moment), "store.strip.ShapesShelf.0").scroll->contentOffset.x;
    };

    EXPECT_NEAR(offset("drifting") - offset("at first"), 200, 1e-6);
}

TEST(MomentsOfTheStorePage, HaveEachShelfInSight) {
    const Trees trees = momentsOf(StartScreen::store, {375, 800});

    int shelves = 0;
    for (const auto& [moment, tree] : trees) {
        if (!moment.starts_with("shelf ")) continue;
        ++shelves;
        EXPECT_TRUE(control(tree, "store.shelf." + moment.substr(6)).isOnScreen) << moment;
    }
    EXPECT_EQ(shelves, 9); // with the one for synchronisation, as the offers have it
}

} // namespace proupsells::hostprogram

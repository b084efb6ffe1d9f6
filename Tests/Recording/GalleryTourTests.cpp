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

Trees momentsOf(StartScreen screen, geometry::Size size, const std::string& offersText = tests::sampleOffersText()) {
    const Json json = Json::parse(offersText);
    GalleryTour tour(screen, readOffers(JsonCursor{json, "offers"}), {.size = size, .fonts = FontChoice::fixed});
    Trees trees;
    tour.run([&](const std::string& moment, uikit::UIWindow& window) { trees[moment] = window.semanticTree(); });
    return trees;
}

// When each moment is pictured, on the tour's clock.
std::map<std::string, double> timesOf(StartScreen screen, geometry::Size size) {
    const Json json = Json::parse(tests::sampleOffersText());
    GalleryTour tour(screen, readOffers(JsonCursor{json, "offers"}), {.size = size, .fonts = FontChoice::fixed});
    std::map<std::string, double> times_s;
    tour.run([&](const std::string& moment, uikit::UIWindow&) { times_s[moment] = runloop::MainRunLoop::main().now_s(); });
    return times_s;
}

// The first node of which this is true, from the outside.
template <class Predicate>
const SemanticNode* firstWhere(const SemanticNode& node, const Predicate& isWanted) {
    if (isWanted(node)) return &node;
    for (const SemanticNode& child : node.children)
        if (const SemanticNode* found = firstWhere(child, isWanted)) return found;
    return nullptr;
}

template <class Use>
void forEachCircle(const SemanticNode& node, const Use& use) {
    if (node.type == "Circle") use(node);
    for (const SemanticNode& child : node.children) forEachCircle(child, use);
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

// Indicators have faded, and titles have come. Pictures of strips that drift are held against those of earlier versions.
TEST(MomentsOfEachScreen, ComeASecondAfterWhatLeadsToThemAndTwoAfterAPage) {
    constexpr double precision_s = 1e-6;
    const auto expectBetween = [](const std::map<std::string, double>& times_s, const char* before, const char* after,
                                  double duration_s) {
        EXPECT_NEAR(times_s.at(after) - times_s.at(before), duration_s, precision_s) << before << ", " << after;
    };

    const auto paywall = timesOf(StartScreen::paywall, {320, 240});
    EXPECT_NEAR(paywall.at("page 1"), 0.5 + 1, precision_s);
    expectBetween(paywall, "page 1", "plan pro.monthly", 1);
    expectBetween(paywall, "turning", "page 2", 2);
    expectBetween(paywall, "page 2", "page 3", 2);
    expectBetween(paywall, "page 3", "page 4", 2);
    expectBetween(paywall, "page 4", "further down", 1);
    expectBetween(paywall, "further down", "further down 2", 1);

    const auto comparison = timesOf(StartScreen::comparison, {375, 300});
    expectBetween(comparison, "at first", "all open", 3);
    expectBetween(comparison, "all open", "category Content And Assets", 1);
    expectBetween(comparison, "category Content And Assets", "category Content And Assets 2", 1);

    const auto store = timesOf(StartScreen::store, {375, 800});
    expectBetween(store, "at first", "drifting", 4);
    expectBetween(store, "drifting", "shelf ProIntroHeaderViewShelf", 1);
    expectBetween(store, "shelf ProIntroHeaderViewShelf", "shelf BrandAssetsShelf", 1);
    expectBetween(store, "shelf VideoImageLibrariesShelf", "end", 1);
}

TEST(MomentsOfThePaywall, HaveAllThatIsFurtherDown) {
    const Trees trees = momentsOf(StartScreen::paywall, {320, 568});

    EXPECT_FALSE(control(trees.at("page 1"), "restorePurchases").isOnScreen);
    EXPECT_TRUE(control(trees.at("end"), "restorePurchases").isOnScreen);
    EXPECT_LT(control(trees.at("further down"), "subscribe").frame.minY(), control(trees.at("page 1"), "subscribe").frame.minY());
    EXPECT_FALSE(momentsOf(StartScreen::paywall, {375, 1400}).contains("further down"));
}

// The header turns by itself after some seconds, but for a pointer that rests on it.
TEST(MomentsOfThePaywall, HaveTheFirstPageHoweverManyPlansThereAre) {
    Json offers{{"options", Json::array()}};
    for (int plan = 1; plan <= 9; ++plan)
        offers["options"].push_back({{"SKU", std::to_string(plan)}, {"type", "monthly"}, {"price", "$" + std::to_string(plan)}});

    int count = 0;
    for (const auto& [moment, tree] : momentsOf(StartScreen::paywall, {375, 800}, offers.dump())) {
        if (!moment.starts_with("plan ")) continue;
        ++count;
        EXPECT_EQ(control(tree, "carousel.pageControl").value, "page 1 of 4") << moment;
        for (int plan = 1; plan <= 9; ++plan)
            EXPECT_EQ(isSelected(tree, "plan." + std::to_string(plan)), moment == "plan " + std::to_string(plan)) << moment;
    }
    EXPECT_EQ(count, 8);
}

TEST(MomentsOfThePaywall, HavePlansThatHaveBeenChosenForAWhile) {
    const Trees trees = momentsOf(StartScreen::paywall, {375, 800});
    const auto circlesOf = [&](const char* moment, const char* plan) {
        std::vector<std::string> circles;
        forEachCircle(control(trees.at(moment), plan), [&](const SemanticNode& circle) {
            circles.push_back(std::to_string(circle.opacity) + " " + std::to_string(circle.scale.value_or(1)));
        });
        return circles;
    };

    const auto chosen = circlesOf("page 1", "plan.pro.yearly"), others = circlesOf("page 1", "plan.pro.monthly");
    ASSERT_NE(chosen, others);
    EXPECT_EQ(circlesOf("plan pro.monthly", "plan.pro.monthly"), chosen);
    EXPECT_EQ(circlesOf("plan pro.monthly", "plan.pro.yearly"), others);
    EXPECT_EQ(circlesOf("turning", "plan.pro.yearly"), chosen);
    EXPECT_EQ(circlesOf("turning", "plan.pro.monthly"), others);
}

TEST(MomentsOfThePaywall, HaveAllPartsOfWhatIsFurtherDownWithoutTurningThePage) {
    const Trees trees = momentsOf(StartScreen::paywall, {320, 240});

    ASSERT_TRUE(trees.contains("further down") && trees.contains("further down 2") && trees.contains("further down 3"));
    EXPECT_FALSE(trees.contains("further down 1") || trees.contains("further down 0"));
    EXPECT_LT(control(trees.at("further down 2"), "subscribe").frame.minY(),
              control(trees.at("further down"), "subscribe").frame.minY());
    for (const auto& [moment, tree] : trees) {
        if (!moment.starts_with("further down")) continue;
        EXPECT_NEAR(leftOf(tree, "paywallHeaderD"), leftOf(trees.at("page 4"), "paywallHeaderD"), 20) << moment;
    }
}

TEST(MomentsOfTheComparison, BeginAgainAtTheTopOnceAllIsClosed) {
    const Trees trees = momentsOf(StartScreen::comparison, {375, 260});

    const std::string first = "comparison.category.Content And Assets";
    EXPECT_EQ(control(trees.at("all closed"), first).frame.minY(), control(trees.at("at first"), first).frame.minY());
    EXPECT_LT(control(trees.at("end"), first).frame.minY(), control(trees.at("at first"), first).frame.minY());
}

// What is higher than the window: by six tenths of it, until its end stands above the lowest fifth.
TEST(MomentsOfTheComparison, HaveTheRestOfWhatIsHigherThanTheWindow) {
    constexpr double height = 300, step = 0.6 * height, lowest = 0.8 * height;
    const Trees trees = momentsOf(StartScreen::comparison, {375, height});
    const std::string category = "category Content And Assets";
    const auto frameAt = [&](const std::string& moment) {
        return control(trees.at(moment), "comparison.category.Content And Assets").frame;
    };

    ASSERT_TRUE(trees.contains(category + " 2"));
    geometry::Rect frame = frameAt(category);
    int part = 2;
    for (; trees.contains(category + " " + std::to_string(part)); ++part) {
        const geometry::Rect next = frameAt(category + " " + std::to_string(part));
        EXPECT_NEAR(next.minY(), frame.minY() - std::min(step, frame.maxY() - lowest), 1e-6) << part;
        frame = next;
    }
    EXPECT_GE(part, 4);
    EXPECT_NEAR(frame.maxY(), lowest, 1e-6);
    EXPECT_FALSE(momentsOf(StartScreen::comparison, {375, 2000}).contains(category + " 2"));
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

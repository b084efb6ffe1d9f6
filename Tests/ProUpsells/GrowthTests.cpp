// A scrolled frame costs what is in sight, however much there is besides.
#include "ProUpsells/ComparisonView.hpp"
#include "Tests/ProUpsells/Paywall.hpp"
#include "Tests/ProUpsells/StoreScreen.hpp"
#include "Tests/Support/Sanitizers.hpp"
#include "Tests/Support/UsedMemory.hpp"

namespace proupsells::tests {
namespace {

using geometry::Size;
using Type = SubscriptionOption::SubscriptionType;

struct FrameCost {
    std::uint64_t viewsLookedAt = 0;
    std::size_t commands = 0;
    std::size_t shapings = 0;
};

// Of a frame after a scroll that shows nothing but items.
FrameCost scrolledFrame(Screen& screen) {
    auto& controller = dynamic_cast<hosting::UIHostingController&>(*screen.window().rootViewController());
    graphics::DisplayList list;
    screen.window().scroll({180, 400}, {0, 450});
    screen.settle();
    screen.window().paint(list);
    const std::uint64_t viewsBefore = controller.host().paintVisitCount();
    const std::size_t shapingsBefore = screen.bed().fixedTextShaper()->shapeCount();

    screen.window().scroll({180, 400}, {0, 20});
    screen.settle();
    screen.window().paint(list);

    return {controller.host().paintVisitCount() - viewsBefore, list.commands.size(),
            screen.bed().fixedTextShaper()->shapeCount() - shapingsBefore};
}

void expectNoMore(const FrameCost& many, const FrameCost& few) {
    EXPECT_LE(many.viewsLookedAt, few.viewsLookedAt);
    EXPECT_EQ(many.commands, few.commands);
    EXPECT_EQ(many.shapings, 0u);
}

std::vector<SubscriptionOption> monthlyPlans(int count) {
    std::vector<SubscriptionOption> plans;
    for (int number = 0; number < count; ++number)
        plans.push_back({"plan." + std::to_string(number),
                         Type{Type::Monthly{"$" + std::to_string(1000 + number), std::nullopt, std::nullopt}}, false});
    return plans;
}

ComparisonView comparisonOf(int featureCount) {
    std::vector<Feature> features;
    for (int number = 0; number < featureCount; ++number)
        features.push_back({"Feature " + std::to_string(1000 + number), {Feature::DistributionType::Free{}}});
    return {.items = std::make_shared<const std::vector<FeatureCategory>>(
                std::vector<FeatureCategory>{{.name = "Everything", .expanded = true, .items = std::move(features)}})};
}

FrameCost scrolledFrameOfPaywall(int planCount) {
    Paywall paywall(monthlyPlans(planCount));
    return scrolledFrame(paywall);
}

FrameCost scrolledFrameOfComparison(int featureCount) {
    Screen comparison(comparisonOf(featureCount), Size{375, 800});
    return scrolledFrame(comparison);
}

std::size_t shapingsOfPaywall(int planCount) {
    Paywall paywall(monthlyPlans(planCount));
    return paywall.bed().fixedTextShaper()->shapeCount();
}

TEST(GrowingPaywall, AScrolledFrameCostsTheSameWithTenPlansAndAThousand) {
    expectNoMore(scrolledFrameOfPaywall(1000), scrolledFrameOfPaywall(10));
}

// More texts than the shared cache of shaped texts keeps.
TEST(GrowingPaywall, EachPlanAddsOneTextToShape) { EXPECT_EQ(shapingsOfPaywall(2010) - shapingsOfPaywall(10), 2000u); }

std::size_t memoryOfPaywall_bytes(int planCount) {
    const std::size_t before = usedMemory_bytes();
    const Paywall paywall(monthlyPlans(planCount));
    return usedMemory_bytes() - before;
}

TEST(GrowingPaywall, EachPlanTakesThirtyTwoKilobytesAtMost) {
    if (isSanitized) GTEST_SKIP() << "sanitizers put memory around everything";
    memoryOfPaywall_bytes(10); // what is made once

    EXPECT_LE((memoryOfPaywall_bytes(1010) - memoryOfPaywall_bytes(10)) / 1000, 32u * 1024);
}

TEST(GrowingComparison, AScrolledFrameCostsTheSameWithThirtyFeaturesAndTwoThousand) {
    expectNoMore(scrolledFrameOfComparison(2000), scrolledFrameOfComparison(30));
}

class CountingShelf : public VelaProStorePageShelf {
public:
    explicit CountingShelf(int& questions) : m_questions(questions) {}

    std::string_view className() const override { return "CountingShelf"; }
    std::shared_ptr<uikit::UIViewController> viewController() override { return m_controller; }
    double preferredShelfHeight() const override {
        ++m_questions;
        return 250;
    }
    geometry::PhysicalInsets preferredSectionInset() const override { return {}; }
    std::string footerTitle() const override { return {}; }
    std::string footerSubTitle() const override { return {}; }

private:
    int& m_questions;
    std::shared_ptr<uikit::UIViewController> m_controller = std::make_shared<uikit::UIViewController>();
};

class GrowingStorePage : public StoreTest {
protected:
    std::shared_ptr<VelaProStorePageViewController> showPage(int shelfCount) {
        VelaProStorePageViewController::Shelves shelves;
        for (int shelf = 0; shelf < shelfCount; ++shelf) shelves.push_back(std::make_shared<CountingShelf>(questions));
        auto page = std::make_shared<VelaProStorePageViewController>(std::move(shelves), Referrer{"Home"}, Entitlement::velaPRO);
        show(page);
        return page;
    }

    int questions = 0;
};

TEST_F(GrowingStorePage, HoldsTheCellsInSightAndAsksNoShelfWhileItScrolls) {
    const auto page = showPage(1000);
    questions = 0;

    scrollTo(*page, 100'000);

    EXPECT_EQ(questions, 0);
    EXPECT_EQ(page->collectionView()->indexPathsForVisibleItems().size(), 4u);
}

} // namespace
} // namespace proupsells::tests

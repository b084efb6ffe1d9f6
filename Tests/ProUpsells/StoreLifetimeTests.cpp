// Shelves that come and go, and pages that leave nothing behind.
#include "Tests/ProUpsells/StoreScreen.hpp"
#include "Tests/Support/UsedMemory.hpp"

namespace proupsells::tests {

namespace {

class StoreLifetime : public StoreTest {};

} // namespace

TEST_F(StoreLifetime, StopsAStripOutOfSightAndGoesOnWhereItStopped) {
    const auto page = showPage();
    scrollTo(*page, 1900);
    bed.runFor(20);
    const double left = stripOffset("store.strip.ShapesShelf.0");
    const double images = stripOffset("store.strip.VideoImageLibrariesShelf.0");
    EXPECT_GT(left, 900);
    scrollTo(*page, 0);
    EXPECT_FALSE(has("store.strip.ShapesShelf.0"));

    bed.runFor(60);
    scrollTo(*page, 1900);

    EXPECT_NEAR(stripOffset("store.strip.ShapesShelf.0"), left, 5); // the step that was under way has ended
    EXPECT_NEAR(stripOffset("store.strip.VideoImageLibrariesShelf.0"), images, 5);
    const double resumed = stripOffset("store.strip.ShapesShelf.0");
    bed.runFor(10.1);
    EXPECT_NEAR(stripOffset("store.strip.ShapesShelf.0"), resumed + 500, 1e-6);
}

TEST_F(StoreLifetime, HasNoTimerWhereNothingDrifts) {
    const auto page = showPage();
    EXPECT_FALSE(bed.loop().nextDueTime_s().has_value()); // the header, two clips and a print sheet

    scrollTo(*page, 1276);
    EXPECT_TRUE(bed.loop().nextDueTime_s().has_value());

    scrollTo(*page, 0);
    bed.runFor(0.2);
    EXPECT_FALSE(bed.loop().nextDueTime_s().has_value());
}

TEST_F(StoreLifetime, DriftsForFiveMinutesInBothDirections) {
    const auto page = showPage();
    scrollTo(*page, 1562);
    const double start_s = bed.now_s();
    EXPECT_EQ(stripOffset("store.strip.PremiumFontsShelf.0"), 0);
    EXPECT_EQ(stripOffset("store.strip.PremiumFontsShelf.1"), 21 * 1166 + 352);

    for (const int second : {1, 10, 60, 300}) {
        bed.runUntil(start_s + second);
        EXPECT_NEAR(stripOffset("store.strip.PremiumFontsShelf.0"), 50 * second - 5, 1e-6);
        EXPECT_NEAR(stripOffset("store.strip.PremiumFontsShelf.1"), 21 * 1166 + 352 - (50 * second - 5), 1e-6);
    }
}

TEST_F(StoreLifetime, StopsEverythingWhileItIsAway) {
    show(std::make_shared<uikit::UIViewController>());
    const auto page = makePage();
    window->rootViewController()->present(page, false);
    bed.settle();
    scrollTo(*page, 1276);
    EXPECT_TRUE(bed.loop().nextDueTime_s().has_value());

    page->dismiss(false);
    bed.settle();

    EXPECT_FALSE(bed.loop().nextDueTime_s().has_value());
    EXPECT_FALSE(window->isAnimating());
}

TEST_F(StoreLifetime, LeavesNothingBehindAfterAThousandVisits) {
    show(std::make_shared<uikit::UIViewController>());
    constexpr int visitCount = 1000, firstMeasured = 700; // by then every cache has what it keeps
    std::size_t memoryAfterSomeVisits = 0;
    for (int visit = 0; visit < visitCount; ++visit) {
        std::weak_ptr<VelaProStorePageViewController> weakPage;
        std::weak_ptr<uikit::UIViewController> weakShelf;
        {
            const auto page = makePage();
            weakPage = page;
            page->continueToSelectPlan = [weakPage] {
                if (const auto held = weakPage.lock()) held->dismiss(true);
            };
            window->rootViewController()->present(page, true);
            bed.runFor(0.6);
            if (visit % 50 == 0) {
                for (double y = 0; y < 2000; y += 400) scrollTo(*page, y);
                painted();
            }
            weakShelf = page->shelves()[1]->viewController();
            tap(visit % 2 == 0 ? "store.choosePlan" : "store.close");
        }
        bed.runFor(0.6);

        ASSERT_TRUE(weakPage.expired()) << "visit " << visit;
        ASSERT_TRUE(weakShelf.expired());
        ASSERT_EQ(decoder->openCount(), 0);
        decoder->takeOpenedFiles();
        ASSERT_FALSE(bed.loop().nextDueTime_s().has_value());
        if (visit == firstMeasured) memoryAfterSomeVisits = usedMemory_bytes();
    }
    // Not as little as a pointer a visit.
    EXPECT_LT(double(usedMemory_bytes()) - double(memoryAfterSomeVisits), (visitCount - firstMeasured) * sizeof(void*));
}

} // namespace proupsells::tests

// The page's behaviour: events, actions, clips, sections, traits.
#include <algorithm>
#include <limits>

#include "ProUpsells/FooterView.hpp"
#include "ProUpsells/LibraryClips.hpp"
#include "ProUpsells/VideoImageLibrariesShelf.hpp"
#include "Tests/ProUpsells/HostTranslations.hpp"
#include "Tests/ProUpsells/StoreScreen.hpp"

namespace proupsells::tests {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

namespace {

// A shelf of any height that may also take plans.
class PlainShelf : public VelaProStorePageShelf, public ProUpsellControllerType {
public:
    explicit PlainShelf(double height) : m_height(height), m_controller(std::make_shared<uikit::UIViewController>()) {}

    std::string_view className() const override { return "PlainShelf"; }
    std::shared_ptr<uikit::UIViewController> viewController() override { return m_controller; }
    double preferredShelfHeight() const override { return m_height; }
    geometry::PhysicalInsets preferredSectionInset() const override { return {.top = 3, .bottom = 7}; }
    std::string footerTitle() const override { return "Headline"; }
    std::string footerSubTitle() const override { return "Explanation"; }
    void updateOptions(const std::vector<SubscriptionOption>& options) override { optionCounts.push_back(options.size()); }

    std::vector<std::size_t> optionCounts;

private:
    double m_height;
    std::shared_ptr<uikit::UIViewController> m_controller;
};

class StorePage : public StoreTest {
protected:
    StorePage() : tracker(std::make_shared<LedgerTracker>(calls)) {}

    std::shared_ptr<VelaProStorePageViewController> presentPage() {
        show(std::make_shared<uikit::UIViewController>());
        auto page = makePage();
        page->setTracker(tracker);
        window->rootViewController()->present(page, true);
        bed.runFor(1);
        return page;
    }
    std::shared_ptr<VelaProStorePageViewController> pageWith(VelaProStorePageViewController::Shelves shelves) {
        return std::make_shared<VelaProStorePageViewController>(std::move(shelves), Referrer{"Home"}, Entitlement::velaPRO);
    }

    Ledger calls;
    std::shared_ptr<LedgerTracker> tracker;
};

} // namespace

// --- Creation ---

TEST_F(StorePage, StartsWithTheFirstPlanAndNothingElseSet) {
    const auto page = makePage();

    EXPECT_THAT(page->subscriptionsOptions(), SizeIs(2));
    EXPECT_EQ(page->selectedIndex(), 0);
    EXPECT_EQ(page->subscriptionScreenVariantTitle, "Vela Pro Store Page");
    EXPECT_FALSE(page->continueToSelectPlan);
    EXPECT_FALSE(page->tracker());
    EXPECT_FALSE(page->videoImageLibrariesViewController());
    EXPECT_FALSE(page->annualSubscriptionPriceForComparisonWithPromotionalPrice().has_value());
    EXPECT_FALSE(page->monthlySubscriptionPriceForComparisonWithPromotionalPrice().has_value());
    EXPECT_FALSE(page->isViewLoaded());
}

TEST_F(StorePage, HandsPlansOnToTheShelvesThatTakeSome) {
    const auto shelf = std::make_shared<PlainShelf>(100);
    const auto page = pageWith({shelf, std::make_shared<VideoImageLibrariesShelf>()});

    page->configure(twoPlans(), 1);
    page->updateOptions({yearly()});

    EXPECT_THAT(shelf->optionCounts, ElementsAre(2u, 1u));
    EXPECT_EQ(page->selectedIndex(), 1);
    EXPECT_THAT(page->subscriptionsOptions(), SizeIs(1));
}

TEST_F(StorePage, StoresComparisonPrices) {
    const auto page = makePage();

    page->setAnnualSubscriptionPriceForComparisonWithPromotionalPrice("$119.99");
    page->setMonthlySubscriptionPriceForComparisonWithPromotionalPrice("$19.99");

    EXPECT_EQ(page->annualSubscriptionPriceForComparisonWithPromotionalPrice(), "$119.99");
    EXPECT_EQ(page->monthlySubscriptionPriceForComparisonWithPromotionalPrice(), "$19.99");
}

TEST_F(StorePage, CannotComeFromAnArchive) {
    EXPECT_DEATH(VelaProStorePageViewController::create(foundation::Coder{}), "init\\(coder:\\) has not been implemented");
}

// --- Events and actions ---

TEST_F(StorePage, SaysThatItWasViewed) {
    presentPage();

    EXPECT_THAT(calls, ElementsAre("viewed(Home, Vela Pro Store Page, VELA_PRO)"));
}

TEST_F(StorePage, SaysThatItIsClosedBeforeItGoes) {
    const auto page = presentPage();
    calls.clear();
    bool wasStillThere = false;
    tracker->duringCall = [&] { wasStillThere = !page->isBeingDismissed(); };

    tap("store.close");

    EXPECT_TRUE(wasStillThere);
    EXPECT_TRUE(page->isBeingDismissed());
    bed.runFor(1);
    EXPECT_THAT(calls, ElementsAre("dismissed(Home, Vela Pro Store Page, VELA_PRO)"));
    EXPECT_FALSE(page->presentingViewController());
}

TEST_F(StorePage, GoesWithoutATrackerToo) {
    const auto page = presentPage();
    tracker.reset();

    tap("store.close");
    bed.runFor(1);

    EXPECT_FALSE(page->presentingViewController());
}

TEST_F(StorePage, HandsThePlanButtonToWhoeverWaitsForIt) {
    const auto page = presentPage();
    calls.clear();
    page->continueToSelectPlan = [&] { calls.push_back("continue"); };

    tap("store.choosePlan");
    bed.runFor(1);

    EXPECT_THAT(calls, ElementsAre("choosePlanTapped(Home, Vela Pro Store Page, VELA_PRO)", "continue"));
    EXPECT_TRUE(page->presentingViewController());
}

TEST_F(StorePage, OnlyTracksThePlanButtonWhereNobodyWaitsForIt) {
    const auto page = presentPage();
    calls.clear();

    tap("store.choosePlan");

    EXPECT_THAT(calls, ElementsAre("choosePlanTapped(Home, Vela Pro Store Page, VELA_PRO)"));
    EXPECT_TRUE(page->presentingViewController());
}

TEST_F(StorePage, SendsTheNameThatItHasAtTheTime) {
    const auto page = presentPage();
    calls.clear();
    page->subscriptionScreenVariantTitle = "Another";

    tap("store.choosePlan");

    EXPECT_THAT(calls, ElementsAre("choosePlanTapped(Home, Another, VELA_PRO)"));
}

TEST_F(StorePage, LetsThePlanActionReleaseThePage) {
    auto page = presentPage();
    const std::weak_ptr<VelaProStorePageViewController> weak = page;
    page->continueToSelectPlan = [&] { window->setRootViewController(nullptr); };
    page.reset();

    const auto button = find("store.choosePlan");
    button.activate();
    bed.runFor(1);

    EXPECT_TRUE(weak.expired());
}

TEST_F(StorePage, SpeaksTheHostsLanguage) {
    const HostTranslations german({{"Close", "Schließen"}, {"Marwick Folio Pro", "Marwick Folio Profi"}}, "de");

    const auto page = showPage();

    EXPECT_EQ(find("store.close").label, "Schließen");
    EXPECT_EQ(page->title(), "Marwick Folio Profi");
}

TEST_F(StorePage, ReadsItsTextsAnew) {
    const auto page = showPage();
    const HostTranslations german({{"Close", "Schließen"}, {"Marwick Folio Pro", "Marwick Folio Profi"}}, "de");

    page->applyTexts();

    EXPECT_EQ(find("store.close").label, "Schließen");
    EXPECT_EQ(page->title(), "Marwick Folio Profi");
}

// --- Sections ---

TEST_F(StorePage, HasOneItemInEachOfEightOrNineSections) {
    for (const bool mentions : {false, true}) {
        VelaProStorePageViewController::shouldMentioniCloudSync = mentions;
        const auto page = makePage();
        uikit::UICollectionView& list = *page->collectionView();
        EXPECT_EQ(page->numberOfSections(list), mentions ? 9u : 8u);
        for (std::size_t section = 0; section < page->numberOfSections(list); ++section)
            EXPECT_EQ(page->collectionViewNumberOfItemsInSection(list, section), 1u);
    }
}

TEST_F(StorePage, TakesHeightsAndInsetsFromItsShelves) {
    const auto page =
        pageWith({std::make_shared<PlainShelf>(315), std::make_shared<PlainShelf>(std::numeric_limits<double>::max())});
    show(page);
    uikit::UICollectionView& list = *page->collectionView();
    auto& layout = *list.collectionViewLayout();

    EXPECT_EQ(page->collectionViewLayoutSizeForItemAt(list, layout, {0, 0}), (geometry::Size{375, 315}));
    EXPECT_EQ(page->collectionViewLayoutSizeForItemAt(list, layout, {1, 0}), (geometry::Size{375, 800}));
    EXPECT_EQ(page->collectionViewLayoutInsetForSectionAt(list, layout, 1), (geometry::PhysicalInsets{3, 0, 7, 0}));
    EXPECT_EQ(list.frameForItem({1, 0}), (geometry::Rect{{0, 3 + 315 + 7 + 3}, {375, 800}}));
    EXPECT_EQ(list.contentSize().height, 2 * 10 + 315 + 800);
}

TEST_F(StorePage, ShowsNoHeadersOrFooters) {
    const auto page = showPage();
    uikit::UICollectionView& list = *page->collectionView();
    for (std::size_t section = 0; section < 8; ++section) {
        EXPECT_EQ(page->collectionViewLayoutReferenceSizeForHeaderInSection(list, *list.collectionViewLayout(), section),
                  (geometry::Size{}));
        EXPECT_EQ(page->collectionViewLayoutReferenceSizeForFooterInSection(list, *list.collectionViewLayout(), section),
                  (geometry::Size{}));
    }
    EXPECT_THAT(tests::allOfType(tree(), "FooterView"), IsEmpty());
}

TEST_F(StorePage, CouldFillAFooterIfTheListAskedForOne) {
    class PageWithFooters : public VelaProStorePageViewController {
    public:
        using VelaProStorePageViewController::VelaProStorePageViewController;
        std::optional<geometry::Size> collectionViewLayoutReferenceSizeForFooterInSection(uikit::UICollectionView&,
                                                                                          uikit::UICollectionViewFlowLayout&,
                                                                                          std::size_t) override {
            return geometry::Size{0, 120};
        }
    };
    show(std::make_shared<PageWithFooters>(VelaProStorePageViewController::Shelves{std::make_shared<PlainShelf>(100)},
                                           Referrer{"Home"}, Entitlement::velaPRO));

    const accessibility::SemanticNode footer = tests::firstOfType(tree(), "FooterView");

    EXPECT_EQ(footer.frame, (geometry::Rect{{0, 3 + 100 + 7}, {375, 120}}));
    EXPECT_THAT(tests::texts(footer), ElementsAre("Headline", "Explanation"));
}

// --- Clips ---

TEST_F(StorePage, PlaysWhatIsFoundTwiceAndTheFirstFiveOnceMore) {
    for (unsigned combination = 0; combination < 1024; ++combination) {
        std::vector<std::filesystem::path> found;
        for (unsigned i = 0; i < 10; ++i)
            if (combination & (1u << i)) found.emplace_back(libraryClipNames()[i]);
        std::vector<std::filesystem::path> expected = found;
        expected.insert(expected.end(), found.begin(), found.end());
        for (std::size_t i = 0; i < found.size() && i < 5; ++i) expected.push_back(found[i]);

        ASSERT_EQ(playList(found), expected) << "combination " << combination;
    }
}

TEST_F(StorePage, FindsItsTenClips) {
    std::vector<std::string> names;
    for (const auto& file : foundLibraryClips()) names.push_back(file.stem().string());

    EXPECT_THAT(names, ElementsAre("90s3D", "LHxVELA_Confetti", "LIPPY", "VELA_FILM", "VELA_GROW", "VELA_SOCKS-", "VELA_TEASPIN",
                                   "PINEAPPLE", "sale_blue", "Summer"));
}

TEST_F(StorePage, LeavesTheClipShelfEmptyUntilTheTurnAfterLoading) {
    const auto page = makePage();
    page->view();
    EXPECT_FALSE(page->shelves().back()->viewController());
    EXPECT_EQ(bed.loop().nextDueTime_s(), bed.now_s());

    show(page);
    scrollTo(*page, 1900);

    EXPECT_TRUE(page->shelves().back()->viewController());
    const auto clips = tests::allOfType(find("store.strip.VideoImageLibrariesShelf.1"), "VideoView");
    ASSERT_THAT(clips, SizeIs(25));
    EXPECT_EQ(clips[0].clipView->name, "90s3D");
    EXPECT_EQ(clips[10].clipView->name, "90s3D");
    EXPECT_EQ(clips[24].clipView->name, "VELA_GROW");
}

TEST_F(StorePage, ShowsItsClipShelfWithoutAnyClips) {
    const auto shelf = std::make_shared<VideoImageLibrariesShelf>();
    shelf->createVideosShelf({});
    show(shelf->viewController());

    EXPECT_THAT(tests::allOfType(tree(), "VideoView"), IsEmpty());
    EXPECT_TRUE(has("store.strip.VideoImageLibrariesShelf.1"));
    bed.runUntil(5);
    EXPECT_EQ(stripOffset("store.strip.VideoImageLibrariesShelf.1"), 0);
}

TEST_F(StorePage, OpensOnlyTheClipsThatAreSeen) {
    const auto page = showPage();
    painted();
    EXPECT_THAT(decoder->openedFiles(), ElementsAre("StorePageBrandingVideo.mp4", "StorePageTemplatesVideo.mp4"));

    scrollTo(*page, 1900);
    const int asked = decoder->questionCount();
    painted();

    EXPECT_EQ(decoder->questionCount(), asked + 4); // 375 points show four clips of 94, 16 apart
    EXPECT_THAT(decoder->openedFiles(), SizeIs(6));
}

TEST_F(StorePage, ShowsItsClipsEmptyWhereNoneCanBePlayed) {
    const auto paintedClips = [this] {
        const graphics::DisplayList list = painted();
        return std::count_if(list.commands.begin(), list.commands.end(),
                             [](const graphics::Command& command) { return command.kind == graphics::CommandKind::bitmap; });
    };
    const auto clip = [this] { return tests::firstOfType(find("store.shelf.BrandAssetsShelf"), "VideoView"); };
    showPage();
    ASSERT_EQ(paintedClips(), 2);
    ASSERT_TRUE(clip().clipView->time_s.has_value());
    window->setRootViewController(nullptr); // whoever plays them shares what is open
    host::Services services = bed.services();
    services.clipDecoder = nullptr;
    const host::Installation without{services};

    showPage();

    EXPECT_EQ(paintedClips(), 0);
    EXPECT_EQ(clip().clipView->name, "StorePageBrandingVideo");
    EXPECT_FALSE(clip().clipView->time_s.has_value());
    EXPECT_EQ(clip().frame, (geometry::Rect{{0, 220}, {375, 196}}));
    EXPECT_FALSE(window->isAnimating());
}

TEST_F(StorePage, ForgetsItsClipsWhenItIsGoneBeforeTheyAreLoaded) {
    auto page = makePage();
    page->view();
    const std::weak_ptr<VelaProStorePageViewController> weak = page;

    page.reset();
    bed.settle();

    EXPECT_TRUE(weak.expired());
    EXPECT_FALSE(bed.loop().nextDueTime_s().has_value());
}

// --- Traits ---

TEST_F(StorePage, ReloadsInTheOtherAppearance) {
    const auto page = showPage();
    scrollTo(*page, 200);
    const auto clipNames = [&] {
        std::vector<std::string> names;
        for (const auto& node : tests::allOfType(tree(), "VideoView")) names.push_back(node.clipView->name);
        return names;
    };
    EXPECT_THAT(clipNames(), ElementsAre("StorePageBrandingVideo", "StorePageTemplatesVideo"));

    setAppearance(graphics::ColorScheme::dark);

    EXPECT_THAT(clipNames(), ElementsAre("StorePageBrandingVideo_dark", "StorePageTemplatesVideo_dark"));
    EXPECT_EQ(page->collectionView()->contentOffset().y, 200);
    for (const auto& cell : tests::allOfType(tree(), "VelaProStoreCell")) EXPECT_THAT(cell.children, SizeIs(1));
}

TEST_F(StorePage, KeepsItsStripsRunningOnceThroughAReload) {
    const auto page = showPage();
    scrollTo(*page, 1276);
    bed.runFor(2);

    setAppearance(graphics::ColorScheme::dark);
    const double before = stripOffset("store.strip.LayoutCollectionsShelf.0");
    bed.runFor(10.1);
    const double after = stripOffset("store.strip.LayoutCollectionsShelf.0");

    EXPECT_NEAR(before - after, 500, 5.001); // up to one step, which the reload has begun anew
}

TEST_F(StorePage, SwapsTheClipsOfShelvesThatAreOutOfSightMeanwhile) {
    const auto page = showPage();
    scrollTo(*page, 1900);
    setAppearance(graphics::ColorScheme::dark);

    scrollTo(*page, 0);

    EXPECT_EQ(tests::firstOfType(find("store.shelf.BrandAssetsShelf"), "VideoView").clipView->name, "StorePageBrandingVideo_dark");
}

} // namespace proupsells::tests

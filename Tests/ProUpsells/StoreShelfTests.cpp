// The shelves: what they say, how large they are, and when their controllers come to be.
#include <set>

#include <limits>
#include <type_traits>

#include "Platform/UIKit/Views/UIStackView.hpp"
#include "ProUpsells/AllTheThingsHeaderViewShelf.hpp"
#include "ProUpsells/BrandAssetsShelf.hpp"
#include "ProUpsells/LayoutCollectionsShelf.hpp"
#include "ProUpsells/PDFsShelf.hpp"
#include "ProUpsells/PremiumFontsShelf.hpp"
#include "ProUpsells/ProIntroHeaderViewShelf.hpp"
#include "ProUpsells/ShapesShelf.hpp"
#include "ProUpsells/TemplatesShelf.hpp"
#include "ProUpsells/VerticallyStackedContainerViewController.hpp"
#include "ProUpsells/VideoImageLibrariesShelf.hpp"
#include "ProUpsells/iCloudSyncShelf.hpp"
#include "Tests/ProUpsells/HostTranslations.hpp"
#include "Tests/ProUpsells/StoreScreen.hpp"

namespace proupsells::tests {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

class StoreShelf : public StoreTest {};

struct Facts {
    std::string name;
    double height;
    double bottomInset;
    std::string title;
    std::string subtitle;

    bool operator==(const Facts&) const = default;
};

void PrintTo(const Facts& facts, std::ostream* stream) {
    *stream << facts.name << " " << facts.height << " (" << facts.bottomInset << ") " << facts.title << " / " << facts.subtitle;
}

template <class Shelf>
Facts factsOf() {
    const Shelf shelf;
    const geometry::PhysicalInsets inset = shelf.preferredSectionInset();
    EXPECT_EQ(inset, (geometry::PhysicalInsets{0, 0, inset.bottom, 0}));
    return {std::string(shelf.className()), shelf.preferredShelfHeight(), inset.bottom, shelf.footerTitle(),
            shelf.footerSubTitle()};
}

template <class Shelf>
class EachShelf : public StoreTest {
protected:
    // The one that has no controller without.
    static void giveClips(Shelf& shelf) {
        if constexpr (std::is_base_of_v<VideosShelf, Shelf>) shelf.createVideosShelf({});
    }
};

using EachShelfType =
    ::testing::Types<ProIntroHeaderViewShelf, BrandAssetsShelf, TemplatesShelf, PDFsShelf, LayoutCollectionsShelf,
                     PremiumFontsShelf, ShapesShelf, iCloudSyncShelf, VideoImageLibrariesShelf, AllTheThingsHeaderViewShelf>;

std::vector<std::string> namesOf(const VelaProStorePageViewController& page) {
    std::vector<std::string> names;
    for (const auto& shelf : page.shelves()) names.emplace_back(shelf->className());
    return names;
}

} // namespace

TEST_F(StoreShelf, SaysWhatItSells) {
    EXPECT_EQ(factsOf<BrandAssetsShelf>(), (Facts{"BrandAssetsShelf", 315, 25, "Upload brand assets",
                                                  "Add your logos, fonts and color palettes to use within your projects."}));
    EXPECT_EQ(factsOf<TemplatesShelf>(), (Facts{"TemplatesShelf", 290, 40, "Get full access to all templates",
                                                "Design on the go with professionally designed templates, updated daily."}));
    EXPECT_EQ(factsOf<PDFsShelf>(), (Facts{"PDFsShelf", 336, 50, "Print with PDF export",
                                           "Export PDFs for high-quality printing of posters, cards, stationery and more."}));
    EXPECT_EQ(factsOf<LayoutCollectionsShelf>(), (Facts{"LayoutCollectionsShelf", 236, 50, "Speedy layout collections",
                                                        "Create consistent designs in seconds with pre-designed themed layouts."}));
    EXPECT_EQ(factsOf<PremiumFontsShelf>(), (Facts{"PremiumFontsShelf", 331, 75, "Create with premium fonts and graphics",
                                                   "Unlimited access to 60k+ exclusive graphics and 500+ curated fonts."}));
    EXPECT_EQ(factsOf<ShapesShelf>(), (Facts{"ShapesShelf", 280, 40, "Design with editable shapes",
                                             "Pro users have access to editable vector shapes to use within projects."}));
    EXPECT_EQ(factsOf<iCloudSyncShelf>(), (Facts{"iCloudSyncShelf", 278, 50, "Never lose your projects",
                                                 "Turn on iCloud sync and access your projects from new or other iOS devices."}));
    EXPECT_EQ(factsOf<VideoImageLibrariesShelf>(),
              (Facts{"VideoImageLibrariesShelf", 395, 25, "Get inspired with videos and images",
                     "Exclusive access to Marwick Folio stock videos and libraries with millions of images."}));
}

TEST_F(StoreShelf, SaysNothingWhereItIsAHeader) {
    EXPECT_EQ(factsOf<ProIntroHeaderViewShelf>(), (Facts{"ProIntroHeaderViewShelf", 220, 0, "", ""}));
    EXPECT_EQ(factsOf<AllTheThingsHeaderViewShelf>(), (Facts{"AllTheThingsHeaderViewShelf", 100, 0, "", ""}));
}

TEST_F(StoreShelf, SpeaksTheHostsLanguage) {
    const HostTranslations german({{"Upload brand assets", "Marke hochladen"}}, "de");

    EXPECT_EQ(BrandAssetsShelf().footerTitle(), "Marke hochladen");
}

TYPED_TEST_SUITE(EachShelf, EachShelfType);

TYPED_TEST(EachShelf, BuildsItsControllerOnce) {
    TypeParam shelf;
    this->giveClips(shelf);

    const auto first = shelf.viewController();

    EXPECT_TRUE(first);
    EXPECT_EQ(shelf.viewController(), first);
}

TYPED_TEST(EachShelf, TakesAnotherControllerBeforeAndAfterItHasOne) {
    TypeParam unread, read;
    this->giveClips(read);
    (void)read.viewController();
    const auto other = std::make_shared<uikit::UIViewController>();

    unread.setViewController(other);
    read.setViewController(other);

    EXPECT_EQ(unread.viewController(), other);
    EXPECT_EQ(read.viewController(), other);
    EXPECT_EQ(read.viewController(), other);
}

TYPED_TEST(EachShelf, ReadsItsTextsAnewEachTime) {
    const TypeParam shelf;
    const std::string title = shelf.footerTitle(), subtitle = shelf.footerSubTitle();
    EXPECT_EQ(shelf.footerTitle(), title);
    EXPECT_EQ(shelf.footerSubTitle(), subtitle);
    const bool isHeader = title.empty();
    EXPECT_EQ(subtitle.empty(), isHeader);

    {
        // A translation of nothing is none.
        const HostTranslations german({{title, "Titel"}, {subtitle, "Untertitel"}}, "de");
        EXPECT_EQ(shelf.footerTitle(), isHeader ? "" : "Titel");
        EXPECT_EQ(shelf.footerSubTitle(), isHeader ? "" : "Untertitel");
    }
    EXPECT_EQ(shelf.footerTitle(), title);
    EXPECT_EQ(shelf.footerSubTitle(), subtitle);
}

TEST_F(StoreShelf, HasNoControllerUntilItsClipsArrive) {
    VideoImageLibrariesShelf shelf;
    EXPECT_FALSE(shelf.viewController());

    shelf.createVideosShelf({});

    EXPECT_TRUE(shelf.viewController());
}

TEST_F(StoreShelf, ListsEightShelvesAndTheOneAboutSynchronisationOnlyWhereTheHostWantsIt) {
    EXPECT_THAT(namesOf(*makePage()),
                ElementsAre("ProIntroHeaderViewShelf", "BrandAssetsShelf", "TemplatesShelf", "PDFsShelf", "LayoutCollectionsShelf",
                            "PremiumFontsShelf", "ShapesShelf", "VideoImageLibrariesShelf"));

    VelaProStorePageViewController::shouldMentioniCloudSync = true;

    EXPECT_THAT(namesOf(*makePage()),
                ElementsAre("ProIntroHeaderViewShelf", "BrandAssetsShelf", "TemplatesShelf", "PDFsShelf", "LayoutCollectionsShelf",
                            "PremiumFontsShelf", "ShapesShelf", "iCloudSyncShelf", "VideoImageLibrariesShelf"));
}

TEST_F(StoreShelf, StaysAsItWasWhenTheHostChangesItsMindWhileThePageIsOpen) {
    const auto page = showPage();

    VelaProStorePageViewController::shouldMentioniCloudSync = true;
    page->collectionView()->reloadData();
    bed.settle();

    EXPECT_EQ(page->numberOfSections(*page->collectionView()), 8u);
    scrollTo(*page, 1900);
    EXPECT_FALSE(has("store.shelf.iCloudSyncShelf"));
    EXPECT_TRUE(has("store.shelf.VideoImageLibrariesShelf"));
}

TEST(VideosShelf, SharesItsRowOutEqually) {
    const headless::TestBed bed;
    const auto clip = std::make_shared<velauikit::VideoView>();
    VideoImageLibrariesShelf shelf;

    shelf.createVideosShelf({clip, std::make_shared<velauikit::VideoView>()});

    EXPECT_EQ(dynamic_cast<const uikit::UIStackView&>(*clip->superview()).distribution(),
              uikit::UIStackView::Distribution::fillEqually);
}

TEST_F(StoreShelf, LetsItsTwoRowsDriftApart) {
    PremiumFontsShelf fonts;
    VideoImageLibrariesShelf videos;
    videos.createVideosShelf({});

    for (VelaProStorePageShelf* shelf :
         {static_cast<VelaProStorePageShelf*>(&fonts), static_cast<VelaProStorePageShelf*>(&videos)}) {
        SCOPED_TRACE(shelf->className());
        const auto stack = std::dynamic_pointer_cast<VerticallyStackedContainerViewController>(shelf->viewController());
        ASSERT_TRUE(stack);
        const auto rows = std::dynamic_pointer_cast<VerticallyStackedContainerViewController>(stack->firstShelf());
        ASSERT_TRUE(rows);
        const auto upper = std::dynamic_pointer_cast<StorePageShelfViewController>(rows->firstShelf());
        const auto lower = std::dynamic_pointer_cast<StorePageShelfViewController>(rows->secondShelf());
        using Direction = StorePageShelfViewController::ScrollDirection;
        const bool isFonts = shelf == &fonts;
        EXPECT_EQ(upper->scrollDirection(), isFonts ? Direction::left : Direction::right);
        EXPECT_EQ(lower->scrollDirection(), isFonts ? Direction::right : Direction::left);
        EXPECT_EQ(rows->contentSpacing(), 16);
        EXPECT_EQ(stack->contentSpacing(), 16);
    }
}

// What is ahead is shown later, and what is shown was ahead before.
TEST_F(StoreTest, LooksAheadAtTheImagesOfTheNextShelf) {
    const auto page = showPage();
    std::set<std::string> shown, ahead;
    const auto look = [&] {
        graphics::DisplayList list;
        window->paint(list);
        const auto nameOf = [&](const graphics::Command& command) { return list.images[std::size_t(command.resource)]->name; };
        for (const graphics::Command& command : list.commands)
            if (command.kind == graphics::CommandKind::image) shown.insert(nameOf(command));
        for (const graphics::Command& command : list.ahead) ahead.insert(nameOf(command));
    };
    look();

    for (double y = 50; y < 3000; y += 50) {
        const std::set<std::string> aheadBefore = ahead, shownBefore = shown;
        scrollTo(*page, y);
        bed.runFor(1); // what drifts in has come
        look();
        for (const std::string& name : shown) EXPECT_TRUE(shownBefore.contains(name) || aheadBefore.contains(name)) << name;
    }

    EXPECT_GE(ahead.size(), 5u);
    for (const std::string& name : ahead) EXPECT_TRUE(shown.contains(name)) << name;
}

} // namespace proupsells::tests

// Where everything stands on the page, computed by hand: letters are half their size wide, lines 1.25 times it high.
#include "ProUpsells/VelaProStoreCell.hpp"
#include "Tests/ProUpsells/StoreScreen.hpp"

namespace proupsells::tests {

namespace {

struct Column {
    double width;
    // Of the headlines in 22 points, which have 50 less than the width.
    std::vector<int> titleLines;
};

void PrintTo(const Column& column, std::ostream* stream) { *stream << column.width << " points wide"; }

struct Row {
    std::string shelf;
    double top; // in the content
    double height;
    std::vector<double> stripHeights; // 16 between two of them
    int subtitleLines;                // of 16 points with 0.2 after each letter, in at most 300 points
    int longestLine;                  // in letters
};

// With the shelf about synchronisation.
const std::vector<Row>& rows() {
    static const std::vector<Row> all{
        {"BrandAssetsShelf", 220, 315, {196}, 3, 31},
        {"TemplatesShelf", 560, 290, {171}, 2, 36},
        {"PDFsShelf", 890, 336, {217}, 3, 28},
        {"LayoutCollectionsShelf", 1276, 236, {117}, 2, 36},
        {"PremiumFontsShelf", 1562, 331, {98, 98}, 2, 34},
        {"ShapesShelf", 1968, 280, {161}, 3, 33},
        {"iCloudSyncShelf", 2288, 278, {159}, 3, 35},
        {"VideoImageLibrariesShelf", 2616, 395, {93, 167}, 3, 33},
    };
    return all;
}

class StorePageLayout : public StoreTest, public ::testing::WithParamInterface<Column> {
protected:
    StorePageLayout() { VelaProStorePageViewController::shouldMentioniCloudSync = true; }

    std::shared_ptr<VelaProStorePageViewController> showPageOf(geometry::Size size, geometry::PhysicalInsets safeArea = {}) {
        window->setSize(size, safeArea);
        return showPage();
    }
};

} // namespace

TEST_P(StorePageLayout, PutsEveryShelfWhereItBelongs) {
    const Column& column = GetParam();
    const double width = column.width;
    const auto page = showPageOf({width, 800});
    EXPECT_EQ(page->collectionView()->contentSize(), (geometry::Size{width, 3036}));
    EXPECT_EQ(frame("store.shelf.ProIntroHeaderViewShelf"), (geometry::Rect{{0, 0}, {width, 220}}));

    for (std::size_t i = 0; i < rows().size(); ++i) {
        const Row& row = rows()[i];
        SCOPED_TRACE(row.shelf);
        scrollTo(*page, row.top);

        const accessibility::SemanticNode cell = find("store.shelf." + row.shelf);
        EXPECT_EQ(cell.type, "VelaProStoreCell");
        EXPECT_EQ(cell.frame, (geometry::Rect{{0, 0}, {width, row.height}}));
        double y = 0;
        for (std::size_t strip = 0; strip < row.stripHeights.size(); ++strip) {
            EXPECT_EQ(frame("store.strip." + row.shelf + "." + std::to_string(strip)),
                      (geometry::Rect{{0, y}, {width, row.stripHeights[strip]}}));
            y += row.stripHeights[strip] + 16;
        }
        const auto labels = tests::allOfType(cell, "UILabel");
        ASSERT_EQ(labels.size(), 2u);
        const double titleHeight = column.titleLines[i] * 27.5 + (column.titleLines[i] - 1) * 9;
        EXPECT_EQ(labels[0].frame, (geometry::Rect{{25, y}, {width - 50, titleHeight}}));
        EXPECT_EQ(labels[0].text->lineCount, column.titleLines[i]);
        const double subtitleWidth = row.longestLine * 8.2;
        EXPECT_THAT(labels[1].frame,
                    FrameNear(geometry::Rect{{(width - subtitleWidth) / 2, y + titleHeight + 16},
                                             {subtitleWidth, row.subtitleLines * 20.0 + (row.subtitleLines - 1) * 9}}));
        EXPECT_EQ(labels[1].text->lineCount, row.subtitleLines);
        EXPECT_FALSE(labels[1].text->isTruncated);
    }
}

TEST_P(StorePageLayout, PutsPicturesIntoTheStrips) {
    const double width = GetParam().width;
    const auto page = showPageOf({width, 800});
    const auto contentOf = [&](const std::string& strip) {
        const accessibility::SemanticNode node = find("store.strip." + strip);
        return node.children.front().frame.offsetBy({-node.frame.minX() + node.scroll->contentOffset.x, -node.frame.minY()});
    };

    // A view without a natural width fills its strip; pictures keep their own 343 points in the middle, wide or narrow.
    EXPECT_EQ(contentOf("BrandAssetsShelf.0"), (geometry::Rect{{0, 0}, {width, 196}}));
    EXPECT_EQ(contentOf("TemplatesShelf.0"), (geometry::Rect{{0, 0}, {width, 171}}));
    scrollTo(*page, 890);
    EXPECT_EQ(contentOf("PDFsShelf.0"), (geometry::Rect{{(width - 343) / 2, 0}, {343, 217}}));
    scrollTo(*page, 2288);
    EXPECT_EQ(contentOf("iCloudSyncShelf.0"), (geometry::Rect{{(width - 343) / 2, 0}, {343, 159}}));

    // Rows of 21 tiles, 16 points apart.
    scrollTo(*page, 1276);
    EXPECT_EQ(contentOf("LayoutCollectionsShelf.0"), (geometry::Rect{{16, 0}, {21 * 1214 + 320, 117}}));
    EXPECT_EQ(contentOf("PremiumFontsShelf.0"), (geometry::Rect{{16, 0}, {21 * 1088 + 320, 98}}));
    EXPECT_EQ(contentOf("PremiumFontsShelf.1"), (geometry::Rect{{16, 0}, {21 * 1166 + 320, 98}}));
    scrollTo(*page, 1968);
    EXPECT_EQ(contentOf("ShapesShelf.0"), (geometry::Rect{{16, 0}, {21 * 1110 + 320, 161}}));
    scrollTo(*page, 2300);
    EXPECT_EQ(contentOf("VideoImageLibrariesShelf.0"), (geometry::Rect{{16, 0}, {21 * 1222 + 320, 93}}));
    EXPECT_EQ(contentOf("VideoImageLibrariesShelf.1"), (geometry::Rect{{16, 0}, {25 * 94 + 24 * 16, 167}}));
    const auto clips = tests::allOfType(find("store.strip.VideoImageLibrariesShelf.1"), "VideoView");
    for (const accessibility::SemanticNode& clip : clips) EXPECT_EQ(clip.frame.size, (geometry::Size{94, 167}));
}

// At 375 points "Get full access to all templates", "Create with premium fonts and graphics" and "Get inspired with videos and
// images" take two lines of 29 letters; at 320 lines have 24.
INSTANTIATE_TEST_SUITE_P(Widths, StorePageLayout,
                         ::testing::Values(Column{375, {1, 2, 1, 1, 2, 1, 1, 2}}, Column{320, {1, 2, 1, 2, 2, 2, 1, 2}},
                                           Column{744, {1, 1, 1, 1, 1, 1, 1, 1}}));

namespace {

class StorePageChrome : public StoreTest {};

} // namespace

TEST_F(StorePageChrome, HoldsTheButtonsClearOfTheUnsafeEdges) {
    window->setSize({375, 800}, {20, 0, 34, 0});
    const auto page = showPage();

    EXPECT_EQ(frame("store.close"), (geometry::Rect{{23, 57}, {30, 30}}));
    EXPECT_EQ(frame("store.choosePlan"), (geometry::Rect{{22, 698}, {331, 60}}));
    const auto bar = page->view()->subviews()[1];
    EXPECT_EQ(bar->frame(), (geometry::Rect{{0, 676}, {375, 124}}));
    EXPECT_EQ(page->collectionView()->contentInset(), (geometry::PhysicalInsets{0, 0, 136, 0}));
    EXPECT_EQ(page->collectionView()->adjustedContentInset(), page->collectionView()->contentInset());
    EXPECT_EQ(page->collectionView()->frame(), (geometry::Rect{{0, 0}, {375, 800}}));
}

TEST_F(StorePageChrome, SitsOnTheBottomWhereNothingIsUnsafe) {
    const auto page = showPage();

    EXPECT_EQ(frame("store.close"), (geometry::Rect{{23, 37}, {30, 30}}));
    EXPECT_EQ(frame("store.choosePlan"), (geometry::Rect{{22, 732}, {331, 60}}));
    EXPECT_EQ(page->collectionView()->contentInset().bottom, 102);
}

TEST_F(StorePageChrome, MirrorsWhereTextRunsFromRightToLeft) {
    uikit::UITraitCollection traits = window->traits();
    traits.layoutDirection = geometry::LayoutDirection::rightToLeft;
    window->setTraits(traits);

    showPage();

    EXPECT_EQ(frame("store.close"), (geometry::Rect{{375 - 23 - 30, 37}, {30, 30}}));
    const accessibility::SemanticNode button = find("store.choosePlan");
    EXPECT_LT(tests::firstOfType(button, "UIImageView").frame.maxX(), tests::firstOfType(button, "UILabel").frame.minX());
}

TEST_F(StorePageChrome, NamesItsColours) {
    const auto page = showPage();

    EXPECT_EQ(page->view()->backgroundColor()->name, "dynamicColor.2");
    EXPECT_EQ(page->collectionView()->backgroundColor()->name, "dynamicColor.2");
    EXPECT_EQ(find("store.choosePlan").shape->fill, "dynamicColor.22");
    EXPECT_EQ(find("store.choosePlan").shape->cornerRadius, 30); // half of its height
    EXPECT_EQ(find("store.close").label, "Close");
    EXPECT_EQ(page->title(), "Marwick Folio Pro");
}

TEST_F(StorePageChrome, ClosesOnTouchesAroundItsSmallButton) {
    const auto page = showPage();

    EXPECT_EQ(page->view()->hitTest({23 - 6, 37 - 6}), page->dismissIconButton().get());
}

TEST_F(StorePageChrome, BouncesAndHasNoIndicator) {
    const auto page = showPage();

    EXPECT_TRUE(page->collectionView()->alwaysBounceVertical());
    EXPECT_FALSE(page->collectionView()->showsVerticalScrollIndicator());
}

TEST_F(StorePageChrome, LetsKeysStopAtTheShelvesThatHaveATitle) {
    const auto page = showPage();

    for (std::size_t section = 0; section < page->shelves().size(); ++section) {
        const auto told = page->collectionViewDescriptionOfItemAt(*page->collectionView(), {section, 0});
        EXPECT_EQ(told.identifier, "store.shelf." + std::string(page->shelves()[section]->className()));
        EXPECT_EQ(told.takesFocus, !page->shelves()[section]->footerTitle().empty()) << told.identifier;
    }
}

TEST_F(StorePageChrome, CanBeScrolledClearOfTheBar) {
    const auto page = showPage();
    scrollTo(*page, 1e9);
    touch(host::TouchPhase::began, {187, 300});
    touch(host::TouchPhase::moved, {187, 290});
    touch(host::TouchPhase::ended, {187, 290});

    bed.runFor(5);

    EXPECT_DOUBLE_EQ(page->collectionView()->contentOffset().y, 2708 + 102 - 800);
}

} // namespace proupsells::tests

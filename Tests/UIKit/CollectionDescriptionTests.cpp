// What a collection says of items that have no cell, and the pictures that it prepares of the next one.
#include "Platform/UIKit/Collection/UICollectionView.hpp"
#include "Tests/UIKit/Screen.hpp"

namespace proupsells::uikit {
namespace {

using geometry::Point;
using geometry::Rect;
using geometry::Size;
using testing::ElementsAre;
using testing::IsEmpty;

// Named items one below the other, each with a picture.
class NamedItems : public UICollectionViewDataSource {
public:
    std::size_t numberOfSections(UICollectionView&) override { return 1; }
    std::size_t collectionViewNumberOfItemsInSection(UICollectionView&, std::size_t) override { return count; }
    std::shared_ptr<UICollectionViewCell> collectionViewCellForItemAt(UICollectionView& view, IndexPath path) override {
        return view.dequeueReusableCell<UICollectionViewCell>(path);
    }
    std::shared_ptr<UICollectionReusableView>
    collectionViewViewForSupplementaryElementOfKind(UICollectionView& view, UICollectionElementKind kind, IndexPath path) override {
        kinds.push_back(kind);
        return view.dequeueReusableSupplementaryView<UICollectionReusableView>(kind, path);
    }
    UICollectionItemDescription collectionViewDescriptionOfItemAt(UICollectionView&, IndexPath path) override {
        const std::string number = std::to_string(path.item);
        return {
            .identifier = "item." + number, .name = path.item == nameless ? "" : "Item " + number, .takesFocus = path.item == 9};
    }
    std::vector<UIImage> collectionViewImagesForItemAt(UICollectionView&, IndexPath path) override {
        asked.push_back(path.item);
        auto image = std::make_shared<graphics::Image>();
        image->size = {double(path.item), 1};
        return {nullptr, image};
    }

    std::size_t count = 10, nameless = 7;
    std::vector<std::size_t> asked;
    std::vector<UICollectionElementKind> kinds;
};

// Rows of 375 by 200 in a window of 800.
class DescribedCollection : public ScreenTest {
protected:
    DescribedCollection() : root(showRoot()), items(std::make_shared<NamedItems>()) {
        collection->collectionViewLayout()->itemSize = {375, 200};
        collection->collectionViewLayout()->minimumLineSpacing = 0;
        collection->setDataSource(items);
        collection->fillSuperview();
        root->view()->addSubview(collection);
        bed.settle();
    }
    void scrollTo(double y) {
        collection->setContentOffset({0, y});
        bed.settle();
    }
    accessibility::SemanticNode node() { return window->semanticTree().children.at(0); }
    static std::vector<std::string> identifiersOf(const std::vector<accessibility::SemanticNode>& nodes) {
        std::vector<std::string> names;
        for (const accessibility::SemanticNode& node : nodes) names.push_back(node.identifier);
        return names;
    }
    std::vector<graphics::Command> ahead() { return painted().ahead; }

    std::shared_ptr<RecordingController> root;
    std::shared_ptr<NamedItems> items;
    std::shared_ptr<UICollectionView> collection = std::make_shared<UICollectionView>();
};

TEST_F(DescribedCollection, NamesWhatComesBeforeAndAfterWhatIsShown) {
    scrollTo(450);

    const accessibility::SemanticNode described = node();

    EXPECT_EQ(described.children.size(), 5u);
    EXPECT_THAT(identifiersOf(described.itemsBefore), ElementsAre("item.0", "item.1"));
    EXPECT_THAT(identifiersOf(described.itemsAfter), ElementsAre("item.8", "item.9"));
    const accessibility::SemanticNode& item = described.itemsAfter.at(0);
    EXPECT_EQ(item.type, "UICollectionViewCell");
    EXPECT_EQ(item.spoken.role, accessibility::Role::group);
    EXPECT_EQ(item.spoken.name, "Item 8");
    EXPECT_FALSE(item.spoken.takesFocus);
    EXPECT_TRUE(described.itemsAfter.at(1).spoken.takesFocus);
    EXPECT_EQ(item.frame, (Rect{{0, 1600 - 450}, {375, 200}}));
    EXPECT_EQ(item.opacity, 1);
    EXPECT_EQ(described.scroll->contentOffset, (Point{0, 450}));
}

TEST_F(DescribedCollection, SaysNothingOfItemsWithoutAName) {
    EXPECT_THAT(identifiersOf(node().itemsAfter), ElementsAre("item.4", "item.5", "item.6", "item.8", "item.9"));
    EXPECT_THAT(node().itemsBefore, IsEmpty());
}

TEST_F(DescribedCollection, BringsAnItemIntoSight) {
    const accessibility::SemanticNode described = node();

    described.itemsAfter.back().revealWhole();
    EXPECT_EQ(collection->contentOffset().y, 2000 - 800);
    described.itemsAfter.front().reveal();
    EXPECT_EQ(collection->contentOffset().y, 800);

    const auto reveal = described.itemsAfter.back().reveal;
    collection->removeFromSuperview();
    reveal();
    EXPECT_EQ(collection->contentOffset().y, 800);
    collection.reset();
    reveal();
}

TEST_F(DescribedCollection, PreparesThePicturesOfTheItemBelow) {
    EXPECT_THAT(items->asked, ElementsAre(4u));
    ASSERT_EQ(ahead().size(), 1u);
    EXPECT_EQ(ahead()[0].frame.size, (Size{4, 1}));
    EXPECT_THAT(painted().commands, IsEmpty());

    scrollTo(1);
    EXPECT_THAT(items->asked, ElementsAre(4u, 5u));
    scrollTo(2);
    EXPECT_THAT(items->asked, ElementsAre(4u, 5u));
    scrollTo(200);
    EXPECT_THAT(items->asked, ElementsAre(4u, 5u));
    scrollTo(1200);
    EXPECT_THAT(ahead(), IsEmpty());
}

TEST_F(DescribedCollection, PreparesNothingWhileAFingerOrAFlickMovesIt) {
    touch(host::TouchPhase::began, {100, 600});
    EXPECT_THAT(ahead(), IsEmpty());
    for (int i = 1; i <= 10; ++i) {
        bed.runFor(0.01);
        touch(host::TouchPhase::moved, {100, 600 - 5.0 * i});
    }
    touch(host::TouchPhase::ended, {100, 550});
    ASSERT_TRUE(collection->isDecelerating());
    EXPECT_THAT(ahead(), IsEmpty());

    bed.runFor(5);

    EXPECT_EQ(ahead().size(), 1u);
}

TEST_F(DescribedCollection, AsksForPicturesAnewAfterAReload) {
    collection->reloadData();
    bed.settle();

    EXPECT_THAT(items->asked, ElementsAre(4u, 4u));
}

TEST_F(DescribedCollection, ItsOwnSizesStandForHeadersAndFooters) {
    items->count = 1;
    collection->collectionViewLayout()->headerReferenceSize = {0, 30};
    collection->collectionViewLayout()->footerReferenceSize = {0, 20};
    collection->reloadData();
    bed.settle();

    EXPECT_THAT(items->kinds, ElementsAre(UICollectionElementKind::sectionHeader, UICollectionElementKind::sectionFooter));
    EXPECT_EQ(collection->contentSize(), (Size{375, 250}));
    EXPECT_THAT(collection->indexPathsForVisibleItems(), ElementsAre(IndexPath{0, 0}));
    EXPECT_EQ(collection->frameForItem({0, 0}), (Rect{{0, 30}, {375, 200}}));
}

TEST_F(DescribedCollection, AHeaderOfOnePointIsOneAndOneWithoutAHeightIsNone) {
    items->count = 1;
    collection->collectionViewLayout()->headerReferenceSize = {0, 1};
    collection->reloadData();
    bed.settle();

    EXPECT_THAT(items->kinds, ElementsAre(UICollectionElementKind::sectionHeader));
    EXPECT_EQ(collection->subviews().size(), 2u);
    EXPECT_EQ(collection->subviews()[0]->frame(), (Rect{{0, 0}, {375, 1}}));
}

TEST_F(DescribedCollection, RowsKeepTheirDistances) {
    items->count = 4;
    collection->collectionViewLayout()->itemSize = {100, 50};
    collection->collectionViewLayout()->minimumLineSpacing = 7;
    collection->collectionViewLayout()->minimumInteritemSpacing = 37.5;
    collection->reloadData();
    bed.settle();

    // Three items of 100 and two gaps of 37.5 fit exactly.
    EXPECT_EQ(collection->frameForItem({0, 2}), (Rect{{275, 0}, {100, 50}}));
    EXPECT_EQ(collection->frameForItem({0, 3}), (Rect{{0, 57}, {100, 50}}));
    EXPECT_EQ(collection->contentSize().height, 107);

    collection->collectionViewLayout()->minimumInteritemSpacing = 38;
    collection->reloadData();
    bed.settle();

    EXPECT_EQ(collection->frameForItem({0, 1}), (Rect{{275, 0}, {100, 50}}));
    EXPECT_EQ(collection->frameForItem({0, 2}), (Rect{{0, 57}, {100, 50}}));
    EXPECT_EQ(collection->frameForItem({0, 3}), (Rect{{138, 57}, {100, 50}}));
}

TEST_F(DescribedCollection, AnItemWiderThanTheRoomStandsAlone) {
    items->count = 2;
    collection->collectionViewLayout()->itemSize = {500, 50};
    collection->collectionViewLayout()->sectionInset = {.left = 12, .right = 3};
    collection->reloadData();
    bed.settle();

    EXPECT_EQ(collection->frameForItem({0, 0}), (Rect{{12, 0}, {500, 50}}));
    EXPECT_EQ(collection->frameForItem({0, 1}), (Rect{{12, 50}, {500, 50}}));
}

// The second row's first item is lower than its second one, and comes back after it.
TEST_F(DescribedCollection, ItemsOfARowStandInTheirOrderWhicheverComesFirst) {
    struct Uneven : NamedItems, UICollectionViewDelegateFlowLayout {
        std::optional<Size> collectionViewLayoutSizeForItemAt(UICollectionView&, UICollectionViewFlowLayout&,
                                                              IndexPath path) override {
            return path.item < 2 ? Size{100, path.item == 0 ? 20.0 : 40.0} : Size{375, 790};
        }
    };
    const auto uneven = std::make_shared<Uneven>();
    uneven->count = 3;
    collection->setDataSource(uneven);
    collection->setFlowLayoutDelegate(uneven);
    bed.settle();
    scrollTo(35);
    ASSERT_EQ(collection->subviews().size(), 2u);

    scrollTo(0);

    ASSERT_EQ(collection->subviews().size(), 3u);
    EXPECT_EQ(collection->subviews()[0], collection->cellForItem({0, 0}));
    EXPECT_EQ(collection->subviews()[1], collection->cellForItem({0, 1}));
    EXPECT_EQ(collection->subviews()[2], collection->cellForItem({0, 2}));
}

TEST_F(DescribedCollection, LeavesTheInsetsFree) {
    collection->setContentInset({.left = 10, .right = 65});
    collection->collectionViewLayout()->itemSize = {100, 50};
    collection->collectionViewLayout()->minimumInteritemSpacing = 0;
    collection->reloadData();
    bed.settle();

    EXPECT_EQ(collection->contentSize().width, 300);
    EXPECT_EQ(collection->frameForItem({0, 3}), (Rect{{0, 50}, {100, 50}}));
    collection->setFrame({{0, 0}, {50, 800}});
    collection->layoutIfNeeded();
    EXPECT_EQ(collection->contentSize().width, 0);
}

} // namespace
} // namespace proupsells::uikit

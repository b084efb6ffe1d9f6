#include "Platform/UIKit/Collection/UICollectionView.hpp"
#include "Tests/UIKit/Screen.hpp"

namespace proupsells::uikit {
namespace {

using geometry::Point;
using geometry::Rect;
using geometry::Size;
using testing::ElementsAre;
using testing::IsEmpty;

int livingCells = 0;

class CountedCell : public UICollectionViewCell {
public:
    CountedCell() { ++livingCells; }
    ~CountedCell() override { --livingCells; }
    std::string_view typeName() const override { return "CountedCell"; }
    void prepareForReuse() override { ++reuseCount; }

    int reuseCount = 0;
};

class OtherCell : public UICollectionViewCell {};

class TitleView : public UICollectionReusableView {};

std::string nameOf(IndexPath path) { return std::to_string(path.section) + "." + std::to_string(path.item); }

// Sections of items whose sizes, insets, headers and footers a test sets; writes down what is displayed.
class Shelves : public UICollectionViewDataSource, public UICollectionViewDelegateFlowLayout {
public:
    struct Section {
        std::vector<Size> items;
        geometry::PhysicalInsets inset;
        double header = 0, footer = 0;
    };
    std::vector<Section> sections;
    bool isAsTallAsTheCollection = false;
    Calls calls;
    int askedForCells = 0;
    std::function<void(IndexPath)> onWillDisplay, onDidEndDisplaying;

    std::size_t numberOfSections(UICollectionView&) override { return sections.size(); }
    std::size_t collectionViewNumberOfItemsInSection(UICollectionView&, std::size_t section) override {
        return sections[section].items.size();
    }
    std::shared_ptr<UICollectionViewCell> collectionViewCellForItemAt(UICollectionView& view, IndexPath path) override {
        ++askedForCells;
        return view.dequeueReusableCell<CountedCell>(path);
    }
    std::shared_ptr<UICollectionReusableView>
    collectionViewViewForSupplementaryElementOfKind(UICollectionView& view, UICollectionElementKind kind, IndexPath path) override {
        return view.dequeueReusableSupplementaryView<TitleView>(kind, path);
    }
    std::optional<Size> collectionViewLayoutSizeForItemAt(UICollectionView& view, UICollectionViewFlowLayout&,
                                                          IndexPath path) override {
        Size size = sections[path.section].items[path.item];
        if (isAsTallAsTheCollection) size.height = view.frame().height();
        return size;
    }
    std::optional<geometry::PhysicalInsets> collectionViewLayoutInsetForSectionAt(UICollectionView&, UICollectionViewFlowLayout&,
                                                                                  std::size_t section) override {
        return sections[section].inset;
    }
    std::optional<Size> collectionViewLayoutReferenceSizeForHeaderInSection(UICollectionView&, UICollectionViewFlowLayout&,
                                                                            std::size_t section) override {
        return Size{0, sections[section].header};
    }
    std::optional<Size> collectionViewLayoutReferenceSizeForFooterInSection(UICollectionView&, UICollectionViewFlowLayout&,
                                                                            std::size_t section) override {
        return Size{0, sections[section].footer};
    }
    void collectionViewWillDisplayForItemAt(UICollectionView&, UICollectionViewCell& cell, IndexPath path) override {
        EXPECT_EQ(cell.contentView()->frame().size, cell.frame().size);
        EXPECT_TRUE(cell.superview());
        calls.push_back("+" + nameOf(path));
        if (onWillDisplay) onWillDisplay(path);
    }
    void collectionViewDidEndDisplayingForItemAt(UICollectionView&, UICollectionViewCell& cell, IndexPath path) override {
        EXPECT_FALSE(cell.superview());
        calls.push_back("-" + nameOf(path));
        if (onDidEndDisplaying) onDidEndDisplaying(path);
    }
    void collectionViewWillDisplaySupplementaryView(UICollectionView&, UICollectionReusableView&, UICollectionElementKind kind,
                                                    IndexPath path) override {
        calls.push_back((kind == UICollectionElementKind::sectionHeader ? "+head " : "+foot ") + std::to_string(path.section));
    }
    void collectionViewDidEndDisplayingSupplementaryView(UICollectionView&, UICollectionReusableView&, UICollectionElementKind kind,
                                                         IndexPath path) override {
        calls.push_back((kind == UICollectionElementKind::sectionHeader ? "-head " : "-foot ") + std::to_string(path.section));
    }
};

class CollectionViewTest : public ScreenTest {
protected:
    CollectionViewTest()
        : root(showRoot()), shelves(std::make_shared<Shelves>()), collection(std::make_shared<UICollectionView>()) {
        collection->setDataSource(shelves);
        collection->setFlowLayoutDelegate(shelves);
        collection->fillSuperview();
    }
    // Puts the collection on screen.
    void show() {
        root->view()->addSubview(collection);
        bed.settle();
    }
    // One item a section, as wide as the window.
    void setHeights(const std::vector<double>& heights, geometry::PhysicalInsets inset = {}) {
        shelves->sections.clear();
        for (const double height : heights) shelves->sections.push_back({{{375, height}}, inset});
    }
    void scrollTo(double y) {
        collection->setContentOffset({0, y});
        bed.settle();
    }
    Calls takeDisplayCalls() { return std::exchange(shelves->calls, {}); }
    std::vector<Rect> frames() {
        std::vector<Rect> all;
        for (const auto& attributes : collection->collectionViewLayout()->allAttributes()) all.push_back(attributes.frame);
        return all;
    }

    std::shared_ptr<RecordingController> root;
    std::shared_ptr<Shelves> shelves;
    std::shared_ptr<UICollectionView> collection;
};

// --- Flow layout ---

TEST_F(CollectionViewTest, SectionsStandBelowEachOtherWithTheirInsets) {
    shelves->sections = {{{{375, 220}}, {}}, {{{375, 315}}, {.bottom = 25}}, {{{335, 290}}, {5, 20, 40, 20}}};
    show();

    EXPECT_THAT(frames(), ElementsAre(Rect{{0, 0}, {375, 220}}, Rect{{0, 220}, {375, 315}}, Rect{{20, 565}, {335, 290}}));
    EXPECT_EQ(collection->contentSize(), (Size{375, 895}));
    EXPECT_EQ(collection->frameForItem({2, 0}), (Rect{{20, 565}, {335, 290}}));
    EXPECT_EQ(collection->frameForItem({3, 0}), (Rect{}));
}

TEST_F(CollectionViewTest, RowsTakeWhatFitsAndSpreadIt) {
    shelves->sections = {{{{100, 20}, {100, 40}, {100, 20}, {100, 20}, {50, 10}}, {.left = 10, .right = 15}}};
    show();

    // 350 points: three items of 100 with 25 between them; the last row keeps the least spacing.
    EXPECT_THAT(frames(), ElementsAre(Rect{{10, 10}, {100, 20}}, Rect{{135, 0}, {100, 40}}, Rect{{260, 10}, {100, 20}},
                                      Rect{{10, 50}, {100, 20}}, Rect{{120, 55}, {50, 10}}));
    EXPECT_EQ(collection->contentSize().height, 70);
}

TEST_F(CollectionViewTest, RowsBeginAtTheRightWhereTextDoes) {
    window->setTraits({.layoutDirection = geometry::LayoutDirection::rightToLeft});
    shelves->sections = {{{{100, 20}, {50, 20}}, {}}};
    show();

    EXPECT_THAT(frames(), ElementsAre(Rect{{275, 0}, {100, 20}}, Rect{{215, 0}, {50, 20}}));
}

TEST_F(CollectionViewTest, HeadersAndFootersStandAroundTheirSectionAndItsInsets) {
    shelves->sections = {{{{375, 100}}, {.top = 7, .bottom = 9}, 30, 20}, {{{375, 100}}, {}}};
    show();

    EXPECT_THAT(frames(), ElementsAre(Rect{{0, 0}, {375, 30}}, Rect{{0, 37}, {375, 100}}, Rect{{0, 146}, {375, 20}},
                                      Rect{{0, 166}, {375, 100}}));
    EXPECT_THAT(takeDisplayCalls(), ElementsAre("+head 0", "+0.0", "+foot 0", "+1.0"));
    scrollTo(150);
    EXPECT_THAT(takeDisplayCalls(), ElementsAre("-head 0", "-0.0"));
}

TEST_F(CollectionViewTest, TheLayoutsOwnValuesStandInForADelegate) {
    collection->setFlowLayoutDelegate({});
    collection->collectionViewLayout()->itemSize = {375, 70};
    collection->collectionViewLayout()->sectionInset = {.top = 5};
    setHeights({1, 2});
    show();

    EXPECT_THAT(frames(), ElementsAre(Rect{{0, 5}, {375, 70}}, Rect{{0, 80}, {375, 70}}));
}

TEST_F(CollectionViewTest, SizesThatAreNoNumbersCountAsNothing) {
    setHeights({std::numeric_limits<double>::quiet_NaN(), -5, 100});
    show();

    EXPECT_THAT(takeDisplayCalls(), ElementsAre("+2.0"));
    EXPECT_EQ(collection->contentSize().height, 100);
}

TEST_F(CollectionViewTest, LaysOutAnewWhenItsSizeChanges) {
    shelves->isAsTallAsTheCollection = true;
    setHeights({0, 0});
    show();
    EXPECT_EQ(collection->frameForItem({1, 0}), (Rect{{0, 800}, {375, 800}}));

    window->setSize({400, 500}, {});
    bed.settle();

    EXPECT_EQ(collection->frameForItem({1, 0}), (Rect{{0, 500}, {375, 500}}));
    EXPECT_EQ(collection->cellForItem({0, 0})->frame().height(), 500);
}

TEST_F(CollectionViewTest, AnEmptyCollectionShowsNothing) {
    show();
    EXPECT_EQ(collection->contentSize(), (Size{375, 0}));

    collection->setDataSource({});
    bed.settle();
    EXPECT_THAT(takeDisplayCalls(), IsEmpty());
}

// --- What is displayed ---

TEST_F(CollectionViewTest, OnlyWhatCanBeSeenHasACell) {
    setHeights(std::vector<double>(1000, 100));
    show();

    EXPECT_THAT(takeDisplayCalls(), ElementsAre("+0.0", "+1.0", "+2.0", "+3.0", "+4.0", "+5.0", "+6.0", "+7.0"));
    EXPECT_EQ(collection->subviews().size(), 8u);
    scrollTo(250);
    EXPECT_THAT(takeDisplayCalls(), ElementsAre("-0.0", "-1.0", "+8.0", "+9.0", "+10.0"));
    scrollTo(0);
    EXPECT_THAT(takeDisplayCalls(), ElementsAre("-8.0", "-9.0", "-10.0", "+0.0", "+1.0"));
    scrollTo(50000);

    EXPECT_LE(livingCells, 16);
    EXPECT_THAT(collection->indexPathsForVisibleItems(),
                ElementsAre(IndexPath{500, 0}, IndexPath{501, 0}, IndexPath{502, 0}, IndexPath{503, 0}, IndexPath{504, 0},
                            IndexPath{505, 0}, IndexPath{506, 0}, IndexPath{507, 0}));
    EXPECT_EQ(collection->cellForItem({0, 0}), nullptr);
}

TEST_F(CollectionViewTest, CellsStandInTheOrderOfTheirItems) {
    setHeights(std::vector<double>(20, 100));
    show();
    scrollTo(500);
    scrollTo(50);

    double previous = -1;
    for (const auto& cell : collection->subviews()) {
        EXPECT_GT(cell->frame().minY(), previous);
        previous = cell->frame().minY();
    }
}

TEST_F(CollectionViewTest, CellsAreUsedAgainByClass) {
    setHeights(std::vector<double>(20, 400));
    show();
    const auto first = std::static_pointer_cast<CountedCell>(collection->cellForItem({0, 0}));

    scrollTo(400);

    EXPECT_EQ(collection->cellForItem({2, 0}), first);
    EXPECT_EQ(first->reuseCount, 1);
    EXPECT_NE(collection->dequeueReusableCell<OtherCell>({0, 0}), nullptr);
}

TEST_F(CollectionViewTest, AppearancesComeWhileContentMovesByItself) {
    setHeights(std::vector<double>(20, 400));
    show();
    takeDisplayCalls();

    collection->setContentOffset({0, 1000}, {motion::TimingCurve::linear(), 1});
    bed.runFor(0.45);

    EXPECT_THAT(takeDisplayCalls(), ElementsAre("+2.0", "-0.0", "+3.0"));
    EXPECT_EQ(bed.loop().nextDueTime_s().has_value(), true);
    bed.runFor(1);
    EXPECT_THAT(takeDisplayCalls(), ElementsAre("-1.0", "+4.0"));
    EXPECT_EQ(bed.loop().nextDueTime_s(), std::nullopt);
}

TEST_F(CollectionViewTest, AFlickBringsNewCells) {
    setHeights(std::vector<double>(50, 100));
    show();
    touch(host::TouchPhase::began, {100, 600});
    for (int i = 1; i <= 10; ++i) {
        bed.runFor(0.01);
        touch(host::TouchPhase::moved, {100, 600 - 20.0 * i});
    }
    touch(host::TouchPhase::ended, {100, 400});
    bed.runFor(5);

    EXPECT_FALSE(collection->isDecelerating());
    EXPECT_EQ(collection->indexPathsForVisibleItems().front().section, std::size_t(collection->contentOffset().y / 100));
}

// --- Reloading ---

TEST_F(CollectionViewTest, OldCellsEndTheirDisplayBeforeNewOnesBeginIt) {
    setHeights({300, 300, 300, 300});
    show();
    takeDisplayCalls();

    collection->reloadData();
    EXPECT_THAT(takeDisplayCalls(), IsEmpty()); // at the next layout
    bed.settle();

    EXPECT_THAT(takeDisplayCalls(), ElementsAre("-0.0", "-1.0", "-2.0", "+0.0", "+1.0", "+2.0"));
}

TEST_F(CollectionViewTest, AReloadKeepsThePlaceAsFarAsThereIsContent) {
    setHeights(std::vector<double>(20, 100));
    show();
    scrollTo(700);

    collection->reloadData();
    bed.settle();
    EXPECT_EQ(collection->contentOffset(), (Point{0, 700}));

    setHeights(std::vector<double>(12, 100));
    collection->setContentInset({.bottom = 102});
    collection->reloadData();
    bed.settle();
    EXPECT_EQ(collection->contentOffset(), (Point{0, 502}));
    setHeights({100});
    collection->reloadData();
    bed.settle();

    EXPECT_EQ(collection->contentOffset(), (Point{0, 0}));
    EXPECT_EQ(collection->subviews().size(), 1u);
}

TEST_F(CollectionViewTest, AReloadAskedForWhileCellsAreDisplayedComesAfterwards) {
    setHeights({300, 300});
    bool hasReloaded = false;
    shelves->onWillDisplay = [&](IndexPath) {
        if (!std::exchange(hasReloaded, true)) {
            collection->reloadData();
            collection->layoutIfNeeded();
        }
    };
    show();

    EXPECT_THAT(takeDisplayCalls(), ElementsAre("+0.0", "-0.0", "+0.0", "+1.0"));
}

TEST_F(CollectionViewTest, AThousandReloadsLeaveNothingBehind) {
    setHeights({300, 300, 300, 300});
    show();
    const int before = livingCells;

    for (int i = 0; i < 1000; ++i) {
        scrollTo(i % 2 ? 0 : 300);
        collection->reloadData();
        bed.settle();
    }

    EXPECT_LE(livingCells, before + 1);
    EXPECT_EQ(bed.loop().nextDueTime_s(), std::nullopt);
    collection->removeFromSuperview();
    collection.reset();
    EXPECT_EQ(livingCells, 0);
}

// --- Controllers in cells ---

TEST_F(CollectionViewTest, ControllersAppearAndDisappearWithTheirCells) {
    setHeights({500, 500, 500});
    std::vector<std::shared_ptr<RecordingController>> children;
    for (const char* name : {"a", "b", "c"}) children.push_back(controller(name));
    shelves->onWillDisplay = [&](IndexPath path) {
        const auto& child = children[path.section];
        const auto& content = collection->cellForItem(path)->contentView();
        root->addChild(child);
        content->addSubview(child->view());
        child->view()->setFrame(content->bounds());
    };
    shelves->onDidEndDisplaying = [&](IndexPath path) {
        children[path.section]->view()->removeFromSuperview();
        children[path.section]->removeFromParent();
    };
    show();
    EXPECT_THAT(takeCalls(), ElementsAre("a.didLoad", "a.willAppear", "a.didAppear", "b.didLoad", "b.willAppear", "b.didAppear"));

    scrollTo(500);

    EXPECT_THAT(takeCalls(), ElementsAre("a.willDisappear", "a.didDisappear", "c.didLoad", "c.willAppear", "c.didAppear"));
    shelves->onWillDisplay = shelves->onDidEndDisplaying = {};
}

using CollectionViewDeathTest = CollectionViewTest;

TEST_F(CollectionViewDeathTest, ADataSourceMustHaveACellForEveryItem) {
    class Forgetful : public Shelves {
        std::shared_ptr<UICollectionViewCell> collectionViewCellForItemAt(UICollectionView&, IndexPath) override { return nullptr; }
    };
    const auto forgetful = std::make_shared<Forgetful>();
    forgetful->sections = {{{{10, 10}}}};
    collection->setDataSource(forgetful);
    collection->setFlowLayoutDelegate(forgetful);

    EXPECT_DEATH(show(), "UICollectionView: the data source has no view for an item, a header or a footer");
    EXPECT_DEATH(UICollectionView{nullptr}, "UICollectionView: a layout is missing");
}

} // namespace
} // namespace proupsells::uikit

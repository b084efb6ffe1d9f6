// Cells that borrow the controllers of shelves while they are seen.
#include "ProUpsells/RepeatableShelfImageView.hpp"
#include "ProUpsells/VelaProStoreCell.hpp"
#include "Tests/ProUpsells/StoreScreen.hpp"

namespace proupsells::tests {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

// Writes down what it is told of its parents and of its appearance.
class Borrowed : public uikit::UIViewController {
public:
    void willMoveToParent(uikit::UIViewController* parent) override { calls.push_back(parent ? "will come" : "will go"); }
    void didMoveToParent(uikit::UIViewController* parent) override { calls.push_back(parent ? "has come" : "has gone"); }

    std::vector<std::string> calls;
};

// A shelf of 100 points with the controller that a test gives it, if any.
class OneShelf : public VelaProStorePageShelf {
public:
    std::string_view className() const override { return "OneShelf"; }
    std::shared_ptr<uikit::UIViewController> viewController() override { return controller; }
    double preferredShelfHeight() const override { return 100; }
    geometry::PhysicalInsets preferredSectionInset() const override { return {}; }
    std::string footerTitle() const override { return {}; }
    std::string footerSubTitle() const override { return {}; }

    std::shared_ptr<uikit::UIViewController> controller;
};

class StoreCell : public StoreTest {
protected:
    std::shared_ptr<VelaProStorePageViewController> showPageWith(const std::shared_ptr<VelaProStorePageShelf>& shelf) {
        auto page = std::make_shared<VelaProStorePageViewController>(VelaProStorePageViewController::Shelves{shelf},
                                                                     Referrer{"Home"}, Entitlement::velaPRO);
        show(page);
        return page;
    }
    static std::shared_ptr<VelaProStoreCell> firstCell(VelaProStorePageViewController& page) {
        return std::dynamic_pointer_cast<VelaProStoreCell>(page.collectionView()->cellForItem({0, 0}));
    }
};

} // namespace

TEST_F(StoreCell, BorrowsEachControllerForOneCell) {
    const auto page = showPage();
    const auto cell = std::dynamic_pointer_cast<VelaProStoreCell>(page->collectionView()->cellForItem({1, 0}));
    ASSERT_TRUE(cell);
    const auto controller = page->shelves()[1]->viewController();
    EXPECT_EQ(cell->viewController(), controller);
    EXPECT_EQ(controller->parent(), page.get());
    EXPECT_EQ(controller->view()->frame(), cell->contentView()->bounds());

    scrollTo(*page, 1900);

    EXPECT_NE(cell->viewController(), controller);
    EXPECT_EQ(controller->parent(), nullptr);
    EXPECT_EQ(controller->view()->superview(), nullptr);
    EXPECT_FALSE(controller->isAppeared());
}

TEST_F(StoreCell, StaysEmptyWhileItsShelfHasNoController) {
    const auto shelf = std::make_shared<OneShelf>();
    const auto page = showPageWith(shelf);
    const auto cell = firstCell(*page);
    ASSERT_TRUE(cell);
    EXPECT_FALSE(cell->viewController());
    EXPECT_THAT(cell->contentView()->subviews(), IsEmpty());
    EXPECT_THAT(page->children(), IsEmpty());

    shelf->controller = std::make_shared<uikit::UIViewController>();
    page->collectionView()->reloadData();
    bed.settle();

    EXPECT_THAT(page->children(), ElementsAre(shelf->controller));
    EXPECT_EQ(shelf->controller->view()->frame(), (geometry::Rect{{0, 0}, {375, 100}}));
}

TEST_F(StoreCell, TellsItsControllerOfEachStep) {
    uikit::UIViewController parent;
    const auto controller = std::make_shared<Borrowed>();
    VelaProStoreCell cell;
    cell.setFrame({{0, 0}, {375, 100}});

    cell.embed(controller, parent);
    EXPECT_EQ(controller->view()->superview(), cell.contentView().get());
    cell.setFrame({{0, 0}, {320, 90}});
    cell.layoutIfNeeded();
    EXPECT_EQ(controller->view()->frame(), (geometry::Rect{{0, 0}, {320, 90}}));
    cell.detach();
    EXPECT_THAT(cell.contentView()->subviews(), IsEmpty());
    cell.detach();

    EXPECT_THAT(controller->calls, ElementsAre("will come", "has come", "will go", "has gone"));
    EXPECT_THAT(parent.children(), IsEmpty());
    EXPECT_FALSE(cell.viewController());
}

TEST_F(StoreCell, HasNothingToGiveBackOnceItsControllerIsGone) {
    uikit::UIViewController parent;
    auto controller = std::make_shared<Borrowed>();
    VelaProStoreCell cell;
    cell.embed(controller, parent);
    const std::weak_ptr<Borrowed> weak = controller;

    controller->removeFromParent();
    controller.reset();
    EXPECT_TRUE(weak.expired());
    EXPECT_FALSE(cell.viewController());
    cell.detach();
    cell.layoutIfNeeded();

    EXPECT_FALSE(cell.viewController());
}

// --- Turning what is in it, for those who do not swipe ---

namespace {

class StripInACell : public StoreCell {
protected:
    // 21 tiles and 16 points at either end.
    void showStrip(double tileWidth) {
        auto tile = std::make_shared<graphics::Image>();
        tile->size = {tileWidth, 50};
        strip = StorePageShelfViewController::create(RepeatableShelfImageView({tile}), 0);
        shelf->controller = strip;
        page = showPageWith(shelf);
    }
    std::function<void(int)> adjustment() { return find(firstCell(*page)->accessibilityIdentifier).adjust; }
    // How far the strip is scrolled after that many steps at once.
    double offsetAfter(int step) {
        adjustment()(step);
        bed.runFor(1);
        return strip->scrollView()->contentOffset().x;
    }

    const std::shared_ptr<OneShelf> shelf = std::make_shared<OneShelf>();
    std::shared_ptr<StorePageShelfViewController> strip;
    std::shared_ptr<VelaProStorePageViewController> page;
};

} // namespace

TEST_F(StripInACell, IsTurnedByFourFifthsOfAPage) {
    showStrip(100);

    EXPECT_EQ(offsetAfter(1), 300);
    EXPECT_EQ(offsetAfter(1), 600);
    EXPECT_EQ(offsetAfter(-1), 300);
}

TEST_F(StripInACell, IsTurnedNoFurtherThanItsEnds) {
    showStrip(100);

    EXPECT_EQ(offsetAfter(-1), 0);
    for (int turn = 0; turn < 10; ++turn) offsetAfter(1);
    EXPECT_EQ(strip->scrollView()->contentOffset().x, 21 * 100 + 32 - 375);
    EXPECT_EQ(offsetAfter(-1), 21 * 100 + 32 - 375 - 300);
}

TEST_F(StripInACell, IsTurnedTheOtherWayWhereTheLanguageRunsFromTheRight) {
    uikit::UITraitCollection traits = window->traits();
    traits.layoutDirection = geometry::LayoutDirection::rightToLeft;
    window->setTraits(traits);
    showStrip(100);
    strip->scrollView()->setContentOffset({1000, 0});

    EXPECT_EQ(offsetAfter(1), 700);
    EXPECT_EQ(offsetAfter(-1), 1000);
}

TEST_F(StripInACell, MovesThereInSightOfThePerson) {
    showStrip(100);

    adjustment()(1);
    bed.runFor(0.1);

    EXPECT_GT(strip->scrollView()->contentOffset().x, 0);
    EXPECT_LT(strip->scrollView()->contentOffset().x, 300);
}

TEST_F(StripInACell, IsNotTurnedWhereAllOfItIsSeen) {
    showStrip(10);

    EXPECT_FALSE(adjustment());
}

TEST_F(StripInACell, IsTurnedWhereAPointOfItIsOutOfSight) {
    window->setSize({21 * 16 + 32, 800}, {});
    showStrip(16);
    EXPECT_FALSE(adjustment());

    window->setSize({21 * 16 + 31, 800}, {});
    bed.settle();
    EXPECT_EQ(offsetAfter(1), 1);
}

TEST_F(StoreCell, IsOneStopForThoseWhoHearItWhereItHasAName) {
    VelaProStoreCell cell;

    cell.setSpokenName("Shapes");
    EXPECT_EQ(cell.accessibilitySpoken.role, accessibility::Role::group);
    EXPECT_EQ(cell.accessibilitySpoken.name, "Shapes");
    EXPECT_TRUE(cell.accessibilitySpoken.takesFocus);

    cell.setSpokenName("");
    EXPECT_EQ(cell.accessibilitySpoken.role, accessibility::Role::unstated);
    EXPECT_EQ(cell.accessibilitySpoken.name, "");
    EXPECT_FALSE(cell.accessibilitySpoken.takesFocus);
}

} // namespace proupsells::tests

// Cells that borrow the controllers of shelves while they are seen.
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

} // namespace proupsells::tests

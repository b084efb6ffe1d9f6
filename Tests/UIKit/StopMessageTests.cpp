// What the program says before it stops, and what is logged where it goes on.
#include <thread>

#include "Platform/UIKit/Collection/UICollectionView.hpp"
#include "Platform/UIKit/Controllers/UINavigationController.hpp"
#include "Tests/UIKit/ConstraintScene.hpp"

namespace proupsells::uikit {
namespace {

using testing::ElementsAre;

using StopDeathTest = ScreenTest;

TEST_F(StopDeathTest, NamesTheControllerThatIsMissing) {
    const auto root = showRoot();

    EXPECT_DEATH(root->present(nullptr, false), "UIViewController: there is no controller to present");
    EXPECT_DEATH(UINavigationController::create(nullptr), "UINavigationController: there is no root controller");
}

TEST_F(StopDeathTest, NamesWhatWasCalledOnAnotherThread) {
    const auto root = showRoot();

    EXPECT_DEATH(std::thread([&] { root->present(controller("sheet"), false); }).join(),
                 "UIViewController::present must be called");
    EXPECT_DEATH(std::thread([&] { root->dismiss(false); }).join(), "UIViewController::dismiss must be called");
    EXPECT_DEATH(std::thread([] { UIWindow::create(); }).join(), "UIWindow::create must be called");
}

TEST_F(StopDeathTest, NamesAControllerThatLoadsNothing) {
    class Empty : public UIViewController {
        void loadView() override {}
    };
    EXPECT_DEATH(std::make_shared<Empty>()->view(), "UIViewController: loadView has set no view");
}

TEST_F(StopDeathTest, NamesADataSourceThatHasGone) {
    class Fleeting : public UICollectionViewDataSource {
    public:
        std::size_t collectionViewNumberOfItemsInSection(UICollectionView&, std::size_t) override { return 100; }
        std::shared_ptr<UICollectionViewCell> collectionViewCellForItemAt(UICollectionView& view, IndexPath path) override {
            return view.dequeueReusableCell<UICollectionViewCell>(path);
        }
    };
    auto source = std::make_shared<Fleeting>();
    const auto collection = std::make_shared<UICollectionView>();
    collection->setDataSource(source);
    collection->setFrame({{0, 0}, {50, 100}});
    showRoot()->view()->addSubview(collection);
    bed.settle();
    source.reset();

    EXPECT_DEATH(
        {
            collection->setContentOffset({0, 500});
            collection->layoutIfNeeded();
        },
        "UICollectionView: the data source has gone while items were shown");
}

TEST_F(ConstraintTest, ALoggedConstraintNamesItsClass) {
    const auto a = plain();
    NSLayoutConstraint::activate({a->widthAnchor().constraintEqualToConstant(1), a->widthAnchor().constraintEqualToConstant(2)});

    root->layoutIfNeeded();

    const auto records = bed.takeLogRecords();
    ASSERT_EQ(records.size(), 1u);
    EXPECT_EQ(records[0].function, "NSLayoutConstraint");
    EXPECT_EQ(records[0].severity, commons::DefaultLogger::errorSeverity);
}

TEST_F(ScreenTest, APresentationThatIsIgnoredSaysWhy) {
    const auto root = showRoot(), first = controller("first"), second = controller("second");
    const auto messages = [&] {
        std::vector<std::string> all;
        for (const auto& record : bed.takeLogRecords()) {
            EXPECT_EQ(record.function, "present(_:animated:completion:)");
            all.push_back(record.message);
        }
        return all;
    };

    first->present(second, false);
    EXPECT_THAT(messages(), ElementsAre("UIViewController - presenting second is ignored: its presenter is in no window"));
    root->present(first, false);
    root->present(second, false);
    EXPECT_THAT(messages(), ElementsAre("UIViewController - presenting second is ignored: root is presenting first"));
    first->present(root, false);
    EXPECT_THAT(messages(), ElementsAre("UIViewController - presenting root is ignored: it is shown already"));
}

} // namespace
} // namespace proupsells::uikit

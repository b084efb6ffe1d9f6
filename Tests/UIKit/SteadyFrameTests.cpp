#include "Platform/UIKit/Controllers/UINavigationController.hpp"
#include "Platform/UIKit/Controls/UIPageControl.hpp"
#include "Platform/UIKit/Views/UIImageView.hpp"
#include "Platform/UIKit/Views/UILabel.hpp"
#include "Platform/UIKit/Views/UIStackView.hpp"
#include "Tests/Support/AllocationCounter.hpp"
#include "Tests/UIKit/ScrollScene.hpp"

namespace proupsells::uikit {
namespace {

TEST_F(ScreenTest, ASteadyFrameAllocatesNothing) {
    window->setSize({744, 1133}, {});
    const auto root = showRoot(), content = controller("content");
    content->setTitle("Plans");
    const auto stack = std::make_shared<UIStackView>(Axis::vertical);
    const auto label = std::make_shared<UILabel>();
    label->setNumberOfLines(0);
    label->setText("A text that is long enough for several lines, whatever the width of the sheet may be on this window");
    const auto image = std::make_shared<graphics::Image>();
    const auto pages = std::make_shared<UIPageControl>();
    pages->setNumberOfPages(4);
    stack->addArrangedSubview(label);
    stack->addArrangedSubview(std::make_shared<UIImageView>(image));
    stack->addArrangedSubview(pages);
    stack->fillSuperview();
    content->view()->addSubview(stack);
    root->present(UINavigationController::create(content), false);
    bed.settle();
    graphics::DisplayList list;
    window->paint(list);
    const std::size_t commands = list.commands.size();

    const std::size_t allocations = tests::allocationsDuring([&] {
        window->paint(list);
        EXPECT_FALSE(window->isAnimating());
    });

    EXPECT_EQ(allocations, 0u);
    EXPECT_GT(commands, 5u);
    EXPECT_EQ(list.commands.size(), commands);
}

TEST_F(ScrollViewTest, AFrameOfMovingContentAllocatesNothing) {
    graphics::DisplayList picture;
    list->setContentOffset({0, 1000}, {motion::TimingCurve::linear(), 1});
    bed.runFor(0.2);
    window->paint(picture);
    bed.runFor(0.2);

    EXPECT_EQ(tests::allocationsDuring([&] { window->paint(picture); }), 0u);
    EXPECT_THAT(list->bounds().minY(), testing::DoubleNear(400, 1e-9));
}

} // namespace
} // namespace proupsells::uikit

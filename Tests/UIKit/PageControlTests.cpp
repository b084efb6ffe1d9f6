#include "Tests/UIKit/Screen.hpp"

#include "Platform/UIKit/Controls/UIPageControl.hpp"

namespace proupsells::uikit {
namespace {

using geometry::Point;
using geometry::Rect;
using testing::ElementsAre;
using testing::IsEmpty;

class PageControlTest : public ScreenTest {
protected:
    PageControlTest() : root(showRoot()), pages(std::make_shared<UIPageControl>()) {
        pages->setNumberOfPages(4);
        pages->setBackgroundStyle(UIPageControl::BackgroundStyle::minimal);
        pages->setFrame({{100, 100}, {40, 26}});
        pages->addAction([this](UIControl&) { changes.push_back(pages->currentPage()); }, UIControl::Event::valueChanged);
        root->view()->addSubview(pages);
    }
    std::shared_ptr<RecordingController> root;
    std::shared_ptr<UIPageControl> pages;
    std::vector<int> changes;
};

TEST_F(PageControlTest, IsTenPointsWideForEachPage) {
    EXPECT_EQ(pages->intrinsicContentSize().width, 40);
    pages->setNumberOfPages(0);
    EXPECT_EQ(pages->intrinsicContentSize().width, 0);
}

TEST_F(PageControlTest, ATapGoesToTheDotsPage) {
    tap({125, 110});
    EXPECT_EQ(pages->currentPage(), 2);
    tap({100.5, 125});
    EXPECT_EQ(pages->currentPage(), 0);
    tap({139.5, 101});
    EXPECT_EQ(pages->currentPage(), 3);

    EXPECT_THAT(changes, ElementsAre(2, 0, 3));
}

TEST_F(PageControlTest, ATapOnTheCurrentDotSaysNothing) {
    tap({105, 110});

    EXPECT_THAT(changes, IsEmpty());
}

TEST_F(PageControlTest, SettingThePageSaysNothing) {
    pages->setCurrentPage(3);

    EXPECT_THAT(changes, IsEmpty());
    EXPECT_EQ(pages->currentPage(), 3);
}

TEST_F(PageControlTest, ThePageStaysWithinThePages) {
    pages->setCurrentPage(9);
    EXPECT_EQ(pages->currentPage(), 3);
    pages->setCurrentPage(-1);
    EXPECT_EQ(pages->currentPage(), 0);
    pages->setCurrentPage(3);
    pages->setNumberOfPages(2);
    EXPECT_EQ(pages->currentPage(), 1);
    pages->setNumberOfPages(-5);
    EXPECT_EQ(pages->numberOfPages(), 0);
    EXPECT_EQ(pages->currentPage(), 0);
}

TEST_F(PageControlTest, AWiderControlKeepsItsDotsTogetherInTheMiddle) {
    pages->setFrame({{0, 100}, {375, 26}});

    EXPECT_EQ(pages->dotCenter(0), (Point{172.5, 13}));
    EXPECT_EQ(pages->dotCenter(3), (Point{202.5, 13}));
    tap({300, 110});
    EXPECT_EQ(pages->currentPage(), 3);
}

TEST_F(PageControlTest, RightToLeftTheFirstDotIsTheRightOne) {
    window->setTraits({.layoutDirection = geometry::LayoutDirection::rightToLeft});

    EXPECT_EQ(pages->dotCenter(0), (Point{35, 13}));
    tap({105, 110});
    EXPECT_EQ(pages->currentPage(), 3);
}

TEST_F(PageControlTest, TheCurrentDotIsOpaqueAndTheOthersAreFaint) {
    pages->setCurrentPage(1);

    const auto light = painted();
    ASSERT_EQ(light.commands.size(), 4u);
    EXPECT_EQ(light.commands[0].frame, (Rect{{101.5, 109.5}, {7, 7}}));
    EXPECT_FLOAT_EQ(light.commands[0].opacity, 0.3f);
    EXPECT_FLOAT_EQ(light.commands[1].opacity, 1);
    EXPECT_EQ(light.commands[1].color, graphics::rgb(0x000000));

    window->setTraits({.userInterfaceStyle = graphics::ColorScheme::dark});
    EXPECT_EQ(painted().commands[1].color, graphics::rgb(0xFFFFFF));
}

TEST_F(PageControlTest, AssistiveTechnologyReadsAndAdjustsThePage) {
    pages->setCurrentPage(1);
    const accessibility::SemanticNode node = window->semanticTree().children.at(0);

    EXPECT_EQ(node.type, "UIPageControl");
    EXPECT_EQ(node.value, "page 2 of 4");
    EXPECT_TRUE(accessibility::contains(node.traits, accessibility::Traits::adjustable));
    node.adjust(1);
    node.adjust(1);
    node.adjust(1);
    EXPECT_THAT(changes, ElementsAre(2, 3));
    node.adjust(-1);
    EXPECT_EQ(pages->currentPage(), 2);
}

TEST_F(PageControlTest, AssistiveTechnologyChangesNothingOnceTheControlIsDisabledOrGone) {
    const accessibility::SemanticNode node = window->semanticTree().children.at(0);

    pages->setEnabled(false);
    node.adjust(1);
    node.activate();
    pages->setEnabled(true);
    pages->removeFromSuperview();
    node.adjust(1);
    node.activate();

    EXPECT_THAT(changes, IsEmpty());
    EXPECT_EQ(pages->currentPage(), 0);
}

TEST_F(PageControlTest, IsReadAsAPageOfHowMany) {
    pages->setCurrentPage(2);

    const accessibility::ReadingElement pager = window->reading().children.at(0);

    EXPECT_EQ(pager.position, 3);
    EXPECT_EQ(pager.count, 4);
    EXPECT_EQ(pager.value, "page 3 of 4");
}

TEST_F(PageControlTest, IsReadAsNoPageWhereThereIsNone) {
    pages->setNumberOfPages(0);

    const accessibility::SemanticNode node = window->semanticTree().children.at(0);

    EXPECT_EQ(node.spoken.page, 0);
    EXPECT_EQ(node.spoken.pageCount, 0);
}

TEST_F(PageControlTest, TheArrowKeysFollowTheLayoutDirection) {
    window->key(host::Key::tab);
    window->key(host::Key::right);
    EXPECT_EQ(pages->currentPage(), 1);

    window->setTraits({.layoutDirection = geometry::LayoutDirection::rightToLeft});
    window->key(host::Key::right);
    EXPECT_EQ(pages->currentPage(), 0);
}

TEST_F(PageControlTest, ADisabledControlStaysWhereItIs) {
    pages->setEnabled(false);

    tap({125, 110});

    EXPECT_EQ(pages->currentPage(), 0);
    EXPECT_THAT(changes, IsEmpty());
}

} // namespace
} // namespace proupsells::uikit

// Keys that scroll the page in front.
#include "Tests/UIKit/ScrollScene.hpp"

namespace proupsells::uikit {
namespace {

using geometry::Point;
using host::Key;

struct PageKeyTest : ScrollViewTest {
    PageKeyTest() { list->setContentSize({1000, 5000}); }
};

TEST_F(PageKeyTest, ScrollByALineAPageAndToTheEnds) {
    EXPECT_TRUE(window->key(Key::down));
    EXPECT_EQ(list->contentOffset(), (Point{0, 60}));
    EXPECT_TRUE(window->key(Key::pageDown));
    EXPECT_EQ(y(), 60 + 720);
    EXPECT_TRUE(window->key(Key::space));
    EXPECT_EQ(y(), 60 + 1440);
    EXPECT_TRUE(window->key(Key::up));
    EXPECT_EQ(y(), 1440);
    EXPECT_TRUE(window->key(Key::pageUp));
    EXPECT_EQ(y(), 720);
    EXPECT_TRUE(window->key(Key::end));
    EXPECT_EQ(y(), 4200);
    EXPECT_TRUE(window->key(Key::home));
    EXPECT_EQ(list->contentOffset(), (Point{0, 0}));
    EXPECT_FALSE(window->key(Key::right));
    EXPECT_EQ(list->contentOffset(), (Point{0, 0}));
}

TEST_F(PageKeyTest, ScrollTheLargestPageInSight) {
    list->setFrame({{0, 0}, {375, 300}});
    const auto larger = std::make_shared<UIScrollView>(), largest = std::make_shared<UIScrollView>();
    larger->setFrame({{0, 300}, {375, 400}});
    largest->setFrame({{0, 700}, {375, 1000}}); // of which only 100 points are in the window
    for (const auto& view : {larger, largest}) {
        view->setContentSize({375, 2000});
        root->view()->addSubview(view);
    }

    EXPECT_TRUE(window->key(Key::down));
    EXPECT_EQ(larger->contentOffset().y, 60);
    larger->setHidden(true);
    EXPECT_TRUE(window->key(Key::down));

    EXPECT_EQ(larger->contentOffset().y, 60);
    EXPECT_EQ(y(), 60);
    EXPECT_EQ(largest->contentOffset().y, 0);
}

TEST_F(PageKeyTest, PassByAPageThatFits) {
    list->setContentSize({375, 800});
    EXPECT_FALSE(window->key(Key::down));

    list->setContentInset({.top = 1});
    window->scroll({10, 10}, {0, 1});
    EXPECT_EQ(y(), 0);
    EXPECT_TRUE(window->key(Key::up));
    EXPECT_EQ(y(), -1);
    list->setContentInset({.bottom = 1});
    EXPECT_TRUE(window->key(Key::down));
    EXPECT_EQ(y(), 1);
}

TEST_F(PageKeyTest, MeanNothingToScreensOnTheirWay) {
    root->present(controller("next"), true);

    EXPECT_FALSE(window->key(Key::down));
    EXPECT_FALSE(window->key(Key::tab));
    EXPECT_TRUE(window->key(Key::space));
    EXPECT_TRUE(window->key(Key::activate));
    EXPECT_TRUE(window->key(Key::escape));
    EXPECT_EQ(y(), 0);
}

TEST_F(PageKeyTest, AreRepeatedWhereTheyScrollOnly) {
    EXPECT_TRUE(window->key(Key::down, true));
    EXPECT_EQ(y(), 60);
    EXPECT_TRUE(window->key(Key::activate, true));
    EXPECT_TRUE(window->key(Key::escape, true));
    EXPECT_FALSE(window->key(Key::escape, false));
}

// --- Wheels and pointers from devices that say nonsense ---

TEST_F(PageKeyTest, AWheelDuringATransitionMovesNothing) {
    root->present(controller("next"), true);

    window->scroll({100, 100}, {0, 50});

    EXPECT_EQ(y(), 0);
}

TEST_F(PageKeyTest, APointerThatHasNotMovedAsksForNoPicture) {
    window->pointer(Point{100, 100});
    bed.settle();
    int pictures = 0;
    window->setNeedsDisplayHandler([&] { ++pictures; });

    window->pointer(Point{100, 100});
    bed.settle();
    EXPECT_EQ(pictures, 0);
    window->pointer(Point{100, 101});
    bed.settle();
    EXPECT_EQ(pictures, 1);
    window->pointer(Point{geometry::infinity, 0});
    bed.settle();
    EXPECT_EQ(pictures, 2);
    window->pointer(std::nullopt);
    bed.settle();

    EXPECT_EQ(pictures, 2);
}

TEST_F(PageKeyTest, APersonAttendsToWhatThePointerRestsOn) {
    const auto item = viewAt({{100, 100}, {50, 50}});
    content->addSubview(item);
    EXPECT_FALSE(item->isAttended());

    window->pointer(Point{120, 120});
    EXPECT_TRUE(item->isAttended());
    window->pointer(Point{151, 120});
    EXPECT_FALSE(item->isAttended());
    EXPECT_TRUE(content->isAttended());
    EXPECT_FALSE(viewAt({{0, 0}, {500, 500}})->isAttended());
}

} // namespace
} // namespace proupsells::uikit

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

#include "Backends/Headless/TestBed.hpp"
#include "Backends/Raster/PixelView.hpp"
#include "Platform/Graphics/PaintContext.hpp"
#include "Tests/Raster/Canvas.hpp"

using namespace proupsells;

using geometry::Point;
using host::TouchPhase;
using rasterbackend::PixelBuffer;
using rasterbackend::PixelRect;
using rasterbackend::PixelView;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

// A red square on white, which input moves to the right.
class Square : public host::WindowContent {
public:
    void setSize(geometry::Size newSize, geometry::PhysicalInsets) override {
        size = newSize;
        ++sizings;
        if (whenSized) whenSized();
    }
    void touch(const host::Touch& touch) override {
        touches.push_back(touch);
        if (whenTouched) whenTouched();
    }
    void scroll(Point, Point delta) override { move(delta.x); }
    bool key(host::Key key, bool isRepeated) override {
        (isRepeated ? repeatedKeys : keys).push_back(key);
        return key == host::Key::activate;
    }
    void paint(graphics::DisplayList& list) override {
        list.clear();
        graphics::PaintContext context(list);
        context.fillRectangle({}, {{0, 0}, size}, tests::white);
        context.fillRectangle({}, {{x, 0}, {1, 1}}, tests::red);
        if (ahead) context.lookAhead([&] { context.image({}, {{0, 0}, size}, ahead); });
        if (whenPainted) whenPainted();
    }
    bool isAnimating() const override { return animates; }
    void setNeedsDisplayHandler(std::function<void()> newHandler) override { handler = std::move(newHandler); }
    accessibility::SemanticNode semanticTree() override { return {}; }
    void setSeen(bool seen) override { isSeen = seen; }

    void move(double distance) {
        x += distance;
        if (handler) handler();
    }

    geometry::Size size;
    int sizings = 0;
    std::vector<host::Touch> touches;
    std::vector<host::Key> keys, repeatedKeys;
    double x = 0;
    bool animates = false;
    bool isSeen = false;
    graphics::ImageRef ahead;
    std::function<void()> handler, whenSized, whenTouched, whenPainted;
};

class PixelViews : public testing::Test {
protected:
    PixelViews() { view->setSize({4, 2}); }

    bool paint() { return view->paint(buffer, 2); }
    // Phases and places of the touches so far.
    std::vector<std::pair<TouchPhase, Point>> touches() const {
        std::vector<std::pair<TouchPhase, Point>> touches;
        for (const host::Touch& touch : content->touches) touches.emplace_back(touch.phase, touch.location);
        return touches;
    }

    headless::TestBed bed;
    std::shared_ptr<Square> content = std::make_shared<Square>();
    std::vector<std::uint32_t> memory = std::vector<std::uint32_t>(8 * 4);
    PixelBuffer buffer{memory.data(), 8, 4, 8 * 4};
    std::unique_ptr<PixelView> view = std::make_unique<PixelView>(content);
};

} // namespace

TEST_F(PixelViews, PaintsIntoTheHostsMemory) {
    EXPECT_TRUE(paint());

    EXPECT_EQ(memory[0], 0xFFFF0000u);
    EXPECT_EQ(memory[2], 0xFFFFFFFFu);
    EXPECT_THAT(view->lastDamage(), ElementsAre(PixelRect{0, 0, 8, 4}));
}

TEST_F(PixelViews, PaintsOnlyWhatDiffers) {
    paint();
    content->move(2);

    EXPECT_TRUE(paint());
    EXPECT_THAT(view->lastDamage(), testing::UnorderedElementsAre(PixelRect{0, 0, 2, 2}, PixelRect{4, 0, 6, 2}));
    EXPECT_FALSE(paint());
    EXPECT_THAT(view->lastDamage(), IsEmpty());
}

TEST_F(PixelViews, PaintsAnotherBufferWholeUnlessItHoldsTheLastFrame) {
    paint();
    std::vector<std::uint32_t> other(8 * 4), copy = memory;

    EXPECT_TRUE(view->paint({other.data(), 8, 4, 8 * 4}, 2));
    EXPECT_EQ(other, memory);
    EXPECT_FALSE(view->paint({copy.data(), 8, 4, 8 * 4}, 2, true));
}

TEST_F(PixelViews, PaintsWholeWhatWasWrittenOver) {
    paint();
    memory.assign(memory.size(), 0);
    view->forgetShown();

    EXPECT_EQ(view->nextFrameDelay_s(), 1.0 / 60);
    paint();
    EXPECT_EQ(memory[0], 0xFFFF0000u);
}

TEST_F(PixelViews, HasAFrameDueAtFirstAndNoneWhileNothingChanges) {
    EXPECT_EQ(view->nextFrameDelay_s(), 0);
    paint();

    EXPECT_EQ(view->nextFrameDelay_s(), std::nullopt);
    EXPECT_EQ(view->nextDueDelay_s(), std::nullopt);
}

TEST_F(PixelViews, ShowsAChangeAtOnceButNotBeforeTheNextRefresh) {
    view->setRefreshRate(50);
    paint();
    content->move(1);
    EXPECT_DOUBLE_EQ(view->nextFrameDelay_s().value(), 0.02);
    bed.runFor(0.015);
    EXPECT_NEAR(view->nextFrameDelay_s().value(), 0.005, 1e-9);
    bed.runFor(1);

    EXPECT_EQ(view->nextFrameDelay_s(), 0);
}

TEST_F(PixelViews, WantsAFrameAtEveryRefreshWhileTheContentMoves) {
    content->animates = true;
    paint();

    EXPECT_DOUBLE_EQ(view->nextFrameDelay_s().value(), 1.0 / 60);
}

TEST_F(PixelViews, HasNoFrameDueWhileNobodyCanSeeIt) {
    EXPECT_TRUE(content->isSeen);
    content->animates = true;
    view->setSeen(false);
    EXPECT_EQ(view->nextFrameDelay_s(), std::nullopt);
    EXPECT_FALSE(content->isSeen);
    view->setSeen(true);

    EXPECT_EQ(view->nextFrameDelay_s(), 0);
    EXPECT_TRUE(content->isSeen);
}

TEST_F(PixelViews, IsDueWhenTheRunLoopHasWork) {
    paint();
    bed.loop().schedule(0.25, [] {});

    EXPECT_EQ(view->nextDueDelay_s(), 0.25);
    EXPECT_EQ(view->nextFrameDelay_s(), std::nullopt);
}

TEST_F(PixelViews, RunsWhatIsDueBeforeItPaints) {
    paint();
    bed.loop().schedule(0, [this] { content->move(1); });
    paint();

    EXPECT_EQ(memory[2], 0xFFFF0000u);
}

TEST_F(PixelViews, TellsWhenAFrameIsWanted) {
    int wishes = 0;
    view->setFrameHandler([&] { ++wishes; });
    content->move(1);
    EXPECT_EQ(wishes, 1);

    content->whenPainted = [this] { content->handler(); };
    paint();
    EXPECT_EQ(wishes, 1) << "what changes while the picture is made is part of it";
}

TEST_F(PixelViews, HandsOnInput) {
    bed.runFor(3);
    view->touch(TouchPhase::began, {1, 2});
    view->scroll({0, 0}, {2, 0});

    ASSERT_EQ(content->touches.size(), 1u);
    EXPECT_EQ(content->touches[0].location, (Point{1, 2}));
    EXPECT_EQ(content->touches[0].time_s, 3);
    EXPECT_EQ(content->x, 2);
    EXPECT_TRUE(view->key(host::Key::activate));
    EXPECT_FALSE(view->key(host::Key::tab));
}

TEST_F(PixelViews, TakesTheSameSizeAgainForNothing) {
    paint();
    view->setSize({4, 2});
    EXPECT_EQ(content->sizings, 1);
    EXPECT_EQ(view->nextFrameDelay_s(), std::nullopt);
    view->setSize({4, 2}, {1, 0, 0, 0});

    EXPECT_EQ(content->sizings, 2);
    EXPECT_NE(view->nextFrameDelay_s(), std::nullopt);
}

TEST_F(PixelViews, TellsItsHostInWholeMilliseconds) {
    paint();
    EXPECT_EQ(view->nextDueDelay_ms(), -1);
    bed.loop().schedule(1e6, [] {});
    EXPECT_EQ(view->nextDueDelay_ms(), 3'600'000);
    bed.loop().schedule(0.0301, [] {});

    EXPECT_EQ(view->nextDueDelay_ms(), 31);
}

TEST_F(PixelViews, TurnsAPointerIntoTouches) {
    view->pointer({1, 1}, false);
    view->pointer({2, 1}, true);
    view->pointer({2, 1}, true);
    view->pointer({3, 1}, true);
    view->pointer({3.5, 1}, false);
    view->pointer({4, 1}, false);

    EXPECT_THAT(touches(), ElementsAre(std::pair(TouchPhase::began, Point{2, 1}), std::pair(TouchPhase::moved, Point{3, 1}),
                                       std::pair(TouchPhase::ended, Point{3.5, 1})));
}

TEST_F(PixelViews, KnowsKeysByTheirNames) {
    EXPECT_TRUE(view->key("Return", false, false));
    EXPECT_FALSE(view->key("F1", false, false));
    for (const char* const name : {"Escape", "TAB", "Up", "ArrowUp", "space", " "}) view->key(name, false, false);
    view->key("Tab", true, false);
    view->key("Up", true, false);
    view->key("Return", false, true);

    using host::Key;
    EXPECT_THAT(content->keys,
                ElementsAre(Key::activate, Key::escape, Key::tab, Key::up, Key::up, Key::space, Key::space, Key::backTab, Key::up));
    EXPECT_THAT(content->repeatedKeys, ElementsAre(Key::activate));
}

TEST_F(PixelViews, LetsGoOfAPointerThatIsSomebodyElses) {
    view->pointer({2, 1}, true);
    view->cancelPointer();
    view->cancelPointer();
    view->pointer({3, 1}, true);
    view->pointer({4, 1}, true);
    view->setSeen(false);
    view->pointer({4, 1}, false);

    EXPECT_THAT(touches(), ElementsAre(std::pair(TouchPhase::began, Point{2, 1}), std::pair(TouchPhase::cancelled, Point{2, 1}),
                                       std::pair(TouchPhase::began, Point{3, 1}), std::pair(TouchPhase::moved, Point{4, 1}),
                                       std::pair(TouchPhase::cancelled, Point{4, 1})));
}

TEST_F(PixelViews, MayGoAwayInsideEverythingThatItCalls) {
    content->whenTouched = [this] { view.reset(); };
    view->touch(TouchPhase::began, {1, 2});
    EXPECT_EQ(view, nullptr);
    EXPECT_FALSE(content->handler);

    content->whenTouched = nullptr;
    view = std::make_unique<PixelView>(content);
    view->pointer({1, 2}, true);
    content->whenTouched = [this] { view.reset(); };
    view->setSeen(false);
    EXPECT_EQ(view, nullptr);

    view = std::make_unique<PixelView>(content);
    content->whenPainted = [this] { view.reset(); };
    paint();
    EXPECT_EQ(view, nullptr);

    view = std::make_unique<PixelView>(content);
    bed.loop().schedule(0, [this] { view.reset(); });
    paint();
    EXPECT_EQ(view, nullptr);
}

TEST_F(PixelViews, PaintsNothingIntoNoMemory) {
    view->setSize({});

    EXPECT_FALSE(paint());
}

TEST_F(PixelViews, HasAFrameDueBeforeItHasASize) {
    PixelView fresh(std::make_shared<Square>());

    EXPECT_EQ(fresh.nextFrameDelay_s(), 0);
}

TEST_F(PixelViews, TellsItsContentOfASizeOfNothingToo) {
    view = std::make_unique<PixelView>(content);
    view->setSize({});

    EXPECT_EQ(content->sizings, 2);
    EXPECT_EQ(content->size, (geometry::Size{0, 0}));
}

TEST_F(PixelViews, ShowsAFrameASecondAtLeast) {
    paint();
    content->move(1);

    for (const double framesPerSecond : {0.5, 0.0, -60.0}) {
        view->setRefreshRate(framesPerSecond);
        EXPECT_EQ(view->nextFrameDelay_s(), 1) << framesPerSecond;
    }
}

TEST_F(PixelViews, IsDueForWhatComesFirst) {
    paint();
    content->animates = true;
    bed.loop().schedule(0.25, [] {});
    EXPECT_DOUBLE_EQ(view->nextDueDelay_s().value(), 1.0 / 60);
    view->setRefreshRate(1);
    EXPECT_EQ(view->nextDueDelay_s(), 0.25);
    bed.loop().runDueTurns();
    bed.runFor(0.3);
    EXPECT_NEAR(view->nextDueDelay_s().value(), 0.7, 1e-9);
}

TEST_F(PixelViews, PaintsNothingInsideItself) {
    content->whenPainted = [this] {
        EXPECT_FALSE(paint());
        EXPECT_FALSE(view->repaint(buffer, 2));
    };

    EXPECT_TRUE(paint());
    EXPECT_EQ(memory[0], 0xFFFF0000u);
}

TEST_F(PixelViews, ReadsAheadWhenItHasLookedAheadForASecond) {
    paint();
    EXPECT_EQ(view->nextDueDelay_s(), std::nullopt);

    content->ahead = std::make_shared<graphics::Image>();
    paint();
    EXPECT_EQ(view->nextDueDelay_s(), 1);
    bed.runFor(0.75);
    paint();
    EXPECT_EQ(view->nextDueDelay_s(), 0.25);

    content->ahead = nullptr;
    paint();
    EXPECT_EQ(view->nextDueDelay_s(), std::nullopt);
}

TEST_F(PixelViews, ReadsNothingAheadOnceItIsGone) {
    content->ahead = std::make_shared<graphics::Image>();
    paint();
    ASSERT_EQ(bed.loop().nextDueDelay_s(), 1);

    view.reset();

    EXPECT_EQ(bed.loop().nextDueDelay_s(), std::nullopt);
}

TEST_F(PixelViews, WantsNoFrameOnceItIsGone) {
    int wishes = 0;
    view->setFrameHandler([&] { ++wishes; });
    content->whenSized = [this] { view.reset(); };
    view->setSize({3, 2});

    EXPECT_EQ(view, nullptr);
    EXPECT_EQ(wishes, 0);
}

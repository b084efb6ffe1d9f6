#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAccessible>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPixmap>
#include <QPointingDevice>
#include <QScreen>
#include <QWheelEvent>

#include "Backends/Qt/PixelImage.hpp"
#include "Backends/Qt/QtRunLoopDriver.hpp"
#include "Backends/Qt/QtWindow.hpp"
#include "Platform/Graphics/PaintContext.hpp"
#include "Tests/Qt/Events.hpp"
#include "Tests/Raster/Canvas.hpp"

using namespace proupsells;

using geometry::Point;
using host::Key;
using host::TouchPhase;
using rasterbackend::PixelRect;
using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;
using tests::handleEventsUntil;

namespace {

// A red square that moves right when it is touched.
class FakeContent : public host::WindowContent {
public:
    void setSize(geometry::Size newSize, geometry::PhysicalInsets insets) override {
        size = newSize;
        safeArea = insets;
        changed();
    }
    void touch(const host::Touch& touch) override {
        touches.push_back(touch);
        if (touch.phase != TouchPhase::ended) return;
        x += 20;
        changed();
    }
    void pointer(std::optional<Point> location) override { pointers.push_back(location); }
    void scroll(Point location, Point delta) override { scrolls.emplace_back(location, delta); }
    bool key(Key key, bool isRepeated) override {
        (isRepeated ? repeatedKeys : keys).push_back(key);
        return true;
    }
    void paint(graphics::DisplayList& list) override {
        ++paintCount;
        list.clear();
        graphics::PaintContext context(list);
        context.fillRectangle({}, {{0, 0}, size}, tests::white);
        context.fillRectangle({}, {{x, 10}, {10, 10}}, tests::red);
        if (animatedFrames > 0) context.fillRectangle({}, {{0, double(animatedFrames--)}, {1, 1}}, tests::blue);
    }
    bool isAnimating() const override { return animatedFrames > 0; }
    // On the square.
    bool pointsAtControl() override {
        return !pointers.empty() && pointers.back() && geometry::Rect{{x, 10}, {10, 10}}.contains(*pointers.back());
    }
    void setNeedsDisplayHandler(std::function<void()> newHandler) override { handler = std::move(newHandler); }
    accessibility::SemanticNode semanticTree() override { return tree; }

    void changed() {
        if (handler) handler();
    }

    geometry::Size size;
    geometry::PhysicalInsets safeArea;
    std::vector<host::Touch> touches;
    std::vector<std::pair<Point, Point>> scrolls;
    std::vector<std::optional<Point>> pointers;
    std::vector<Key> keys, repeatedKeys;
    double x = 10;
    int paintCount = 0;
    int animatedFrames = 0;
    std::function<void()> handler;
    accessibility::SemanticNode tree;
};

class QtWindowTest : public testing::Test {
protected:
    QtWindowTest() {
        window.show();
        isShown = handleEventsUntil([this] { return window.frameCount() > 0; });
        settle();
    }

    // Waits until the window has nothing more to show.
    void settle() {
        for (int before = -1; before != content->paintCount;) {
            before = content->paintCount;
            tests::settle();
        }
    }

    void mouse(QEvent::Type type, QPointF at, Qt::MouseButton button = Qt::LeftButton) {
        QMouseEvent event(type, at, window.mapToGlobal(at), button, type == QEvent::MouseButtonRelease ? Qt::NoButton : button, {});
        QCoreApplication::sendEvent(&window, &event);
    }
    void press(int key) {
        QKeyEvent event(QEvent::KeyPress, key, {});
        QCoreApplication::sendEvent(&window, &event);
    }
    void finger(QEvent::Type type, int id, QEventPoint::State state) {
        static QPointingDevice device("screen", 1, QInputDevice::DeviceType::TouchScreen, QPointingDevice::PointerType::Finger,
                                      QInputDevice::Capability::Position, 5, 0);
        QTouchEvent event(type, &device, {}, {QEventPoint(id, state, {}, {})});
        QCoreApplication::sendEvent(&window, &event);
    }
    std::vector<TouchPhase> phases() const {
        std::vector<TouchPhase> phases;
        for (const host::Touch& touch : content->touches) phases.push_back(touch.phase);
        return phases;
    }

    runloop::MainRunLoop loop{std::make_shared<runloop::RealClock>()};
    qtbackend::QtRunLoopDriver driver{loop};
    std::shared_ptr<FakeContent> content = std::make_shared<FakeContent>();
    qtbackend::QtWindow window{content, {.title = "Test", .size = {100, 80}, .safeArea = {1, 2, 3, 4}}};
    bool isShown = false;
};

} // namespace

TEST_F(QtWindowTest, ShowsItsContentAtItsSize) {
    ASSERT_TRUE(isShown);

    EXPECT_EQ(content->size, (geometry::Size{100, 80}));
    EXPECT_EQ(content->safeArea, (geometry::PhysicalInsets{1, 2, 3, 4}));
    const double scale = window.devicePixelRatio();
    const QImage shown = window.screen()->grabWindow(window.winId()).toImage();
    EXPECT_EQ(shown.size(), QSize(int(100 * scale), int(80 * scale)));
    EXPECT_EQ(shown.pixel(int(15 * scale), int(15 * scale)) & 0xFFFFFF, 0xFF0000u);
}

TEST_F(QtWindowTest, TurnsAClickIntoATouch) {
    mouse(QEvent::MouseButtonPress, {12, 34});
    mouse(QEvent::MouseMove, {14, 35});
    mouse(QEvent::MouseButtonRelease, {15.5, 36});

    EXPECT_THAT(phases(), ElementsAre(TouchPhase::began, TouchPhase::moved, TouchPhase::ended));
    EXPECT_EQ(content->touches[0].location, (Point{12, 34}));
    EXPECT_EQ(content->touches[2].location, (Point{15.5, 36}));
    EXPECT_NEAR(content->touches[2].time_s, loop.now_s(), 5);
}

TEST_F(QtWindowTest, IgnoresTheMouseWhileItsButtonIsUpAndItsOtherButtons) {
    mouse(QEvent::MouseMove, {14, 35});
    mouse(QEvent::MouseButtonPress, {14, 35}, Qt::RightButton);
    mouse(QEvent::MouseButtonRelease, {14, 35}, Qt::RightButton);

    EXPECT_THAT(content->touches, IsEmpty());
}

TEST_F(QtWindowTest, FollowsTheFirstFingerOnly) {
    QPointingDevice device("screen", 1, QInputDevice::DeviceType::TouchScreen, QPointingDevice::PointerType::Finger,
                           QInputDevice::Capability::Position, 5, 0);
    const auto send = [&](QEvent::Type type, QEventPoint::State first, QEventPoint::State second) {
        const auto point = [](int id, QEventPoint::State state, QPointF at) { return QEventPoint(id, state, at, at); };
        QTouchEvent event(type, &device, {}, {point(7, first, {10, 20}), point(8, second, {50, 60})});
        QCoreApplication::sendEvent(&window, &event);
    };
    send(QEvent::TouchBegin, QEventPoint::Pressed, QEventPoint::Pressed);
    send(QEvent::TouchUpdate, QEventPoint::Updated, QEventPoint::Updated);
    send(QEvent::TouchEnd, QEventPoint::Released, QEventPoint::Released);

    EXPECT_THAT(phases(), ElementsAre(TouchPhase::began, TouchPhase::moved, TouchPhase::ended));
}

TEST_F(QtWindowTest, WaitsForAFingerThatComesDownWhenTheFirstHasLifted) {
    finger(QEvent::TouchBegin, 7, QEventPoint::Pressed);
    finger(QEvent::TouchEnd, 7, QEventPoint::Released);
    finger(QEvent::TouchUpdate, 8, QEventPoint::Updated);
    finger(QEvent::TouchUpdate, 8, QEventPoint::Stationary);
    EXPECT_THAT(phases(), ElementsAre(TouchPhase::began, TouchPhase::ended));

    finger(QEvent::TouchBegin, 8, QEventPoint::Pressed);
    finger(QEvent::TouchUpdate, 8, QEventPoint::Stationary);
    finger(QEvent::TouchUpdate, 8, QEventPoint::Updated);
    EXPECT_THAT(phases(), ElementsAre(TouchPhase::began, TouchPhase::ended, TouchPhase::began, TouchPhase::moved));
}

TEST_F(QtWindowTest, TakesTheMouseOrAFingerWhicheverComesFirst) {
    mouse(QEvent::MouseButtonPress, {12, 34});
    finger(QEvent::TouchBegin, 7, QEventPoint::Pressed);
    mouse(QEvent::MouseButtonPress, {13, 34});
    mouse(QEvent::MouseButtonRelease, {12, 34}, Qt::RightButton);
    mouse(QEvent::MouseButtonRelease, {12, 34});
    mouse(QEvent::MouseButtonRelease, {12, 34});
    EXPECT_THAT(phases(), ElementsAre(TouchPhase::began, TouchPhase::ended));

    finger(QEvent::TouchBegin, 7, QEventPoint::Pressed);
    mouse(QEvent::MouseButtonPress, {12, 34});
    mouse(QEvent::MouseMove, {12, 35});
    mouse(QEvent::MouseButtonRelease, {12, 34});
    EXPECT_THAT(phases(), ElementsAre(TouchPhase::began, TouchPhase::ended, TouchPhase::began));
}

TEST_F(QtWindowTest, CancelsATouchThatTheSystemTakesAway) {
    finger(QEvent::TouchBegin, 7, QEventPoint::Pressed);
    finger(QEvent::TouchUpdate, 7, QEventPoint::Updated);
    finger(QEvent::TouchCancel, 7, QEventPoint::Updated);
    finger(QEvent::TouchCancel, 7, QEventPoint::Updated);
    EXPECT_THAT(phases(), ElementsAre(TouchPhase::began, TouchPhase::moved, TouchPhase::cancelled));

    content->touches.clear();
    finger(QEvent::TouchBegin, 9, QEventPoint::Pressed);
    EXPECT_THAT(phases(), ElementsAre(TouchPhase::began));
}

TEST_F(QtWindowTest, CancelsATouchWhenItIsHidden) {
    mouse(QEvent::MouseButtonPress, {12, 34});
    window.hide();
    EXPECT_THAT(phases(), ElementsAre(TouchPhase::began, TouchPhase::cancelled));
    EXPECT_EQ(content->touches.back().location, (Point{12, 34}));

    mouse(QEvent::MouseMove, {14, 35});
    mouse(QEvent::MouseButtonRelease, {14, 35});
    EXPECT_THAT(phases(), ElementsAre(TouchPhase::began, TouchPhase::cancelled));
}

TEST_F(QtWindowTest, ScrollsDownWhenTheWheelIsTurnedTowardsThePerson) {
    QWheelEvent notch({20, 30}, window.mapToGlobal(QPointF(20, 30)), {}, {0, -120}, {}, {}, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&window, &notch);
    QWheelEvent trackpad({20, 30}, window.mapToGlobal(QPointF(20, 30)), {3, 5}, {0, 40}, {}, {}, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&window, &trackpad);

    EXPECT_THAT(content->scrolls, ElementsAre(std::pair(Point{20, 30}, Point{0, 60}), std::pair(Point{20, 30}, Point{-3, -5})));
}

TEST_F(QtWindowTest, ScrollsSidewaysAndByPartsOfANotchAndNotByNothing) {
    const auto turn = [&](QPoint angle) {
        QWheelEvent event({21, 32}, window.mapToGlobal(QPointF(21, 32)), {}, angle, {}, {}, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&window, &event);
    };
    turn({-240, 0});
    turn({0, 30});
    turn({0, 0});

    EXPECT_THAT(content->scrolls, ElementsAre(std::pair(Point{21, 32}, Point{120, 0}), std::pair(Point{21, 32}, Point{0, -15})));
}

TEST_F(QtWindowTest, TakesNoFingerForAMouseThatRests) {
    QPointingDevice device("screen", 1, QInputDevice::DeviceType::TouchScreen, QPointingDevice::PointerType::Finger,
                           QInputDevice::Capability::Position, 5, 0);
    content->pointers.clear();
    QMouseEvent moves(QEvent::MouseMove, {25, 35}, {25, 35}, Qt::NoButton, Qt::NoButton, Qt::NoModifier, &device);
    QCoreApplication::sendEvent(&window, &moves);

    EXPECT_THAT(content->pointers, IsEmpty());
}

TEST_F(QtWindowTest, HandsOnTheKeysThatMeanSomething) {
    for (const int key :
         {Qt::Key_Escape, Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space, Qt::Key_Up, Qt::Key_Down,
          Qt::Key_Left, Qt::Key_Right, Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End, Qt::Key_A})
        press(key);

    EXPECT_THAT(content->keys, ElementsAre(Key::escape, Key::tab, Key::backTab, Key::activate, Key::activate, Key::space, Key::up,
                                           Key::down, Key::left, Key::right, Key::pageUp, Key::pageDown, Key::home, Key::end));
}

TEST_F(QtWindowTest, LeavesAloneTheKeysThatMeanNothing) {
    const auto isAccepted = [&](int key) {
        QKeyEvent event(QEvent::KeyPress, key, {});
        event.setAccepted(true);
        QCoreApplication::sendEvent(&window, &event);
        return event.isAccepted();
    };

    EXPECT_TRUE(isAccepted(Qt::Key_Return));
    EXPECT_FALSE(isAccepted(Qt::Key_A));
}

TEST_F(QtWindowTest, SaysWhereTheMouseRestsAndThatItHasLeft) {
    QEnterEvent enters({20, 30}, {20, 30}, {20, 30});
    QMouseEvent moves(QEvent::MouseMove, QPointF(25, 35), QPointF(25, 35), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QEvent leaves(QEvent::Leave);
    content->pointers.clear(); // the mouse may have been where the window came
    for (QEvent* const event : {static_cast<QEvent*>(&enters), static_cast<QEvent*>(&moves), &leaves})
        QCoreApplication::sendEvent(&window, event);

    EXPECT_THAT(content->pointers, ElementsAre(Point{20, 30}, Point{25, 35}, std::nullopt));
    EXPECT_THAT(content->touches, IsEmpty());
}

TEST_F(QtWindowTest, ShowsAHandOverWhatCanBeTapped) {
    const auto hover = [&](QPointF at) {
        QMouseEvent moves(QEvent::MouseMove, at, at, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&window, &moves);
        return window.cursor().shape();
    };

    EXPECT_EQ(hover({15, 15}), Qt::PointingHandCursor);
    EXPECT_EQ(hover({50, 50}), Qt::ArrowCursor);
    EXPECT_EQ(hover({15, 15}), Qt::PointingHandCursor);
    QEvent leaves(QEvent::Leave);
    QCoreApplication::sendEvent(&window, &leaves);
    EXPECT_EQ(window.cursor().shape(), Qt::ArrowCursor);
}

TEST_F(QtWindowTest, TakesTheHandAwayWhenTheControlHasMovedFromUnderTheMouse) {
    QMouseEvent moves(QEvent::MouseMove, QPointF(15, 15), QPointF(15, 15), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &moves);
    EXPECT_EQ(window.cursor().shape(), Qt::PointingHandCursor);

    content->x = 60;
    content->changed();
    settle();

    EXPECT_EQ(window.cursor().shape(), Qt::ArrowCursor);
}

TEST_F(QtWindowTest, SaysThatAKeyIsHeldDown) {
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, {}, true);
    QCoreApplication::sendEvent(&window, &held);

    EXPECT_THAT(content->keys, IsEmpty());
    EXPECT_THAT(content->repeatedKeys, ElementsAre(Key::activate));
}

TEST_F(QtWindowTest, PaintsNothingWhileNothingChanges) {
    const int paints = content->paintCount, frames = window.frameCount();
    settle();

    EXPECT_EQ(content->paintCount, paints);
    EXPECT_EQ(window.frameCount(), frames);
}

TEST_F(QtWindowTest, RepaintsWhatATouchHasChanged) {
    const int frames = window.frameCount();
    mouse(QEvent::MouseButtonPress, {12, 34});
    mouse(QEvent::MouseButtonRelease, {12, 34});

    ASSERT_TRUE(handleEventsUntil([&] { return window.frameCount() > frames; }));

    const int scale = int(window.devicePixelRatio());
    EXPECT_THAT(window.view().lastDamage(),
                testing::UnorderedElementsAre(PixelRect{10 * scale, 10 * scale, 20 * scale, 20 * scale},
                                              PixelRect{30 * scale, 10 * scale, 40 * scale, 20 * scale}));
}

TEST_F(QtWindowTest, ShowsNoFrameForAChangeThatCannotBeSeen) {
    const int paints = content->paintCount, frames = window.frameCount();
    content->changed();

    ASSERT_TRUE(handleEventsUntil([&] { return content->paintCount > paints; }));

    EXPECT_EQ(window.frameCount(), frames);
}

TEST_F(QtWindowTest, ShowsFramesWhileTheContentIsAnimating) {
    const int frames = window.frameCount();
    content->animatedFrames = 5;
    content->changed();

    ASSERT_TRUE(handleEventsUntil([&] { return content->animatedFrames == 0; }));
    settle();

    EXPECT_EQ(window.frameCount(), frames + 5);
}

TEST_F(QtWindowTest, TellsItsContentOfANewSize) {
    window.resize(120, 90);
    ASSERT_TRUE(handleEventsUntil([&] { return content->size == geometry::Size{120, 90}; }));
    settle();

    const QImage shown = window.screen()->grabWindow(window.winId()).toImage();
    EXPECT_EQ(shown.width(), int(120 * window.devicePixelRatio()));
    window.setSafeArea({9, 0, 0, 0});
    EXPECT_EQ(content->safeArea.top, 9);
}

TEST_F(QtWindowTest, ReportsThatItWasClosed) {
    int closings = 0;
    window.setCloseHandler([&] { ++closings; });
    window.close();

    EXPECT_EQ(closings, 1);
}

TEST_F(QtWindowTest, MayReplaceItsHandlerWhenItWasClosed) {
    int closings = 0;
    window.setCloseHandler([&] {
        ++closings;
        window.setCloseHandler({});
    });
    window.close();
    window.show();
    window.close();

    EXPECT_EQ(closings, 1);
}

TEST_F(QtWindowTest, IsReadAsAWindowOfTheProgram) {
    QAccessibleInterface* const root = window.accessibleRoot();

    EXPECT_EQ(root->role(), QAccessible::Window);
    EXPECT_EQ(root->text(QAccessible::Name), "Test");
    EXPECT_EQ(root->rect(), QRect(window.mapToGlobal(QPoint(0, 0)), QSize(100, 80)));
    EXPECT_EQ(root->parent(), QAccessible::queryAccessibleInterface(qApp));
    EXPECT_EQ(root->window(), &window);
    EXPECT_FALSE(root->state().invisible);
    window.hide();
    EXPECT_TRUE(root->state().invisible);
}

TEST_F(QtWindowTest, HasWholePointsForItsSize) {
    const auto shown = std::make_shared<FakeContent>();
    const qtbackend::QtWindow other(shown, {.title = "Other", .size = {99.6, 80.4}, .safeArea = {1, 2, 3, 4}});

    EXPECT_EQ(other.size(), QSize(100, 80));
    EXPECT_EQ(shown->size, (geometry::Size{100, 80}));
    EXPECT_EQ(shown->safeArea, (geometry::PhysicalInsets{1, 2, 3, 4}));
    EXPECT_EQ(other.title(), "Other");
    EXPECT_EQ(other.surfaceType(), QSurface::RasterSurface);
}

TEST_F(QtWindowTest, ShowsNothingWhileItIsHidden) {
    window.hide();
    tests::settle();
    const int paints = content->paintCount;
    content->changed();
    tests::settle();
    EXPECT_EQ(content->paintCount, paints);

    window.show();
    EXPECT_TRUE(handleEventsUntil([&] { return content->paintCount > paints; }));
}

TEST(RegionsOfPixels, HoldEveryUnitThatAPixelTouches) {
    using qtbackend::regionOf;

    EXPECT_EQ(regionOf({}, 1.5), QRegion());
    EXPECT_EQ(regionOf({{1, 2, 4, 5}}, 1), QRegion(1, 2, 3, 3));
    EXPECT_EQ(regionOf({{1, 2, 4, 5}}, 1.5), QRegion(0, 1, 3, 3));
    EXPECT_EQ(regionOf({{2, 4, 6, 10}}, 2), QRegion(1, 2, 2, 3));
    EXPECT_EQ(regionOf({{0, 0, 2, 2}, {10, 20, 13, 21}}, 2), QRegion(0, 0, 1, 1) + QRegion(5, 10, 2, 1));
}

TEST_F(QtWindowTest, LetsGoOfItsContent) {
    const auto second = std::make_shared<FakeContent>();
    { const qtbackend::QtWindow other(second, {}); }

    EXPECT_FALSE(second->handler);
    EXPECT_EQ(second.use_count(), 1);
}

// What fingers, the mouse, wheels and keys become.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointingDevice>
#include <QWheelEvent>

#include "Tests/Qt/ShownWindow.hpp"

using namespace proupsells;

using geometry::Point;
using host::Key;
using host::TouchPhase;
using testing::ElementsAre;
using testing::IsEmpty;
using tests::QtWindowTest;

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

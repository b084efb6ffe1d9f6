// A window of Qt's over content that can be watched.
#pragma once

#include <gtest/gtest.h>

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointingDevice>

#include "Backends/Qt/QtRunLoopDriver.hpp"
#include "Backends/Qt/QtWindow.hpp"
#include "Platform/Graphics/PaintContext.hpp"
#include "Tests/Qt/Events.hpp"
#include "Tests/Raster/Canvas.hpp"

namespace proupsells::tests {

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
        if (touch.phase != host::TouchPhase::ended) return;
        x += 20;
        changed();
    }
    void pointer(std::optional<geometry::Point> location) override { pointers.push_back(location); }
    void scroll(geometry::Point location, geometry::Point delta) override { scrolls.emplace_back(location, delta); }
    bool key(host::Key key, bool isRepeated) override {
        (isRepeated ? repeatedKeys : keys).push_back(key);
        return true;
    }
    void paint(graphics::DisplayList& list) override {
        ++paintCount;
        list.clear();
        graphics::PaintContext context(list);
        context.fillRectangle({}, {{0, 0}, size}, white);
        context.fillRectangle({}, {{x, 10}, {10, 10}}, red);
        if (animatedFrames > 0) context.fillRectangle({}, {{0, double(animatedFrames--)}, {1, 1}}, blue);
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
    std::vector<std::pair<geometry::Point, geometry::Point>> scrolls;
    std::vector<std::optional<geometry::Point>> pointers;
    std::vector<host::Key> keys, repeatedKeys;
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
    std::vector<host::TouchPhase> phases() const {
        std::vector<host::TouchPhase> phases;
        for (const host::Touch& touch : content->touches) phases.push_back(touch.phase);
        return phases;
    }

    runloop::MainRunLoop loop{std::make_shared<runloop::RealClock>()};
    qtbackend::QtRunLoopDriver driver{loop};
    std::shared_ptr<FakeContent> content = std::make_shared<FakeContent>();
    qtbackend::QtWindow window{content, {.title = "Test", .size = {100, 80}, .safeArea = {1, 2, 3, 4}}};
    bool isShown = false;
};

} // namespace proupsells::tests

// A window on a virtual clock, and controllers that write down what they are told.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Backends/Headless/TestBed.hpp"
#include "Platform/Accessibility/Search.hpp"
#include "Platform/UIKit/Controllers/UIWindow.hpp"
#include "Tests/Support/FailOnUnexpectedLog.hpp"
#include "Tests/Support/PrintGeometry.hpp"

namespace proupsells::uikit {

using Calls = std::vector<std::string>;

// Appends "name.call" to a list for every call.
class RecordingController : public UIViewController {
public:
    RecordingController(std::string name, Calls& calls) : m_name(std::move(name)), m_calls(calls) {}
    ~RecordingController() override {
        if (recordsEnd) note("gone");
    }
    std::string_view typeName() const override { return m_name; }

    void viewDidLoad() override { note("didLoad", onDidLoad); }
    void viewWillAppear(bool) override { note("willAppear", onWillAppear); }
    void viewDidAppear(bool) override { note("didAppear", onDidAppear); }
    void viewWillDisappear(bool) override { note("willDisappear", onWillDisappear); }
    void viewDidDisappear(bool) override { note("didDisappear", onDidDisappear); }

    std::function<void()> onDidLoad, onWillAppear, onDidAppear, onWillDisappear, onDidDisappear;
    bool recordsEnd = false;

private:
    void note(const char* call, const std::function<void()>& then = {}) {
        m_calls.push_back(m_name + "." + call);
        if (then) then();
    }

    std::string m_name;
    Calls& m_calls;
};

class ScreenTest : public testing::Test {
protected:
    static constexpr double transition_s = 0.5;

    ScreenTest() : window(UIWindow::create({375, 800})) {}
    ~ScreenTest() override {
        window->setRootViewController(nullptr);
        window.reset();
    }

    std::shared_ptr<RecordingController> controller(std::string name) {
        return std::make_shared<RecordingController>(std::move(name), calls);
    }
    // A root controller that is on screen; its calls are forgotten.
    std::shared_ptr<RecordingController> showRoot(std::string name = "root") {
        auto root = controller(std::move(name));
        window->setRootViewController(root);
        calls.clear();
        return root;
    }
    Calls takeCalls() { return std::exchange(calls, {}); }

    void touch(host::TouchPhase phase, geometry::Point location) { window->touch({phase, location, bed.now_s()}); }
    void tap(geometry::Point location) {
        touch(host::TouchPhase::began, location);
        touch(host::TouchPhase::ended, location);
    }
    graphics::DisplayList painted() {
        graphics::DisplayList list;
        window->paint(list);
        return list;
    }

    headless::TestBed bed;
    Calls calls;
    std::shared_ptr<UIWindow> window;
};

inline std::shared_ptr<UIView> viewAt(const geometry::Rect& frame) { return std::make_shared<UIView>(frame); }

} // namespace proupsells::uikit

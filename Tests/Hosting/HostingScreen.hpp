// A hosting controller in a window on a virtual clock.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Backends/Headless/TestBed.hpp"
#include "Platform/Accessibility/Search.hpp"
#include "Platform/Hosting/UIHostingController.hpp"
#include "Platform/SwiftUI/SwiftUI.hpp"
#include "Platform/UIKit/Controllers/UIWindow.hpp"
#include "Tests/Support/FailOnUnexpectedLog.hpp"

namespace proupsells::hosting {

using Calls = std::vector<std::string>;

class HostingTest : public testing::Test {
protected:
    ~HostingTest() override {
        window->setRootViewController(nullptr);
        window.reset();
    }

    template <class Value>
    std::shared_ptr<UIHostingController> show(Value value) {
        auto controller = UIHostingController::create(std::move(value));
        window->setRootViewController(controller);
        return controller;
    }
    void touch(host::TouchPhase phase, geometry::Point location) { window->touch({phase, location, bed.now_s()}); }
    void tap(geometry::Point location) {
        touch(host::TouchPhase::began, location);
        touch(host::TouchPhase::ended, location);
        bed.settle();
    }
    std::vector<std::string> texts() { return accessibility::shownTexts(window->semanticTree()); }
    // Stays good until the next call.
    const accessibility::SemanticNode& find(std::string_view identifier) {
        static const accessibility::SemanticNode missing;
        m_tree = window->semanticTree();
        const accessibility::SemanticNode* node = accessibility::findByIdentifier(m_tree, identifier);
        EXPECT_TRUE(node) << "there is no " << identifier;
        return node ? *node : missing;
    }
    graphics::DisplayList painted() {
        graphics::DisplayList list;
        window->paint(list);
        return list;
    }

    Calls calls; // for views to write down what happens, until the window is gone
    headless::TestBed bed;
    std::shared_ptr<uikit::UIWindow> window = uikit::UIWindow::create({400, 800});

private:
    accessibility::SemanticNode m_tree;
};

} // namespace proupsells::hosting

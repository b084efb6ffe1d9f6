// A view on a screen of its own, on a virtual clock, with texts whose every measure can be computed by hand.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "Backends/Headless/TestBed.hpp"
#include "Platform/Hosting/UIHostingController.hpp"
#include "Platform/SwiftUI/Modifiers/EnvironmentModifiers.hpp"
#include "Platform/UIKit/Controllers/UIWindow.hpp"
#include "Tests/ProUpsells/SemanticSearch.hpp"

namespace proupsells::tests {

struct ScreenOptions {
    geometry::PhysicalInsets safeArea;
    uikit::UITraitCollection traits;
};

class Screen {
public:
    template <class Value>
    Screen(Value view, geometry::Size size, ScreenOptions options = {}) : Screen(rootFor(std::move(view)), size, options) {}

    Screen(std::function<swiftui::View()> root, geometry::Size size, ScreenOptions options = {})
        : m_window(uikit::UIWindow::create(size, options.safeArea)) {
        m_window->setTraits(options.traits);
        m_window->setRootViewController(hosting::UIHostingController::create(std::move(root)));
        settle();
    }

    void settle() { m_bed.settle(); }
    void runUntil(double time_s) { m_bed.runUntil(time_s); }
    void setSize(geometry::Size size) {
        m_window->setSize(size, {});
        settle();
    }

    accessibility::SemanticNode tree() const { return m_window->semanticTree(); }
    accessibility::SemanticNode find(std::string_view identifier) const { return tests::find(tree(), identifier); }
    bool has(std::string_view identifier) const { return tests::has(tree(), identifier); }
    geometry::Rect frame(std::string_view identifier) const { return find(identifier).frame; }
    geometry::Rect frameOfType(std::string_view type) const { return firstOfType(tree(), type).frame; }
    // The identifiers of the controls that are marked.
    std::vector<std::string> selectedIdentifiers() const {
        std::vector<std::string> result;
        visit(tree(), [&](const accessibility::SemanticNode& node) {
            if (contains(node.traits, accessibility::Traits::selected)) result.push_back(node.identifier);
        });
        return result;
    }

    void touch(host::TouchPhase phase, geometry::Point location) { m_window->touch({phase, location, m_bed.now_s()}); }
    void tap(geometry::Point location) {
        touch(host::TouchPhase::began, location);
        touch(host::TouchPhase::ended, location);
        settle();
    }
    void tap(std::string_view identifier) { tap(frame(identifier).center()); }

    headless::TestBed& bed() { return m_bed; }
    uikit::UIWindow& window() { return *m_window; }

private:
    template <class Value>
    static std::function<swiftui::View()> rootFor(Value view) {
        return [view = std::move(view)]() -> swiftui::View { return Value(view); };
    }

    headless::TestBed m_bed;
    std::shared_ptr<uikit::UIWindow> m_window;
};

} // namespace proupsells::tests

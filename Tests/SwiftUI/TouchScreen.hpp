// A declarative tree under a finger, on virtual time.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "Backends/Headless/TestBed.hpp"
#include "Platform/Accessibility/Search.hpp"
#include "Platform/SwiftUI/SwiftUI.hpp"
#include "Platform/SwiftUI/Tree/ViewHost.hpp"
#include "Tests/Support/FailOnUnexpectedLog.hpp"

namespace proupsells::tests {

class TouchScreen {
public:
    explicit TouchScreen(std::function<swiftui::View()> root, geometry::Size size = {300, 400},
                         geometry::PhysicalInsets safeArea = {})
        : m_host(swiftui::ViewHost::create(std::move(root))) {
        m_host->setSize(size, safeArea);
        settle();
    }

    headless::TestBed& bed() { return m_bed; }
    swiftui::ViewHost& host() { return *m_host; }
    std::shared_ptr<swiftui::ViewHost>& hostPointer() { return m_host; }
    double now_s() const { return m_bed.now_s(); }
    void settle() { m_bed.settle(); }
    void wait(double duration_s) { m_bed.runFor(duration_s); }
    void setRightToLeft() {
        swiftui::EnvironmentValues values = m_host->environment();
        values.layoutDirection = geometry::LayoutDirection::rightToLeft;
        m_host->setEnvironment(values);
        settle();
    }
    // Builds everything again, as after a change of what the root shows.
    void rebuild() {
        m_host->setNeedsUpdate();
        settle();
    }

    // --- The finger
    bool down(geometry::Point at) { return send(host::TouchPhase::began, at); }
    bool move(geometry::Point to) { return send(host::TouchPhase::moved, to); }
    bool up(geometry::Point at) { return send(host::TouchPhase::ended, at); }
    bool cancel(geometry::Point at = {}) { return send(host::TouchPhase::cancelled, at); }
    void tap(geometry::Point at) {
        down(at);
        up(at);
    }
    // From one place to the other at an even speed, 60 times a second; lifts at its end.
    void drag(geometry::Point from, geometry::Point to, double duration_s) {
        pull(from, to, duration_s);
        up(to);
    }
    // The same without lifting.
    void pull(geometry::Point from, geometry::Point to, double duration_s) {
        down(from);
        const int steps = std::max(1, int(duration_s * 60 + 0.5));
        for (int step = 1; step <= steps; ++step) {
            wait(duration_s / steps);
            const double share = double(step) / steps;
            move({from.x + (to.x - from.x) * share, from.y + (to.y - from.y) * share});
        }
    }

    // --- What is there to be seen
    accessibility::SemanticNode tree() { return m_host->semanticTree(); }
    // Fails the test and returns an empty node where there is none.
    accessibility::SemanticNode find(std::string_view identifier) {
        const accessibility::SemanticNode root = tree();
        const accessibility::SemanticNode* found = accessibility::findByIdentifier(root, identifier);
        if (!found) ADD_FAILURE() << "Nothing has the identifier " << identifier;
        return found ? *found : accessibility::SemanticNode{};
    }
    geometry::Rect frame(std::string_view identifier) { return find(identifier).frame; }
    bool isOnScreen(std::string_view identifier) { return find(identifier).isOnScreen; }
    // Of the first scroll view.
    geometry::Point offset() { return scrollInfo().contentOffset; }
    accessibility::ScrollInfo scrollInfo() {
        const accessibility::SemanticNode root = tree();
        const auto found = accessibility::findAllByType(root, "ScrollView");
        if (found.empty() || !found.front()->scroll) {
            ADD_FAILURE() << "There is no scroll view";
            return {};
        }
        return *found.front()->scroll;
    }

private:
    bool send(host::TouchPhase phase, geometry::Point location) {
        const bool isTaken = m_host && m_host->touch({phase, location, now_s()});
        settle();
        return isTaken;
    }

    headless::TestBed m_bed;
    std::shared_ptr<swiftui::ViewHost> m_host;
};

// Of a screen of the usual size.
inline constexpr geometry::Point middle{150, 200};

// A view of a fixed size that can be found again and that touches do not go through.
inline swiftui::View box(double width, double height, const std::string& identifier) {
    return swiftui::ColorView{graphics::Color::black} | swiftui::frame(width, height) |
           swiftui::accessibilityIdentifier(identifier);
}

} // namespace proupsells::tests

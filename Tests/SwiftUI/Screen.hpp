// A view on a screen of its own, with fixed-metrics texts and a clock that stands still.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Backends/Headless/TestBed.hpp"
#include "Platform/SwiftUI/SwiftUI.hpp"
#include "Platform/SwiftUI/Tree/ViewHost.hpp"
#include "Tests/Support/FailOnUnexpectedLog.hpp"
#include "Tests/Support/PrintGeometry.hpp"

namespace proupsells::swiftui::tests {

using geometry::Rect;
using geometry::Size;

// A font of which every character is 5 wide and every line 12.5 high.
inline const graphics::Font tenPoints{.size = 10, .name = "ten"};

class Screen {
public:
    // `root` is called for every build.
    Screen(std::function<View()> root, Size size, geometry::PhysicalInsets safeArea = {})
        : m_host(ViewHost::create(std::move(root))) {
        m_host->setSize(size, safeArea);
        m_host->update();
    }

    headless::TestBed& bed() { return m_bed; }
    ViewHost& host() { return *m_host; }
    // Lets everything that is due now happen.
    void settle() { m_bed.settle(); }
    void runFor(double duration_s) { m_bed.runFor(duration_s); }

    accessibility::SemanticNode tree() { return m_host->semanticTree(); }
    // The first node with the identifier, in the order of the tree; a failure and an empty node when there is none.
    accessibility::SemanticNode node(const std::string& identifier) {
        const accessibility::SemanticNode root = tree();
        if (const auto* found = findNode(root, [&](const auto& n) { return n.identifier == identifier; })) return *found;
        ADD_FAILURE() << "Nothing on screen is identified as " << identifier;
        return {};
    }
    bool has(const std::string& identifier) {
        const accessibility::SemanticNode root = tree();
        return findNode(root, [&](const auto& n) { return n.identifier == identifier; }) != nullptr;
    }
    Rect frame(const std::string& identifier) { return node(identifier).frame; }

    // All texts in the order of the tree.
    std::vector<std::string> texts() {
        std::vector<std::string> result;
        const accessibility::SemanticNode root = tree();
        findNode(root, [&](const auto& n) {
            if (n.text) result.push_back(n.text->text);
            return false;
        });
        return result;
    }
    // The node of a text; a failure when it is not there.
    accessibility::SemanticNode text(const std::string& words) {
        const accessibility::SemanticNode root = tree();
        if (const auto* found = findNode(root, [&](const auto& n) { return n.text && n.text->text == words; })) return *found;
        ADD_FAILURE() << "No text says " << words;
        return {};
    }

    template <class Predicate>
    static const accessibility::SemanticNode* findNode(const accessibility::SemanticNode& node, const Predicate& predicate) {
        if (predicate(node)) return &node;
        for (const accessibility::SemanticNode& child : node.children)
            if (const auto* found = findNode(child, predicate)) return found;
        return nullptr;
    }

private:
    headless::TestBed m_bed;
    std::shared_ptr<ViewHost> m_host;
};

// A fixed block that can be found.
inline View block(const std::string& identifier, double width, double height) {
    return ColorView{graphics::Color::black} | frame(width, height) | accessibilityIdentifier(identifier);
}
// A block that fills what it is offered.
inline View filler(const std::string& identifier) {
    return ColorView{graphics::Color::black} | accessibilityIdentifier(identifier);
}

inline Rect rect(double x, double y, double width, double height) { return {{x, y}, {width, height}}; }

} // namespace proupsells::swiftui::tests

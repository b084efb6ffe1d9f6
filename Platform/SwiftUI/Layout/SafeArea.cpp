#include "Platform/SwiftUI/Layout/SafeArea.hpp"

#include "Platform/SwiftUI/Tree/ViewHost.hpp"

namespace proupsells::swiftui {

using geometry::EdgeInsets;
using geometry::PhysicalInsets;
using geometry::Rect;

namespace {

// Distances smaller than half a pixel of a coarse screen do not separate edges.
constexpr double tolerance = 0.5;

Rect targetFrameInHost(const Node& node) {
    Rect rect = node.frame();
    for (const Node* outer = node.parent(); outer; outer = outer->parent()) rect = rect.offsetBy(outer->frame().origin);
    return rect;
}

EdgeInsets oriented(const Node& node, double top, double left, double bottom, double right) {
    return node.environment().isRightToLeft() ? EdgeInsets{top, right, bottom, left} : EdgeInsets{top, left, bottom, right};
}

} // namespace

EdgeInsets touchedSafeArea(const Node& node) {
    const Rect rect = targetFrameInHost(node);
    const PhysicalInsets& safe = node.host().safeArea();
    const geometry::Size host = node.host().size();
    return oriented(node, rect.minY() <= safe.top + tolerance ? safe.top : 0, rect.minX() <= safe.left + tolerance ? safe.left : 0,
                    rect.maxY() >= host.height - safe.bottom - tolerance ? safe.bottom : 0,
                    rect.maxX() >= host.width - safe.right - tolerance ? safe.right : 0);
}

EdgeInsets reachToHostEdges(const Node& node, Edge edges) {
    const Rect rect = targetFrameInHost(node);
    const PhysicalInsets& safe = node.host().safeArea();
    const geometry::Size host = node.host().size();
    const auto reach = [](bool touches, double distance) { return touches ? std::max(0.0, distance) : 0.0; };
    EdgeInsets result = oriented(node, reach(rect.minY() <= safe.top + tolerance, rect.minY()),
                                 reach(rect.minX() <= safe.left + tolerance, rect.minX()),
                                 reach(rect.maxY() >= host.height - safe.bottom - tolerance, host.height - rect.maxY()),
                                 reach(rect.maxX() >= host.width - safe.right - tolerance, host.width - rect.maxX()));
    if (!contains(edges, Edge::top)) result.top = 0;
    if (!contains(edges, Edge::leading)) result.leading = 0;
    if (!contains(edges, Edge::bottom)) result.bottom = 0;
    if (!contains(edges, Edge::trailing)) result.trailing = 0;
    return result;
}

} // namespace proupsells::swiftui

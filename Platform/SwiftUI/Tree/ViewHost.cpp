#include "Platform/SwiftUI/Tree/ViewHost.hpp"

#include "Platform/SwiftUI/Animation/Transaction.hpp"
#include "Platform/SwiftUI/Tree/ControlSearch.hpp"
#include "Platform/SwiftUI/Tree/RootNode.hpp"
#include "Platform/SwiftUI/Tree/SemanticContext.hpp"

namespace proupsells::swiftui {

using geometry::Point;
using geometry::ProposedSize;
using geometry::Rect;
using geometry::Size;
using graphics::PaintState;

ViewHost::ViewHost(std::function<View()> root) : m_root(std::move(root)), m_rootNode(std::make_unique<RootNode>(*this)) {
    m_environment.version = EnvironmentValues::nextVersion();
}

std::shared_ptr<ViewHost> ViewHost::create(std::function<View()> root) {
    return std::shared_ptr<ViewHost>(new ViewHost(std::move(root)));
}

ViewHost::~ViewHost() {
    m_isVisible = false;
    m_isUpdating = true; // what the last handlers ask for comes too late
    updateAppearances();
    m_touches.cancel();
    m_departed.clear();
    m_rootNode.reset();
}

void ViewHost::setRoot(std::function<View()> root) {
    m_root = std::move(root);
    setNeedsUpdate();
}

void ViewHost::setSize(Size size, geometry::PhysicalInsets safeArea) {
    if (m_hasSize && m_size == size && m_environment.safeAreaInsets == safeArea) return;
    m_hasSize = true;
    m_size = size;
    if (m_environment.safeAreaInsets != safeArea) {
        m_environment.safeAreaInsets = safeArea;
        m_environment.version = EnvironmentValues::nextVersion();
        setNeedsUpdate();
    }
    // Some layouts depend on where the window's edges are, and those have moved.
    m_hasResized = true;
    m_rootNode->invalidateLayout();
}

void ViewHost::setEnvironment(const EnvironmentValues& environment) {
    const geometry::PhysicalInsets safeArea = m_environment.safeAreaInsets;
    const std::uint64_t version = m_environment.version;
    EnvironmentValues values = environment;
    values.safeAreaInsets = safeArea;
    m_environment.adopt(values);
    if (m_environment.version != version) setNeedsUpdate();
}

void ViewHost::setVisible(bool isVisible) {
    if (m_isVisible == isVisible) return;
    m_isVisible = isVisible;
    if (!isVisible) m_touches.cancel();
    setNeedsAppearanceUpdate();
}

void ViewHost::setInWindow(bool isInWindow) {
    if (m_isInWindow == isInWindow) return;
    m_isInWindow = isInWindow;
    m_inWindowChanges.send(isInWindow);
}

void ViewHost::setNeedsUpdate() {
    if (const auto& animation = Transaction::currentAnimation()) m_rootAnimation = animation;
    setNeedsBuild();
}

void ViewHost::setNeedsBuild() {
    m_needsBuild = true;
    if (const auto& animation = Transaction::currentAnimation()) m_updateAnimation = animation;
    requestUpdate();
}

void ViewHost::setNeedsLayout() {
    m_needsLayout = true;
    m_needsDisplay = true;
    requestUpdate();
}

void ViewHost::setNeedsAppearanceUpdate() {
    m_needsAppearanceUpdate = true;
    requestUpdate();
}

void ViewHost::requestUpdate() {
    if (!m_isUpdating && runloop::MainRunLoop::exists()) runloop::MainRunLoop::main().requestUpdate(weak_from_this());
}

void ViewHost::setNeedsDisplay() {
    m_needsDisplay = true;
    if (m_isUpdating || m_hasToldDisplay) return;
    m_hasToldDisplay = true;
    if (m_needsDisplayHandler) m_needsDisplayHandler();
}

ViewHost::Hold::Hold(ViewHost& host) : m_host(host.shared_from_this()) { ++m_host->m_holdCount; }

ViewHost::Hold::~Hold() {
    if (--m_host->m_holdCount == 0 && !m_host->m_isUpdating) m_host->m_departed.clear();
}

void ViewHost::noteAnimation(double end_s) {
    if (end_s > m_animatingUntil_s) m_animatingUntil_s = end_s;
    if (end_s > now_s()) setNeedsDisplay();
}

bool ViewHost::isAnimating() const { return now_s() < m_animatingUntil_s; }

Size ViewHost::sizeThatFits(const ProposedSize& proposal) {
    if (!m_isUpdating) bringUpToDate();
    const Size size = m_rootNode->sizeThatFits(proposal);
    // Nodes now remember sizes again, so a later invalidation must not count as done already.
    ++m_layoutCount;
    return size;
}

Node* ViewHost::rootNode() const { return m_rootNode.get(); }

void ViewHost::paint(graphics::PaintContext& context, const PaintState& state) {
    update();
    m_rootNode->paint(context, state, now_s());
    m_needsDisplay = false;
    m_hasToldDisplay = false;
    m_paintedAt_s = now_s();
}

const graphics::DisplayList& ViewHost::displayList() {
    update();
    if (!m_needsDisplay && !(m_paintedAt_s < m_animatingUntil_s) && m_listIsOwn) return m_displayList;
    m_displayList.clear();
    graphics::PaintContext context(m_displayList);
    paint(context, PaintState{}.clippedTo({{}, m_size}));
    m_listIsOwn = true;
    return m_displayList;
}

std::vector<accessibility::SemanticNode> ViewHost::semanticNodes(const PaintState& state, const Rect& window, Revealer reveal) {
    update();
    SemanticContext context{.window = window, .now_s = now_s(), .pending = {}, .reveal = std::move(reveal)};
    std::vector<accessibility::SemanticNode> result;
    m_rootNode->appendSemantics(context, state, result);
    return result;
}

accessibility::SemanticNode ViewHost::semanticTree() {
    const Rect window{{}, m_size};
    std::vector<accessibility::SemanticNode> nodes = semanticNodes(PaintState{}.clippedTo(window), window);
    if (nodes.size() == 1) return std::move(nodes.front());
    accessibility::SemanticNode root;
    root.type = "ViewHost";
    root.frame = window;
    root.isOnScreen = !window.isEmpty();
    root.children = std::move(nodes);
    return root;
}

Node* ViewHost::nodeAt(Point location) {
    update();
    return m_rootNode->hitTest(location, {}, now_s());
}

ControlSearch ViewHost::controlNear(Point finger) {
    ControlSearch search{.finger = finger};
    m_rootNode->findControl(search, {}, now_s());
    return search;
}

bool ViewHost::hits(Point location) { return nodeAt(location) != nullptr; }

} // namespace proupsells::swiftui

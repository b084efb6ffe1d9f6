#include "Platform/Hosting/RepresentableNode.hpp"

#include "Platform/SwiftUI/Tree/ControlSearch.hpp"

#include "Platform/Commons/FatalError.hpp"
#include "Platform/Hosting/RepresentableStage.hpp"
#include "Platform/Hosting/Traits.hpp"
#include "Platform/Hosting/UIHostingView.hpp"
#include "Platform/UIKit/Controls/UIControl.hpp"

namespace proupsells::hosting {

void RepresentableStage::subviewDidInvalidateIntrinsicContentSize(uikit::UIView&) {
    if (m_node) m_node->invalidateLayout();
}

void RepresentableStage::subtreeNeedsDisplay() {
    if (m_node) m_node->setNeedsDisplay();
}

RepresentableNode::RepresentableNode() : m_stage(std::make_shared<RepresentableStage>(*this)) {}

RepresentableNode::~RepresentableNode() {
    m_stage->forgetNode();
    m_stage->removeFromSuperview();
}

void RepresentableNode::setView(const std::shared_ptr<uikit::UIView>& view, swiftui::UpdatePass& pass) {
    if (!view) commons::fatalError("UIViewRepresentable: makeUIView has made no view");
    m_view = view;
    m_touches = std::make_unique<uikit::TouchRouter>(*m_stage);
    m_stage->setOverrideTraitCollection(traitsOf(*pass.environment));
    m_stage->addSubview(view);
    if (UIHostingView* hostingView = UIHostingView::showing(pass.host)) hostingView->addSubview(m_stage);
}

void RepresentableNode::adoptEnvironment(const swiftui::EnvironmentValues& environment) {
    m_stage->setOverrideTraitCollection(traitsOf(environment));
}

geometry::Size RepresentableNode::measure(const geometry::ProposedSize& proposal) { return m_view->sizeThatFits(proposal); }

void RepresentableNode::layOut(const geometry::ProposedSize&, geometry::Size size) {
    m_stage->setFrame({m_stage->frame().origin, size});
    m_stage->layoutIfNeeded();
}

void RepresentableNode::paintContent(graphics::PaintContext& context, const graphics::PaintState& state, double) {
    m_stage->layoutIfNeeded();
    m_view->paint(context, state);
}

void RepresentableNode::describe(accessibility::SemanticNode& node, const graphics::PaintState& state, double) const {
    m_stage->layoutIfNeeded();
    node.children.push_back(m_view->semanticNode(state));
    if (isControl()) node.children.back().leastTarget = swiftui::ControlSearch::leastTarget;
}

// --- Touches ---

void RepresentableNode::followPlace() {
    m_stage->setFrame({frameInHost(host().now_s()).origin, m_stage->frame().size});
    m_stage->layoutIfNeeded();
}

void RepresentableNode::send(host::TouchPhase phase, const swiftui::TouchEvent& event) {
    const uikit::UIView* hostingView = m_stage->superview();
    const geometry::Point location = hostingView ? hostingView->convertTo(event.location, nullptr) : event.location;
    m_touches->touch({phase, location, event.time_s});
}

bool RepresentableNode::isControl() const { return dynamic_cast<const uikit::UIControl*>(m_view.get()); }

bool RepresentableNode::touchBegan(const swiftui::TouchEvent& event) {
    followPlace();
    send(host::TouchPhase::began, event);
    return m_touches->isTracking();
}

void RepresentableNode::touchMoved(const swiftui::TouchEvent& event) { send(host::TouchPhase::moved, event); }

void RepresentableNode::touchEnded(const swiftui::TouchEvent& event) { send(host::TouchPhase::ended, event); }

void RepresentableNode::touchCancelled() { m_touches->cancel(); }

void RepresentableNode::hovered(bool isHovered) {
    m_view->hover(isHovered ? std::optional(m_view->bounds().center()) : std::nullopt);
}

} // namespace proupsells::hosting

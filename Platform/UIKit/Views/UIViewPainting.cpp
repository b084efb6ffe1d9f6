// What views look like, and what they say about themselves.
#include <cmath>
#include <numbers>

#include "Platform/UIKit/Views/UIView.hpp"

namespace proupsells::uikit {

void UIView::setNeedsDisplay() {
    for (UIView* view = this; view; view = view->m_superview) view->subtreeNeedsDisplay();
}

graphics::PaintState UIView::contentState(const graphics::PaintState& state) const {
    const geometry::Transform transform = presentationTransform();
    graphics::PaintState inside = transform.isIdentity() ? state : state.transformedBy(transform.about(m_frame.center()));
    inside = inside.movedBy(m_frame.origin - m_boundsOrigin);
    const double alpha = m_isHidden ? 0 : presentationAlpha();
    if (alpha != 1) inside = inside.fadedBy(alpha);
    if (m_clipsToBounds) inside = inside.clippedTo(bounds(), m_cornerRadius);
    inside.scheme = traitCollection().userInterfaceStyle;
    return inside;
}

void UIView::paint(graphics::PaintContext& context, const graphics::PaintState& state) const {
    if (m_isHidden) return;
    const graphics::PaintState inside = contentState(state);
    if (inside.opacity <= 0 || (m_clipsToBounds && inside.hides(bounds()))) return;
    if (m_backgroundColor) {
        const graphics::RGBA color = m_backgroundColor->resolved(inside.scheme);
        if (m_cornerRadius > 0)
            context.fillRoundedRectangle(inside, bounds(), m_cornerRadius, geometry::CornerStyle::circular, color);
        else
            context.fillRectangle(inside, bounds(), color);
    }
    draw(context, inside);
    paintSubviews(context, inside);
}

void UIView::paintSubviews(graphics::PaintContext& context, const graphics::PaintState& state) const {
    for (const auto& subview : m_subviews) subview->paint(context, state);
}

bool UIView::covers(const geometry::Rect& rect) const {
    if (m_isHidden || presentationAlpha() < 1 || !presentationTransform().isIdentity()) return false;
    const geometry::Rect all = bounds();
    const bool isInside =
        rect.minX() >= all.minX() && rect.minY() >= all.minY() && rect.maxX() <= all.maxX() && rect.maxY() <= all.maxY();
    const bool fillsBounds = m_backgroundColor && resolved(*m_backgroundColor).alpha == 255 && m_cornerRadius == 0;
    if (isInside && fillsBounds) return true;
    if (m_clipsToBounds && (!isInside || m_cornerRadius > 0)) return false;
    for (const auto& subview : m_subviews)
        if (subview->m_transform.isIdentity() && subview->covers(rect.offsetBy(subview->m_boundsOrigin - subview->m_frame.origin)))
            return true;
    return false;
}

bool UIView::isAnimating() const {
    if (m_isHidden) return false;
    for (const auto& subview : m_subviews)
        if (subview->isAnimating()) return true;
    return false;
}

accessibility::SemanticNode UIView::semanticNode(const graphics::PaintState& state) const {
    const graphics::PaintState inside = contentState(state);
    accessibility::SemanticNode node;
    node.type = typeName();
    node.id = m_id;
    node.frame = inside.toWindow(bounds());
    node.isOnScreen = inside.opacity > 0 && !inside.hides(bounds());
    node.identifier = accessibilityIdentifier;
    node.label = accessibilityLabel;
    node.value = accessibilityValue();
    node.traits = accessibilityTraits;
    node.spoken = accessibilitySpoken;
    node.opacity = inside.opacity;
    if (m_clipsToBounds) node.clip = node.frame;
    if (m_backgroundColor) {
        node.shape = accessibility::ShapeInfo{std::string(m_backgroundColor->name), {}, {}, {}};
        if (m_cornerRadius > 0) node.shape->cornerRadius = m_cornerRadius;
    }
    describeTransform(node);
    describeReveal(node);
    describe(node, inside);
    appendSubviewNodes(node.children, inside);
    return node;
}

void UIView::describeTransform(accessibility::SemanticNode& node) const {
    const geometry::Transform transform = presentationTransform();
    if (transform.isTranslation()) return;
    node.scale = std::hypot(transform.a, transform.b);
    node.rotation_degrees = std::atan2(transform.b, transform.a) * 180 / std::numbers::pi;
}

void UIView::describeReveal(accessibility::SemanticNode& node) const {
    for (const UIView* ancestor = m_superview; ancestor; ancestor = ancestor->m_superview) {
        if (!ancestor->scrollsItsContent()) continue;
        const auto reveal = [view = std::weak_ptr<const UIResponder>(weak_from_this())](const auto& part) {
            const auto held = std::const_pointer_cast<UIResponder>(view.lock());
            if (!held) return;
            auto& self = static_cast<UIView&>(*held);
            if (self.window()) self.scrollRectToVisible(part(self.bounds()));
        };
        node.reveal = [reveal] { reveal([](const geometry::Rect& all) { return geometry::Rect{all.center(), {1, 1}}; }); };
        node.revealWhole = [reveal] {
            reveal([](const geometry::Rect& all) { return all.insetBy(0, -accessibility::roomAroundRevealed); });
        };
        return;
    }
}

void UIView::appendSubviewNodes(std::vector<accessibility::SemanticNode>& nodes, const graphics::PaintState& state) const {
    nodes.reserve(nodes.size() + m_subviews.size());
    for (const auto& subview : m_subviews) nodes.push_back(subview->semanticNode(state));
}

} // namespace proupsells::uikit

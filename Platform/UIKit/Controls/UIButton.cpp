#include "Platform/UIKit/Controls/UIButton.hpp"

namespace proupsells::uikit {

void UIButton::setImage(UIImage image) {
    if (m_image == image) return;
    m_image = std::move(image);
    invalidateIntrinsicContentSize();
    setNeedsDisplay();
}

geometry::Size UIButton::intrinsicContentSize() const {
    return m_image ? m_image->size : geometry::Size{noIntrinsicMetric, noIntrinsicMetric};
}

double UIButton::presentationAlpha() const {
    constexpr double pressed = 0.5, hovered = 0.88, disabled = 0.4;
    return UIControl::presentationAlpha() * (!isEnabled() ? disabled : isHighlighted() ? pressed : isHovered() ? hovered : 1);
}

void UIButton::draw(graphics::PaintContext& context, const graphics::PaintState& state) const {
    if (!m_image) return;
    const geometry::Point center = bounds().center();
    const geometry::Size size = m_image->size;
    context.image(state, {{center.x - size.width / 2, center.y - size.height / 2}, size}, m_image,
                  tintColor().value_or(UIColor::black).resolved(state.scheme));
}

void UIButton::describe(accessibility::SemanticNode& node, const graphics::PaintState& state) const {
    UIControl::describe(node, state);
    node.traits = node.traits | accessibility::Traits::button;
    if (m_image) node.image = m_image->name;
}

} // namespace proupsells::uikit

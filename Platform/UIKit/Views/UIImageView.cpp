#include "Platform/UIKit/Views/UIImageView.hpp"

namespace proupsells::uikit {

UIImageView::UIImageView(UIImage image) : m_image(std::move(image)) {
    constexpr UILayoutPriority hugging = 251; // before plain views
    setContentHuggingPriority(hugging, Axis::horizontal);
    setContentHuggingPriority(hugging, Axis::vertical);
    setUserInteractionEnabled(false);
}

void UIImageView::setImage(UIImage image) {
    if (m_image == image) return;
    m_image = std::move(image);
    invalidateIntrinsicContentSize();
    setNeedsDisplay();
}

void UIImageView::setContentMode(ContentMode mode) {
    m_contentMode = mode;
    setNeedsDisplay();
}

geometry::Size UIImageView::intrinsicContentSize() const {
    return m_image ? m_image->size : geometry::Size{noIntrinsicMetric, noIntrinsicMetric};
}

geometry::Rect UIImageView::imageFrame() const {
    const geometry::Rect all = bounds();
    if (!m_image || m_contentMode == ContentMode::scaleToFill) return all;
    const geometry::Size natural = m_image->size;
    double scale = 1;
    if (m_contentMode != ContentMode::center && natural.width > 0 && natural.height > 0) {
        const double wide = all.width() / natural.width, high = all.height() / natural.height;
        scale = m_contentMode == ContentMode::aspectFit ? std::min(wide, high) : std::max(wide, high);
    }
    const geometry::Size size{natural.width * scale, natural.height * scale};
    return {{all.midX() - size.width / 2, all.midY() - size.height / 2}, size};
}

void UIImageView::draw(graphics::PaintContext& context, const graphics::PaintState& state) const {
    if (m_image) context.image(state, imageFrame(), m_image, tintColor().value_or(UIColor::black).resolved(state.scheme));
}

void UIImageView::describe(accessibility::SemanticNode& node, const graphics::PaintState&) const {
    node.traits = node.traits | accessibility::Traits::image;
    if (m_image) node.image = m_image->name;
}

} // namespace proupsells::uikit

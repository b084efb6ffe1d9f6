// What views are made of: their subviews and their properties.
#include "Platform/UIKit/Views/UIView.hpp"

#include "Platform/Accessibility/NodeId.hpp"
#include "Platform/Commons/FatalError.hpp"

namespace proupsells::uikit {

UIView::UIView() : m_id(accessibility::newNodeId()) {}

UIView::UIView(const geometry::Rect& frame) : UIView() { m_frame = frame; }

UIView::~UIView() {
    for (const auto& subview : m_subviews) subview->m_superview = nullptr;
}

std::size_t UIView::indexOf(const UIView& subview) const {
    for (std::size_t i = 0; i < m_subviews.size(); ++i)
        if (m_subviews[i].get() == &subview) return i;
    commons::fatalError("UIView: the sibling is not a subview of this view");
}

void UIView::addSubview(const std::shared_ptr<UIView>& view) { insert(view, m_subviews.size()); }

void UIView::insertSubview(const std::shared_ptr<UIView>& view, std::size_t index) { insert(view, index); }

void UIView::insertSubviewAbove(const std::shared_ptr<UIView>& view, const UIView& sibling) {
    if (view && view->m_superview == this) view->removeFromSuperview();
    insert(view, indexOf(sibling) + 1);
}

void UIView::insertSubviewBelow(const std::shared_ptr<UIView>& view, const UIView& sibling) {
    if (view && view->m_superview == this) view->removeFromSuperview();
    insert(view, indexOf(sibling));
}

bool UIView::isDescendantOf(const UIView& view) const {
    for (const UIView* ancestor = this; ancestor; ancestor = ancestor->m_superview)
        if (ancestor == &view) return true;
    return false;
}

UIWindow* UIView::window() const { return m_window; }

// --- Properties ---

void UIView::setBackgroundColor(const std::optional<UIColor>& color) {
    if (m_backgroundColor == color) return;
    m_backgroundColor = color;
    setNeedsDisplay();
}

void UIView::setAlpha(double alpha) {
    m_alpha = std::clamp(alpha, 0.0, 1.0);
    setNeedsDisplay();
}

void UIView::setHidden(bool hidden) {
    if (m_isHidden == hidden) return;
    m_isHidden = hidden;
    setNeedsDisplay();
    if (m_superview) m_superview->subviewDidInvalidateIntrinsicContentSize(*this);
}

void UIView::setClipsToBounds(bool clips) {
    m_clipsToBounds = clips;
    setNeedsDisplay();
}

void UIView::setCornerRadius(double radius) {
    m_cornerRadius = std::max(0.0, radius);
    setNeedsDisplay();
}

std::optional<UIColor> UIView::tintColor() const {
    for (const UIView* view = this; view; view = view->m_superview)
        if (view->m_tintColor) return view->m_tintColor;
    return {};
}

void UIView::setTintColor(const std::optional<UIColor>& color) {
    m_tintColor = color;
    setNeedsDisplay();
}

void UIView::setUserInteractionEnabled(bool enabled) { m_isUserInteractionEnabled = enabled; }

} // namespace proupsells::uikit

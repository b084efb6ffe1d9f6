// What views have to do with constraints.
#include "Platform/UIKit/Constraints/LayoutSystem.hpp"
#include "Platform/UIKit/Constraints/NSLayoutConstraint.hpp"
#include "Platform/UIKit/Views/UIView.hpp"

namespace proupsells::uikit {

bool UIView::hasConstrainedSubviews() const {
    for (const auto& subview : m_subviews)
        if (!subview->m_translatesAutoresizingMask && !arranges(*subview)) return true;
    return false;
}

bool UIView::isPlacedByConstraints() const {
    if (!m_superview || m_superview->arranges(*this)) return false;
    if (!m_translatesAutoresizingMask) return true;
    return m_superviewInsets && (m_superview->isPlacedByConstraints() || m_superview->hasConstrainedSubviews());
}

UIView& UIView::layoutRoot() {
    UIView* root = this;
    while (root->isPlacedByConstraints()) root = root->m_superview;
    return *root;
}

void UIView::layoutSystemDidChange() {
    UIView& root = layoutRoot();
    root.setNeedsLayout();
    if (root.m_superview) root.m_superview->subviewDidInvalidateIntrinsicContentSize(root);
}

void UIView::constraintInputDidChange() {
    if (isPlacedByConstraints()) return layoutSystemDidChange();
    const bool isReferredTo = m_superview && m_layoutItem.exists() && !m_superview->arranges(*this);
    if (isReferredTo && (m_superview->isPlacedByConstraints() || m_superview->hasConstrainedSubviews()))
        m_superview->layoutSystemDidChange();
}

void UIView::endConstraintsAcross(const UIView& leaving) {
    std::vector<std::shared_ptr<NSLayoutConstraint>> ended;
    for (const auto& constraint : m_constraints)
        if (constraint->involves(leaving)) ended.push_back(constraint);
    NSLayoutConstraint::deactivate(ended);
}

void UIView::layOutConstrainedSubviews() {
    if (!hasConstrainedSubviews() || isPlacedByConstraints()) return;
    if (!m_layoutSystem) m_layoutSystem = std::make_shared<LayoutSystem>();
    const auto system = m_layoutSystem;
    system->place(*this);
}

geometry::Size UIView::systemLayoutSizeFitting(const geometry::ProposedSize& proposal) {
    if (!m_layoutSystem) m_layoutSystem = std::make_shared<LayoutSystem>();
    return m_layoutSystem->fittingSize(*this, proposal);
}

} // namespace proupsells::uikit

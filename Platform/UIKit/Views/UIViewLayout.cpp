// The layout pass: from the outside in, only where it is due.
#include "Platform/UIKit/Views/UIView.hpp"

namespace proupsells::uikit {

namespace {

// Layout that goes on asking for more layout is left for the next turn after this many passes.
constexpr int layoutPassLimit = 16;

} // namespace

void UIView::setNeedsLayout() {
    m_needsLayout = true;
    UIView* outermost = this;
    for (; outermost->m_superview; outermost = outermost->m_superview) outermost->m_superview->m_subtreeNeedsLayout = true;
    outermost->subtreeNeedsLayout();
}

void UIView::layoutIfNeeded() {
    const auto kept = strongReference(*this);
    // Where constraints place this view, its size is known only after the layout of the view that they stand in.
    if (UIView& root = layoutRoot(); &root != this && root.m_needsLayout) root.layoutIfNeeded();
    for (int pass = 0; pass < layoutPassLimit && (m_needsLayout || m_subtreeNeedsLayout); ++pass) layOutTree();
}

void UIView::layOutTree() {
    if (m_needsLayout) {
        m_needsLayout = false;
        noticeSafeArea();
        layOutPinnedSubviews();
        layOutConstrainedSubviews();
        layoutSubviews();
        tellControllerOfLayout();
        setNeedsDisplay();
    }
    if (!m_subtreeNeedsLayout) return;
    m_subtreeNeedsLayout = false;
    const auto subviews = m_subviews;
    for (const auto& subview : subviews)
        if (subview->m_superview == this) subview->layOutTree();
    // Frames set on the way have marked their path up to here; what they asked for has been done where nothing is due any more.
    m_subtreeNeedsLayout = false;
    for (const auto& subview : m_subviews) m_subtreeNeedsLayout |= subview->m_needsLayout || subview->m_subtreeNeedsLayout;
}

void UIView::layOutPinnedSubviews() {
    const geometry::Rect all = bounds();
    const bool mirrored = isRightToLeft();
    for (const auto& subview : m_subviews) {
        if (!subview->m_superviewInsets) continue;
        const geometry::EdgeInsets& insets = *subview->m_superviewInsets;
        const double left = mirrored ? insets.trailing : insets.leading;
        subview->setFrame({{all.minX() + left, all.minY() + insets.top},
                           {std::max(0.0, all.width() - insets.horizontal()), std::max(0.0, all.height() - insets.vertical())}});
    }
}

void UIView::setTreeNeedsLayout() {
    setNeedsLayout();
    for (const auto& subview : m_subviews) subview->setTreeNeedsLayout();
}

void UIView::setSuperviewInsets(const std::optional<geometry::EdgeInsets>& insets) {
    m_superviewInsets = insets;
    constraintInputDidChange();
    if (m_superview) m_superview->setNeedsLayout();
}

void UIView::invalidateIntrinsicContentSize() {
    setNeedsLayout();
    constraintInputDidChange();
    if (!m_superview) return;
    m_superview->setNeedsLayout();
    m_superview->subviewDidInvalidateIntrinsicContentSize(*this);
}

geometry::Size UIView::sizeThatFits(const geometry::ProposedSize& proposal) const {
    const geometry::Size natural = intrinsicContentSize();
    return {natural.width == noIntrinsicMetric ? proposal.width.value_or(0) : natural.width,
            natural.height == noIntrinsicMetric ? proposal.height.value_or(0) : natural.height};
}

geometry::Size UIView::naturalSizeFor(geometry::Size given) const {
    const geometry::Size natural = intrinsicContentSize();
    if (natural.width == noIntrinsicMetric || natural.height == noIntrinsicMetric || given.width == natural.width) return natural;
    return {natural.width, sizeThatFits({given.width, std::nullopt}).height};
}

void UIView::setContentHuggingPriority(UILayoutPriority priority, Axis axis) {
    m_hugging[std::size_t(axis)] = priority;
    constraintInputDidChange();
    if (m_superview) m_superview->setNeedsLayout();
}

void UIView::setContentCompressionResistancePriority(UILayoutPriority priority, Axis axis) {
    m_compressionResistance[std::size_t(axis)] = priority;
    constraintInputDidChange();
    if (m_superview) m_superview->setNeedsLayout();
}

void UIView::setTranslatesAutoresizingMaskIntoConstraints(bool translates) {
    m_translatesAutoresizingMask = translates;
    setNeedsLayout();
    if (m_superview) m_superview->layoutSystemDidChange();
}

} // namespace proupsells::uikit

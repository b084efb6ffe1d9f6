#include "Platform/UIKit/Views/UIStackView.hpp"

namespace proupsells::uikit {

void UIStackView::addArrangedSubview(const std::shared_ptr<UIView>& view) {
    const auto kept = view;
    addSubview(kept);
    m_arranged.push_back(kept);
    invalidateIntrinsicContentSize();
}

void UIStackView::willRemoveSubview(UIView& view) {
    std::erase_if(m_arranged, [&](const auto& arranged) { return arranged.get() == &view; });
    invalidateIntrinsicContentSize();
}

void UIStackView::subviewDidInvalidateIntrinsicContentSize(UIView&) { invalidateIntrinsicContentSize(); }

void UIStackView::setAxis(Axis axis) {
    m_axis = axis;
    invalidateIntrinsicContentSize();
}

void UIStackView::setSpacing(double spacing) {
    m_spacing = spacing;
    invalidateIntrinsicContentSize();
}

void UIStackView::setDistribution(Distribution distribution) {
    m_distribution = distribution;
    invalidateIntrinsicContentSize();
}

void UIStackView::setAlignment(Alignment alignment) {
    m_alignment = alignment;
    setNeedsLayout();
}

// --- Measures ---

std::vector<UIView*> UIStackView::shown() const {
    std::vector<UIView*> views;
    for (const auto& view : m_arranged)
        if (!view->isHidden()) views.push_back(view.get());
    return views;
}

bool UIStackView::arranges(const UIView& subview) const {
    for (const auto& arranged : m_arranged)
        if (arranged.get() == &subview) return true;
    return false;
}

geometry::Size UIStackView::naturalSize(UIView& view, std::optional<double> across) const {
    const geometry::ProposedSize proposal =
        m_axis == Axis::horizontal ? geometry::ProposedSize{std::nullopt, across} : geometry::ProposedSize{across, std::nullopt};
    return view.isSizedByConstraints() ? view.systemLayoutSizeFitting(proposal) : view.sizeThatFits(proposal);
}

geometry::Size UIStackView::intrinsicContentSize() const { return sizeThatFits({}); }

geometry::Size UIStackView::sizeThatFits(const geometry::ProposedSize& proposal) const {
    const std::optional<double> offered = m_axis == Axis::horizontal ? proposal.height : proposal.width;
    if (!offered) return sizeOf(natural(std::nullopt));
    // Across, a view's own need counts: what is offered would be taken as a need by views without a natural size.
    return sizeOf({natural(offered).along, std::max(0.0, std::min(natural(std::nullopt).across, *offered))});
}

geometry::Size UIStackView::naturalSizeFor(geometry::Size given) const {
    return sizeOf({natural(acrossOf(given)).along, natural(std::nullopt).across});
}

UIStackView::Extent UIStackView::natural(std::optional<double> offered) const {
    const auto views = shown();
    if (views.empty()) return {};
    const double gaps = m_spacing * double(views.size() - 1);
    Extent sum{gaps, 0};
    double longest = 0;
    for (UIView* view : views) {
        const geometry::Size size = naturalSize(*view, offered);
        sum.along += alongOf(size);
        sum.across = std::max(sum.across, acrossOf(size));
        longest = std::max(longest, alongOf(size));
    }
    if (m_distribution == Distribution::fillEqually) sum.along = double(views.size()) * longest + gaps;
    return sum;
}

template <class PriorityOf>
UILayoutPriority UIStackView::decidingPriority(Axis axis, UILayoutPriority own, PriorityOf priorityOf) const {
    if (axis != m_axis && m_alignment != Alignment::fill) return own;
    std::optional<UILayoutPriority> deciding;
    for (const UIView* view : shown()) {
        const UILayoutPriority priority = priorityOf(*view);
        if (!deciding || (axis == m_axis ? priority < *deciding : priority > *deciding)) deciding = priority;
    }
    return deciding.value_or(own);
}

UILayoutPriority UIStackView::effectiveHuggingPriority(Axis axis) const {
    return decidingPriority(axis, contentHuggingPriority(axis),
                            [&](const UIView& view) { return view.effectiveHuggingPriority(axis); });
}

UILayoutPriority UIStackView::effectiveCompressionResistancePriority(Axis axis) const {
    return decidingPriority(axis, contentCompressionResistancePriority(axis),
                            [&](const UIView& view) { return view.effectiveCompressionResistancePriority(axis); });
}

std::vector<double> UIStackView::lengths(const std::vector<UIView*>& views, double room, double across) const {
    if (m_distribution == Distribution::fillEqually)
        return std::vector<double>(views.size(), std::max(0.0, room / double(views.size())));
    std::vector<double> lengths;
    double left = room;
    for (UIView* view : views) {
        lengths.push_back(alongOf(naturalSize(*view, across)));
        left -= lengths.back();
    }
    if (left > 0) {
        std::size_t loosest = 0;
        for (std::size_t i = 1; i < views.size(); ++i)
            if (views[i]->contentHuggingPriority(m_axis) < views[loosest]->contentHuggingPriority(m_axis)) loosest = i;
        lengths[loosest] += left;
    }
    std::vector<bool> isEmptied(views.size());
    while (left < 0) {
        std::optional<std::size_t> weakest; // of equals the last one yields first
        for (std::size_t i = 0; i < views.size(); ++i)
            if (!isEmptied[i] && (!weakest || views[i]->contentCompressionResistancePriority(m_axis) <=
                                                  views[*weakest]->contentCompressionResistancePriority(m_axis)))
                weakest = i;
        if (!weakest) break;
        isEmptied[*weakest] = true;
        const double taken = std::min(lengths[*weakest], -left);
        lengths[*weakest] -= taken;
        left += taken;
    }
    return lengths;
}

void UIStackView::layoutSubviews() {
    const auto views = shown();
    if (views.empty()) return;
    const geometry::Rect all = bounds();
    const double across = acrossOf(all.size);
    const double room = alongOf(all.size) - m_spacing * double(views.size() - 1);
    const std::vector<double> lengths = this->lengths(views, room, across);
    double position = 0;
    for (std::size_t i = 0; i < views.size(); ++i) {
        const double thickness =
            m_alignment == Alignment::fill ? across : std::min(across, acrossOf(naturalSize(*views[i], std::nullopt)));
        const double free = across - thickness;
        double offset = m_alignment == Alignment::center ? free / 2 : m_alignment == Alignment::trailing ? free : 0;
        if (m_axis == Axis::horizontal) {
            const double x = isRightToLeft() ? all.maxX() - position - lengths[i] : all.minX() + position;
            views[i]->setFrame({{x, all.minY() + offset}, {lengths[i], thickness}});
        } else {
            if (isRightToLeft()) offset = free - offset;
            views[i]->setFrame({{all.minX() + offset, all.minY() + position}, {thickness, lengths[i]}});
        }
        position += lengths[i] + m_spacing;
    }
}

} // namespace proupsells::uikit

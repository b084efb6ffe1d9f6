// Views in a row or a column, placed by arithmetic.
#pragma once

#include "Platform/UIKit/Views/UIView.hpp"

namespace proupsells::uikit {

// Hidden views take no room. A row begins at the leading edge. Constraints on an arranged view's own size, and inside it, count for
// its natural size; constraints between arranged views do not.
class UIStackView : public UIView {
public:
    enum class Distribution {
        fill, // natural lengths; what is left over goes to the view that hugs least, what is missing is taken from the one that
              // resists least
        fillEqually, // all of the same length
    };
    enum class Alignment { fill, leading, center, trailing }; // across; leading is a row's top

    explicit UIStackView(Axis axis = Axis::horizontal) : m_axis(axis) {}
    std::string_view typeName() const override { return "UIStackView"; }

    const std::vector<std::shared_ptr<UIView>>& arrangedSubviews() const { return m_arranged; }
    void addArrangedSubview(const std::shared_ptr<UIView>& view);

    Axis axis() const { return m_axis; }
    void setAxis(Axis axis);
    double spacing() const { return m_spacing; }
    void setSpacing(double spacing);
    Distribution distribution() const { return m_distribution; }
    void setDistribution(Distribution distribution);
    Alignment alignment() const { return m_alignment; }
    void setAlignment(Alignment alignment);

    geometry::Size intrinsicContentSize() const override;
    geometry::Size sizeThatFits(const geometry::ProposedSize& proposal) const override;
    // Along the stack, what the views need at the given length across it; across it, what they need by themselves.
    geometry::Size naturalSizeFor(geometry::Size given) const override;
    // Along the stack the arranged view that yields most readily decides; across it the one that yields least, where all of them
    // are as thick as the stack.
    UILayoutPriority effectiveHuggingPriority(Axis axis) const override;
    UILayoutPriority effectiveCompressionResistancePriority(Axis axis) const override;
    bool arranges(const UIView& subview) const override;
    void layoutSubviews() override;
    void willRemoveSubview(UIView& view) override;
    void subviewDidInvalidateIntrinsicContentSize(UIView& view) override;

private:
    struct Extent {
        double along = 0, across = 0;
    };

    std::vector<UIView*> shown() const;
    // What the views need together where `offered` points are offered across the stack.
    Extent natural(std::optional<double> offered) const;
    geometry::Size sizeOf(Extent extent) const {
        return m_axis == Axis::horizontal ? geometry::Size{extent.along, extent.across}
                                          : geometry::Size{extent.across, extent.along};
    }
    // A view's natural size where `across` points are offered across the stack.
    geometry::Size naturalSize(UIView& view, std::optional<double> across) const;
    template <class PriorityOf>
    UILayoutPriority decidingPriority(Axis axis, UILayoutPriority own, PriorityOf priorityOf) const;
    std::vector<double> lengths(const std::vector<UIView*>& views, double room, double across) const;
    double alongOf(geometry::Size size) const { return m_axis == Axis::horizontal ? size.width : size.height; }
    double acrossOf(geometry::Size size) const { return m_axis == Axis::horizontal ? size.height : size.width; }

    std::vector<std::shared_ptr<UIView>> m_arranged;
    Axis m_axis;
    double m_spacing = 0;
    Distribution m_distribution = Distribution::fill;
    Alignment m_alignment = Alignment::fill;
};

} // namespace proupsells::uikit

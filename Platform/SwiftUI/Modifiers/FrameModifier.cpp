// Frames, fixed and flexible.
#include <algorithm>
#include <cmath>

#include "Platform/SwiftUI/Modifiers/LayoutModifiers.hpp"
#include "Platform/SwiftUI/Tree/ModifierNode.hpp"

namespace proupsells::swiftui {

using geometry::ProposedSize;
using geometry::Size;

namespace {

using Length = std::optional<double>;

// The rules of one dimension.
struct FrameLength {
    Length fixed;
    Length minimum;
    Length ideal;
    Length maximum;

    bool isFlexible() const { return minimum || maximum || ideal; }

    // What the view inside is offered.
    Length offered(const Length& proposed) const {
        if (fixed) return fixed;
        Length result = proposed ? proposed : ideal;
        if (result) result = std::max(minimum.value_or(0), std::min(*result, maximum.value_or(geometry::infinity)));
        return result;
    }

    // What the frame takes with a view of `child` inside.
    double taken(const Length& proposed, double child) const {
        if (fixed) return *fixed;
        const Length room = proposed ? proposed : ideal;
        double result = child;
        if (!proposed && ideal) result = *ideal;
        if (minimum) result = std::max(*minimum, room ? std::min(result, *room) : result);
        if (maximum) result = std::min(*maximum, room ? std::max(result, *room) : result);
        return minimum ? std::max(*minimum, result) : result;
    }
};

// A fixed length must be one; a minimum is a finite one.
Length soundFixed(const Length& length) { return length && std::isfinite(*length) && *length >= 0 ? length : std::nullopt; }
Length soundLimit(const Length& length) { return length && !std::isnan(*length) && *length >= 0 ? length : std::nullopt; }

class FrameNode final : public ModifierNode {
public:
    void adopt(FrameModifier&& modifier, UpdatePass&) {
        const FrameOptions& options = modifier.options;
        if (!isNew() && options == m_options) return;
        if (!isNew()) invalidateLayout();
        m_options = options;
        m_width = {soundFixed(options.width), soundFixed(options.minWidth), soundFixed(options.idealWidth),
                   soundLimit(options.maxWidth)};
        m_height = {soundFixed(options.height), soundFixed(options.minHeight), soundFixed(options.idealHeight),
                    soundLimit(options.maxHeight)};
    }

    LengthRange lengthRange(Axis axis, Length cross) override {
        const FrameLength& rules = axis == Axis::horizontal ? m_width : m_height;
        if (rules.fixed) return {*rules.fixed, *rules.fixed};
        if (!rules.isFlexible() && !isAbsent()) {
            const FrameLength& crossRules = axis == Axis::horizontal ? m_height : m_width;
            return onlyChild()->lengthRange(axis, crossRules.offered(cross));
        }
        return Node::lengthRange(axis, cross);
    }
    double firstBaseline(const ProposedSize& proposal) override {
        const ProposedSize inner = offered(proposal);
        const Size child = ModifierNode::measure(inner);
        return alignedOrigin(child, sizeThatFits(proposal), m_options.alignment).y + ModifierNode::firstBaseline(inner);
    }

protected:
    Size measure(const ProposedSize& proposal) override {
        // A frame that is fixed both ways does not need its child.
        if (m_width.fixed && m_height.fixed) return {*m_width.fixed, *m_height.fixed};
        const Size child = ModifierNode::measure(offered(proposal));
        return {m_width.taken(proposal.width, child.width), m_height.taken(proposal.height, child.height)};
    }
    void layOut(const ProposedSize& proposal, Size size) override {
        if (isAbsent()) return;
        const ProposedSize inner = offered(proposal);
        const Size child = onlyChild()->sizeThatFits(inner);
        placeAt(*onlyChild(), alignedOrigin(child, size, m_options.alignment), child, inner);
    }

private:
    ProposedSize offered(const ProposedSize& proposal) const {
        return {m_width.offered(proposal.width), m_height.offered(proposal.height)};
    }

    FrameOptions m_options;
    FrameLength m_width;
    FrameLength m_height;
};

} // namespace

View FrameModifier::modified(View content) && { return newModifier<FrameNode>(std::move(*this), content); }

} // namespace proupsells::swiftui

#include "Platform/SwiftUI/Modifiers/LayoutModifiers.hpp"

#include <algorithm>
#include <cmath>

#include "Platform/SwiftUI/Layout/SafeArea.hpp"
#include "Platform/SwiftUI/Tree/ModifierNode.hpp"
#include "Platform/SwiftUI/Tree/ViewHost.hpp"

namespace proupsells::swiftui {

using geometry::EdgeInsets;
using geometry::Point;
using geometry::ProposedSize;
using geometry::Rect;
using geometry::Size;

namespace {

// A modifier whose value is all that its layout depends on.
template <class Modifier>
class LayoutModifierNode : public ModifierNode {
public:
    void adopt(Modifier&& modifier, UpdatePass&) {
        if (!isNew() && !(modifier == m_modifier)) invalidateLayout();
        m_modifier = std::move(modifier);
    }
    LengthRange lengthRange(Axis axis, std::optional<double> cross) override { return Node::lengthRange(axis, cross); }

protected:
    Modifier m_modifier;
};

std::optional<double> reduced(const std::optional<double>& length, double by) {
    return length ? std::optional(std::max(0.0, *length - by)) : std::nullopt;
}

class PaddingNode final : public LayoutModifierNode<PaddingModifier> {
public:
    LengthRange lengthRange(Axis axis, std::optional<double> cross) override {
        if (!onlyChild()) return {};
        const EdgeInsets& insets = m_modifier.insets;
        const bool isHorizontal = axis == Axis::horizontal;
        const double around = isHorizontal ? insets.horizontal() : insets.vertical();
        const LengthRange inner =
            onlyChild()->lengthRange(axis, reduced(cross, isHorizontal ? insets.vertical() : insets.horizontal()));
        return {std::max(0.0, inner.minimum + around), std::max(0.0, inner.maximum + around)};
    }
    double firstBaseline(const ProposedSize& proposal) override {
        return m_modifier.insets.top + ModifierNode::firstBaseline(inside(proposal));
    }

protected:
    Size measure(const ProposedSize& proposal) override {
        const Size size = ModifierNode::measure(inside(proposal));
        return {std::max(0.0, size.width + m_modifier.insets.horizontal()),
                std::max(0.0, size.height + m_modifier.insets.vertical())};
    }
    void layOut(const ProposedSize& proposal, Size) override {
        if (isAbsent()) return;
        placeChild(*onlyChild(), {m_modifier.insets.leading, m_modifier.insets.top}, inside(proposal));
    }

private:
    ProposedSize inside(const ProposedSize& proposal) const {
        return {reduced(proposal.width, m_modifier.insets.horizontal()), reduced(proposal.height, m_modifier.insets.vertical())};
    }
};

class FixedSizeNode final : public LayoutModifierNode<FixedSizeModifier> {
public:
    double firstBaseline(const ProposedSize& proposal) override { return ModifierNode::firstBaseline(inside(proposal)); }

protected:
    Size measure(const ProposedSize& proposal) override { return ModifierNode::measure(inside(proposal)); }
    void layOut(const ProposedSize& proposal, Size) override {
        if (!isAbsent()) onlyChild()->place({}, inside(proposal));
    }

private:
    ProposedSize inside(ProposedSize proposal) const {
        if (m_modifier.horizontal) proposal.width.reset();
        if (m_modifier.vertical) proposal.height.reset();
        return proposal;
    }
};

class AspectRatioNode final : public LayoutModifierNode<AspectRatioModifier> {
protected:
    Size measure(const ProposedSize& proposal) override { return ModifierNode::measure(inside(proposal)); }
    void layOut(const ProposedSize& proposal, Size) override {
        if (!isAbsent()) onlyChild()->place({}, inside(proposal));
    }

private:
    ProposedSize inside(const ProposedSize& proposal) {
        const Size ideal = ModifierNode::measure({});
        const double ratio = m_modifier.ratio.value_or(ideal.height > 0 ? ideal.width / ideal.height : 0);
        if (!(ratio > 0)) return proposal;
        const bool hasWidth = proposal.width && std::isfinite(*proposal.width);
        const bool hasHeight = proposal.height && std::isfinite(*proposal.height);
        if (!hasWidth && !hasHeight) return Size{ideal.width, ideal.width / ratio};
        const Size byWidth = hasWidth ? Size{*proposal.width, *proposal.width / ratio} : Size{};
        const Size byHeight = hasHeight ? Size{*proposal.height * ratio, *proposal.height} : Size{};
        if (!hasHeight) return byWidth;
        if (!hasWidth) return byHeight;
        const bool widthDecides = (byWidth.height <= *proposal.height) == (m_modifier.contentMode == ContentMode::fit);
        return widthDecides ? byWidth : byHeight;
    }
};

class LayoutPriorityNode final : public ModifierNode {
public:
    double layoutPriority() const override { return m_modifier.priority; }
    void adopt(LayoutPriorityModifier&& modifier, UpdatePass&) {
        if (!isNew() && !(modifier == m_modifier)) invalidateLayout();
        m_modifier = modifier;
    }

private:
    LayoutPriorityModifier m_modifier;
};

class IgnoresSafeAreaNode final : public LayoutModifierNode<IgnoresSafeAreaModifier> {
public:
    LengthRange lengthRange(Axis axis, std::optional<double> cross) override { return ModifierNode::lengthRange(axis, cross); }
    void adopt(IgnoresSafeAreaModifier&& modifier, UpdatePass& pass) {
        if (isNew()) setDependsOnPosition();
        LayoutModifierNode::adopt(std::move(modifier), pass);
    }

protected:
    void layOut(const ProposedSize& proposal, Size size) override {
        if (isAbsent()) return;
        const EdgeInsets reach = reachToHostEdges(*this, m_modifier.edges);
        if (reach == EdgeInsets{}) return placeChild(*onlyChild(), {}, proposal);
        const Size extended{size.width + reach.horizontal(), size.height + reach.vertical()};
        const Point inside = alignedOrigin(onlyChild()->sizeThatFits(extended), extended, Alignment::center);
        placeChild(*onlyChild(), inside - Point{reach.leading, reach.top}, extended);
    }
};

class OffsetNode final : public ModifierNode {
public:
    void adopt(OffsetModifier&& modifier, UpdatePass& pass) {
        const bool hasChanged = !(modifier.offset == m_offset.target());
        const bool jumps = isNew() || environment().reduceMotion;
        m_offset.set(modifier.offset, jumps ? nullptr : pass.animation, pass.now_s);
        if (!hasChanged || isNew()) return;
        noteMovement(m_offset.end_s());
        invalidateLayout(); // where the picture may be
    }
    Point contentTranslation(double now_s) const override { return mirrored(m_offset.valueAt(now_s)); }

protected:
    Rect effectBounds(const Rect& bounds) const override { return bounds.offsetBy(mirrored(m_offset.target())); }

private:
    Point mirrored(Point offset) const { return {environment().isRightToLeft() ? -offset.x : offset.x, offset.y}; }

    Animated<Point> m_offset;
};

} // namespace

PaddingModifier padding(double length) { return padding(Edge::all, length); }
PaddingModifier padding(Edge edges, double length) {
    const auto at = [&](Edge edge) { return contains(edges, edge) ? length : 0; };
    return {{at(Edge::top), at(Edge::leading), at(Edge::bottom), at(Edge::trailing)}};
}
PaddingModifier padding(const EdgeInsets& insets) { return {insets}; }
FrameModifier frame(double width, double height, Alignment alignment) {
    return {{.width = width, .height = height, .alignment = alignment}};
}

View PaddingModifier::modified(View content) && { return newModifier<PaddingNode>(std::move(*this), content); }
View FixedSizeModifier::modified(View content) && { return newModifier<FixedSizeNode>(std::move(*this), content); }
View AspectRatioModifier::modified(View content) && { return newModifier<AspectRatioNode>(std::move(*this), content); }
View LayoutPriorityModifier::modified(View content) && { return newModifier<LayoutPriorityNode>(std::move(*this), content); }
OffsetModifier offset(double x, double y) { return {{std::isfinite(x) ? x : 0, std::isfinite(y) ? y : 0}}; }

View OffsetModifier::modified(View content) && { return newModifier<OffsetNode>(std::move(*this), content); }
View IgnoresSafeAreaModifier::modified(View content) && { return newModifier<IgnoresSafeAreaNode>(std::move(*this), content); }

} // namespace proupsells::swiftui

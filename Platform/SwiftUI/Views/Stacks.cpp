#include "Platform/SwiftUI/Views/Stacks.hpp"

#include "Platform/SwiftUI/Layout/StackNode.hpp"
#include "Platform/SwiftUI/Tree/ValueElement.hpp"

namespace proupsells::swiftui {

using geometry::ProposedSize;
using geometry::Size;

namespace {

class HStackNode final : public StackNode {
public:
    HStackNode() : StackNode(Axis::horizontal) {}

    void adopt(HStack&& stack, UpdatePass& pass) {
        const bool alignsBaselines = stack.alignment == VerticalAlignment::firstTextBaseline;
        adoptLayout(stack.spacing, alignsBaselines ? std::nullopt : std::optional(fraction(stack.alignment)));
        updateChildren(stack.content, pass);
    }

protected:
    std::string_view semanticType() const override { return "HStack"; }
};

class VStackNode final : public StackNode {
public:
    VStackNode() : StackNode(Axis::vertical) {}

    void adopt(VStack&& stack, UpdatePass& pass) {
        adoptLayout(stack.spacing, fraction(stack.alignment));
        updateChildren(stack.content, pass);
    }

protected:
    std::string_view semanticType() const override { return "VStack"; }
};

class GroupNode final : public TransparentNode {
public:
    void adopt(Group&& group, UpdatePass& pass) { updateChildren(group.content, pass); }
};

class ZStackNode final : public Node {
public:
    void adopt(ZStack&& stack, UpdatePass& pass) {
        if (!isNew() && stack.alignment != m_alignment) invalidateLayout();
        m_alignment = stack.alignment;
        updateChildren(stack.content, pass);
    }

protected:
    std::string_view semanticType() const override { return "ZStack"; }

    Size measure(const ProposedSize& proposal) override {
        if (isFirstMeasure()) {
            m_nodes.clear();
            collectLayoutChildren(m_nodes);
        }
        Size result;
        for (Node* node : m_nodes) {
            const Size size = node->sizeThatFits(proposal);
            result = {std::max(result.width, size.width), std::max(result.height, size.height)};
        }
        return result;
    }

    void layOut(const ProposedSize& proposal, Size size) override {
        for (Node* node : m_nodes) {
            const Size childSize = node->sizeThatFits(proposal);
            placeAt(*node, alignedOrigin(childSize, size, m_alignment), childSize, proposal);
        }
        settleTransparentChildren(size);
    }

private:
    Alignment m_alignment;
    std::vector<Node*> m_nodes;
};

class FirstThatFitsNode final : public Node {
public:
    void adopt(FirstThatFits&& alternatives, UpdatePass& pass) { updateChildren(alternatives.content, pass); }

    bool isAbsent() const override { return alternatives().empty(); }
    bool sharesStackAxis() const override { return true; }
    double firstBaseline(const ProposedSize& proposal) override {
        Node* const fitting = chosen(proposal);
        return fitting ? fitting->firstBaseline(proposal) : 0;
    }

protected:
    Size measure(const ProposedSize& proposal) override {
        Node* const fitting = chosen(proposal);
        return fitting ? fitting->sizeThatFits(proposal) : Size{};
    }

    void layOut(const ProposedSize& proposal, Size) override {
        Node* const fitting = chosen(proposal);
        for (Node* node : alternatives())
            if (node == fitting)
                placeChild(*node, {}, proposal);
            else
                leaveOut(*node);
    }

private:
    std::vector<Node*> alternatives() const {
        std::vector<Node*> nodes;
        collectLayoutChildren(nodes);
        return nodes;
    }
    // Null where there is none at all.
    Node* chosen(const ProposedSize& proposal) const {
        Node* last = nullptr;
        for (Node* node : alternatives()) {
            last = node;
            // Sums of lengths are not exact.
            if (!proposal.width || node->sizeThatFits(proposal).width <= *proposal.width + 0.005) break;
        }
        return last;
    }
};

class SpacerNode final : public Node {
public:
    void adopt(Spacer&& spacer, UpdatePass&) {
        if (!isNew() && spacer.minLength != m_minLength) invalidateLayout();
        m_minLength = spacer.minLength;
    }

    bool isSpacer() const override { return true; }
    // All other views come first. A spacer takes what they leave, if that is more than its minimum.
    double layoutPriority() const override { return -geometry::infinity; }
    LengthRange lengthRange(Axis axis, std::optional<double>) override {
        const auto stretched = axisAround();
        if (stretched && *stretched != axis) return {0, 0};
        return {m_minLength, geometry::infinity};
    }

protected:
    std::string_view semanticType() const override { return "Spacer"; }

    Size measure(const ProposedSize& proposal) override {
        const Node* container = containerAround();
        std::optional<Axis> axis;
        if (container) axis = container->stackAxis();
        const double minimum = container && container->squeezesSpacers() ? 0 : m_minLength;
        const auto length = [minimum](const std::optional<double>& proposed) { return std::max(minimum, proposed.value_or(0)); };
        return {axis == Axis::vertical ? 0 : length(proposal.width), axis == Axis::horizontal ? 0 : length(proposal.height)};
    }

private:
    // Not remembered, because a rebuild may put another stack around it.
    const Node* containerAround() const {
        for (const Node* outer = parent(); outer; outer = outer->parent()) {
            if (outer->stackAxis()) return outer;
            if (!outer->sharesStackAxis()) return nullptr;
        }
        return nullptr;
    }
    std::optional<Axis> axisAround() const {
        const Node* container = containerAround();
        return container ? container->stackAxis() : std::nullopt;
    }

    double m_minLength = defaultSpacing;
};

} // namespace

Element* HStack::makeElement() && { return newElement<HStackNode>(std::move(*this)); }
Element* VStack::makeElement() && { return newElement<VStackNode>(std::move(*this)); }
Element* ZStack::makeElement() && { return newElement<ZStackNode>(std::move(*this)); }
Element* FirstThatFits::makeElement() && { return newElement<FirstThatFitsNode>(std::move(*this)); }
Element* Spacer::makeElement() && { return newElement<SpacerNode>(std::move(*this)); }
Element* Group::makeElement() && { return newElement<GroupNode>(std::move(*this)); }

} // namespace proupsells::swiftui

#include "Platform/SwiftUI/Tree/ModifierNode.hpp"

namespace proupsells::swiftui {

using geometry::ProposedSize;
using geometry::Size;

Size ModifierNode::measure(const ProposedSize& proposal) { return onlyChild() ? onlyChild()->sizeThatFits(proposal) : Size{}; }

void ModifierNode::layOut(const ProposedSize& proposal, Size) {
    if (!onlyChild() || onlyChild()->isAbsent()) return;
    onlyChild()->place({}, proposal);
}

double ModifierNode::firstBaseline(const ProposedSize& proposal) { return onlyChild() ? onlyChild()->firstBaseline(proposal) : 0; }

LengthRange ModifierNode::lengthRange(Axis axis, std::optional<double> cross) {
    return onlyChild() ? onlyChild()->lengthRange(axis, cross) : LengthRange{};
}

} // namespace proupsells::swiftui

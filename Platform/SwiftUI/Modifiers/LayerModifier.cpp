// Backgrounds and overlays.
#include "Platform/SwiftUI/Layout/SafeArea.hpp"
#include "Platform/SwiftUI/Modifiers/LayoutModifiers.hpp"
#include "Platform/SwiftUI/Shapes/Shapes.hpp"
#include "Platform/SwiftUI/Tree/ModifierNode.hpp"

namespace proupsells::swiftui {

using geometry::EdgeInsets;
using geometry::Point;
using geometry::ProposedSize;
using geometry::Size;

namespace {

// Slot 0 is the view, slot 1 the layer.
class LayerNode final : public ModifierNode {
public:
    void adopt(LayerModifier&& modifier, UpdatePass& pass) {
        const bool sitsElsewhere = modifier.alignment != m_alignment || modifier.ignoredSafeArea != m_ignoredSafeArea;
        if (!isNew() && sitsElsewhere) invalidateLayout();
        if (!isNew() && modifier.isBehind != m_isBehind) setNeedsDisplay();
        if (modifier.ignoredSafeArea != Edge::none) setDependsOnPosition();
        m_isBehind = modifier.isBehind;
        setPaintsInReverse(m_isBehind);
        m_alignment = modifier.alignment;
        m_ignoredSafeArea = modifier.ignoredSafeArea;
        updateChild(1, modifier.layer, pass);
    }

protected:
    void layOut(const ProposedSize& proposal, Size size) override {
        ModifierNode::layOut(proposal, size);
        Node* layer = children()[1].get();
        if (!layer || layer->isAbsent()) return;
        EdgeInsets reach;
        if (m_ignoredSafeArea != Edge::none) reach = reachToHostEdges(*this, m_ignoredSafeArea);
        const Size room{size.width + reach.horizontal(), size.height + reach.vertical()};
        const Size layerSize = layer->sizeThatFits(room);
        placeAt(*layer, alignedOrigin(layerSize, room, m_alignment) - Point{reach.leading, reach.top}, layerSize, room);
    }

private:
    Alignment m_alignment;
    Edge m_ignoredSafeArea = Edge::none;
    bool m_isBehind = false;
};

} // namespace

LayerModifier background(const graphics::Color& color, Edge ignoredSafeArea) {
    return {ColorView{color}, Alignment::center, true, ignoredSafeArea};
}

View LayerModifier::modified(View content) && { return newModifier<LayerNode>(std::move(*this), content); }

} // namespace proupsells::swiftui

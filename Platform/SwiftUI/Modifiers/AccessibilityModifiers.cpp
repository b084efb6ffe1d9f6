#include "Platform/SwiftUI/Modifiers/AccessibilityModifiers.hpp"

#include "Platform/SwiftUI/Tree/ModifierNode.hpp"
#include "Platform/SwiftUI/Tree/SemanticContext.hpp"

namespace proupsells::swiftui {

namespace {

class AccessibilityNode final : public ModifierNode {
public:
    void adopt(AccessibilityModifier&& modifier, UpdatePass&) {
        if (!(modifier == m_modifier)) m_modifier = std::move(modifier);
    }

protected:
    void addAttributes(SemanticContext& context, const graphics::PaintState& state) const override {
        SemanticAttributes& pending = context.pending;
        const geometry::Rect inWindow = state.toWindow({{}, presentationFrame(context.now_s).size});
        const bool identifies = !m_modifier.identifier.empty() && pending.identifier.empty();
        // Modifiers further out come first. Their frame stays, unless it came without an identifier and this one has one.
        if (!pending.frame || (identifies && !pending.isFrameIdentified)) {
            pending.frame = inWindow;
            pending.isFrameIdentified = identifies;
        }
        if (identifies) pending.identifier = m_modifier.identifier;
        if (pending.label.empty()) pending.label = m_modifier.label;
        if (pending.value.empty()) pending.value = m_modifier.value;
        pending.traits = pending.traits | m_modifier.traits;
        if (m_modifier.isHidden) pending.isHidden = true;
    }

private:
    AccessibilityModifier m_modifier;
};

class SpokenNode final : public ModifierNode {
public:
    void adopt(SpokenModifier&& modifier, UpdatePass&) {
        if (!(modifier == m_modifier)) m_modifier = std::move(modifier);
    }

protected:
    void addAttributes(SemanticContext& context, const graphics::PaintState&) const override {
        accessibility::SpokenInfo& pending = context.pending.spoken;
        const accessibility::SpokenInfo& own = m_modifier.spoken;
        if (pending.role == accessibility::Role::unstated) pending.role = own.role;
        if (pending.name.empty()) pending.name = own.name;
        if (!pending.isChecked) pending.isChecked = own.isChecked;
        if (!pending.isExpanded) pending.isExpanded = own.isExpanded;
        if (pending.order == 0) pending.order = own.order;
        if (own.isSilent) pending.isSilent = true;
        if (own.isPlate) pending.isPlate = true;
    }

private:
    SpokenModifier m_modifier;
};

} // namespace

View AccessibilityModifier::modified(View content) && { return newModifier<AccessibilityNode>(std::move(*this), content); }

View SpokenModifier::modified(View content) && { return newModifier<SpokenNode>(std::move(*this), content); }

} // namespace proupsells::swiftui

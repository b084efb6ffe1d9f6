#include "Platform/SwiftUI/Modifiers/LifecycleModifiers.hpp"

namespace proupsells::swiftui {

namespace {

class AppearanceNode final : public ModifierNode, public AppearanceObserver {
public:
    void adopt(AppearanceModifier&& modifier, UpdatePass&) {
        if (isNew()) observeAppearance(host());
        m_modifier = std::move(modifier);
    }
    void appearanceChanged(bool isOnScreen) override {
        const Action& action = isOnScreen ? m_modifier.appear : m_modifier.disappear;
        if (action) action();
    }
    Node& observedNode() override { return *this; }

private:
    AppearanceModifier m_modifier;
};

// Only there for its key.
class IdNode final : public ModifierNode {
public:
    void adopt(IdModifier&&, UpdatePass&) {}
};

} // namespace

IdModifier id(const Key& key) {
    Key kept = key;
    kept.text = ElementArena::current().copy(key.text);
    return {kept};
}

View AppearanceModifier::modified(View content) && { return newModifier<AppearanceNode>(std::move(*this), content); }

View IdModifier::modified(View content) && {
    if (content.isAbsent()) return content;
    const Key own = key;
    if (!content.element()->key.isNone()) content = newModifier<IdNode>(std::move(*this), content);
    content.element()->key = own;
    return content;
}

} // namespace proupsells::swiftui

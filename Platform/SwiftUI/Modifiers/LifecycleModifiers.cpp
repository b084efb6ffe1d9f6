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

// Carries a key and does nothing else.
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

void detail::TimerNode::adopt(ReceiveModifier<combine::TimerPublisher, double>&& modifier, UpdatePass&) {
    if (isNew()) m_windowChanges = host().inWindowChanges().sink([this](bool) { followWindow(); });
    if (!(modifier.source == m_timer)) m_ticks.cancel();
    m_timer = modifier.source;
    m_action = std::move(modifier.action);
    m_isHeldByAttention = modifier.isHeldByAttention;
    followWindow();
}

void detail::TimerNode::followWindow() {
    if (!host().isInWindow())
        m_ticks.cancel();
    else if (!m_ticks)
        m_ticks = m_timer.sink([this](double time_s) {
            if (!m_isHeldByAttention || !host().isAttended(frameInHost(time_s))) m_action(time_s);
        });
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

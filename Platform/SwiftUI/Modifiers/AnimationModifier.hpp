// Animates what is inside a view whenever a value changes.
#pragma once

#include <memory>
#include <optional>

#include "Platform/Motion/TimingCurve.hpp"
#include "Platform/SwiftUI/Tree/ModifierNode.hpp"

namespace proupsells::swiftui {

template <class Value>
struct AnimationModifier {
    std::optional<motion::Animation> animation; // absent: at once
    Value value;

    View modified(View content) &&;
};

// When the value is another one than in the build before, the changes inside the view are shown by the animation.
template <class Value>
AnimationModifier<std::decay_t<Value>> animation(std::optional<motion::Animation> animation, Value&& value) {
    return {animation, std::forward<Value>(value)};
}

namespace detail {

// Holds the animation for the update and for the layout that follows it.
class AnimationNodeBase : public ModifierNode {
public:
    void adoptContent(const View& content, UpdatePass& pass) override;

protected:
    void layOut(const geometry::ProposedSize& proposal, geometry::Size size) override;

    std::optional<motion::Animation> m_animation;
    bool m_hasChanged = false;
};

template <class Value>
class AnimationNode final : public AnimationNodeBase {
public:
    void adopt(AnimationModifier<Value>&& modifier, UpdatePass&) {
        m_hasChanged = m_value && !(*m_value == modifier.value);
        m_animation = modifier.animation;
        m_value.emplace(std::move(modifier.value));
    }

private:
    std::optional<Value> m_value;
};

} // namespace detail

template <class Value>
View AnimationModifier<Value>::modified(View content) && {
    return newModifier<detail::AnimationNode<Value>>(std::move(*this), content);
}

} // namespace proupsells::swiftui

// The animation by which the changes being made are shown.
#pragma once

#include <optional>
#include <utility>

#include "Platform/Motion/TimingCurve.hpp"

namespace proupsells::swiftui {

class Transaction {
public:
    // Absent outside withAnimation.
    static const std::optional<motion::Animation>& currentAnimation();

    // The animation is in force while this lives. The newest one counts.
    class Scope {
    public:
        explicit Scope(std::optional<motion::Animation> animation);
        ~Scope();
        Scope(const Scope&) = delete;

    private:
        std::optional<motion::Animation> m_previous;
    };
};

// Runs `changes`; what they change on screen moves, fades and grows by the animation instead of at once.
template <class Changes>
void withAnimation(const motion::Animation& animation, Changes&& changes) {
    const Transaction::Scope scope(animation);
    std::forward<Changes>(changes)();
}
template <class Changes>
void withAnimation(Changes&& changes) {
    withAnimation(motion::Animation::standard(), std::forward<Changes>(changes));
}
// Runs `changes` without the animation in force.
template <class Changes>
void withoutAnimation(Changes&& changes) {
    const Transaction::Scope scope(std::nullopt);
    std::forward<Changes>(changes)();
}

} // namespace proupsells::swiftui

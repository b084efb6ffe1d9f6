#include "Platform/SwiftUI/Animation/Transaction.hpp"

namespace proupsells::swiftui {

namespace {

// User-interface work stays on one thread.
std::optional<motion::Animation>& current() {
    static std::optional<motion::Animation> animation;
    return animation;
}

} // namespace

const std::optional<motion::Animation>& Transaction::currentAnimation() { return current(); }

Transaction::Scope::Scope(std::optional<motion::Animation> animation) : m_previous(std::exchange(current(), animation)) {}

Transaction::Scope::~Scope() { current() = m_previous; }

} // namespace proupsells::swiftui

// The token of a subscription.
#pragma once

#include <functional>
#include <utility>

#include "Platform/System/Compiler.hpp"

namespace proupsells::combine {

// Cancels its subscription when it is destroyed or replaced. Move-only; an empty token does nothing.
class PROUPSELLS_EXPORT AnyCancellable {
public:
    AnyCancellable() = default;
    // `cancel` ends the subscription; it runs once.
    explicit AnyCancellable(std::function<void()> cancel) : m_cancel(std::move(cancel)) {}
    // The other token is empty afterwards.
    AnyCancellable(AnyCancellable&& other) noexcept : m_cancel(std::exchange(other.m_cancel, nullptr)) {}
    AnyCancellable& operator=(AnyCancellable&& other) noexcept;
    ~AnyCancellable() { cancel(); }

    // Ends the subscription now; later calls do nothing. No value is delivered after it returns.
    void cancel();
    // Whether there is something left to cancel.
    explicit operator bool() const { return static_cast<bool>(m_cancel); }

private:
    std::function<void()> m_cancel;
};

} // namespace proupsells::combine

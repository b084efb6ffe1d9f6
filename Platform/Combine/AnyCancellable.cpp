#include "Platform/Combine/AnyCancellable.hpp"

namespace proupsells::combine {

AnyCancellable& AnyCancellable::operator=(AnyCancellable&& other) noexcept {
    if (this == &other) return *this;
    // The new subscription is in place before the old one ends, because ending it may run code that looks at this token.
    AnyCancellable previous(std::move(*this));
    m_cancel = std::exchange(other.m_cancel, nullptr);
    return *this;
}

void AnyCancellable::cancel() {
    // Emptied first: what ends here may come back to this token.
    if (const auto cancel = std::exchange(m_cancel, nullptr)) cancel();
}

} // namespace proupsells::combine

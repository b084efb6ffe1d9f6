// A stream of values whose source is hidden.
#pragma once

#include <functional>
#include <utility>

#include "Platform/Combine/AnyCancellable.hpp"

namespace proupsells::combine {

// Wraps the way to subscribe. A default one never delivers.
template <class Value>
class AnyPublisher {
public:
    // What a value is delivered to.
    using Receiver = std::function<void(const Value&)>;
    // Makes a receiver a subscriber, for as long as the token that it returns.
    using Subscribe = std::function<AnyCancellable(Receiver)>;

    AnyPublisher() = default;

    // `subscribe` runs at each sink().
    explicit AnyPublisher(Subscribe subscribe) : m_subscribe(std::move(subscribe)) {}

    // The subscription lasts as long as the token.
    [[nodiscard]] AnyCancellable sink(Receiver receiver) const {
        return m_subscribe ? m_subscribe(std::move(receiver)) : AnyCancellable{};
    }

private:
    Subscribe m_subscribe;
};

} // namespace proupsells::combine

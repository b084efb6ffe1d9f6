// A stream of ticks.
#pragma once

#include "Platform/Combine/AnyPublisher.hpp"

namespace proupsells::combine {

// Delivers the tick's time in seconds, every `interval_s` from the moment of subscription, on the main run loop. Each subscription
// has a timer of its own. Subscribing stops the program when the interval is not positive or there is no main run loop.
struct TimerPublisher {
    double interval_s = 1;

    // The timer runs as long as the token lives.
    [[nodiscard]] AnyCancellable sink(std::function<void(double time_s)> receiver) const;
    AnyPublisher<double> eraseToAnyPublisher() const;

    bool operator==(const TimerPublisher&) const = default;
};

} // namespace proupsells::combine

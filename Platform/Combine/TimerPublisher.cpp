#include "Platform/Combine/TimerPublisher.hpp"

#include <utility>

#include "Platform/RunLoop/MainRunLoop.hpp"

namespace proupsells::combine {

AnyCancellable TimerPublisher::sink(std::function<void(double time_s)> receiver) const {
    auto& loop = runloop::MainRunLoop::main();
    // A timer fires only while its loop lives.
    auto timer = loop.scheduleRepeating(interval_s, [receiver = std::move(receiver), &loop] { receiver(loop.now_s()); });
    return AnyCancellable{[timer = std::move(timer)] { timer->invalidate(); }};
}

AnyPublisher<double> TimerPublisher::eraseToAnyPublisher() const {
    return AnyPublisher<double>{[publisher = *this](auto receiver) { return publisher.sink(std::move(receiver)); }};
}

} // namespace proupsells::combine

#include "Platform/RunLoop/Timer.hpp"

#include <utility>

namespace runloop {

void Timer::invalidate() {
    m_isValid = false;
    // What the callback held may come back here from its destructor, so it goes last.
    const auto callback = std::exchange(m_callback, nullptr);
}

} // namespace runloop

#include "Platform/RunLoop/SteppedClock.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

#include "Platform/Commons/FatalError.hpp"

namespace proupsells::runloop {

SteppedClock::SteppedClock() : SteppedClock(std::make_shared<RealClock>()) {}

SteppedClock::SteppedClock(std::shared_ptr<const Clock> followed) : m_followed(std::move(followed)) {
    if (!m_followed) commons::fatalError("A stepped clock needs a clock to follow");
}

// Divided, so that it is the double nearest to the time as it is written.
double SteppedClock::nextStep_s() const { return std::max(now_s(), std::floor(m_time.read_s(*m_followed) * 1000) / 1000); }

} // namespace proupsells::runloop

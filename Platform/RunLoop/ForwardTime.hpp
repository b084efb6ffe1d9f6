// Time that only goes on, as told by a clock that may be set back.
#pragma once

#include <limits>

#include "Platform/RunLoop/Clock.hpp"
#include "Platform/System/Compiler.hpp"

namespace proupsells::runloop {

// Where the clock has gone back, time goes on from where it was: what waits becomes due neither earlier nor hours later.
class PROUPSELLS_EXPORT ForwardTime {
public:
    // The clock's time in seconds, and what it has gone back since the first call.
    double read_s(const Clock& clock) {
        const double told_s = clock.now_s();
        if (told_s < m_last_s) m_lost_s += m_last_s - told_s;
        m_last_s = told_s;
        return told_s + m_lost_s;
    }

private:
    double m_last_s = -std::numeric_limits<double>::infinity();
    double m_lost_s = 0;
};

} // namespace proupsells::runloop

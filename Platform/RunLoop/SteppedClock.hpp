// A real clock whose times can be played back.
#pragma once

#include <memory>

#include "Platform/RunLoop/Clock.hpp"
#include "Platform/RunLoop/ForwardTime.hpp"
#include "Platform/System/Compiler.hpp"

namespace proupsells::runloop {

// Stands still, and moves on to whole milliseconds of another clock when the main run loop looks for what is due. Between two steps
// it is a virtual clock: a loop on one that is moved to the same times does the same at them. For recordings.
class PROUPSELLS_EXPORT SteppedClock final : public VirtualClock {
public:
    // Follows a real clock of its own, or the one that is given.
    SteppedClock();
    explicit SteppedClock(std::shared_ptr<const Clock> followed);

    // Where the next step leads.
    double nextStep_s() const;

private:
    std::shared_ptr<const Clock> m_followed;
    mutable ForwardTime m_time; // as the followed one has told it
};

} // namespace proupsells::runloop

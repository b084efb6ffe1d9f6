// The clock of a window's session.
#pragma once

#include <optional>

#include "Platform/RunLoop/Clock.hpp"

namespace proupsells::hostprogram {

// A real clock that stands at 0 until the window is there, however long it takes to make one.
class WindowClock final : public runloop::Clock {
public:
    double now_s() const override { return m_running ? m_running->now_s() : 0; }
    void start() { m_running.emplace(); }

private:
    std::optional<runloop::RealClock> m_running;
};

} // namespace proupsells::hostprogram

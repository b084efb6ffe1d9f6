// How many timers may wait in the run loop: those that somebody on the screen needs.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "Tests/Explorer/Expected.hpp"
#include "Tests/Explorer/Observation.hpp"

namespace proupsells::explorer {

class TimerAllowance {
public:
    // To be called after every action: one that may turn the carousel's page has a timer for some seconds.
    void note(World& world, const Action& action, const Expected& expected);
    // What is wrong; absent when no more timers wait than are needed.
    std::optional<std::string> problem(World& world, const Observation& seen, const Expected& expected) const;

private:
    std::size_t changesWithin(double duration_s, double now_s) const;

    double m_paywall_s = 0;          // when it was in the window last
    std::vector<double> m_changes_s; // but for those that time has made
};

} // namespace proupsells::explorer

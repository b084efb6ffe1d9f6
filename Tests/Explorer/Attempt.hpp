// A world with what is expected of it, side by side.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "Tests/Explorer/Invariants.hpp"
#include "Tests/Explorer/Meaning.hpp"
#include "Tests/Explorer/TimerAllowance.hpp"

namespace proupsells::explorer {

class Attempt {
public:
    // Where the program stops meanwhile, the way that has led there is printed.
    explicit Attempt(const Setting& setting);
    ~Attempt();
    Attempt(const Attempt&) = delete;

    enum class Step {
        done,
        stops,     // the program would stop as it should; nothing was done
        outOfReach // no finger reaches the control at the moment
    };
    // The attempt is over where it is not done.
    Step perform(const Action& action);
    // Lets time pass without looking, in seconds.
    void pause(double duration_s);
    const Observation& seen() const { return m_seen; }
    Fingerprint fingerprint();
    // Everything that makes a difference to what comes next.
    std::string state(bool tellsPagesApart = true);
    // Whether the last action was a tap that had to scroll first, which may have brought other things on the screen.
    bool hasScrolledForTap() const { return m_world.hasScrolledForTap(); }
    std::size_t callCount() const { return m_world.calls().size(); }
    std::vector<std::string> callsFrom(std::size_t first) const;

    // What is wrong at the moment.
    std::vector<std::string> problems();
    // What is wrong after nothing was done for a while. Time passes.
    std::vector<std::string> problemsAtRest();
    // What is left, and what is told, once the host has let go of everything. The last that can be asked.
    std::vector<std::string> problemsAtTheEnd();

    // "<setting>: <action>; <action>".
    std::string way() const;

private:
    // Whether the page has been moved away from the control in focus.
    void followFocus(const Action& action, const std::string& before);
    std::string focus() const;

    Setting m_setting;
    World m_world;
    Expected m_expected;
    Observation m_seen;
    TimerAllowance m_timers;
    bool m_hasFocus = false; // may have been given to something
    bool m_isFocusScrolledAway = false;
    std::vector<Action> m_done;
};

} // namespace proupsells::explorer

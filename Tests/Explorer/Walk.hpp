// Goes through all states that actions lead to from a setting, the nearest first.
#pragma once

#include <cstddef>
#include <functional>
#include <limits>
#include <string>
#include <vector>

#include "Tests/Explorer/Observation.hpp"

namespace proupsells::explorer {

// Where a walk begins and what is tried in every state of it.
struct Tour {
    Setting setting;
    Alphabet alphabet;
    // What is done before the first state.
    std::vector<Action> opening{};
    // How long each action but waiting is given to come to rest, in seconds; 0 to go on at once.
    double pause_s = 0;
    // Whether a state with another page of the carousel is another state.
    bool tellsPagesApart = true;
    // How many actions a state may be away from the beginning for others to be tried in it.
    std::size_t reach = std::numeric_limits<std::size_t>::max();
    // Whether it is one of the few that every run of the tests makes.
    bool isInTests = false;
    // Whether it goes further than others of its journey, or elsewhere: a short one is for the tests alone.
    bool isExplored = true;
};

struct Outcome {
    std::size_t states = 0;
    std::size_t edges = 0;
    // Actions that a host must not do, because the program stops: the plans would not reach to the chosen one.
    std::size_t stops = 0;
    // Taps on controls that no finger reached at the moment.
    std::size_t outOfReach = 0;
    std::size_t longestPath = 0;
    bool isWhole = true; // no state was left untried for its distance
    double time_s = 0;
    // What is wrong, with the way that leads there, ready to be replayed; the shortest first.
    std::vector<std::string> failures;
};

// Gives up after some failures.
Outcome walk(const Tour& tour);

// Does the actions of "<setting>: <action>; <action>" and tells what comes of each.
std::string replay(const Setting& setting, const std::vector<Action>& actions);

} // namespace proupsells::explorer

// How long the long runs are.
#pragma once

#include <cstdint>
#include <string>

namespace proupsells::soak {

// A hundredth of what is run by hand: short enough for every change.
struct Lengths {
    int cycles = 100;
    double hours = 0.24;
    int deeds = 10'000;
    std::uint64_t seed = 20261123;
    std::string curveFile; // empty for none
};

// Those of this run, set before the tests begin.
inline Lengths lengths;

} // namespace proupsells::soak

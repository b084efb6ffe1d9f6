// What a fuzzer holds what it has tried against.
#pragma once

#include <cstdlib>

namespace proupsells::fuzz {

// A condition that does not hold is a find.
inline void require(bool condition) {
    if (!condition) std::abort();
}

} // namespace proupsells::fuzz

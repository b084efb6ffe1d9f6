// `proupsells run`: a scripted run without a window.
#pragma once

#include <filesystem>

namespace proupsells::hostprogram {

// Returns the exit status: 0, or 1 when an expectation did not hold. Throws InputError.
int runScenario(const std::filesystem::path& scenario, const std::filesystem::path& folder);

} // namespace proupsells::hostprogram

// Reads the recorded inputs of a scenario.
#pragma once

#include <vector>

#include "Apps/ProUpsellsHost/StepReading.hpp"

namespace proupsells::hostprogram {

// As host::inputsAsJson() writes them. Throws InputError.
std::vector<ScenarioInput> readInputs(const JsonCursor& array, Surroundings& surroundings);

} // namespace proupsells::hostprogram

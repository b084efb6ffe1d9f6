// Looks at the screens of a scenario.
#pragma once

#include <filesystem>
#include <optional>

#include "Apps/ProUpsellsHost/AuditLedger.hpp"

namespace proupsells::hostprogram {

// After each step, on the scenario's own device. With a matrix in each of its locales, and the last screen in each of its sizes,
// text sizes and appearances as well; what the matrix leaves out stays as the scenario has it. Throws InputError, also for a step
// that cannot be done in one of the locales.
AuditLedger auditScenario(const std::filesystem::path& file, const std::optional<std::filesystem::path>& matrix);

} // namespace proupsells::hostprogram

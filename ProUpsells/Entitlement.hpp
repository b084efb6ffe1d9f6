// What is being sold.
#pragma once

#include <cstdint>
#include <string>

#include "Platform/System/Compiler.hpp"

namespace proupsells {

// There is one so far.
enum class Entitlement : std::uint8_t { velaPRO };

// As analytics know it: "VELA_PRO".
PROUPSELLS_EXPORT const std::string& analyticsValue(Entitlement entitlement);

} // namespace proupsells

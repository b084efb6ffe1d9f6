// What is being sold.
#pragma once

#include <cstdint>
#include <string>

namespace proupsells {

// There is one so far.
enum class Entitlement : std::uint8_t { velaPRO };

// As analytics know it: "VELA_PRO".
const std::string& analyticsValue(Entitlement entitlement);

} // namespace proupsells

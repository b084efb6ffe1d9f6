// The JSON values of the program. Who looks into one includes <nlohmann/json.hpp>, which takes seconds to compile.
#pragma once

#include <nlohmann/json_fwd.hpp>

namespace proupsells::hostprogram {

// Keeps its keys in the order in which they were written.
using Json = nlohmann::ordered_json;

} // namespace proupsells::hostprogram

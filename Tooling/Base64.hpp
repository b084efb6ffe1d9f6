// Bytes as text.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "Platform/System/Compiler.hpp"

namespace proupsells::tooling {

// RFC 4648, with the padding.
PROUPSELLS_EXPORT std::string base64Of(std::string_view bytes);

// Absent where the text is not exactly what base64Of() makes of some bytes.
PROUPSELLS_EXPORT std::optional<std::string> bytesOfBase64(std::string_view text);

} // namespace proupsells::tooling

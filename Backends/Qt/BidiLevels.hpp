// Embedding levels by the Unicode bidirectional algorithm (UAX #9).
#pragma once

#include <QString>
#include <cstdint>
#include <vector>

namespace proupsells::qtbackend {

// A level for each UTF-16 unit; odd ones read from right to left. Paragraph separators end a paragraph; each has `baseLevel`, 0
// or 1.
std::vector<std::uint8_t> bidiLevels(const QString& text, std::uint8_t baseLevel);

} // namespace proupsells::qtbackend

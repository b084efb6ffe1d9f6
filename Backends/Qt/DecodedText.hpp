// Styled runs as one UTF-16 text that remembers where its bytes came from.
#pragma once

#include <QString>
#include <cstdint>
#include <span>
#include <vector>

#include "Platform/Graphics/ShapedText.hpp"

namespace proupsells::qtbackend {

// Bytes that are no UTF-8 become replacement characters, one for each longest piece that a character could have begun with.
class DecodedText {
public:
    explicit DecodedText(std::span<const graphics::StyledRun> runs);

    const QString& units() const { return m_units; }
    // Where a unit's character starts, in bytes of all runs' texts, one after the other; the end for units().size().
    std::uint32_t byteOffset(std::uint32_t unit) const { return m_byteOffsets[unit]; }
    // First unit of a run; the end for the number of runs.
    std::uint32_t runStart(std::size_t run) const { return m_runStarts[run]; }
    std::size_t runCount() const { return m_runStarts.size() - 1; }

private:
    void append(const std::string& text, std::uint32_t textStart);

    QString m_units;
    std::vector<std::uint32_t> m_byteOffsets;
    std::vector<std::uint32_t> m_runStarts;
};

} // namespace proupsells::qtbackend

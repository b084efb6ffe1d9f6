// Styled runs in the encoding that shaping reads.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "Platform/Foundation/Utf16.hpp"
#include "Platform/Graphics/ShapedText.hpp"

namespace proupsells::rasterbackend {

// All runs' texts as one UTF-16 text that knows where its bytes and runs begin.
class RunUnits {
public:
    explicit RunUnits(std::span<const graphics::StyledRun> runs);

    const std::u16string& units() const { return m_text.units(); }
    std::uint32_t size() const { return std::uint32_t(m_text.units().size()); }
    // Where a unit's character starts, in bytes of all runs' texts, one after the other; the end for size().
    std::uint32_t byteOffset(std::uint32_t unit) const { return m_text.byteOffset(unit); }
    // First unit of a run; the end for the number of runs.
    std::uint32_t runStart(std::size_t run) const { return m_runStarts[run]; }
    std::size_t runCount() const { return m_runStarts.size() - 1; }

private:
    foundation::Utf16Text m_text;
    std::vector<std::uint32_t> m_runStarts;
};

} // namespace proupsells::rasterbackend

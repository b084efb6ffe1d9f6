// Styled runs in the encoding that Qt reads.
#pragma once

#include <QString>
#include <span>
#include <vector>

#include "Platform/Foundation/Utf16.hpp"
#include "Platform/Graphics/ShapedText.hpp"

namespace proupsells::qtbackend {

// All runs' texts as one UTF-16 text that knows where its bytes and runs begin.
class RunUnits {
public:
    explicit RunUnits(std::span<const graphics::StyledRun> runs);

    const QString& units() const { return m_units; }
    // Where a unit's character starts, in bytes of all runs' texts, one after the other; the end for units().size().
    std::uint32_t byteOffset(std::uint32_t unit) const { return m_text.byteOffset(unit); }
    // First unit of a run; the end for the number of runs.
    std::uint32_t runStart(std::size_t run) const { return m_runStarts[run]; }
    std::size_t runCount() const { return m_runStarts.size() - 1; }

private:
    foundation::Utf16Text m_text;
    QString m_units;
    std::vector<std::uint32_t> m_runStarts;
};

} // namespace proupsells::qtbackend

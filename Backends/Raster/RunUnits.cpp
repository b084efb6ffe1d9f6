#include "Backends/Raster/RunUnits.hpp"

namespace proupsells::rasterbackend {

RunUnits::RunUnits(std::span<const graphics::StyledRun> runs) {
    m_runStarts.reserve(runs.size() + 1);
    m_runStarts.push_back(0);
    for (const graphics::StyledRun& run : runs) {
        m_text.append(run.text);
        m_runStarts.push_back(size());
    }
}

} // namespace proupsells::rasterbackend

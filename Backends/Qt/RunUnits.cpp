#include "Backends/Qt/RunUnits.hpp"

namespace proupsells::qtbackend {

RunUnits::RunUnits(std::span<const graphics::StyledRun> runs) {
    m_runStarts.push_back(0);
    for (const graphics::StyledRun& run : runs) {
        m_text.append(run.text);
        m_runStarts.push_back(std::uint32_t(m_text.units().size()));
    }
    m_units = QStringView(m_text.units()).toString();
}

} // namespace proupsells::qtbackend

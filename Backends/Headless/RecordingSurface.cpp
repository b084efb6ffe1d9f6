#include "Backends/Headless/RecordingSurface.hpp"

namespace proupsells::headless {

RecordingSurface::RecordingSurface() {
    // Tests that count allocations present a few frames and are not to see this record grow.
    m_damages.reserve(1024);
}

void RecordingSurface::present(const graphics::DisplayList& list, geometry::Size size, double scale) {
    if (m_damages.empty() || size != m_size || scale != m_scale) {
        m_lastDamage.assign(1, {{}, size});
    } else {
        graphics::findDamage(m_list, list, m_lastDamage);
    }
    m_damages.push_back(m_lastDamage);
    m_list = list;
    m_size = size;
    m_scale = scale;
}

} // namespace proupsells::headless

// A surface that remembers instead of painting.
#pragma once

#include <vector>

#include "Platform/Host/Surface.hpp"

namespace proupsells::headless {

class RecordingSurface final : public host::Surface {
public:
    RecordingSurface();

    void present(const graphics::DisplayList& list, geometry::Size size, double scale) override;

    // What was presented last; empty before the first time.
    const graphics::DisplayList& list() const { return m_list; }
    geometry::Size size() const { return m_size; }
    double scale() const { return m_scale; }

    std::size_t presentCount() const { return m_damages.size(); }
    // What each present had to repaint, in points: everything after a change of size or scale, nothing when the picture stayed.
    const std::vector<std::vector<geometry::Rect>>& damages() const { return m_damages; }
    // Of the last present; empty before the first one.
    const std::vector<geometry::Rect>& lastDamage() const { return m_lastDamage; }

private:
    graphics::DisplayList m_list;
    geometry::Size m_size;
    double m_scale = 0;
    std::vector<std::vector<geometry::Rect>> m_damages;
    std::vector<geometry::Rect> m_lastDamage;
};

} // namespace proupsells::headless

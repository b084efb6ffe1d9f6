// Supplied by a backend: something that a display list is painted onto.
#pragma once

#include "Platform/Graphics/DisplayList.hpp"
#include "Platform/System/Compiler.hpp"

namespace proupsells::host {

class PROUPSELLS_EXPORT Surface {
public:
    virtual ~Surface() = default;

    // Shows the list on `size` points at `scale` pixels a point, over white. Repaints only what differs from the list shown before
    // at the same size and scale.
    virtual void present(const graphics::DisplayList& list, geometry::Size size, double scale) = 0;
};

} // namespace proupsells::host

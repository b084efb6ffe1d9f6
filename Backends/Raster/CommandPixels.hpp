// Where commands are painted.
#pragma once

#include <vector>

#include "Backends/Raster/PixelRect.hpp"
#include "Platform/Graphics/DisplayList.hpp"

namespace proupsells::rasterbackend {

// The pixels of a part that a command may touch, and no others.
PixelRect paintedPixels(const graphics::Command& command, double scale, const PixelRect& part);
// The pixels of which a command shows nothing that is painted before it.
PixelRect hiddenPixels(const graphics::Command& command, double scale);
// Where the picture of a command without a transform goes, what is cut off included. It is as large wherever it goes, so that one
// that moves between pixels is not made anew.
PixelRect imagePixels(const graphics::Command& command, double scale);

// What a command refers to in its list; null where it refers to nothing.
template <class Resource>
const Resource* resourceOf(const std::vector<Resource>& resources, const graphics::Command& command) {
    const bool exists = command.resource >= 0 && std::size_t(command.resource) < resources.size();
    return exists ? &resources[std::size_t(command.resource)] : nullptr;
}

} // namespace proupsells::rasterbackend

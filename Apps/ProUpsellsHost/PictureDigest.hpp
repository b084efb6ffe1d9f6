// Tells whether two pictures are the same without both at hand.
#pragma once

#include <string>

#include "Backends/Raster/Picture.hpp"

namespace proupsells::hostprogram {

// 32 hexadecimal digits of the picture's size and pixels, the same on every machine. Nobody must rely on it against somebody who
// wants two pictures to agree.
std::string digestOf(const rasterbackend::Picture& picture);

} // namespace proupsells::hostprogram

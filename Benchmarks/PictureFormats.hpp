// Ways to keep pixels in a file, to be compared.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "Backends/Raster/Picture.hpp"

namespace proupsells::benchmarks {

struct PictureFormat {
    std::string_view name;
    std::string (*encoded)(const rasterbackend::Picture& picture);
    // Null where the bytes are not those of a picture of this size.
    rasterbackend::Picture (*decoded)(std::string_view bytes, int width, int height);
};

std::span<const PictureFormat> pictureFormats();

} // namespace proupsells::benchmarks

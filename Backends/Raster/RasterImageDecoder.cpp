#include "Backends/Raster/RasterImageDecoder.hpp"

#include "Backends/Raster/PictureFile.hpp"

namespace proupsells::rasterbackend {

std::optional<geometry::Size> RasterImageDecoder::naturalSize(const std::filesystem::path& file) {
    return naturalPictureSize(file);
}

} // namespace proupsells::rasterbackend

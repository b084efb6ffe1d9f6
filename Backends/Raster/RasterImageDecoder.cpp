#include "Backends/Raster/RasterImageDecoder.hpp"

#include "Backends/Raster/PictureFile.hpp"

namespace proupsells::rasterbackend {

std::optional<geometry::Size> RasterImageDecoder::naturalSize(const std::filesystem::path& file) {
    return naturalPictureSize(file);
}

bool RasterImageDecoder::canRead(const std::filesystem::path& file) { return !readPicture(file, 1, 1).isNull(); }

} // namespace proupsells::rasterbackend

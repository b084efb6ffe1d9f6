// Pictures in files: those that the build has made (*.picture), and PNG files.
#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

#include "Backends/Raster/Picture.hpp"
#include "Backends/Raster/PictureCodec.hpp"
#include "Backends/Raster/PixelRect.hpp"
#include "Platform/Geometry/Geometry.hpp"

namespace proupsells::rasterbackend {

// In points; a pixel of a PNG file is a point. Absent where the file holds no picture.
std::optional<geometry::Size> naturalPictureSize(const std::filesystem::path& file);

// The picture stretched over the size in pixels: the file's own at this size where it has one, else made of its largest. Null where
// it cannot be read.
Picture readPicture(const std::filesystem::path& file, int width, int height);

// The pixels of exactly this size in a picture file of these bytes, which must stay. Absent where there are none.
std::optional<CompressedPicture> compressedPicture(std::string_view bytes, PixelSize size);

} // namespace proupsells::rasterbackend

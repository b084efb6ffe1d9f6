// Pictures in files: those that the build has made, vectors (SVG), pixels (PNG, JPEG).
#pragma once

#include <QImage>
#include <filesystem>
#include <optional>

#include "Platform/Geometry/Geometry.hpp"

namespace proupsells::qtbackend {

// In points; a picture of pixels has one a point. Absent when the file holds no picture.
std::optional<geometry::Size> naturalImageSize(const std::filesystem::path& file);

// The picture stretched over the size in pixels, premultiplied. Null when it cannot be read.
QImage readImage(const std::filesystem::path& file, QSize size);

} // namespace proupsells::qtbackend

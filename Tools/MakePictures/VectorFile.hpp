// Vector pictures (SVG).
#pragma once

#include <QImage>
#include <filesystem>
#include <optional>

#include "Platform/Geometry/Geometry.hpp"

namespace proupsells::makepictures {

bool isVectorFile(const std::filesystem::path& file);

// In points. Absent when the file holds no picture, or one without a size.
std::optional<geometry::Size> vectorSize(const std::filesystem::path& file);

// The picture stretched over the size in pixels, premultiplied. Null when it cannot be read.
QImage renderVector(const std::filesystem::path& file, QSize size);

} // namespace proupsells::makepictures

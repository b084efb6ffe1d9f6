// Writing pictures.
#pragma once

#include <QImage>
#include <filesystem>

namespace proupsells::qtbackend {

// Writes the image, pixel for pixel, as a PNG file. Returns whether all of it was written; where it was not, no file is left.
bool writePng(const QImage& image, const std::filesystem::path& file);

} // namespace proupsells::qtbackend

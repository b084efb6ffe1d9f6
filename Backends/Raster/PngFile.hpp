// Writing pictures.
#pragma once

#include <filesystem>

#include "Backends/Raster/Picture.hpp"
#include "Platform/System/Compiler.hpp"

namespace proupsells::rasterbackend {

// Writes the colours, pixel for pixel, as a PNG file without transparency. Returns whether all of it was written; where it was not,
// what stood there before still does.
PROUPSELLS_EXPORT bool writePng(const Picture& picture, const std::filesystem::path& file);

} // namespace proupsells::rasterbackend

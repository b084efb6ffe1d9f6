// Writing pictures.
#pragma once

#include <filesystem>
#include <string>

#include "Backends/Raster/Picture.hpp"
#include "Platform/System/Compiler.hpp"

namespace proupsells::rasterbackend {

// How much time a file may take to become small.
enum class PngEffort { small, quick };

// The colours, pixel for pixel, as the bytes of a PNG file without transparency. Empty for a null picture, and where memory is
// short.
PROUPSELLS_EXPORT std::string pngBytes(const Picture& picture, PngEffort effort);

// Writes the colours, pixel for pixel, as a PNG file without transparency. Returns whether all of it was written; where it was not,
// what stood there before still does.
PROUPSELLS_EXPORT bool writePng(const Picture& picture, const std::filesystem::path& file);

} // namespace proupsells::rasterbackend

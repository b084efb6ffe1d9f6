// The faces that travel with the module.
#pragma once

#include <filesystem>
#include <vector>

#include "Backends/Raster/FaceFile.hpp"

namespace proupsells::rasterbackend {

// Beside the running program, in the build or where the module is installed.
std::filesystem::path shippedFaceFolder();

// The faces in a folder, in the order of their names: "Inter Display-500.otf" is the medium one of the family Inter Display.
// Nothing where there is no such folder.
std::vector<FaceFile> facesInFolder(const std::filesystem::path& folder);

} // namespace proupsells::rasterbackend

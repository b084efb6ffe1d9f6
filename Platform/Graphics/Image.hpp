// Images: vector files with a natural size.
#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>

#include "Platform/Geometry/Geometry.hpp"
#include "Platform/Graphics/Color.hpp"

namespace proupsells::graphics {

// How an image's colours are used.
enum class RenderingMode { original, tinted };

class Image {
public:
    std::string name;                                      // as in the resources
    geometry::Size size;                                   // natural size in points
    std::filesystem::path file;                            // a prepared picture, or an SVG
    std::optional<std::filesystem::path> darkFile;         // shown instead in the dark colour scheme
    RenderingMode renderingMode = RenderingMode::original; // tinted: in the colour of whoever shows it
    std::shared_ptr<const Image> standIn;                  // painted in its place, at its size; null for none

    // The file that the scheme shows.
    const std::filesystem::path& fileFor(ColorScheme scheme) const {
        return scheme == ColorScheme::dark && darkFile ? *darkFile : file;
    }
};

// Images are shared and do not change. Null: no image.
using ImageRef = std::shared_ptr<const Image>;

} // namespace proupsells::graphics

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
    std::string name;
    geometry::Size size; // natural size in points
    std::filesystem::path file;
    std::optional<std::filesystem::path> darkFile; // shown instead in the dark colour scheme
    RenderingMode renderingMode = RenderingMode::original;
    std::shared_ptr<const Image> standIn; // painted in its place, at its size; null for none

    const std::filesystem::path& fileFor(ColorScheme scheme) const {
        return scheme == ColorScheme::dark && darkFile ? *darkFile : file;
    }
};

using ImageRef = std::shared_ptr<const Image>;

} // namespace proupsells::graphics

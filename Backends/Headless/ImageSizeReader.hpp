// Natural sizes of image files, without decoding them.
#pragma once

#include <string_view>

#include "Platform/Host/ImageDecoder.hpp"

namespace proupsells::headless {

// Knows the pictures that the build has made, SVG (the root element's width and height, or its view box) and PNG (a pixel is a
// point).
class ImageSizeReader final : public host::ImageDecoder {
public:
    std::optional<geometry::Size> naturalSize(const std::filesystem::path& file) override;
};

// The sizes that a file's contents tell; absent where they tell none, or one that is not positive.
std::optional<geometry::Size> svgSize(std::string_view contents);
std::optional<geometry::Size> pngSize(std::string_view contents);

} // namespace proupsells::headless

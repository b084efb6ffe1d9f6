// Reads the sizes of picture files.
#pragma once

#include "Platform/Host/ImageDecoder.hpp"

namespace proupsells::rasterbackend {

class RasterImageDecoder final : public host::ImageDecoder {
public:
    std::optional<geometry::Size> naturalSize(const std::filesystem::path& file) override;
};

} // namespace proupsells::rasterbackend

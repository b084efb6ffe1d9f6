// Reads the sizes of picture files, and tells whether they are whole.
#pragma once

#include "Platform/Host/ImageDecoder.hpp"
#include "Platform/System/Compiler.hpp"

namespace proupsells::rasterbackend {

class PROUPSELLS_EXPORT RasterImageDecoder final : public host::ImageDecoder {
public:
    std::optional<geometry::Size> naturalSize(const std::filesystem::path& file) override;
    bool canRead(const std::filesystem::path& file) override;
};

} // namespace proupsells::rasterbackend

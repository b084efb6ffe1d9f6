// Reads the sizes of image files.
#pragma once

#include "Platform/Host/ImageDecoder.hpp"

namespace proupsells::qtbackend {

class QtImageDecoder final : public host::ImageDecoder {
public:
    std::optional<geometry::Size> naturalSize(const std::filesystem::path& file) override;
};

} // namespace proupsells::qtbackend

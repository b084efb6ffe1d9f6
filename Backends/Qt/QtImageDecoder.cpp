#include "Backends/Qt/QtImageDecoder.hpp"

#include "Backends/Qt/ImageFile.hpp"

namespace proupsells::qtbackend {

std::optional<geometry::Size> QtImageDecoder::naturalSize(const std::filesystem::path& file) { return naturalImageSize(file); }

} // namespace proupsells::qtbackend

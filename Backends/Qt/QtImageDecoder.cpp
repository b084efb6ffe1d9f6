#include "Backends/Qt/QtImageDecoder.hpp"

#include "Backends/Qt/ImageFile.hpp"

namespace qtbackend {

std::optional<geometry::Size> QtImageDecoder::naturalSize(const std::filesystem::path& file) { return naturalImageSize(file); }

} // namespace qtbackend

// Supplied by a backend: reading image files.
#pragma once

#include <filesystem>
#include <optional>

#include "Platform/Geometry/Geometry.hpp"
#include "Platform/System/Compiler.hpp"

namespace proupsells::host {

class PROUPSELLS_EXPORT ImageDecoder {
public:
    virtual ~ImageDecoder() = default;

    // The natural size in points of the image in the file; absent when there is none that can be read.
    virtual std::optional<geometry::Size> naturalSize(const std::filesystem::path& file) = 0;
    // Whether the whole image can be read, not only its size. May take as long as painting it.
    virtual bool canRead(const std::filesystem::path& file) { return naturalSize(file).has_value(); }
};

} // namespace proupsells::host

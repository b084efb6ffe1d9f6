// Which screens a gallery shows, and how.
#pragma once

#include "Apps/ProUpsellsHost/AuditMatrix.hpp"

namespace proupsells::hostprogram {

struct GalleryMatrix {
    AuditMatrix configurations;
    double scale = 2; // pixels a point
};

// All three screens in three window sizes, three text sizes and both appearances; in English and the languages of the folder, or
// from right to left where there are none.
GalleryMatrix defaultGalleryMatrix(const std::optional<std::filesystem::path>& strings);

// The default one, but for the keys that stand in the file: those of an audit's, and "scale". A value that stands there twice
// counts once. Throws InputError.
GalleryMatrix readGalleryMatrix(const std::filesystem::path& file, const std::optional<std::filesystem::path>& strings);

} // namespace proupsells::hostprogram

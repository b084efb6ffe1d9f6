// Paints the pictures of a gallery, on all processors.
#pragma once

#include <vector>

#include "Apps/ProUpsellsHost/GalleryFolder.hpp"
#include "Apps/ProUpsellsHost/GalleryMatrix.hpp"
#include "Apps/ProUpsellsHost/Offers.hpp"

namespace proupsells::hostprogram {

struct GallerySubject {
    Offers offers;
    Device device; // what the matrix does not say
    GalleryMatrix matrix;
};

// Writes the pictures and trees into the folder, and returns them in the order of the matrix. Moments of one screen on one device
// that look alike share a picture, and those whose trees agree a tree. Throws a runtime_error with the line to say where a file
// cannot be written.
std::vector<tooling::GalleryPicture> paintGallery(const GallerySubject& subject, const GalleryFolder& folder);

} // namespace proupsells::hostprogram

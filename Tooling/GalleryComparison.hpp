// What has changed between two galleries.
#pragma once

#include <functional>
#include <span>
#include <string>
#include <vector>

#include "Tooling/Gallery.hpp"
#include "Tooling/ScreenTree.hpp"

namespace proupsells::tooling {

// Where the comparison reads what a gallery has in files.
struct GallerySources {
    std::function<ScreenTree(const GalleryPicture&)> treeBefore, treeAfter;
    // Which pixels of two pictures of one size differ, such as "96 pixels within 20 40 12 8". Not asked where it is empty.
    std::function<std::string(const GalleryPicture& before, const GalleryPicture& after)> pixels{};
};

// In the order of the later gallery; what is gone comes last. Pictures with the same pixels and trees are left out.
std::vector<GalleryChange> galleryChanges(std::span<const GalleryPicture> before, std::span<const GalleryPicture> after,
                                          const GallerySources& sources);

// Each sentence about a screen once, with the first picture that it is about and how many there are: a line for each.
std::string galleryReport(std::span<const GalleryChange> changes);

} // namespace proupsells::tooling

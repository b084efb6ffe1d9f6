// Pictures of screens in many configurations, and what has changed among them.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace proupsells::tooling {

// One picture, by what it shows. Two of a gallery never agree in all of the first six.
struct GalleryPicture {
    std::string screen;
    std::string moment; // such as "page 2"
    std::string locale;
    std::string size; // points, such as "375x812"
    std::string textSize;
    std::string appearance;

    std::string digest; // of the pixels
    std::string file;   // of the picture, from the gallery's folder on, with '/' between names
    std::string tree;   // likewise of the screen's tree as text
    int width = 0;      // pixels
    int height = 0;
};

// What has become of a picture.
struct GalleryChange {
    std::optional<GalleryPicture> before; // absent: it is new
    std::optional<GalleryPicture> after;  // absent: it is gone
    std::vector<std::string> words;       // what has changed, each a sentence
    std::string pixels{}; // which of them differ where the trees do not; empty otherwise, or where nobody has looked
};

struct Gallery {
    std::vector<GalleryPicture> pictures;
    // Against another gallery; absent where there was none to compare with.
    std::optional<std::vector<GalleryChange>> changes = std::nullopt;
};

} // namespace proupsells::tooling

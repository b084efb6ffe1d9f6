// The folder that a gallery lies in.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "Tooling/Gallery.hpp"

namespace proupsells::hostprogram {

inline constexpr const char* galleryPageName = "index.html";

// Writes below one folder and nowhere else: it follows no link, and removes nothing but a gallery's own files. Everything throws
// InputError where that is impossible. Names are those of a gallery, with '/' between folders.
class GalleryFolder {
public:
    // The folder is made if need be. One that has something in it must hold a gallery.
    explicit GalleryFolder(std::filesystem::path folder);

    // What was there before stays until all is written.
    void write(const std::string& name, std::string_view bytes) const;
    // Removes the files of `former` that `gallery` does not have, and folders that are empty then.
    void removeLeftOvers(const tooling::Gallery& former, const tooling::Gallery& gallery) const;

    const std::filesystem::path& path() const { return m_folder; }

private:
    std::filesystem::path fileFor(const std::string& name) const;

    std::filesystem::path m_folder;
};

// The gallery in a folder. Throws InputError where there is none.
tooling::Gallery readGallery(const std::filesystem::path& folder);

// A file of a gallery. Throws InputError when it cannot be read.
std::string readGalleryFile(const std::filesystem::path& folder, const std::string& name);

} // namespace proupsells::hostprogram

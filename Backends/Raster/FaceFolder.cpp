#include "Backends/Raster/FaceFolder.hpp"

#include <algorithm>
#include <charconv>
#include <system_error>

#include "Platform/Foundation/Resources.hpp"
#include "Platform/System/PathText.hpp"

namespace proupsells::rasterbackend {

std::filesystem::path shippedFaceFolder() { return foundation::findResource("Fonts").value_or(std::filesystem::path()); }

std::vector<FaceFile> facesInFolder(const std::filesystem::path& folder) {
    std::vector<FaceFile> faces;
    std::error_code error;
    for (std::filesystem::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
        const std::string extension = system::textOf(entry->path().extension()), stem = system::textOf(entry->path().stem());
        const std::size_t dash = stem.rfind('-');
        if ((extension != ".otf" && extension != ".ttf") || dash == std::string::npos) continue;
        FaceFile face{stem.substr(0, dash), 0, entry->path()};
        std::from_chars(stem.data() + dash + 1, stem.data() + stem.size(), face.weight);
        if (face.weight > 0) faces.push_back(std::move(face));
    }
    std::sort(faces.begin(), faces.end(), [](const FaceFile& a, const FaceFile& b) { return a.path < b.path; });
    return faces;
}

} // namespace proupsells::rasterbackend

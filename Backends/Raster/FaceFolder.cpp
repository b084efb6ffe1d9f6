#include "Backends/Raster/FaceFolder.hpp"

#include <charconv>
#include <utility>

#include "Platform/Foundation/Resources.hpp"
#include "Platform/System/Files.hpp"
#include "Platform/System/PathText.hpp"

namespace proupsells::rasterbackend {

std::filesystem::path shippedFaceFolder() { return foundation::findResource("Fonts").value_or(std::filesystem::path()); }

std::vector<FaceFile> facesInFolder(const std::filesystem::path& folder) {
    std::vector<FaceFile> faces;
    for (const auto& file : system::filesIn(folder)) {
        const std::string extension = system::textOf(file.extension()), stem = system::textOf(file.stem());
        const std::size_t dash = stem.rfind('-');
        if ((extension != ".otf" && extension != ".ttf") || dash == std::string::npos) continue;
        FaceFile face{stem.substr(0, dash), 0, file};
        std::from_chars(stem.data() + dash + 1, stem.data() + stem.size(), face.weight);
        if (face.weight > 0) faces.push_back(std::move(face));
    }
    return faces;
}

} // namespace proupsells::rasterbackend

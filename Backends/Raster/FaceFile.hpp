// Where a face is to be found, and which of several is the nearest to a wanted one.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace proupsells::rasterbackend {

// 0 for an italic style or one with a name of its own.
int weightOfStyle(std::string_view style);

struct FaceFile {
    std::string family;
    int weight = 400;
    std::filesystem::path path;
    int index = 0; // of the face in its file

    bool operator==(const FaceFile&) const = default;
};

// The family's face whose weight is the nearest: the usual rule that light texts rather become lighter and bold ones bolder. Of two
// that are as near, the first. Null where the family has no face.
const FaceFile* nearestFace(const std::vector<FaceFile>& faces, std::string_view family, int weight);

} // namespace proupsells::rasterbackend

#include "Backends/Raster/FaceFile.hpp"

#include <algorithm>
#include <cstdlib>
#include <limits>

#include "Platform/Foundation/Ascii.hpp"

namespace proupsells::rasterbackend {

namespace {

struct NamedWeight {
    std::string_view name; // lower case, without blanks
    int weight;
};

constexpr NamedWeight namedWeights[] = {
    {"thin", 100}, {"extralight", 200}, {"ultralight", 200}, {"light", 300},    {"regular", 400},
    {"book", 400}, {"normal", 400},     {"medium", 500},     {"semibold", 600}, {"demibold", 600},
    {"bold", 700}, {"extrabold", 800},  {"ultrabold", 800},  {"black", 900},    {"heavy", 900},
};

int weightDistance(int wanted, int weight) {
    const bool isOnWrongSide = wanted <= 500 ? weight > std::max(wanted, 500) : weight < wanted;
    return std::abs(weight - wanted) + (isOnWrongSide ? 1000 : 0);
}

bool isSameFamily(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return foundation::asciiLower(x) == foundation::asciiLower(y); });
}

} // namespace

int weightOfStyle(std::string_view style) {
    std::string name = foundation::asciiLowerCased(std::string(style));
    std::erase_if(name, [](char c) { return c == ' ' || c == '-'; });
    for (const NamedWeight& named : namedWeights)
        if (name == named.name) return named.weight;
    return 0;
}

const FaceFile* nearestFace(const std::vector<FaceFile>& faces, std::string_view family, int weight) {
    const FaceFile* nearest = nullptr;
    int nearestDistance = std::numeric_limits<int>::max();
    for (const FaceFile& face : faces) {
        if (!isSameFamily(face.family, family)) continue;
        const int distance = weightDistance(weight, face.weight);
        if (distance >= nearestDistance) continue;
        nearest = &face;
        nearestDistance = distance;
    }
    return nearest;
}

} // namespace proupsells::rasterbackend

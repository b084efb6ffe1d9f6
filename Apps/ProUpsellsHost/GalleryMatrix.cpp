#include "Apps/ProUpsellsHost/GalleryMatrix.hpp"

#include <algorithm>

#include <nlohmann/json.hpp>

#include "Apps/ProUpsellsHost/JsonFile.hpp"
#include "Platform/System/PathText.hpp"

namespace proupsells::hostprogram {

using graphics::ContentSizeCategory;

namespace {

// Keeps the first of each.
template <class Value>
void dropRepeated(std::vector<Value>& values) {
    std::vector<Value> kept;
    for (const Value& value : values)
        if (std::find(kept.begin(), kept.end(), value) == kept.end()) kept.push_back(value);
    values = std::move(kept);
}

} // namespace

GalleryMatrix defaultGalleryMatrix(const std::optional<std::filesystem::path>& strings) {
    GalleryMatrix matrix{defaultMatrix(strings)};
    AuditMatrix& configurations = matrix.configurations;
    configurations.sizes = {{320, 568}, {375, 812}, {768, 1024}};
    configurations.textSizes = {ContentSizeCategory::extraSmall, ContentSizeCategory::large,
                                ContentSizeCategory::accessibilityExtraExtraExtraLarge};
    // Pseudo-languages are not to be looked at, but there must be something from right to left.
    constexpr std::size_t pseudoLanguageCount = 2;
    configurations.locales.resize(configurations.locales.size() - pseudoLanguageCount);
    if (!strings) configurations.locales.emplace_back("ar_XB");
    return matrix;
}

GalleryMatrix readGalleryMatrix(const std::filesystem::path& file, const std::optional<std::filesystem::path>& strings) {
    const Json json = readJsonFile(file);
    const JsonCursor root{json, system::textOf(file)};
    root.expectObject({"screens", "locales", "sizes", "textSizes", "appearances", "scale"});
    GalleryMatrix matrix = defaultGalleryMatrix(strings);
    matrix.configurations = withKeysOf(root, matrix.configurations);
    AuditMatrix& configurations = matrix.configurations;
    dropRepeated(configurations.screens);
    dropRepeated(configurations.locales);
    dropRepeated(configurations.sizes);
    dropRepeated(configurations.textSizes);
    dropRepeated(configurations.appearances);
    // A device of each size with this scale, so that no picture is too large.
    for (Device device; const geometry::Size size : configurations.sizes) {
        device.size = size;
        if (root.has("scale")) readDeviceKey(device, "scale", root.at("scale"), {});
        matrix.scale = device.scale;
    }
    return matrix;
}

} // namespace proupsells::hostprogram

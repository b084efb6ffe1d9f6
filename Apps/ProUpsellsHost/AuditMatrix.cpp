#include "Apps/ProUpsellsHost/AuditMatrix.hpp"

#include <nlohmann/json.hpp>

#include "Apps/ProUpsellsHost/JsonFile.hpp"
#include "Platform/System/PathText.hpp"
#include "Tooling/TranslationsLint.hpp"

namespace proupsells::hostprogram {

using graphics::ColorScheme;
using graphics::ContentSizeCategory;

namespace {

// A device as one of its keys makes it.
Device deviceWith(const char* key, const JsonCursor& value) {
    Device device;
    readDeviceKey(device, key, value, {});
    return device;
}

std::vector<JsonCursor> atLeastOne(const JsonCursor& array) {
    auto elements = array.elements();
    if (elements.empty()) array.fail("the array is empty, expected at least one value");
    return elements;
}

} // namespace

AuditMatrix defaultMatrix(const std::optional<std::filesystem::path>& strings) {
    AuditMatrix matrix{.screens = {StartScreen::paywall, StartScreen::comparison, StartScreen::store},
                       .locales = {"en"},
                       .sizes = {{320, 568}, {375, 667}, {375, 812}, {430, 932}, {844, 390}, {768, 1024}, {1024, 768}, {1440, 900}},
                       .textSizes = {},
                       .appearances = {ColorScheme::light, ColorScheme::dark}};
    for (auto each = ContentSizeCategory::extraSmall;; each = ContentSizeCategory(int(each) + 1)) {
        matrix.textSizes.push_back(each);
        if (each == ContentSizeCategory::accessibilityExtraExtraExtraLarge) break;
    }
    if (strings)
        for (const tooling::Translation& translation : tooling::readTranslations(*strings))
            if (translation.language != "en") matrix.locales.push_back(translation.language);
    matrix.locales.insert(matrix.locales.end(), {"en_XA", "ar_XB"});
    return matrix;
}

AuditMatrix readMatrix(const std::filesystem::path& file, const std::optional<std::filesystem::path>& strings) {
    const Json json = readJsonFile(file);
    const JsonCursor root{json, system::textOf(file)};
    root.expectObject({"screens", "locales", "sizes", "textSizes", "appearances"});
    return withKeysOf(root, defaultMatrix(strings));
}

AuditMatrix withKeysOf(const JsonCursor& object, AuditMatrix matrix) {
    const auto replace = [&](const char* key, auto& values, const auto& read) {
        if (!object.has(key)) return;
        values.clear();
        for (const JsonCursor& value : atLeastOne(object.at(key))) values.push_back(read(value));
    };
    replace("screens", matrix.screens, [](const JsonCursor& value) { return value.oneOf(startScreens); });
    replace("locales", matrix.locales, [](const JsonCursor& value) { return deviceWith("locale", value).locale; });
    replace("sizes", matrix.sizes, [](const JsonCursor& value) { return deviceWith("size", value).size; });
    replace("textSizes", matrix.textSizes, [](const JsonCursor& value) { return deviceWith("textSize", value).textSize; });
    replace("appearances", matrix.appearances, [](const JsonCursor& value) { return deviceWith("appearance", value).appearance; });
    return matrix;
}

} // namespace proupsells::hostprogram

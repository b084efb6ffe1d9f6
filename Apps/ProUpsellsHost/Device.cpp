#include "Apps/ProUpsellsHost/Device.hpp"

#include <algorithm>

#include "Apps/ProUpsellsHost/ThemeFile.hpp"
#include "Platform/System/PathText.hpp"

namespace proupsells::hostprogram {

namespace {

constexpr double maximumLength = 20000; // points
constexpr double maximumPixels = 32000; // of one side

geometry::Size readSize(const JsonCursor& value) {
    const auto lengths = value.numbers(2, 0, "a width and a height in points");
    if (lengths[0] < 1 || lengths[1] < 1 || lengths[0] > maximumLength || lengths[1] > maximumLength)
        value.fail("a length is out of range, expected a width and a height from 1 to 20000 points");
    return {lengths[0], lengths[1]};
}

double readScale(const JsonCursor& value) { return value.number(0.25, 8, "pixels a point, from 0.25 to 8"); }

geometry::PhysicalInsets readSafeArea(const JsonCursor& value) {
    const auto insets = value.numbers(4, 0, "the insets top, left, bottom, right in points, not negative");
    return {insets[0], insets[1], insets[2], insets[3]};
}

std::string readLocale(const JsonCursor& value) {
    std::string locale = value.text();
    const bool isTag = !locale.empty() && locale.size() <= 64 && std::all_of(locale.begin(), locale.end(), [](unsigned char c) {
        return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || c == '-';
    });
    if (!isTag || !((locale[0] | 0x20) >= 'a' && (locale[0] | 0x20) <= 'z'))
        value.fail("\"" + locale + "\" is no locale, expected one such as \"de_AT\"");
    return locale;
}

std::filesystem::path readStrings(const JsonCursor& value, const std::filesystem::path& folder) {
    const std::filesystem::path given = system::pathOf(value.text());
    const std::filesystem::path path = given.is_absolute() ? given : folder / given;
    std::error_code error;
    if (given.empty() || !std::filesystem::is_directory(path, error))
        value.fail("there is no folder \"" + value.text() + "\", expected one with <language>.lproj folders");
    return path;
}

Theme readTheme(const JsonCursor& value, const std::filesystem::path& folder) {
    if (value.isNull()) return {};
    const std::filesystem::path given = system::pathOf(value.text());
    if (given.empty()) value.fail("the file name is empty, expected a theme's file");
    return readThemeFile(given.is_absolute() ? given : folder / given);
}

constexpr Word<graphics::ColorScheme> appearances[] = {
    {"light", graphics::ColorScheme::light},
    {"dark", graphics::ColorScheme::dark},
};
constexpr Word<DirectionChoice> directions[] = {
    {"auto", DirectionChoice::automatic},
    {"ltr", DirectionChoice::leftToRight},
    {"rtl", DirectionChoice::rightToLeft},
};
constexpr Word<FontChoice> fontChoices[] = {
    {"bundled", FontChoice::bundled},
    {"fixed", FontChoice::fixed},
};
constexpr Word<graphics::ContentSizeCategory> textSizes[] = {
    {"extraSmall", graphics::ContentSizeCategory::extraSmall},
    {"small", graphics::ContentSizeCategory::small},
    {"medium", graphics::ContentSizeCategory::medium},
    {"large", graphics::ContentSizeCategory::large},
    {"extraLarge", graphics::ContentSizeCategory::extraLarge},
    {"extraExtraLarge", graphics::ContentSizeCategory::extraExtraLarge},
    {"extraExtraExtraLarge", graphics::ContentSizeCategory::extraExtraExtraLarge},
    {"accessibilityMedium", graphics::ContentSizeCategory::accessibilityMedium},
    {"accessibilityLarge", graphics::ContentSizeCategory::accessibilityLarge},
    {"accessibilityExtraLarge", graphics::ContentSizeCategory::accessibilityExtraLarge},
    {"accessibilityExtraExtraLarge", graphics::ContentSizeCategory::accessibilityExtraExtraLarge},
    {"accessibilityExtraExtraExtraLarge", graphics::ContentSizeCategory::accessibilityExtraExtraExtraLarge},
};

using Folder = std::filesystem::path;
using ReadKey = void (*)(Device&, const JsonCursor&, const Folder&);

constexpr Word<ReadKey> deviceKeys[] = {
    {"size", [](Device& device, const JsonCursor& value, const Folder&) { device.size = readSize(value); }},
    {"scale", [](Device& device, const JsonCursor& value, const Folder&) { device.scale = readScale(value); }},
    {"appearance", [](Device& device, const JsonCursor& value, const Folder&) { device.appearance = value.oneOf(appearances); }},
    {"locale", [](Device& device, const JsonCursor& value, const Folder&) { device.locale = readLocale(value); }},
    {"layoutDirection",
     [](Device& device, const JsonCursor& value, const Folder&) { device.layoutDirection = value.oneOf(directions); }},
    {"textSize", [](Device& device, const JsonCursor& value, const Folder&) { device.textSize = value.oneOf(textSizes); }},
    {"reduceMotion", [](Device& device, const JsonCursor& value, const Folder&) { device.reduceMotion = value.boolean(); }},
    {"safeArea", [](Device& device, const JsonCursor& value, const Folder&) { device.safeArea = readSafeArea(value); }},
    {"strings", [](Device& device, const JsonCursor& value, const Folder& folder) { device.strings = readStrings(value, folder); }},
    {"fonts", [](Device& device, const JsonCursor& value, const Folder&) { device.fonts = value.oneOf(fontChoices); }},
    {"theme", [](Device& device, const JsonCursor& value, const Folder& folder) { device.theme = readTheme(value, folder); }},
};

const ReadKey* readerOf(std::string_view key) {
    const auto entry = entryFor(key, deviceKeys);
    return entry == std::end(deviceKeys) ? nullptr : &entry->value;
}

void checkPixels(const Device& device, const JsonCursor& value) {
    if (std::max(device.size.width, device.size.height) * device.scale > maximumPixels)
        value.fail("the window is out of range, expected at most 32000 pixels a side");
}

void checkInsets(const Device& device, const JsonCursor& value) {
    const auto& insets = device.safeArea;
    if (insets.left + insets.right >= device.size.width || insets.top + insets.bottom >= device.size.height)
        value.fail("the safe area is out of range, expected insets that leave some of the window");
}

} // namespace

bool isDeviceKey(std::string_view key) { return readerOf(key) != nullptr; }

std::string_view textSizeWord(graphics::ContentSizeCategory textSize) { return wordFor(textSize, textSizes); }

void readDeviceKey(Device& device, std::string_view key, const JsonCursor& value, const std::filesystem::path& folder) {
    const ReadKey* const read = readerOf(key);
    if (!read) value.fail("unknown key \"" + std::string(key) + "\", expected a key of a device");
    (*read)(device, value, folder);
    checkPixels(device, value);
    checkInsets(device, value);
}

bool readDeviceKeys(Device& device, const JsonCursor& object, const std::filesystem::path& folder) {
    bool hasAny = false;
    for (const auto& [key, read] : deviceKeys) {
        if (!object.has(key)) continue;
        read(device, object.at(key), folder);
        hasAny = true;
    }
    // Lengths are held against each other only when all of them are known.
    const bool hasSize = object.has("size"), hasScale = object.has("scale"), hasInsets = object.has("safeArea");
    if (hasSize || hasScale) checkPixels(device, object.at(hasSize ? "size" : "scale"));
    if (hasSize || hasInsets) checkInsets(device, object.at(hasInsets ? "safeArea" : "size"));
    return hasAny;
}

Device readDevice(const JsonCursor& object, const std::filesystem::path& folder) {
    object.expectObject(wordsOf(deviceKeys));
    Device device;
    readDeviceKeys(device, object, folder);
    return device;
}

} // namespace proupsells::hostprogram

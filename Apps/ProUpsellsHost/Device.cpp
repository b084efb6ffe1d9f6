#include "Apps/ProUpsellsHost/Device.hpp"

#include <algorithm>
#include <type_traits>

#include <nlohmann/json.hpp>

#include "Apps/ProUpsellsHost/ThemeFile.hpp"
#include "Apps/ProUpsellsHost/Translations.hpp"
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

// As they are, without rounding.
Json writeSize(const geometry::Size& size) { return Json::array({size.width, size.height}); }
Json writeSafeArea(const geometry::PhysicalInsets& insets) {
    return Json::array({insets.top, insets.left, insets.bottom, insets.right});
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
    if (value.isObject()) return readInlineTranslations(value);
    const std::filesystem::path given = system::pathOf(value.text());
    const std::filesystem::path path = given.is_absolute() ? given : folder / given;
    std::error_code error;
    if (given.empty() || !std::filesystem::is_directory(path, error))
        value.fail("there is no folder \"" + value.text() + "\", expected one with <language>.lproj folders");
    return path;
}

Json writeStrings(const Device& device) { return device.strings.empty() ? Json::object() : translationsIn(device.strings); }

Theme readTheme(const JsonCursor& value, const std::filesystem::path& folder) {
    if (value.isNull()) return {};
    if (value.isObject()) return readTheme(value, folder, ThemePlace::insideAnotherFile);
    const std::filesystem::path given = system::pathOf(value.text());
    if (given.empty()) value.fail("the file name is empty, expected a theme's file");
    return readThemeFile(given.is_absolute() ? given : folder / given);
}

Json writeTheme(const Device& device) { return device.theme == Theme{} ? Json(nullptr) : toJson(device.theme); }

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

// How a key is read and written.
struct DeviceKey {
    void (*read)(Device&, const JsonCursor&, const Folder&);
    Json (*write)(const Device&);
    bool (*isSame)(const Device&, const Device&);
};

// Of a key that is a member of the device.
template <auto member, auto read, auto write>
constexpr DeviceKey keyOf() {
    return {[](Device& device, const JsonCursor& value, const Folder& folder) {
                if constexpr (std::is_invocable_v<decltype(read), const JsonCursor&, const Folder&>)
                    device.*member = read(value, folder);
                else
                    device.*member = read(value);
            },
            [](const Device& device) -> Json {
                if constexpr (std::is_invocable_v<decltype(write), const Device&>)
                    return write(device);
                else
                    return write(device.*member);
            },
            [](const Device& one, const Device& other) { return one.*member == other.*member; }};
}

// Of a key that is a word of a table.
template <auto member, const auto& table>
constexpr DeviceKey wordKeyOf() {
    constexpr auto read = [](const JsonCursor& value) { return value.oneOf(table); };
    constexpr auto write = [](const Device& device) -> Json { return wordFor(device.*member, table); };
    return keyOf<member, read, write>();
}

constexpr Word<DeviceKey> deviceKeys[] = {
    {"size", keyOf<&Device::size, readSize, writeSize>()},
    {"scale", keyOf<&Device::scale, readScale, [](double scale) -> Json { return scale; }>()},
    {"appearance", wordKeyOf<&Device::appearance, appearances>()},
    {"locale", keyOf<&Device::locale, readLocale, [](const std::string& locale) -> Json { return locale; }>()},
    {"layoutDirection", wordKeyOf<&Device::layoutDirection, directions>()},
    {"textSize", wordKeyOf<&Device::textSize, textSizes>()},
    {"reduceMotion", keyOf<&Device::reduceMotion, [](const JsonCursor& value) { return value.boolean(); },
                           [](bool reduces) -> Json { return reduces; }>()},
    {"safeArea", keyOf<&Device::safeArea, readSafeArea, writeSafeArea>()},
    {"strings", keyOf<&Device::strings, readStrings, writeStrings>()},
    {"fonts", wordKeyOf<&Device::fonts, fontChoices>()},
    {"theme", keyOf<&Device::theme, static_cast<Theme (*)(const JsonCursor&, const Folder&)>(readTheme), writeTheme>()},
};

const DeviceKey* deviceKey(std::string_view key) {
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

bool isDeviceKey(std::string_view key) { return deviceKey(key) != nullptr; }

std::string_view textSizeWord(graphics::ContentSizeCategory textSize) { return wordFor(textSize, textSizes); }

void readDeviceKey(Device& device, std::string_view key, const JsonCursor& value, const std::filesystem::path& folder) {
    const DeviceKey* const known = deviceKey(key);
    if (!known) value.fail("unknown key \"" + std::string(key) + "\", expected a key of a device");
    known->read(device, value, folder);
    checkPixels(device, value);
    checkInsets(device, value);
}

bool readDeviceKeys(Device& device, const JsonCursor& object, const std::filesystem::path& folder) {
    bool hasAny = false;
    for (const auto& [key, known] : deviceKeys) {
        if (!object.has(key)) continue;
        known.read(device, object.at(key), folder);
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

Json toJson(const Device& device) {
    Json result = Json::object();
    for (const auto& [word, key] : deviceKeys) result[std::string(word)] = key.write(device);
    return result;
}

Json changesBetween(const Device& before, const Device& after) {
    Json result = Json::object();
    for (const auto& [word, key] : deviceKeys)
        if (!key.isSame(before, after)) result[std::string(word)] = key.write(after);
    return result;
}

} // namespace proupsells::hostprogram

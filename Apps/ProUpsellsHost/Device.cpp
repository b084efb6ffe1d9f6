#include "Apps/ProUpsellsHost/Device.hpp"

#include <algorithm>
#include <array>

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
    const std::filesystem::path given = value.text();
    const std::filesystem::path path = given.is_absolute() ? given : folder / given;
    std::error_code error;
    if (given.empty() || !std::filesystem::is_directory(path, error))
        value.fail("there is no folder \"" + given.string() + "\", expected one with <language>.lproj folders");
    return path;
}

graphics::ContentSizeCategory readTextSize(const JsonCursor& value) {
    return static_cast<graphics::ContentSizeCategory>(value.oneOf(
        {"extraSmall", "small", "medium", "large", "extraLarge", "extraExtraLarge", "extraExtraExtraLarge", "accessibilityMedium",
         "accessibilityLarge", "accessibilityExtraLarge", "accessibilityExtraExtraLarge", "accessibilityExtraExtraExtraLarge"}));
}

constexpr std::array<std::string_view, 10> deviceKeys{"size",     "scale",        "appearance", "locale",  "layoutDirection",
                                                      "textSize", "reduceMotion", "safeArea",   "strings", "fonts"};

} // namespace

bool isDeviceKey(std::string_view key) { return std::find(deviceKeys.begin(), deviceKeys.end(), key) != deviceKeys.end(); }

void readDeviceKey(Device& device, std::string_view key, const JsonCursor& value, const std::filesystem::path& folder) {
    if (key == "size")
        device.size = readSize(value);
    else if (key == "scale")
        device.scale = value.number(0.25, 8, "pixels a point, from 0.25 to 8");
    else if (key == "appearance")
        device.appearance = value.oneOf({"light", "dark"}) == 1 ? graphics::ColorScheme::dark : graphics::ColorScheme::light;
    else if (key == "locale")
        device.locale = readLocale(value);
    else if (key == "layoutDirection")
        device.layoutDirection = static_cast<DirectionChoice>(value.oneOf({"auto", "ltr", "rtl"}));
    else if (key == "textSize")
        device.textSize = readTextSize(value);
    else if (key == "reduceMotion")
        device.reduceMotion = value.boolean();
    else if (key == "safeArea")
        device.safeArea = readSafeArea(value);
    else if (key == "strings")
        device.strings = readStrings(value, folder);
    else if (key == "fonts")
        device.fonts = static_cast<FontChoice>(value.oneOf({"bundled", "fixed"}));
    else
        value.fail("unknown key \"" + std::string(key) + "\", expected a key of a device");

    if (device.size.width * device.scale > maximumPixels || device.size.height * device.scale > maximumPixels)
        value.fail("the window is out of range, expected at most 32000 pixels a side");
    const auto& insets = device.safeArea;
    if ((key == "safeArea" || key == "size") &&
        (insets.left + insets.right >= device.size.width || insets.top + insets.bottom >= device.size.height))
        value.fail("the safe area is out of range, expected insets that leave some of the window");
}

Device readDevice(const JsonCursor& object, const std::filesystem::path& folder) {
    object.expectObject(
        {"size", "scale", "appearance", "locale", "layoutDirection", "textSize", "reduceMotion", "safeArea", "strings", "fonts"});
    Device device;
    // Insets are held against the size, whichever comes first in the file.
    for (const std::string_view key : deviceKeys)
        if (object.has(key)) readDeviceKey(device, key, object.at(key), folder);
    return device;
}

} // namespace proupsells::hostprogram

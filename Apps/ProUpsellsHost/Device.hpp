// The device that the host program plays: window, appearance, language.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "Apps/ProUpsellsHost/JsonCursor.hpp"
#include "Platform/Geometry/Geometry.hpp"
#include "Platform/Graphics/Color.hpp"
#include "Platform/Graphics/ContentSize.hpp"
#include "ProUpsells/Theme.hpp"

namespace proupsells::hostprogram {

enum class DirectionChoice { automatic, leftToRight, rightToLeft };
enum class FontChoice { bundled, fixed };

struct Device {
    geometry::Size size{375, 800}; // points
    double scale = 2;              // pixels a point
    graphics::ColorScheme appearance = graphics::ColorScheme::light;
    std::string locale = "en_US";
    DirectionChoice layoutDirection = DirectionChoice::automatic;
    graphics::ContentSizeCategory textSize = graphics::ContentSizeCategory::large;
    bool reduceMotion = false;
    geometry::PhysicalInsets safeArea;
    std::filesystem::path strings; // the folder of the host's translations; empty for none
    FontChoice fonts = FontChoice::bundled;
    Theme theme; // empty: the module's own look

    bool operator==(const Device&) const = default;
};

// Whether the key is one of a device's.
bool isDeviceKey(std::string_view key);
// As "textSize" is written.
std::string_view textSizeWord(graphics::ContentSizeCategory textSize);
// The device as an object that needs no other file: translations, and a theme with its files, stand in it. Throws InputError where
// one of them cannot be used.
Json toJson(const Device& device);
// The same of the keys that differ.
Json changesBetween(const Device& before, const Device& after);
// Reads one key of a device. Relative paths count from `folder`.
void readDeviceKey(Device& device, std::string_view key, const JsonCursor& value, const std::filesystem::path& folder);
// Reads those keys of the object that are a device's, in whatever order they stand. False where there are none.
bool readDeviceKeys(Device& device, const JsonCursor& object, const std::filesystem::path& folder);
// Reads an object of device keys.
Device readDevice(const JsonCursor& object, const std::filesystem::path& folder);

} // namespace proupsells::hostprogram

// Keys that change the device of a window while one looks at it.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "Apps/ProUpsellsHost/Device.hpp"

namespace proupsells::hostprogram {

// What the keys are for, for `--help`.
inline constexpr const char* previewKeysHelp =
    "Keys while watching: A light or dark, D direction, + and - text size, L language, S size; with Shift, L and S go back.";

// None of them means anything to a screen. Letters count as capital ones.
class PreviewKeys {
public:
    // `locales` are those that L goes through.
    explicit PreviewKeys(std::vector<std::string> locales) : m_locales(std::move(locales)) {}

    // The device after the key; absent where it means nothing, or changes nothing. `direction` is how the screen runs now.
    std::optional<Device> pressed(char32_t key, bool isShifted, const Device& device, geometry::LayoutDirection direction) const;

private:
    std::vector<std::string> m_locales;
};

// English, those that a folder of translations has, and the two that nobody speaks; `first` in front.
std::vector<std::string> previewLocales(const std::string& first, const std::filesystem::path& translations);

} // namespace proupsells::hostprogram

// Which screens are looked at, and how.
#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "Apps/ProUpsellsHost/Device.hpp"
#include "Apps/ProUpsellsHost/StartScreen.hpp"

namespace proupsells::hostprogram {

struct AuditMatrix {
    std::vector<StartScreen> screens;
    std::vector<std::string> locales;
    std::vector<geometry::Size> sizes;
    std::vector<graphics::ContentSizeCategory> textSizes; // smallest first
    std::vector<graphics::ColorScheme> appearances;
};

// All three screens in twelve text sizes, eight window sizes and both appearances; in English, in the languages of the folder, and
// in both pseudo-languages.
AuditMatrix defaultMatrix(const std::optional<std::filesystem::path>& strings);

// The default one, but for the keys that stand in the file: "screens", "locales", "sizes", "textSizes", "appearances". Throws
// InputError.
AuditMatrix readMatrix(const std::filesystem::path& file, const std::optional<std::filesystem::path>& strings);

// `matrix`, but for the keys of these that the object has; it may have others.
AuditMatrix withKeysOf(const JsonCursor& object, AuditMatrix matrix);

} // namespace proupsells::hostprogram

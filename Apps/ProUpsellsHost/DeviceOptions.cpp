#include "Apps/ProUpsellsHost/DeviceOptions.hpp"

#include <nlohmann/json.hpp>

#include "Platform/Foundation/DecimalText.hpp"
#include "Platform/System/PathText.hpp"

namespace proupsells::hostprogram {

namespace {

// The numbers between separators as a JSON array. Anything else stays a text, which the device's reader refuses.
Json numbersOr(const std::string& text, char separator) {
    Json numbers = Json::array();
    for (std::size_t start = 0;;) {
        const std::size_t end = std::min(text.find(separator, start), text.size());
        const auto reading = foundation::readDecimal(std::string_view(text).substr(start, end - start));
        if (!reading || reading->length != end - start) return text;
        numbers.push_back(reading->number);
        if (end == text.size()) return numbers;
        start = end + 1;
    }
}

Json text(const std::string& given) { return given; }
Json size(const std::string& given) { return numbersOr(given, 'x'); }
Json insets(const std::string& given) { return numbersOr(given, ','); }
Json number(const std::string& given) {
    const Json numbers = numbersOr(given, ' ');
    return numbers.is_array() ? numbers.front() : numbers;
}

Json flag(const std::string& given) { return given == "true"; }

struct DeviceOption {
    const char* name;
    const char* key;
    const char* help;
    Json (*read)(const std::string& given);
};

constexpr DeviceOption deviceOptions[] = {
    {"--size", "size", "The window in points, such as 375x800", size},
    {"--scale", "scale", "Pixels a point", number},
    {"--appearance", "appearance", "light or dark", text},
    {"--locale", "locale", "Language and region, such as de_AT", text},
    {"--layout-direction", "layoutDirection", "auto, ltr or rtl", text},
    {"--text-size", "textSize", "extraSmall ... accessibilityExtraExtraExtraLarge", text},
    {"--reduce-motion", "reduceMotion", "Less movement", flag},
    {"--safe-area", "safeArea", "Top, left, bottom, right in points, such as 0,0,34,0", insets},
    {"--strings", "strings", "A folder of <language>.lproj/Localizable.strings", text},
    {"--theme", "theme", "A file with colours, typefaces and pictures of a brand", text},
};

} // namespace

void DeviceOptions::addTo(CLI::App& command) {
    static_assert(std::size(deviceOptions) == count);
    for (std::size_t i = 0; i < count; ++i) {
        const auto& [name, key, help, read] = deviceOptions[i];
        if (read == flag)
            command.add_flag(name, m_values[i], help);
        else
            command.add_option(name, m_values[i], help);
    }
}

Device DeviceOptions::read() const {
    Json values = Json::object();
    for (std::size_t i = 0; i < count; ++i)
        if (!m_values[i].empty()) values[deviceOptions[i].key] = deviceOptions[i].read(m_values[i]);
    // Complaints point at /device, as they do in a scenario.
    const Json all{{"device", values}};
    return readDevice(JsonCursor{all, commandLinePlace}.at("device"), std::filesystem::current_path());
}

std::string DeviceOptions::value(std::string_view key) const {
    for (std::size_t i = 0; i < count; ++i)
        if (deviceOptions[i].key == key) return m_values[i];
    return {};
}

std::vector<std::string> DeviceOptions::given() const {
    std::vector<std::string> keys;
    for (std::size_t i = 0; i < count; ++i)
        if (!m_values[i].empty()) keys.push_back(deviceOptions[i].key);
    return keys;
}

Device brandedDevice(const std::optional<std::filesystem::path>& strings, const std::optional<std::filesystem::path>& theme) {
    Json keys = Json::object();
    if (strings) keys["strings"] = system::textOf(*strings);
    if (theme) keys["theme"] = system::textOf(*theme);
    return readDevice(JsonCursor{keys, commandLinePlace}, std::filesystem::current_path());
}

} // namespace proupsells::hostprogram

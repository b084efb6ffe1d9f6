#include "Apps/ProUpsellsHost/PreviewKeys.hpp"

#include <algorithm>
#include <iterator>

#include "Apps/ProUpsellsHost/Translations.hpp"
#include "Platform/System/PathText.hpp"

namespace proupsells::hostprogram {

namespace {

// A small phone, a phone, a tablet and a window on a desk.
constexpr geometry::Size sizes[] = {{320, 568}, {375, 800}, {768, 1024}, {960, 880}};

// The one after `current`, or before it, round and round; from anything else to the first one.
template <class List, class Value>
auto neighbour(const List& list, const Value& current, bool isBackwards) {
    const auto count = std::ptrdiff_t(std::size(list));
    const auto found = std::find(std::begin(list), std::end(list), current);
    if (found == std::end(list)) return *std::begin(list);
    const std::ptrdiff_t index = found - std::begin(list);
    return *(std::begin(list) + (index + (isBackwards ? count - 1 : 1)) % count);
}

} // namespace

std::optional<Device> PreviewKeys::pressed(char32_t key, bool isShifted, const Device& device,
                                           geometry::LayoutDirection direction) const {
    using graphics::ContentSizeCategory;
    Device changed = device;
    const int largest = int(ContentSizeCategory::accessibilityExtraExtraExtraLarge);
    const auto grow = [&](int step) {
        changed.textSize = ContentSizeCategory(std::clamp(int(device.textSize) + step, 0, largest));
    };
    switch (key) {
    case U'A':
        changed.appearance =
            device.appearance == graphics::ColorScheme::light ? graphics::ColorScheme::dark : graphics::ColorScheme::light;
        break;
    case U'D':
        changed.layoutDirection =
            direction == geometry::LayoutDirection::leftToRight ? DirectionChoice::rightToLeft : DirectionChoice::leftToRight;
        break;
    case U'+':
    case U'=': grow(1); break;
    case U'-': grow(-1); break;
    case U'L':
        changed.locale = neighbour(m_locales, device.locale, isShifted);
        // With the language again, whatever was chosen.
        changed.layoutDirection = DirectionChoice::automatic;
        break;
    case U'S': changed.size = neighbour(sizes, device.size, isShifted); break;
    default: return std::nullopt;
    }
    const bool isSame = changed.appearance == device.appearance && changed.layoutDirection == device.layoutDirection &&
                        changed.textSize == device.textSize && changed.locale == device.locale && changed.size == device.size;
    return isSame ? std::nullopt : std::optional(changed);
}

std::vector<std::string> previewLocales(const std::string& first, const std::filesystem::path& translations) {
    std::vector<std::string> locales{first};
    const auto add = [&](const std::string& locale) {
        if (std::find(locales.begin(), locales.end(), locale) == locales.end()) locales.push_back(locale);
    };
    add("en_US");
    if (!translations.empty())
        for (const std::filesystem::path& file : translationFilesIn(translations)) add(system::textOf(file.parent_path().stem()));
    add("en_XA");
    add("ar_XB");
    return locales;
}

} // namespace proupsells::hostprogram

#include "Platform/VelaUIKit/VelaColors.hpp"

#include <string>

#include "Platform/Commons/FatalError.hpp"

namespace proupsells::velauikit {

namespace {

constexpr Color pageBackground{"dynamicColor.2", velaBackground.light, velaBackground.dark};
constexpr Color titleText{"dynamicColor.9", velaLabel.light, velaLabel.dark};
constexpr Color subtitleText{"dynamicColor.10", velaSecondaryLabel.light, velaSecondaryLabel.dark};
constexpr Color callToActionText{"dynamicColor.16", velaLightText.light, velaLightText.dark};
constexpr Color callToActionBackground{"dynamicColor.22", marwickContentAccent.light, marwickContentAccent.dark};

} // namespace

const Color& dynamicColor(int number) {
    switch (number) {
    case 2: return pageBackground;
    case 9: return titleText;
    case 10: return subtitleText;
    case 16: return callToActionText;
    case 22: return callToActionBackground;
    default: commons::fatalError("There is no dynamic colour number " + std::to_string(number));
    }
}

} // namespace proupsells::velauikit

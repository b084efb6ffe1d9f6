#include "Platform/VelaUIKit/DesignColors.hpp"

#include <algorithm>

#include "Platform/LumoKit/RoleColors.hpp"
#include "Platform/UIKit/Controllers/FocusRing.hpp"
#include "Platform/UIKit/Controls/UIPageControl.hpp"
#include "Platform/VelaUIKit/VelaColors.hpp"

namespace proupsells::velauikit {

using namespace lumokit;

std::span<const DesignColor> designColors() {
    static const DesignColor colors[] = {
        {velaBackground, "the page"},
        {velaSecondaryAppBackground, "the cards of the plans"},
        {velaLabel, "the prices; icons of bars"},
        {velaSecondaryLabel, "what stands under a plan's name; small print"},
        {velaLightText, "text on the accent"},
        {velaBorder, "an empty radio circle"},
        {marwickContentAccent, "the chosen plan, its badge, the main button"},
        {ContentColor::primary, "headings, names of plans, icons; on the header pictures its dark value"},
        {ContentColor::secondary, "what explains; headings of feature categories"},
        {ContentColor::inverse, "text on BackgroundColor.level4", velaLightText.name},
        {BackgroundColor::level4, "the heading of the Pro column", marwickContentAccent.name},
        {BorderColor::secondary, "lines between feature categories"},
        {DecorativeColor::tealBackground, "capsules of free trials and limits"},
        {DecorativeColor::tealProminent, "text on DecorativeColor.tealBackground"},
        {ValidationColor::neutralSubdued, "the heading of the free column"},
        {ValidationColor::neutralImportant, "text on ValidationColor.neutralSubdued"},
        {platformPrimary, "names of features"},
        {dynamicColor(2), "the store page", velaBackground.name},
        {dynamicColor(9), "titles of the store page", velaLabel.name},
        {dynamicColor(10), "subtitles of the store page", velaSecondaryLabel.name},
        {dynamicColor(16), "text and arrow of the store page's button", velaLightText.name},
        {dynamicColor(22), "the store page's button", marwickContentAccent.name},
        {uikit::focusRingColor, "the ring around the control that keys operate", velaLabel.name},
        {uikit::focusRingRimColor, "the rims of that ring", velaBackground.name},
        {uikit::UIPageControl::dotColor, "the dots on the header pictures, which show its dark value"},
    };
    return colors;
}

const DesignColor* findDesignColor(std::string_view name) {
    const auto colors = designColors();
    const auto found =
        std::find_if(colors.begin(), colors.end(), [&](const DesignColor& entry) { return entry.color.name == name; });
    return found == colors.end() ? nullptr : &*found;
}

std::span<const ColorPair> colorPairs() {
    using enum ContrastNeed;
    static const Color &page = velaBackground, &card = velaSecondaryAppBackground, &storePage = dynamicColor(2);
    static const ColorPair pairs[] = {
        {ContentColor::primary, page},
        {ContentColor::primary, card},
        {ContentColor::secondary, page},
        {velaLabel, page},
        {velaLabel, card},
        {velaSecondaryLabel, page},
        {velaSecondaryLabel, card},
        {platformPrimary, page},
        {velaLightText, marwickContentAccent},
        {ContentColor::inverse, BackgroundColor::level4},
        {ValidationColor::neutralImportant, ValidationColor::neutralSubdued},
        {DecorativeColor::tealProminent, DecorativeColor::tealBackground},
        {dynamicColor(9), storePage},
        {dynamicColor(10), storePage},
        {dynamicColor(16), dynamicColor(22)},
        // The chosen plan has nothing but its ring and its border to tell it from the others, an empty circle nothing but its own.
        {marwickContentAccent, page, shape},
        {marwickContentAccent, card, shape},
        {velaBorder, page, shape},
        {velaBorder, card, shape},
        {dynamicColor(22), storePage, shape},
        {uikit::focusRingColor, page, shape},
        {uikit::focusRingColor, card, shape},
        {uikit::focusRingColor, storePage, shape},
        {uikit::focusRingColor, uikit::focusRingRimColor, shape},
    };
    return pairs;
}

} // namespace proupsells::velauikit

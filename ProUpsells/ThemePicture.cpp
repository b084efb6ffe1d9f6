#include "ProUpsells/ThemePicture.hpp"

#include <algorithm>

#include "Platform/LumoKit/ResourceBundle.hpp"
#include "ProUpsells/ResourceBundleClass.hpp"

namespace proupsells {

std::span<const ThemePicture> ThemePicture::all() {
    static constexpr ThemePicture pictures[] = {
        {"Button_Arrow_Right", ResourceBundleClass::bundle},
        {"CaretRight", ResourceBundleClass::bundle},
        {"CloseStorePageButton", ResourceBundleClass::bundle},
        {"Fonts0_StorePageShelfImage", ResourceBundleClass::bundle},
        {"Graphics0_StorePageShelfImage", ResourceBundleClass::bundle},
        {"iCloud_StorePageShelfImage", ResourceBundleClass::bundle},
        {"Layout collections_", ResourceBundleClass::bundle},
        {"paywallHeaderA", ResourceBundleClass::bundle},
        {"paywallHeaderB", ResourceBundleClass::bundle},
        {"paywallHeaderC", ResourceBundleClass::bundle},
        {"paywallHeaderD", ResourceBundleClass::bundle},
        {"PDFs0_StorePageShelfImage", ResourceBundleClass::bundle},
        {"Shapes_StorePageShelfImage", ResourceBundleClass::bundle},
        {"SubscriptionPromotionHeaderImage", ResourceBundleClass::bundle},
        {"TermsGradient", ResourceBundleClass::bundle},
        {"UpsellValuePropositionCheckmark", ResourceBundleClass::bundle},
        {"videoSectionImages_StorePageShelfImage", ResourceBundleClass::bundle},
        {"chevron.right", lumokit::resourceBundle},
        {"diamond24", lumokit::resourceBundle},
        {"inAppMessageCloseIcon", lumokit::resourceBundle},
        {"marwickFolioWithProBadge", lumokit::resourceBundle},
        {"xmark", lumokit::resourceBundle},
    };
    return pictures;
}

const ThemePicture* ThemePicture::find(std::string_view name) {
    const auto pictures = all();
    const auto found =
        std::find_if(pictures.begin(), pictures.end(), [&](const ThemePicture& picture) { return picture.name == name; });
    return found == pictures.end() ? nullptr : &*found;
}

} // namespace proupsells

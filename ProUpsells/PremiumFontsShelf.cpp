#include "ProUpsells/PremiumFontsShelf.hpp"

#include "Platform/Foundation/Bundle.hpp"
#include "ProUpsells/ShelfStrips.hpp"
#include "ProUpsells/VerticallyStackedContainerViewController.hpp"

namespace proupsells {

namespace {

using ScrollDirection = StorePageShelfViewController::ScrollDirection;

} // namespace

std::string PremiumFontsShelf::footerTitle() const { return foundation::localizedString("Create with premium fonts and graphics"); }

std::string PremiumFontsShelf::footerSubTitle() const {
    return foundation::localizedString("Unlimited access to 60k+ exclusive graphics and 500+ curated fonts.");
}

std::shared_ptr<uikit::UIViewController> PremiumFontsShelf::makeViewController() const {
    constexpr double rowSpacing = 16;
    const auto rows = std::make_shared<VerticallyStackedContainerViewController>(
        repeatingStrip(*this, 0, ImageResource::fonts0StorePageShelfImage(), ScrollDirection::left),
        repeatingStrip(*this, 1, ImageResource::graphics0StorePageShelfImage(), ScrollDirection::right));
    rows->setContentSpacing(rowSpacing);
    return withTexts(rows, *this);
}

} // namespace proupsells

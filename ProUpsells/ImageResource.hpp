// The module's images, by name.
#pragma once

#include <algorithm>
#include <functional>
#include <string>

#include "Platform/Foundation/Bundle.hpp"
#include "Platform/Graphics/Image.hpp"
#include "ProUpsells/ResourceBundleClass.hpp"

namespace proupsells {

// A text that can be a template's argument.
template <std::size_t length>
struct AssetName {
    consteval AssetName(const char (&text)[length]) { std::copy_n(text, length, characters); }
    char characters[length]{};
};

struct ImageResource {
    std::string name; // as the asset is stored, odd spelling included
    const foundation::Bundle* bundle = nullptr;

    bool operator==(const ImageResource&) const = default;

    // Every image of the module.
    static const ImageResource& buttonArrowRight() { return entry<"Button_Arrow_Right">(); }
    static const ImageResource& caretRight() { return entry<"CaretRight">(); }
    static const ImageResource& closeStorePageButton() { return entry<"CloseStorePageButton">(); }
    static const ImageResource& fonts0StorePageShelfImage() { return entry<"Fonts0_StorePageShelfImage">(); }
    static const ImageResource& graphics0StorePageShelfImage() { return entry<"Graphics0_StorePageShelfImage">(); }
    static const ImageResource& layoutCollections() { return entry<"Layout collections_">(); }
    static const ImageResource& pdfs0StorePageShelfImage() { return entry<"PDFs0_StorePageShelfImage">(); }
    static const ImageResource& shapesStorePageShelfImage() { return entry<"Shapes_StorePageShelfImage">(); }
    static const ImageResource& subscriptionPromotionHeaderImage() { return entry<"SubscriptionPromotionHeaderImage">(); }
    static const ImageResource& termsGradient() { return entry<"TermsGradient">(); }
    static const ImageResource& upsellValuePropositionCheckmark() { return entry<"UpsellValuePropositionCheckmark">(); }
    static const ImageResource& iCloudStorePageShelfImage() { return entry<"iCloud_StorePageShelfImage">(); }
    static const ImageResource& paywallHeaderA() { return entry<"paywallHeaderA">(); }
    static const ImageResource& paywallHeaderB() { return entry<"paywallHeaderB">(); }
    static const ImageResource& paywallHeaderC() { return entry<"paywallHeaderC">(); }
    static const ImageResource& paywallHeaderD() { return entry<"paywallHeaderD">(); }
    static const ImageResource& videoSectionImagesStorePageShelfImage() {
        return entry<"videoSectionImages_StorePageShelfImage">();
    }

private:
    // Made when it is first asked for, on whatever thread, and shared from then on.
    template <AssetName name>
    static const ImageResource& entry() {
        static const ImageResource resource{name.characters, &ResourceBundleClass::bundle()};
        return resource;
    }
};

// The image itself. A missing asset stops the program.
graphics::ImageRef image(const ImageResource& resource, graphics::RenderingMode renderingMode = graphics::RenderingMode::original);

} // namespace proupsells

template <>
struct std::hash<proupsells::ImageResource> {
    std::size_t operator()(const proupsells::ImageResource& resource) const noexcept {
        return std::hash<std::string>{}(resource.name) * 31 + std::hash<const void*>{}(resource.bundle);
    }
};

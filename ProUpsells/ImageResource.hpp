// The module's images, by name.
#pragma once

#include <functional>
#include <string>

#include "Platform/Foundation/Bundle.hpp"
#include "Platform/Graphics/Image.hpp"

namespace proupsells {

struct ImageResource {
    std::string name; // as the asset is stored, odd spelling included
    const foundation::Bundle* bundle = nullptr;

    bool operator==(const ImageResource&) const = default;

    static const ImageResource& buttonArrowRight();
    static const ImageResource& caretRight();
    static const ImageResource& closeStorePageButton();
    static const ImageResource& fonts0StorePageShelfImage();
    static const ImageResource& graphics0StorePageShelfImage();
    static const ImageResource& layoutCollections();
    static const ImageResource& pdfs0StorePageShelfImage();
    static const ImageResource& shapesStorePageShelfImage();
    static const ImageResource& subscriptionPromotionHeaderImage();
    static const ImageResource& termsGradient();
    static const ImageResource& upsellValuePropositionCheckmark();
    static const ImageResource& iCloudStorePageShelfImage();
    static const ImageResource& paywallHeaderA();
    static const ImageResource& paywallHeaderB();
    static const ImageResource& paywallHeaderC();
    static const ImageResource& paywallHeaderD();
    static const ImageResource& videoSectionImagesStorePageShelfImage();
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

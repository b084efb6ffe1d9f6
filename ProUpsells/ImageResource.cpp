#include "ProUpsells/ImageResource.hpp"

#include "Platform/Host/NamedImage.hpp"
#include "ProUpsells/ResourceBundleClass.hpp"

namespace proupsells {

namespace {

ImageResource inModule(const char* name) { return {name, &ResourceBundleClass::bundle()}; }

} // namespace

const ImageResource& ImageResource::buttonArrowRight() {
    static const ImageResource resource = inModule("Button_Arrow_Right");
    return resource;
}

const ImageResource& ImageResource::caretRight() {
    static const ImageResource resource = inModule("CaretRight");
    return resource;
}

const ImageResource& ImageResource::closeStorePageButton() {
    static const ImageResource resource = inModule("CloseStorePageButton");
    return resource;
}

const ImageResource& ImageResource::fonts0StorePageShelfImage() {
    static const ImageResource resource = inModule("Fonts0_StorePageShelfImage");
    return resource;
}

const ImageResource& ImageResource::graphics0StorePageShelfImage() {
    static const ImageResource resource = inModule("Graphics0_StorePageShelfImage");
    return resource;
}

const ImageResource& ImageResource::layoutCollections() {
    static const ImageResource resource = inModule("Layout collections_");
    return resource;
}

const ImageResource& ImageResource::pdfs0StorePageShelfImage() {
    static const ImageResource resource = inModule("PDFs0_StorePageShelfImage");
    return resource;
}

const ImageResource& ImageResource::shapesStorePageShelfImage() {
    static const ImageResource resource = inModule("Shapes_StorePageShelfImage");
    return resource;
}

const ImageResource& ImageResource::subscriptionPromotionHeaderImage() {
    static const ImageResource resource = inModule("SubscriptionPromotionHeaderImage");
    return resource;
}

const ImageResource& ImageResource::termsGradient() {
    static const ImageResource resource = inModule("TermsGradient");
    return resource;
}

const ImageResource& ImageResource::upsellValuePropositionCheckmark() {
    static const ImageResource resource = inModule("UpsellValuePropositionCheckmark");
    return resource;
}

const ImageResource& ImageResource::iCloudStorePageShelfImage() {
    static const ImageResource resource = inModule("iCloud_StorePageShelfImage");
    return resource;
}

const ImageResource& ImageResource::paywallHeaderA() {
    static const ImageResource resource = inModule("paywallHeaderA");
    return resource;
}

const ImageResource& ImageResource::paywallHeaderB() {
    static const ImageResource resource = inModule("paywallHeaderB");
    return resource;
}

const ImageResource& ImageResource::paywallHeaderC() {
    static const ImageResource resource = inModule("paywallHeaderC");
    return resource;
}

const ImageResource& ImageResource::paywallHeaderD() {
    static const ImageResource resource = inModule("paywallHeaderD");
    return resource;
}

const ImageResource& ImageResource::videoSectionImagesStorePageShelfImage() {
    static const ImageResource resource = inModule("videoSectionImages_StorePageShelfImage");
    return resource;
}

graphics::ImageRef image(const ImageResource& resource, graphics::RenderingMode renderingMode) {
    return host::namedImage(resource.name, *resource.bundle, renderingMode);
}

} // namespace proupsells

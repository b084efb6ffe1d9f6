#include "ProUpsells/ImageResource.hpp"

#include <gmock/gmock.h>

#include "Backends/Headless/TestBed.hpp"
#include "ProUpsells/ColorResource.hpp"
#include "ProUpsells/ResourceBundleClass.hpp"

namespace proupsells::tests {
namespace {

TEST(ImageResource, IsEqualByNameAndBundle) {
    const ImageResource one{"a", &ResourceBundleClass::bundle()};
    const ImageResource same{"a", &ResourceBundleClass::bundle()};

    EXPECT_EQ(one, same);
    EXPECT_EQ(std::hash<ImageResource>{}(one), std::hash<ImageResource>{}(same));
    EXPECT_NE(one, (ImageResource{"b", &ResourceBundleClass::bundle()}));
    EXPECT_NE(one, (ImageResource{"a", &foundation::Bundle::main()}));
}

TEST(ColorResource, IsEqualByNameAndBundle) {
    const ColorResource one{"a", &ResourceBundleClass::bundle()};
    const ColorResource same{"a", &ResourceBundleClass::bundle()};

    EXPECT_EQ(one, same);
    EXPECT_EQ(std::hash<ColorResource>{}(one), std::hash<ColorResource>{}(same));
    EXPECT_NE(one, (ColorResource{"b", &ResourceBundleClass::bundle()}));
}

TEST(ImageResource, StandsInTheOneBundle) {
    EXPECT_EQ(&ResourceBundleClass::bundle(), &ResourceBundleClass::bundle());
    EXPECT_EQ(ImageResource::paywallHeaderA().bundle, &ResourceBundleClass::bundle());
    EXPECT_EQ(&ImageResource::termsGradient(), &ImageResource::termsGradient());
}

TEST(ImageResource, SpellsItsNamesAsTheAssetsAreStored) {
    EXPECT_EQ(ImageResource::buttonArrowRight().name, "Button_Arrow_Right");
    EXPECT_EQ(ImageResource::layoutCollections().name, "Layout collections_");
    EXPECT_EQ(ImageResource::shapesStorePageShelfImage().name, "Shapes_StorePageShelfImage");
    EXPECT_EQ(ImageResource::iCloudStorePageShelfImage().name, "iCloud_StorePageShelfImage");
    EXPECT_EQ(ImageResource::fonts0StorePageShelfImage().name, "Fonts0_StorePageShelfImage");
    EXPECT_EQ(ImageResource::pdfs0StorePageShelfImage().name, "PDFs0_StorePageShelfImage");
    EXPECT_EQ(ImageResource::videoSectionImagesStorePageShelfImage().name, "videoSectionImages_StorePageShelfImage");
}

TEST(ImageResource, HasAnAssetForEachEntryOfTheCatalogue) {
    headless::TestBed bed;

    for (const ImageResource& resource :
         {ImageResource::buttonArrowRight(), ImageResource::caretRight(), ImageResource::closeStorePageButton(),
          ImageResource::fonts0StorePageShelfImage(), ImageResource::graphics0StorePageShelfImage(),
          ImageResource::layoutCollections(), ImageResource::pdfs0StorePageShelfImage(), ImageResource::shapesStorePageShelfImage(),
          ImageResource::subscriptionPromotionHeaderImage(), ImageResource::termsGradient(),
          ImageResource::upsellValuePropositionCheckmark(), ImageResource::iCloudStorePageShelfImage(),
          ImageResource::paywallHeaderA(), ImageResource::paywallHeaderB(), ImageResource::paywallHeaderC(),
          ImageResource::paywallHeaderD(), ImageResource::videoSectionImagesStorePageShelfImage()}) {
        const graphics::ImageRef picture = image(resource);
        EXPECT_EQ(picture->name, resource.name);
        EXPECT_GT(picture->size.width * picture->size.height, 0) << resource.name;
        EXPECT_EQ(picture, image(resource)) << resource.name;
    }
}

TEST(ImageResourceDeathTest, StopsTheProgramWhereThereIsNoSuchAsset) {
    headless::TestBed bed;

    EXPECT_DEATH((void)image(ImageResource{"NotInTheCatalogue", &ResourceBundleClass::bundle()}),
                 "There is no image \"NotInTheCatalogue\"");
}

} // namespace
} // namespace proupsells::tests

// On which devices the screens are judged and pictured.
#include <gmock/gmock.h>

#include "Apps/ProUpsellsHost/AuditMatrix.hpp"
#include "Apps/ProUpsellsHost/GalleryMatrix.hpp"
#include "Tests/Support/PrintGeometry.hpp"
#include "Tests/Support/TemporaryFolder.hpp"

namespace proupsells::hostprogram {

using geometry::Size;
using graphics::ColorScheme;
using graphics::ContentSizeCategory;
using ::testing::ElementsAre;

namespace {

class Matrix : public ::testing::Test {
protected:
    std::filesystem::path file(const char* text) { return folder.write("matrix.json", std::string_view(text)); }
    // Translations into these languages.
    std::filesystem::path translations(const std::vector<std::string>& languages) {
        for (const std::string& language : languages)
            folder.write(language + ".lproj/Localizable.strings", std::string_view("\"Close\" = \"Zu\";\n"));
        return folder.path();
    }

    tests::TemporaryFolder folder;
};

} // namespace

TEST_F(Matrix, OfAnAuditHasEveryScreenTextSizeAndAppearance) {
    const AuditMatrix matrix = defaultMatrix(std::nullopt);

    EXPECT_THAT(matrix.screens, ElementsAre(StartScreen::paywall, StartScreen::comparison, StartScreen::store));
    EXPECT_THAT(matrix.appearances, ElementsAre(ColorScheme::light, ColorScheme::dark));
    ASSERT_EQ(matrix.textSizes.size(), 12u);
    EXPECT_EQ(matrix.textSizes.front(), ContentSizeCategory::extraSmall);
    EXPECT_EQ(matrix.textSizes.back(), ContentSizeCategory::accessibilityExtraExtraExtraLarge);
    for (std::size_t i = 1; i < matrix.textSizes.size(); ++i) EXPECT_GT(matrix.textSizes[i], matrix.textSizes[i - 1]);
}

// From a small telephone to a desk, upright and on the side.
TEST_F(Matrix, OfAnAuditHasTheSizesOfRealScreens) {
    EXPECT_THAT(defaultMatrix(std::nullopt).sizes, ElementsAre(Size{320, 568}, Size{375, 667}, Size{375, 812}, Size{430, 932},
                                                               Size{844, 390}, Size{768, 1024}, Size{1024, 768}, Size{1440, 900}));
}

TEST_F(Matrix, OfAnAuditHasEnglishTheTranslationsAndBothPseudoLanguages) {
    EXPECT_THAT(defaultMatrix(std::nullopt).locales, ElementsAre("en", "en_XA", "ar_XB"));
    EXPECT_THAT(defaultMatrix(translations({"de", "en", "fr"})).locales, ElementsAre("en", "de", "fr", "en_XA", "ar_XB"));
}

TEST_F(Matrix, OfAFileReplacesWhatTheFileHas) {
    const AuditMatrix whole = defaultMatrix(std::nullopt);

    const AuditMatrix matrix =
        readMatrix(file(R"({"screens": ["store"], "locales": ["de_AT", "fr"], "sizes": [[100, 200]], "textSizes": ["small"],
                 "appearances": ["dark"]})"),
                   std::nullopt);
    EXPECT_THAT(matrix.screens, ElementsAre(StartScreen::store));
    EXPECT_THAT(matrix.locales, ElementsAre("de_AT", "fr"));
    EXPECT_THAT(matrix.sizes, ElementsAre(Size{100, 200}));
    EXPECT_THAT(matrix.textSizes, ElementsAre(ContentSizeCategory::small));
    EXPECT_THAT(matrix.appearances, ElementsAre(ColorScheme::dark));

    const AuditMatrix same = readMatrix(file("{}"), std::nullopt);
    EXPECT_EQ(same.screens, whole.screens);
    EXPECT_EQ(same.locales, whole.locales);
    EXPECT_EQ(same.sizes, whole.sizes);
    EXPECT_EQ(same.textSizes, whole.textSizes);
    EXPECT_EQ(same.appearances, whole.appearances);
}

TEST_F(Matrix, OfAGalleryHasThreeSizesThreeTextSizesAndBothAppearances) {
    const GalleryMatrix matrix = defaultGalleryMatrix(std::nullopt);

    EXPECT_EQ(matrix.scale, 2);
    EXPECT_THAT(matrix.configurations.sizes, ElementsAre(Size{320, 568}, Size{375, 812}, Size{768, 1024}));
    EXPECT_THAT(matrix.configurations.textSizes, ElementsAre(ContentSizeCategory::extraSmall, ContentSizeCategory::large,
                                                             ContentSizeCategory::accessibilityExtraExtraExtraLarge));
    EXPECT_THAT(matrix.configurations.appearances, ElementsAre(ColorScheme::light, ColorScheme::dark));
    EXPECT_EQ(matrix.configurations.screens.size(), 3u);
}

TEST_F(Matrix, OfAGalleryHasTheTranslationsOrElseOneFromTheRight) {
    EXPECT_THAT(defaultGalleryMatrix(std::nullopt).configurations.locales, ElementsAre("en", "ar_XB"));
    EXPECT_THAT(defaultGalleryMatrix(translations({"de", "fr"})).configurations.locales, ElementsAre("en", "de", "fr"));
}

TEST_F(Matrix, OfAGalleryPicturesNothingTwice) {
    const GalleryMatrix matrix = readGalleryMatrix(
        file(R"({"screens": ["store", "paywall", "store"], "locales": ["fr", "de", "fr"], "sizes": [[9, 8], [8, 9], [9, 8]],
                 "textSizes": ["small", "large", "small"], "appearances": ["dark", "light", "dark"], "scale": 3})"),
        std::nullopt);

    EXPECT_EQ(matrix.scale, 3);
    EXPECT_THAT(matrix.configurations.screens, ElementsAre(StartScreen::store, StartScreen::paywall));
    EXPECT_THAT(matrix.configurations.locales, ElementsAre("fr", "de"));
    EXPECT_THAT(matrix.configurations.sizes, ElementsAre(Size{9, 8}, Size{8, 9}));
    EXPECT_THAT(matrix.configurations.textSizes, ElementsAre(ContentSizeCategory::small, ContentSizeCategory::large));
    EXPECT_THAT(matrix.configurations.appearances, ElementsAre(ColorScheme::dark, ColorScheme::light));
}

} // namespace proupsells::hostprogram

// The fade at the paywall's end: what stands in it is read, or is not shown.
#include <gtest/gtest.h>

#include "Backends/Icu/IcuLocaleServices.hpp"
#include "Backends/Raster/RasterImageDecoder.hpp"
#include "Backends/Raster/RasterTextShaper.hpp"
#include "Platform/Accessibility/Search.hpp"
#include "Platform/Graphics/Contrast.hpp"
#include "Platform/Host/Services.hpp"
#include "Platform/LumoKit/RoleColors.hpp"
#include "Platform/RunLoop/MainRunLoop.hpp"
#include "Platform/UIKit/Controllers/UIWindow.hpp"
#include "ProUpsells/ImageResource.hpp"
#include "ProUpsells/VelaProUpsellViewController.hpp"
#include "Tests/ProUpsells/Offers.hpp"
#include "Tests/Raster/Canvas.hpp"

using namespace proupsells;

using geometry::Rect;
using geometry::Size;

namespace {

constexpr double readable = 4.5;
constexpr graphics::RGBA page = tests::white;

class Fade : public testing::Test {
protected:
    // The best contrast that a row of pixels has with the page.
    static double contrastOfRow(const rasterbackend::Picture& picture, int y, int left, int right) {
        double best = 1;
        for (int x = left; x < right; ++x)
            best = std::max(best, graphics::contrast(page, graphics::rgb(tests::colorAt(picture, x, y))));
        return best;
    }

    runloop::MainRunLoop loop{std::make_shared<runloop::VirtualClock>()};
    host::Installation services{host::Services{.textShaper = std::make_shared<rasterbackend::RasterTextShaper>(),
                                               .imageDecoder = std::make_shared<rasterbackend::RasterImageDecoder>(),
                                               .localeServices = std::make_shared<icubackend::IcuLocaleServices>()}};
};

} // namespace

// A line of small print is 6.5 points high without its ascenders: nobody reads what is faint in less than that.
TEST_F(Fade, LetsNoLineBeReadThatIsFaint) {
    const graphics::ImageRef fade = image(ImageResource::termsGradient());
    constexpr Size size{375, 32};
    constexpr double scale = 4, leastLetters = 6.5;
    tests::Canvas canvas(size, scale);
    canvas.context.fillRectangle({}, Rect{{}, size}, lumokit::ContentColor::secondary.light);
    canvas.context.image({}, Rect{{}, size}, fade);
    const rasterbackend::Picture picture = canvas.image();
    int faintRows = 0;
    for (int y = 0; y < picture.height(); ++y) {
        const double contrast = contrastOfRow(picture, y, 0, 1);
        faintRows += contrast < readable && contrast > 1.1;
    }

    EXPECT_GT(faintRows, 0) << "the page ends in an edge";
    EXPECT_LT(faintRows / scale, leastLetters);
    EXPECT_EQ(tests::colorAt(picture, 0, picture.height() - 1), 0xFFFFFFu);
}

TEST_F(Fade, LeavesThePaymentTextReadableOnASmallTelephone) {
    constexpr Size telephone{375, 667};
    constexpr double scale = 2;
    const auto window = uikit::UIWindow::create(telephone, {});
    window->setRootViewController(std::make_shared<uikit::UIViewController>());
    const auto entry = VelaProUpsellViewController::create(
        {tests::yearly("$99.99", {.introductoryPeriodLength = "1 week"}), tests::monthly()},
        VelaProUpsellViewController::Variant::comparisonPaywall, "Test", Entitlement::velaPRO, true);
    entry->setAnnualSubscriptionPriceForComparisonWithPromotionalPrice("$119.99");
    window->rootViewController()->present(entry, false);
    loop.settle();
    graphics::DisplayList list;
    window->paint(list);
    rasterbackend::RasterSurface surface;
    surface.present(list, telephone, scale);
    const rasterbackend::Picture picture = surface.picture();
    const accessibility::SemanticNode tree = window->semanticTree();
    const accessibility::SemanticNode text = *accessibility::findByIdentifier(tree, "disclaimer");
    ASSERT_EQ(text.text->lineCount, 2);

    for (int line = 0; line < 2; ++line) {
        const double height = text.frame.height() / 2, middle = text.frame.minY() + (line + 0.5) * height;
        double best = 1;
        for (int y = int((middle - height / 4) * scale); y < int((middle + height / 4) * scale); ++y)
            best = std::max(best, contrastOfRow(picture, y, int(text.frame.minX() * scale), int(text.frame.maxX() * scale)));
        EXPECT_GE(best, readable) << "line " << line;
    }
}

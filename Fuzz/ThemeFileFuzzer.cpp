// Any bytes as a theme in a file: one or more lines say what is wrong with it, or the paywall is shown and painted in it.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "Apps/ProUpsellsHost/ThemeFile.hpp"
#include "Backends/Headless/FakeClipDecoder.hpp"
#include "Backends/Headless/TestBed.hpp"
#include "Backends/Raster/PngFile.hpp"
#include "Backends/Raster/RasterImageDecoder.hpp"
#include "Backends/Raster/RasterSurface.hpp"
#include "Backends/Raster/RasterTextShaper.hpp"
#include "Fuzz/InputFile.hpp"
#include "Fuzz/Require.hpp"
#include "Platform/UIKit/Controllers/UIWindow.hpp"
#include "ProUpsells/VelaProUpsellViewController.hpp"
#include "Tests/ProUpsells/Offers.hpp"

using namespace proupsells;
using fuzz::require;

namespace {

constexpr geometry::Size size{320, 568};

host::Services services() {
    host::Services services;
    services.textShaper = std::make_shared<rasterbackend::RasterTextShaper>();
    services.imageDecoder = std::make_shared<rasterbackend::RasterImageDecoder>();
    services.clipDecoder = std::make_shared<headless::FakeClipDecoder>();
    return services;
}

// A paywall that stays open from one theme to the next.
class Shop {
public:
    Shop() : m_bed(services()), m_window(uikit::UIWindow::create(size)) {
        m_window->setRootViewController(std::make_shared<uikit::UIViewController>());
        m_entry = VelaProUpsellViewController::create(tests::twoPlans(), VelaProUpsellViewController::Variant::comparisonPaywall,
                                                      Referrer{"Fuzz"}, Entitlement::velaPRO, false);
        m_window->rootViewController()->present(m_entry, false);
        m_bed.settle();
        m_unthemed = painted();
    }

    // In the light appearance and in the dark one, and as before without it.
    void show(const Theme& theme) {
        require(setTheme(theme));
        setAppearance(graphics::ColorScheme::dark);
        painted();
        setAppearance(graphics::ColorScheme::light);
        painted();
        require(setTheme({}));
        m_bed.settle();
        require(isSame(painted(), m_unthemed));
        m_bed.takeLogRecords();
    }

private:
    static bool isSame(const rasterbackend::Picture& one, const rasterbackend::Picture& other) {
        for (int y = 0; y < one.height(); ++y)
            if (!std::equal(one.row(y), one.row(y) + one.width(), other.row(y))) return false;
        return one.width() == other.width() && one.height() == other.height();
    }

    void setAppearance(graphics::ColorScheme scheme) {
        uikit::UITraitCollection traits = m_window->traits();
        traits.userInterfaceStyle = scheme;
        m_window->setTraits(traits);
        m_bed.settle();
    }
    rasterbackend::Picture painted() {
        graphics::DisplayList list;
        m_window->paint(list);
        rasterbackend::RasterSurface surface;
        surface.present(list, size, 1);
        return surface.picture();
    }

    headless::TestBed m_bed;
    std::shared_ptr<uikit::UIWindow> m_window;
    std::shared_ptr<VelaProUpsellViewController> m_entry;
    rasterbackend::Picture m_unthemed;
};

// With files for themes to name.
fuzz::InputFile& inputFile() {
    static fuzz::InputFile& file = *[] {
        static fuzz::InputFile made;
        made.folder().write("broken.png", "\x89PNG\r\n\x1A\n and no more");
        rasterbackend::writePng(rasterbackend::Picture(12, 12), made.folder().path() / "square.png");
        return &made;
    }();
    return file;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t dataSize) {
    std::optional<Theme> theme;
    try {
        theme = hostprogram::readThemeFile(inputFile().write(data, dataSize));
    } catch (const std::runtime_error& error) {
        inputFile().requireComplaint(error);
        return 0;
    }
    static Shop& shop = *new Shop; // to the end, which comes at any time
    shop.show(*theme);
    return 0;
}

// The comparison while a category folds.
#include <gtest/gtest.h>

#include "Backends/Headless/TestBed.hpp"
#include "Backends/Icu/IcuLocaleServices.hpp"
#include "Backends/Raster/RasterImageDecoder.hpp"
#include "Backends/Raster/RasterTextShaper.hpp"
#include "Platform/Accessibility/Search.hpp"
#include "Platform/Host/Services.hpp"
#include "Platform/SwiftUI/Tree/ViewHost.hpp"
#include "ProUpsells/ComparisonView.hpp"
#include "Tests/Raster/Canvas.hpp"

using namespace proupsells;

namespace {

class Folding : public testing::Test {
protected:
    geometry::Rect frameOf(const std::string& category) {
        const accessibility::SemanticNode tree = host->semanticTree();
        return accessibility::findByIdentifier(tree, "comparison.category." + category)->frame;
    }
    void toggle(const std::string& category) {
        const geometry::Point heading = frameOf(category).origin + geometry::Point{20, 10};
        host->touch({host::TouchPhase::began, heading, bed.now_s()});
        host->touch({host::TouchPhase::ended, heading, bed.now_s()});
        bed.settle();
    }
    // The darkest ink in the `height` points above a category's heading.
    int inkAbove(const std::string& category, int height) {
        const int heading = int(frameOf(category).minY());
        tests::Canvas canvas({375, 800});
        host->paint(canvas.context, {});
        const rasterbackend::Picture picture = canvas.image();
        int darkest = 0;
        for (int y = heading - height; y < heading; ++y)
            for (int x = 24; x < 351; ++x)
                darkest = std::max(darkest, int(picture.row(y)[x] >> 24) - tests::greenAt(picture, x, y));
        return darkest;
    }

    headless::TestBed bed;
    host::Installation services{host::Services{.textShaper = std::make_shared<rasterbackend::RasterTextShaper>(),
                                               .imageDecoder = std::make_shared<rasterbackend::RasterImageDecoder>(),
                                               .localeServices = std::make_shared<icubackend::IcuLocaleServices>()}};
    std::shared_ptr<swiftui::ViewHost> host = makeHost();

private:
    static std::shared_ptr<swiftui::ViewHost> makeHost() {
        auto made = swiftui::ViewHost::create([] { return swiftui::View(ComparisonView{}); });
        made->setSize({375, 800}, {});
        return made;
    }
};

} // namespace

TEST_F(Folding, LetsNoRowTouchTheHeadingBelow) {
    bed.settle();
    toggle("Content And Assets");

    constexpr int clearance = 6, faint = 12;
    for (int step = 0; step < 20; ++step) {
        EXPECT_LE(inkAbove("Creation Tools", clearance), faint) << "after " << bed.now_s() << " s";
        bed.runFor(0.35 / 20);
    }
}

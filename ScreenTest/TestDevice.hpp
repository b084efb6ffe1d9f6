// What a screen is tried on.
#pragma once

#include <filesystem>
#include <string>

#include "Platform/Geometry/Geometry.hpp"
#include "Platform/Graphics/Color.hpp"
#include "Platform/Graphics/ContentSize.hpp"

namespace proupsells::screentest {

// How wide and high texts are.
enum class TestFonts {
    bundled, // by the typefaces that customers see
    fixed,   // each character half its size wide, each line 1.25 times its size high: frames can be computed by hand
};

struct TestDevice {
    geometry::Size size{375, 800}; // points
    double scale = 2;              // pixels a point
    graphics::ColorScheme appearance = graphics::ColorScheme::light;
    graphics::ContentSizeCategory textSize = graphics::ContentSizeCategory::large;
    std::string locale = "en_US";         // the layout direction goes with it
    std::filesystem::path translations{}; // a folder of <language>.lproj/Localizable.strings; empty for none
    geometry::PhysicalInsets safeArea{};  // points that something of the host's covers
    bool reducesMotion = false;
    TestFonts fonts = TestFonts::bundled; // of a device that a TestScreen begins with
};

} // namespace proupsells::screentest

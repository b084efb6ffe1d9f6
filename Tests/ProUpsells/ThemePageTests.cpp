// The page about themes lists what there is.
#include <cmath>
#include <filesystem>
#include <fstream>
#include <sstream>

#include <gmock/gmock.h>

#include "Backends/Headless/TestBed.hpp"
#include "Platform/Host/NamedImage.hpp"
#include "Platform/VelaUIKit/DesignColors.hpp"
#include "ProUpsells/ThemePicture.hpp"

namespace proupsells::tests {
namespace {

using ::testing::HasSubstr;

// The page in the folder above the working directory, or above this source, that has it.
std::string page() {
    for (auto start : {std::filesystem::current_path(), std::filesystem::path(__FILE__)}) {
        for (auto folder = start; folder != folder.parent_path(); folder = folder.parent_path()) {
            std::ostringstream content;
            if (std::ifstream file(folder / "Docs/theme.md"); file && content << file.rdbuf()) return content.str();
        }
    }
    return {};
}

std::string cell(std::string_view name) { return "| `" + std::string(name) + "` "; }

std::string hexadecimal(graphics::RGBA color) {
    char text[8];
    std::snprintf(text, sizeof text, "#%02X%02X%02X", color.red, color.green, color.blue);
    return text;
}

TEST(ThemePage, ListsEveryColorWithItsValues) {
    for (const auto& [color, purpose, follows] : velauikit::designColors()) {
        const std::string end = follows.empty() ? " |\n" : "; follows `" + std::string(follows) + "` |\n";
        EXPECT_THAT(page(), HasSubstr("\n" + cell(color.name) + "| " + hexadecimal(color.light) + " | " + hexadecimal(color.dark) +
                                      " | " + std::string(purpose) + end));
    }
}

TEST(ThemePage, ListsEveryPairOfColors) {
    for (const velauikit::ColorPair& pair : velauikit::colorPairs())
        EXPECT_THAT(page(), HasSubstr("\n" + cell(pair.foreground.name) + cell(pair.background.name) + "| " +
                                      (pair.leastContrast() == 3 ? "3" : "4.5") + ":1 |\n"));
}

TEST(ThemePage, ListsEveryPictureWithItsSize) {
    headless::TestBed bed;

    for (const ThemePicture& picture : ThemePicture::all()) {
        const geometry::Size size = host::namedImage(std::string(picture.name), picture.bundle())->size;
        EXPECT_THAT(page(), HasSubstr("\n" + cell(picture.name) + "| " + std::to_string(std::lround(size.width)) + " × " +
                                      std::to_string(std::lround(size.height)) + " | "));
    }
}

} // namespace
} // namespace proupsells::tests

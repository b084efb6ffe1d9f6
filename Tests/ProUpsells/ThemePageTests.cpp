// The page about themes lists what there is.
#include <cmath>
#include <filesystem>
#include <fstream>
#include <sstream>

#include <gmock/gmock.h>

#include "Backends/Headless/TestBed.hpp"
#include "Platform/Host/NamedImage.hpp"
#include "Platform/VelaUIKit/DesignColors.hpp"
#include "Platform/VelaUIKit/VelaColors.hpp"
#include "ProUpsells/Theme.hpp"
#include "ProUpsells/ThemePicture.hpp"
#include "Tests/Support/SourceFile.hpp"

namespace proupsells::tests {
namespace {

using ::testing::HasSubstr;

std::string page() {
    std::ostringstream content;
    content << std::ifstream(sourceFile("Docs/theme.md")).rdbuf();
    return content.str();
}

std::string cell(std::string_view name) { return "| `" + std::string(name) + "` "; }

std::string hexadecimal(graphics::RGBA color) {
    char text[8];
    std::snprintf(text, sizeof text, "#%02X%02X%02X", color.red, color.green, color.blue);
    return text;
}

TEST(ThemePage, MakesAThemeThatIsTaken) {
    headless::TestBed bed;

    Theme theme;
    theme.colors["marwickContentAccent"] = {.light = graphics::rgb(0x8C2F39), .dark = graphics::rgb(0xF0938A)};
    theme.families.headings = "Fraunces";
    theme.faceFiles = {{.family = "Fraunces", .weight = 700, .file = "brand/Fraunces-Bold.ttf"}};
    theme.pictures["paywallHeaderA"] = {.file = "brand/header.png"};
    setTheme(theme);

    EXPECT_EQ(velauikit::marwickContentAccent.resolved(graphics::ColorScheme::light), graphics::rgb(0x8C2F39));
    EXPECT_THAT(bed.takeLogRecords(), ::testing::SizeIs(1)); // the picture is not there
    setTheme({});
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

// The four pictures above the paywall's plans. A white title and the page's dots stand on their foot.
#include <gmock/gmock.h>

#include <array>
#include <cmath>
#include <set>
#include <string>

#include "Tools/MakePictures/VectorFile.hpp"

namespace proupsells::makepictures {
namespace {

using testing::ElementsAre;
using testing::SizeIs;

constexpr std::array letters{'A', 'B', 'C', 'D'};
constexpr QRgb darkPage = 0xFF0F1315;

QImage header(char letter, const std::string& variant) {
    return renderVector(std::string("ProUpsells/Resources/Images/paywallHeader") + letter + variant + ".svg", {600, 254});
}

// A screen 744 wide cuts 24 points off the foot, and smaller ones show all of it.
std::set<QRgb> coloursOfTheFoot(const QImage& picture) {
    std::set<QRgb> colours;
    for (int y = picture.height() - 26; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x) colours.insert(picture.pixel(x, y));
    return colours;
}

double luminance(QRgb colour) {
    const auto linear = [](int level) {
        const double share = level / 255.0;
        return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(colour)) + 0.7152 * linear(qGreen(colour)) + 0.0722 * linear(qBlue(colour));
}

double contrastOfWhite(QRgb ground) { return (luminance(0xFFFFFFFF) + 0.05) / (luminance(ground) + 0.05); }

// Three lines of the title, 22 points each, end 18 points above the picture's foot.
double leastContrastUnderThreeLines(const QImage& picture) {
    double least = 21;
    for (int y = 254 - 18 - 3 * 22; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x) least = std::min(least, contrastOfWhite(picture.pixel(x, y)));
    return least;
}

TEST(HeaderPicture, EndsInThePagesOwnDarkInTheDark) {
    for (const char letter : letters) EXPECT_THAT(coloursOfTheFoot(header(letter, "~dark")), ElementsAre(darkPage)) << letter;
}

TEST(HeaderPicture, EndsInOneDarkForAllFourInTheLight) {
    std::set<QRgb> colours;
    for (const char letter : letters) colours.merge(coloursOfTheFoot(header(letter, "")));

    EXPECT_THAT(colours, SizeIs(1));
}

TEST(HeaderPicture, LeavesRoomForThreeLinesOfTitle) {
    for (const char letter : letters)
        for (const std::string variant : {"", "~dark"})
            EXPECT_GE(leastContrastUnderThreeLines(header(letter, variant)), 7) << letter << variant;
}

} // namespace
} // namespace proupsells::makepictures

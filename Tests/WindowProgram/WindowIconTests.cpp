// The window's mark, looked at pixel by pixel.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QImage>
#include <QPixmap>

#include "Apps/ProUpsellsWindow/WindowIcon.hpp"

namespace proupsells::hostprogram {

namespace {

constexpr QRgb plate = 0xFF0A7C78, shaded = 0xFFBFE6E2, white = 0xFFFFFFFF, nothing = 0;

// In its largest size, of which four pixels are one unit of 64.
class WindowIcon : public testing::Test {
protected:
    static QImage largest() { return windowIcon().pixmap(256, 256).toImage().convertToFormat(QImage::Format_ARGB32); }
    // What is at a place in units.
    QRgb at(double x, double y) const { return image.pixel(int(x * 4), int(y * 4)); }

    const QImage image = largest();
};

} // namespace

TEST_F(WindowIcon, IsThereInAllSizesThatDesktopsAskFor) {
    QList<int> lengths;
    for (const QSize& size : windowIcon().availableSizes()) {
        EXPECT_EQ(size.width(), size.height());
        lengths.push_back(size.width());
    }

    EXPECT_THAT(lengths, testing::UnorderedElementsAre(16, 24, 32, 48, 64, 128, 256));
}

TEST_F(WindowIcon, IsTheSameInEachSize) {
    for (const QSize& size : windowIcon().availableSizes()) {
        const QImage small = windowIcon().pixmap(size).toImage().convertToFormat(QImage::Format_ARGB32);
        const int length = size.width();
        EXPECT_EQ(small.pixel(0, 0), nothing) << length;
        EXPECT_EQ(small.pixel(length / 2, length / 8), plate) << length;
        EXPECT_EQ(small.pixel(length * 18 / 64, length / 2), shaded) << length;
    }
}

TEST_F(WindowIcon, IsAPlateWithRoundedCorners) {
    for (const double near : {2.1, 61.8}) {
        EXPECT_EQ(at(near, 32), plate) << near;
        EXPECT_EQ(at(32, near), plate) << near;
    }
    for (const double beyond : {1.6, 62.2}) {
        EXPECT_EQ(at(beyond, 32), nothing) << beyond;
        EXPECT_EQ(at(32, beyond), nothing) << beyond;
    }
    // On the diagonal a corner of 15 units begins 4.4 units from each edge.
    for (const double x : {6.0, 58.0})
        for (const double y : {6.0, 58.0}) EXPECT_EQ(at(x, y), nothing) << x << ' ' << y;
    for (const double x : {6.9, 57.0})
        for (const double y : {6.9, 57.0}) EXPECT_EQ(at(x, y), plate) << x << ' ' << y;
    // Beside the corners the edges are straight.
    EXPECT_EQ(at(17.5, 2.1), plate);
    EXPECT_EQ(at(2.1, 17.5), plate);
    EXPECT_EQ(at(12, 2.1), nothing);
    EXPECT_EQ(at(2.1, 12), nothing);
}

// Nine units each, 14 from either edge, folded from 17 down to 24 and back.
TEST_F(WindowIcon, ShowsASheetOfFourPanels) {
    EXPECT_EQ(at(13.7, 30), plate);
    EXPECT_EQ(at(14.2, 30), shaded);
    EXPECT_EQ(at(22.7, 30), shaded);
    EXPECT_EQ(at(23.2, 30), white);
    EXPECT_EQ(at(31.7, 30), white);
    EXPECT_EQ(at(32.2, 30), shaded);
    EXPECT_EQ(at(40.7, 30), shaded);
    EXPECT_EQ(at(41.2, 30), white);
    EXPECT_EQ(at(49.7, 30), white);
    EXPECT_EQ(at(50.2, 30), plate);
}

TEST_F(WindowIcon, ShowsASheetThatIsFolded) {
    struct Edge {
        double x, top;
    };
    // Close to the folds, and in the middle of each panel, where a fold is halfway down.
    for (const auto& [x, top] : {Edge{14.5, 17.4}, Edge{18.5, 20.5}, Edge{22.5, 23.6}, Edge{27.5, 20.5}, Edge{31.5, 17.4},
                                 Edge{36.5, 20.5}, Edge{45.5, 20.5}, Edge{49.5, 17.4}}) {
        EXPECT_EQ(at(x, top - 0.9), plate) << x;
        EXPECT_NE(at(x, top + 0.9), plate) << x;
        EXPECT_NE(at(x, top + 25 - 0.9), plate) << x;
        EXPECT_EQ(at(x, top + 25 + 0.9), plate) << x;
    }
}

} // namespace proupsells::hostprogram

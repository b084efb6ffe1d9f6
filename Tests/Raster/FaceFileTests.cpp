#include <gtest/gtest.h>

#include <vector>

#include "Backends/Raster/FaceFile.hpp"

namespace proupsells::rasterbackend {
namespace {

TEST(FaceWeights, AreKnownByTheirNames) {
    for (const auto& [style, weight] : {std::pair{"Thin", 100},
                                        {"Extra Light", 200},
                                        {"UltraLight", 200},
                                        {"LIGHT", 300},
                                        {"Regular", 400},
                                        {"Book", 400},
                                        {"Normal", 400},
                                        {"Medium", 500},
                                        {"Semi-Bold", 600},
                                        {"DemiBold", 600},
                                        {"Bold", 700},
                                        {"Extra-Bold", 800},
                                        {"Ultra Bold", 800},
                                        {"Black", 900},
                                        {"Heavy", 900},
                                        {"", 0},
                                        {"Bold Italic", 0},
                                        {"Poster", 0},
                                        {"Regular Condensed", 0}})
        EXPECT_EQ(weightOfStyle(style), weight) << style;
}

TEST(FaceWeights, AreSoughtOnTheirOwnSideOfTheMiddleFirst) {
    const auto nearest = [](int wanted, const std::vector<int>& weights) {
        std::vector<FaceFile> faces;
        for (const int weight : weights) faces.push_back({"Any Face", weight, {}, 0});
        return nearestFace(faces, "any FACE", wanted)->weight;
    };

    EXPECT_EQ(nearest(400, {100, 600}), 100);
    EXPECT_EQ(nearest(400, {100, 500}), 500);
    EXPECT_EQ(nearest(400, {300, 500}), 300);
    EXPECT_EQ(nearest(400, {500, 300}), 500);
    EXPECT_EQ(nearest(400, {100, 501}), 100);
    EXPECT_EQ(nearest(300, {500, 110}), 110);
    EXPECT_EQ(nearest(500, {400, 501}), 400);
    EXPECT_EQ(nearest(500, {500, 400}), 500);
    EXPECT_EQ(nearest(501, {500, 900}), 900);
    EXPECT_EQ(nearest(700, {699, 900}), 900);
    EXPECT_EQ(nearest(700, {700, 701}), 700);
    EXPECT_EQ(nearest(700, {400, 600}), 600);
    EXPECT_EQ(nearest(400, {700, 600}), 600);
}

} // namespace
} // namespace proupsells::rasterbackend

// What of a change is painted where something that stays hides a part of it.
#include <gmock/gmock.h>

#include <algorithm>
#include <functional>
#include <iterator>

#include "Tests/Raster/Canvas.hpp"

namespace proupsells::tests {
namespace {

using geometry::Rect;
using graphics::PaintState;
using rasterbackend::PixelRect;
using rasterbackend::RasterSurface;
using testing::ElementsAre;
using testing::IsEmpty;
using Damage = std::vector<PixelRect>;

// Of a red rectangle from 20, 20 to 60, 60 that becomes blue below something.
Damage damageBelow(const std::function<void(graphics::PaintContext&)>& paintCover, double scale = 1) {
    RasterSurface surface;
    rasterbackend::Picture shown;
    for (const graphics::RGBA color : {red, blue}) {
        Canvas canvas({100, 100}, scale);
        canvas.context.fillRectangle({}, {{20, 20}, {40, 40}}, color);
        paintCover(canvas.context);
        surface.present(canvas.list, canvas.size, scale);
        shown = canvas.image();
    }
    EXPECT_TRUE(isSame(surface.picture(), shown));
    return surface.lastDamage();
}

Damage damageBelow(const Rect& cover, double scale = 1) {
    return damageBelow([&](auto& context) { context.fillRectangle({}, cover, white); }, scale);
}

TEST(HiddenDamage, IsLeftOutAtTheTopAndAtTheBottom) {
    EXPECT_THAT(damageBelow({{0, 0}, {100, 30}}), ElementsAre(PixelRect{20, 30, 60, 60}));
    EXPECT_THAT(damageBelow({{20, 20}, {40, 1}}), ElementsAre(PixelRect{20, 21, 60, 60}));
    EXPECT_THAT(damageBelow({{20, 59}, {40, 1}}), ElementsAre(PixelRect{20, 20, 60, 59}));
    EXPECT_THAT(damageBelow({{0, 50}, {100, 50}}), ElementsAre(PixelRect{20, 20, 60, 50}));
    EXPECT_THAT(damageBelow({{0, 50}, {100, 50}}, 2), ElementsAre(PixelRect{40, 40, 120, 100}));
}

TEST(HiddenDamage, IsNoneWhereAllIsHidden) {
    EXPECT_THAT(damageBelow({{20, 20}, {40, 40}}), IsEmpty());
    EXPECT_THAT(damageBelow({{0, 0}, {100, 100}}), IsEmpty());
}

TEST(HiddenDamage, IsPaintedWhereACoverLeavesItOpen) {
    const auto all = ElementsAre(PixelRect{20, 20, 60, 60});
    EXPECT_THAT(damageBelow({{0, 30}, {100, 10}}), all); // in the middle
    EXPECT_THAT(damageBelow({{21, 0}, {79, 30}}), all);  // not as far to the left
    EXPECT_THAT(damageBelow({{0, 0}, {59, 30}}), all);   // nor to the right
    EXPECT_THAT(damageBelow({{0, 0}, {30, 100}}), all);  // on one side
    EXPECT_THAT(damageBelow({{0, 0}, {100, 20}}), all);  // beside it
    EXPECT_THAT(damageBelow({{0, 60}, {100, 20}}), all);
    EXPECT_THAT(damageBelow({{0, 0}, {20, 100}}), all);
    EXPECT_THAT(damageBelow({{60, 0}, {20, 100}}), all);
}

TEST(HiddenDamage, IsPaintedWhereTheCoverCanBeSeenThrough) {
    const Rect cover{{0, 0}, {100, 30}};
    const auto all = ElementsAre(PixelRect{20, 20, 60, 60});
    EXPECT_THAT(damageBelow([&](auto& context) { context.fillRectangle({}, cover, graphics::rgb(0, 254)); }), all);
    EXPECT_THAT(damageBelow([&](auto& context) { context.fillRectangle(PaintState().fadedBy(0.9), cover, black); }), all);
    EXPECT_THAT(damageBelow([&](auto& context) { context.fillRectangle(PaintState().clippedTo(cover, 1), cover, black); }), all);
    EXPECT_THAT(damageBelow([&](auto& context) {
                    context.fillRectangle(PaintState().transformedBy(geometry::Transform::rotation(0.01)), cover, black);
                }),
                all);
    EXPECT_THAT(damageBelow([&](auto& context) { context.fillEllipse({}, {{-500, -970}, {1000, 1000}}, black); }), all);
}

TEST(HiddenDamage, MayBeHiddenBySeveralCovers) {
    EXPECT_THAT(damageBelow([&](auto& context) {
                    context.fillRectangle({}, {{0, 0}, {100, 30}}, white);
                    context.fillRectangle({}, {{0, 50}, {100, 30}}, black);
                    context.fillEllipse({}, {{10, 10}, {5, 5}}, red);
                }),
                ElementsAre(PixelRect{20, 30, 60, 50}));
}

TEST(HiddenDamage, IsPaintedBelowACoverThatChangesToo) {
    RasterSurface surface;
    for (const graphics::RGBA color : {red, blue}) {
        Canvas canvas({100, 100});
        canvas.context.fillRectangle({}, {{20, 20}, {40, 40}}, color);
        canvas.context.fillRectangle({}, {{0, 0}, {100, 30}}, color);
        surface.present(canvas.list, canvas.size, 1);
    }

    EXPECT_EQ(colorAt(surface.picture(), 5, 5), 0x0000FFu);
    EXPECT_EQ(colorAt(surface.picture(), 30, 50), 0x0000FFu);
}

// Two of them share a row of pixels, and what is around both shares some with the third.
TEST(Damage, NeverOverlapsHoweverItsPartsLie) {
    const Rect parts[] = {{{35, 0}, {10, 5}}, {{20, 0}, {10, 10.5}}, {{25, 10.5}, {15, 9.5}}};
    int order[] = {0, 1, 2};
    do {
        RasterSurface surface;
        for (const graphics::RGBA color : {red, blue}) {
            Canvas canvas({100, 100});
            for (const int part : order) canvas.context.fillRectangle({}, parts[part], color);
            surface.present(canvas.list, canvas.size, 1);
        }
        EXPECT_THAT(surface.lastDamage(), ElementsAre(PixelRect{20, 0, 45, 20})) << order[0] << order[1] << order[2];
    } while (std::next_permutation(std::begin(order), std::end(order)));
}

} // namespace
} // namespace proupsells::tests

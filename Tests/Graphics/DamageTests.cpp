#include <algorithm>
#include <array>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "Platform/Graphics/PaintContext.hpp"
#include "Tests/Graphics/ShapedTexts.hpp"
#include "Tests/Support/PrintGeometry.hpp"

namespace proupsells::graphics {
namespace {

using geometry::Path;
using geometry::Rect;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::UnorderedElementsAre;

struct Tile {
    Rect rect;
    std::uint8_t shade = 0;
};

DisplayList listOf(const std::vector<Tile>& tiles) {
    DisplayList list;
    PaintContext context(list);
    for (const Tile& tile : tiles) context.fillRectangle({}, tile.rect, {tile.shade, 0, 0});
    return list;
}

std::vector<Rect> damageBetween(const DisplayList& before, const DisplayList& after) {
    std::vector<Rect> result{{{1, 2}, {3, 4}}}; // to be forgotten
    findDamage(before, after, result);
    return result;
}

std::vector<Rect> damageBetween(const std::vector<Tile>& before, const std::vector<Tile>& after) {
    return damageBetween(listOf(before), listOf(after));
}

const Tile a{{{0, 0}, {10, 10}}, 1}, b{{{20, 0}, {10, 10}}, 2}, c{{{40, 0}, {10, 10}}, 3}, d{{{60, 0}, {10, 10}}, 4};

TEST(Damage, IsEmptyBetweenEqualLists) { EXPECT_THAT(damageBetween({a, b, c}, {a, b, c}), IsEmpty()); }

TEST(Damage, IsEmptyBetweenEmptyLists) { EXPECT_THAT(damageBetween(std::vector<Tile>{}, {}), IsEmpty()); }

TEST(Damage, IsWhereSomethingAppearsOrDisappears) {
    EXPECT_THAT(damageBetween({a, c}, {a, b, c}), ElementsAre(b.rect));
    EXPECT_THAT(damageBetween({a, b, c}, {a, c}), ElementsAre(b.rect));
    EXPECT_THAT(damageBetween({}, {a}), ElementsAre(a.rect));
}

TEST(Damage, IsWhereAColourChanges) {
    Tile changed = b;
    changed.shade = 77;

    EXPECT_THAT(damageBetween({a, b, c}, {a, changed, c}), ElementsAre(b.rect));
}

TEST(Damage, IsBothPlacesOfWhatMoves) {
    Tile moved = b;
    moved.rect = moved.rect.offsetBy({0, 50});

    EXPECT_THAT(damageBetween({a, b, c}, {a, moved, c}), UnorderedElementsAre(b.rect, moved.rect));
}

TEST(Damage, ResynchronisesBetweenTwoChanges) {
    const Tile x{{{0, 100}, {5, 5}}, 9};

    EXPECT_THAT(damageBetween({a, b, c}, {x, a, b, c, d}), UnorderedElementsAre(x.rect, d.rect));
}

TEST(Damage, IsWhatChangesItsPlaceInTheOrder) {
    const std::vector<Rect> damage = damageBetween({a, b, c, d}, {b, c, d, a});

    EXPECT_THAT(damage, ElementsAre(a.rect));
}

TEST(Damage, IsWhereATextChangesBetweenOtherChanges) {
    const Rect lineBox{{0, 200}, {15, 10}};
    const auto listWith = [&](std::uint8_t shade, const ShapedTextPointer& text) {
        DisplayList list;
        PaintContext context(list);
        context.fillRectangle({}, a.rect, {shade, 0, 0});
        context.text({}, {0, 208}, lineBox, text, 0, 3, {});
        context.fillRectangle({}, d.rect, {shade, 0, 0});
        return list;
    };

    const std::vector<Rect> damage = damageBetween(listWith(1, shaped("one")), listWith(2, shaped("two")));

    EXPECT_TRUE(std::any_of(damage.begin(), damage.end(), [&](const Rect& rect) { return rect.intersects(lineBox); }));
}

TEST(Damage, JoinsRectanglesThatOverlap) {
    const Tile under{{{0, 0}, {20, 10}}, 1}, over{{{10, 0}, {20, 10}}, 2};

    EXPECT_THAT(damageBetween({}, {under, over}), ElementsAre(Rect{{0, 0}, {30, 10}}));
}

TEST(Damage, StaysAFewRectanglesHoweverMuchChanges) {
    std::vector<Tile> many;
    for (int index = 0; index < 100; ++index) many.push_back({{{index * 20.0, (index % 7) * 20.0}, {10, 10}}, std::uint8_t(index)});

    const std::vector<Rect> damage = damageBetween({}, many);

    EXPECT_LE(damage.size(), 8u);
    EXPECT_GE(damage.size(), 2u);
}

// Comparing by value: the same picture may be written with other indices and other objects.

struct Change {
    const char* name;
    void (*apply)(Command&);
};

class EveryField : public ::testing::TestWithParam<Change> {};

TEST_P(EveryField, MakesADifference) {
    const DisplayList before = listOf({a});
    DisplayList after = before;
    EXPECT_TRUE(paintsTheSame(before, before.commands[0], after, after.commands[0]));

    GetParam().apply(after.commands[0]);

    EXPECT_FALSE(paintsTheSame(before, before.commands[0], after, after.commands[0]));
}

INSTANTIATE_TEST_SUITE_P(
    PaintsTheSame, EveryField,
    ::testing::Values(
        Change{"Kind", [](Command& c) { c.kind = CommandKind::fillEllipse; }},
        Change{"CornerStyle", [](Command& c) { c.cornerStyle = geometry::CornerStyle::continuous; }},
        Change{"Scheme", [](Command& c) { c.scheme = ColorScheme::dark; }}, Change{"Color", [](Command& c) { c.color.blue ^= 1; }},
        Change{"Opacity", [](Command& c) { c.opacity = 0.5f; }}, Change{"Frame", [](Command& c) { c.frame.size.height += 0.25; }},
        Change{"Bounds", [](Command& c) { c.bounds.size.width += 0.25; }},
        Change{"Clip", [](Command& c) { c.clip.origin.x += 0.25; }}, Change{"CornerRadius", [](Command& c) { c.cornerRadius = 1; }},
        Change{"LineWidth", [](Command& c) { c.lineWidth = 1; }}, Change{"BlurRadius", [](Command& c) { c.blurRadius = 1; }},
        Change{"ClipRadius", [](Command& c) { c.clipRadius = 1; }},
        Change{"RoundedClip", [](Command& c) { c.roundedClip.size.width = 1; }},
        Change{"FirstCluster", [](Command& c) { c.firstCluster = 1; }}, Change{"EndCluster", [](Command& c) { c.endCluster = 1; }}),
    [](const auto& info) { return info.param.name; });

TEST(PaintsTheSame, WhateverTheResourcesIndices) {
    DisplayList before, after;
    const auto one = shaped("one"), two = shaped("two");
    const Rect lineBox{{0, 0}, {15, 12}};
    PaintContext(before).text({}, {0, 10}, lineBox, two, 0, 3, {});
    PaintContext(after).text({}, {0, 50}, {{0, 40}, {15, 12}}, one, 0, 3, {});
    PaintContext(after).text({}, {0, 10}, lineBox, two, 0, 3, {});

    EXPECT_TRUE(paintsTheSame(before, before.commands[0], after, after.commands[1]));
    EXPECT_FALSE(paintsTheSame(before, before.commands[0], after, after.commands[0]));
}

TEST(PaintsTheSame, TellsTextsApart) {
    DisplayList before, after;
    PaintContext(before).text({}, {0, 10}, {{0, 0}, {15, 12}}, shaped("one"), 0, 3, {});
    PaintContext(after).text({}, {0, 10}, {{0, 0}, {15, 12}}, shaped("two"), 0, 3, {});

    EXPECT_FALSE(paintsTheSame(before, before.commands[0], after, after.commands[0]));
}

TEST(PaintsTheSame, ComparesPathsByTheirPoints) {
    DisplayList before, same, other;
    const Rect box{{0, 0}, {10, 10}};
    PaintContext(before).fillPath({}, Path::ellipse(box), {});
    PaintContext(same).fillPath({}, Path::ellipse(box), {});
    PaintContext(other).fillPath({}, Path::rectangle(box), {});

    EXPECT_TRUE(paintsTheSame(before, before.commands[0], same, same.commands[0]));
    EXPECT_FALSE(paintsTheSame(before, before.commands[0], other, other.commands[0]));
}

TEST(PaintsTheSame, ComparesImagesByWhatTheyAre) {
    const auto imageOf = [](std::string file) {
        auto image = std::make_shared<Image>();
        image->name = "picture";
        image->file = std::move(file);
        return image;
    };
    DisplayList before, same, other;
    PaintContext(before).image({}, a.rect, imageOf("a.svg"));
    PaintContext(same).image({}, a.rect, imageOf("a.svg"));
    PaintContext(other).image({}, a.rect, imageOf("b.svg"));

    EXPECT_TRUE(paintsTheSame(before, before.commands[0], same, same.commands[0]));
    EXPECT_FALSE(paintsTheSame(before, before.commands[0], other, other.commands[0]));
}

TEST(PaintsTheSame, TakesAnotherFrameOfAClipForAnotherPicture) {
    DisplayList before, after;
    PaintContext(before).bitmap({}, a.rect, std::make_shared<Bitmap>());
    PaintContext(after).bitmap({}, a.rect, std::make_shared<Bitmap>());

    EXPECT_FALSE(paintsTheSame(before, before.commands[0], after, after.commands[0]));
}

TEST(PaintsTheSame, ComparesTransformsByValue) {
    const auto turned = [](double angle_rad) {
        DisplayList list;
        PaintContext(list).fillRectangle(PaintState{}.transformedBy(geometry::Transform::rotation(angle_rad)), {{0, 0}, {10, 10}},
                                         {});
        return list;
    };
    const DisplayList before = turned(1), same = turned(1), other = turned(1 + 1e-9);

    EXPECT_TRUE(paintsTheSame(before, before.commands[0], same, same.commands[0]));
    EXPECT_FALSE(paintsTheSame(before, before.commands[0], other, other.commands[0]));
}

// A coarse picture, in which every tile leaves its trace in what it covers.
constexpr int side = 24;
using Picture = std::array<std::uint64_t, side * side>;

void paint(Picture& picture, const std::vector<Tile>& tiles, const auto& isPainted) {
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            const geometry::Point middle{x + 0.5, y + 0.5};
            if (!isPainted(middle)) continue;
            std::uint64_t& value = picture[std::size_t(y * side + x)];
            value = 1;
            for (const Tile& tile : tiles) {
                if (tile.rect.contains(middle)) value = value * 1099511628211 + tile.shade;
            }
        }
    }
}

std::vector<Tile> someTiles(int maximumCount) {
    std::vector<Tile> tiles(std::size_t(*rc::gen::inRange(0, maximumCount)));
    for (Tile& tile : tiles) {
        tile.rect = {{double(*rc::gen::inRange(0, side - 4)), double(*rc::gen::inRange(0, side - 4))},
                     {double(*rc::gen::inRange(1, 5)), double(*rc::gen::inRange(1, 5))}};
        tile.shade = std::uint8_t(*rc::gen::inRange(1, 5));
    }
    return tiles;
}

std::vector<Tile> someEditOf(std::vector<Tile> tiles) {
    const int editCount = *rc::gen::inRange(0, 5);
    for (int edit = 0; edit < editCount; ++edit) {
        const std::size_t place = std::size_t(*rc::gen::inRange(0, int(tiles.size()) + 1));
        const auto at = tiles.begin() + std::ptrdiff_t(place);
        const int kind = *rc::gen::inRange(0, 4);
        if (kind == 0 || place == tiles.size()) {
            const std::vector<Tile> added = someTiles(4);
            tiles.insert(at, added.begin(), added.end());
        } else if (kind == 1) {
            tiles.erase(at);
        } else if (kind == 2) {
            std::rotate(at, at + 1, tiles.end());
        } else {
            at->shade = std::uint8_t(*rc::gen::inRange(1, 5));
        }
    }
    return tiles;
}

RC_GTEST_PROP(DamageInvariants, PaintingOnlyTheDamageGivesTheNewPicture, ()) {
    const std::vector<Tile> before = someTiles(20), after = someEditOf(before);
    const std::vector<Rect> damage = damageBetween(before, after);

    const auto everywhere = [](geometry::Point) { return true; };
    const auto inDamage = [&](geometry::Point point) {
        return std::any_of(damage.begin(), damage.end(), [&](const Rect& rect) { return rect.contains(point); });
    };
    Picture patched{}, fresh{};
    paint(patched, before, everywhere);
    paint(patched, after, inDamage);
    paint(fresh, after, everywhere);

    RC_ASSERT(patched == fresh);
}

RC_GTEST_PROP(DamageInvariants, RectanglesAreFewAndDoNotOverlap, ()) {
    const std::vector<Rect> damage = damageBetween(someTiles(40), someTiles(40));

    RC_ASSERT(damage.size() <= 8u);
    for (std::size_t first = 0; first < damage.size(); ++first) {
        for (std::size_t second = first + 1; second < damage.size(); ++second) RC_ASSERT(!damage[first].intersects(damage[second]));
    }
}

RC_GTEST_PROP(DamageInvariants, OneChangeAmongManyDamagesNothingElse, ()) {
    std::vector<Tile> before;
    for (int index = 0; index < 30; ++index) before.push_back({{{index * 10.0, 0}, {10, 10}}, 1});
    std::vector<Tile> after = before;
    const auto place = after.begin() + *rc::gen::inRange(0, 30);
    const Rect expected = place->rect;
    if (*rc::gen::inRange(0, 2) == 0) {
        after.erase(place);
    } else {
        place->shade = 9;
    }

    RC_ASSERT(damageBetween(before, after) == std::vector<Rect>{expected});
}

} // namespace
} // namespace proupsells::graphics

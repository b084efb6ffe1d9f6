#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Backends/Headless/RecordingSurface.hpp"
#include "Platform/Graphics/PaintContext.hpp"
#include "Tests/Support/PrintGeometry.hpp"

namespace proupsells::headless {
namespace {

using geometry::Rect;
using graphics::DisplayList;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

const Rect square{{10, 10}, {5, 5}}, other{{50, 50}, {5, 5}};

DisplayList listOf(std::initializer_list<Rect> rectangles) {
    DisplayList list;
    for (const Rect& rect : rectangles) graphics::PaintContext(list).fillRectangle({}, rect, {});
    return list;
}

TEST(RecordingSurface, StartsWithNothing) {
    EXPECT_EQ(RecordingSurface().presentCount(), 0u);
    EXPECT_THAT(RecordingSurface().lastDamage(), IsEmpty());
    EXPECT_TRUE(RecordingSurface().list().commands.empty());
}

TEST(RecordingSurface, KeepsWhatWasPresentedLast) {
    RecordingSurface surface;
    surface.present(listOf({square}), {100, 200}, 2);
    surface.present(listOf({square, other}), {100, 200}, 2);

    EXPECT_EQ(surface.presentCount(), 2u);
    EXPECT_EQ(surface.list().commands.size(), 2u);
    EXPECT_EQ(surface.size(), (geometry::Size{100, 200}));
    EXPECT_EQ(surface.scale(), 2);
}

TEST(RecordingSurface, RecordsTheDamageOfEachPresent) {
    RecordingSurface surface;
    surface.present(listOf({square}), {100, 100}, 1);
    surface.present(listOf({square, other}), {100, 100}, 1);
    surface.present(listOf({square, other}), {100, 100}, 1);

    EXPECT_THAT(surface.damages(), ElementsAre(ElementsAre(Rect{{0, 0}, {100, 100}}), ElementsAre(other), IsEmpty()));
    EXPECT_THAT(surface.lastDamage(), IsEmpty());
}

TEST(RecordingSurface, RepaintsEverythingAtANewSizeOrScale) {
    RecordingSurface surface;
    surface.present(listOf({square}), {100, 100}, 1);
    surface.present(listOf({square}), {100, 120}, 1);
    surface.present(listOf({square}), {100, 120}, 3);

    EXPECT_THAT(surface.damages()[1], ElementsAre(Rect{{0, 0}, {100, 120}}));
    EXPECT_THAT(surface.damages()[2], ElementsAre(Rect{{0, 0}, {100, 120}}));
}

} // namespace
} // namespace proupsells::headless

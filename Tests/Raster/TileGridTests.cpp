#include "Backends/Raster/TileGrid.hpp"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <vector>

namespace proupsells::rasterbackend {
namespace {

TileGrid someGrid() {
    const auto length = [](int limit) { return *rc::gen::inRange(1, limit); };
    return {{length(60), length(60)}, {length(70), length(20)}};
}

RC_GTEST_PROP(TileGridInvariants, CoverThePictureOnce, ()) {
    const TileGrid grid = someGrid();
    std::vector<int> visits(std::size_t(grid.picture.width * grid.picture.height));

    for (int tile = 0; tile < grid.count(); ++tile) {
        const PixelRect rect = grid.rect(tile);
        for (int y = rect.top; y < rect.bottom; ++y)
            for (int x = rect.left; x < rect.right; ++x) ++visits[std::size_t(y * grid.picture.width + x)];
    }

    RC_ASSERT(visits == std::vector<int>(visits.size(), 1));
}

RC_GTEST_PROP(TileGridInvariants, VisitThoseThatAPartTouches, ()) {
    const TileGrid grid = someGrid();
    const int left = *rc::gen::inRange(-10, 70), top = *rc::gen::inRange(-10, 70);
    const PixelRect part{left, top, left + *rc::gen::inRange(0, 50), top + *rc::gen::inRange(0, 50)};
    std::vector<int> touched, visited;

    for (int tile = 0; tile < grid.count(); ++tile)
        if (!grid.rect(tile).intersection(part).isEmpty()) touched.push_back(tile);
    grid.forEachTouched(part, [&](int tile, const PixelRect& rect) {
        RC_ASSERT(rect == grid.rect(tile));
        visited.push_back(tile);
    });

    RC_ASSERT(visited == touched);
}

} // namespace
} // namespace proupsells::rasterbackend

// A picture cut into tiles, numbered row by row.
#pragma once

#include <algorithm>
#include <cstddef>

#include "Backends/Raster/PixelRect.hpp"

namespace proupsells::rasterbackend {

struct TileGrid {
    PixelSize picture;
    PixelSize tile; // those at the right and at the bottom may be smaller; positive

    bool operator==(const TileGrid&) const = default;

    int columnCount() const { return (picture.width + tile.width - 1) / tile.width; }
    int rowCount() const { return (picture.height + tile.height - 1) / tile.height; }
    int count() const { return columnCount() * rowCount(); }
    PixelRect rect(int index) const {
        const int left = index % columnCount() * tile.width, top = index / columnCount() * tile.height;
        return {left, top, std::min(left + tile.width, picture.width), std::min(top + tile.height, picture.height)};
    }
    std::size_t pixelCount(int index) const { return std::size_t(rect(index).width()) * std::size_t(rect(index).height()); }
    // Calls visit(index, rect) for the tiles that a part of the picture touches.
    template <class Visit>
    void forEachTouched(const PixelRect& part, Visit&& visit) const {
        const PixelRect inside = part.intersection({0, 0, picture.width, picture.height});
        if (inside.isEmpty()) return;
        for (int row = inside.top / tile.height; row * tile.height < inside.bottom; ++row)
            for (int column = inside.left / tile.width; column * tile.width < inside.right; ++column)
                visit(row * columnCount() + column, rect(row * columnCount() + column));
    }
};

} // namespace proupsells::rasterbackend

// Turns outlines into coverage masks.
#pragma once

#include <vector>

#include "Backends/Raster/CoverageMask.hpp"
#include "Platform/Geometry/Path.hpp"

namespace proupsells::rasterbackend {

// Exact area coverage of outlines, filled by the non-zero rule, in a rectangle of pixels. The same outlines give the same
// mask on every machine. May be used again and again; keeps its memory.
class CoverageRasterizer {
public:
    // Starts an empty picture of the given size in pixels.
    void begin(int width, int height);
    // Adds an outline; open parts are closed. What lies outside of the rectangle is cut off.
    void add(const geometry::Path& path, const geometry::Transform& toPixels);
    // The mask of everything added since begin(). Begin anew afterwards.
    CoverageMask finish();

private:
    struct RowExtent {
        int first, end; // touched cells
    };

    void addLine(geometry::Point from, geometry::Point to);
    void addCubic(geometry::Point from, geometry::Point control1, geometry::Point control2, geometry::Point to);
    void addInRow(int y, double fromX, double toX, double height);
    void addInside(int y, double left, double right, double height);

    int m_width = 0, m_height = 0;
    // For each pixel, by how much the coverage rises from the one before it; a cell more at each row's end.
    std::vector<float> m_cells;
    std::vector<RowExtent> m_extents;
    std::vector<std::uint8_t> m_row;
};

} // namespace proupsells::rasterbackend

// A coverage mask at its place in the picture.
#pragma once

#include <algorithm>
#include <memory>

#include "Backends/Raster/CoverageMask.hpp"
#include "Backends/Raster/PixelRect.hpp"

namespace proupsells::rasterbackend {

// One column and one row of the mask may be repeated: so all rounded rectangles of a radius share a small mask. Every span
// that holds the repeated column must share one coverage.
struct PlacedMask {
    std::shared_ptr<const CoverageMask> mask; // null: nothing to paint
    int x = 0;
    int y = 0;
    int repeatedColumn = 0, extraColumns = 0;
    int repeatedRow = 0, extraRows = 0;

    int top() const { return y; }
    int bottom() const { return mask ? y + mask->height() + extraRows : y; }

    // Calls visit(left, right, coverages, shared) for the covered pixels of a row from `left` to `right`; `coverages` is null
    // where they share one coverage.
    template <class Visit>
    void visitRow(int rowY, int left, int right, Visit&& visit) const {
        if (rowY < top() || rowY >= bottom()) return;
        int row = rowY - y;
        if (row > repeatedRow) row = std::max(repeatedRow, row - extraRows);
        for (const CoverageMask::Span& span : mask->row(row)) {
            const int spanLeft = x + span.x + (span.x > repeatedColumn ? extraColumns : 0);
            const int spanEnd = span.x + span.length;
            const int spanRight = x + spanEnd + (spanEnd > repeatedColumn ? extraColumns : 0);
            const int from = std::max(left, spanLeft), to = std::min(right, spanRight);
            if (spanLeft >= right) return;
            if (from >= to) continue;
            const std::uint8_t* coverages = span.coverages < 0 ? nullptr : mask->coverages(span) + (from - spanLeft);
            visit(from, to, coverages, span.shared);
        }
    }
};

} // namespace proupsells::rasterbackend

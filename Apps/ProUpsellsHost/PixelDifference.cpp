#include "Apps/ProUpsellsHost/PixelDifference.hpp"

#include <algorithm>

#include "Backends/Raster/PngReader.hpp"
#include "Tooling/WrittenNumber.hpp"

namespace proupsells::hostprogram {

std::string pixelDifference(std::string_view before, std::string_view after) {
    const rasterbackend::Picture first = rasterbackend::pngPicture(before), second = rasterbackend::pngPicture(after);
    if (first.isNull() || second.isNull() || first.width() != second.width() || first.height() != second.height())
        return "the pictures cannot be compared";
    int left = first.width(), right = -1, top = first.height(), bottom = -1;
    long count = 0;
    for (int y = 0; y < first.height(); ++y) {
        for (int x = 0; x < first.width(); ++x) {
            if (first.row(y)[x] == second.row(y)[x]) continue;
            ++count;
            left = std::min(left, x);
            right = std::max(right, x);
            top = std::min(top, y);
            bottom = std::max(bottom, y);
        }
    }
    const geometry::Rect place{{double(left), double(top)}, {double(right - left + 1), double(bottom - top + 1)}};
    return std::to_string(count) + (count == 1 ? " pixel at " : " pixels within ") + tooling::written(place);
}

} // namespace proupsells::hostprogram

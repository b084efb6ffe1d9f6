#include "Backends/Raster/TransformedPicture.hpp"

#include <algorithm>
#include <cmath>
#include <vector>

#include "Backends/Raster/Blending.hpp"
#include "Backends/Raster/PlacedMask.hpp"
#include "Backends/Raster/Resampling.hpp"

namespace proupsells::rasterbackend {

using geometry::Point;
using geometry::Rect;
using geometry::Transform;

namespace {

constexpr int weightOne = 256;

// Between two pixels; `weight` is the second one's.
Pixel mixed(Pixel first, Pixel second, int weight) {
    const auto pair = [weight](Pixel a, Pixel b) {
        const Pixel sum = (a & 0x00FF00FF) * Pixel(weightOne - weight) + (b & 0x00FF00FF) * Pixel(weight);
        return (sum + 0x00800080) >> 8 & 0x00FF00FF;
    };
    return pair(first, second) | pair(first >> 8, second >> 8) << 8;
}

// The colour at a place between the source's pixels; outside it is that of the nearest one.
Pixel sampleAt(const Picture& source, Point place) {
    const double x = std::clamp(place.x - 0.5, 0.0, double(source.width() - 1));
    const double y = std::clamp(place.y - 0.5, 0.0, double(source.height() - 1));
    const int left = int(x), top = int(y);
    const int right = std::min(left + 1, source.width() - 1), bottom = std::min(top + 1, source.height() - 1);
    const int weightX = int((x - left) * weightOne), weightY = int((y - top) * weightOne);
    const Pixel *upper = source.row(top), *lower = source.row(bottom);
    return mixed(mixed(upper[left], upper[right], weightX), mixed(lower[left], lower[right], weightX), weightY);
}

Transform sourceToFrame(const Picture& source, const Rect& frame) {
    return {frame.width() / source.width(), 0, 0, frame.height() / source.height(), frame.minX(), frame.minY()};
}

// A picture that shrinks to less than half is made smaller first: interpolation alone would leave pixels out.
Picture prepared(const Picture& source, const Rect& frame, const Transform& toPixels) {
    const Transform shown = sourceToFrame(source, frame).then(toPixels);
    const auto shrunk = [](int length, double factor) { return factor < 0.5 ? int(std::ceil(length * factor)) : length; };
    const int width = shrunk(source.width(), std::hypot(shown.a, shown.b));
    const int height = shrunk(source.height(), std::hypot(shown.c, shown.d));
    return resampled(source, width, height);
}

} // namespace

void paintTransformed(Picture& target, const Picture& source, const Rect& frame, const Transform& toPixels,
                      CoverageRasterizer& rasterizer) {
    if (source.isNull() || frame.isEmpty() || toPixels.a * toPixels.d == toPixels.b * toPixels.c) return;
    const Picture shown = prepared(source, frame, toPixels);
    const Transform toSource = sourceToFrame(shown, frame).then(toPixels).inverted();

    rasterizer.begin(target.width(), target.height());
    rasterizer.add(geometry::Path::rectangle(frame), toPixels);
    const PlacedMask mask{std::make_shared<CoverageMask>(rasterizer.finish())};
    std::vector<Pixel> samples(std::size_t(target.width()));
    for (int y = 0; y < target.height(); ++y) {
        Pixel* row = target.row(y);
        mask.visitRow(y, 0, target.width(), [&](int left, int right, const std::uint8_t* coverages, std::uint8_t shared) {
            for (int x = left; x < right; ++x)
                samples[std::size_t(x)] =
                    scaled(sampleAt(shown, toSource.apply(Point{x + 0.5, y + 0.5})), coverages ? coverages[x - left] : shared);
            blendPixels(row + left, std::size_t(right - left), samples.data() + left, 255);
        });
    }
}

} // namespace proupsells::rasterbackend

#include "Backends/Raster/ShapeMasks.hpp"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace proupsells::rasterbackend {

using geometry::CornerStyle;
using geometry::Path;
using geometry::Point;
using geometry::Rect;
using geometry::Transform;

namespace {

constexpr std::size_t shapeCacheBytes = 16 << 20;
constexpr std::size_t pathCacheBytes = 16 << 20;

// Edges are placed on a grid this many times finer than the pixels.
constexpr std::int64_t subpixels = 64;

std::int64_t toSubpixels(double length) { return std::llround(std::clamp(length, -1e9, 1e9) * subpixels); }
double toPixels(std::int64_t length) { return double(length) / subpixels; }

void mixHash(std::size_t& hash, std::uint64_t value) {
    hash = (hash ^ value) * 0x9E3779B97F4A7C15u;
    hash ^= hash >> 29;
}

void mixHash(std::size_t& hash, double value) {
    std::uint64_t bits;
    std::memcpy(&bits, &value, sizeof bits);
    mixHash(hash, bits);
}

// One axis of a shape: its place, and how much of its middle can be left out and repeated.
struct Axis {
    int pixel;           // the one that the shape starts in
    std::int64_t start;  // in subpixels from there
    std::int64_t length; // subpixels, without what is left out
    int repeated, extra;

    // `corner` pixels at either end are to be kept.
    Axis(double from, double to, double corner) {
        const std::int64_t first = toSubpixels(from);
        pixel = int(std::floor(toPixels(first)));
        start = first - pixel * subpixels;
        length = std::max<std::int64_t>(toSubpixels(to) - first, 0);
        // Wide enough for a span of one coverage to hold the repeated pixel.
        constexpr int middle = 24;
        const std::int64_t kept = 2 * std::int64_t(std::ceil(corner)) + middle;
        extra = int(std::max<std::int64_t>(length / subpixels - kept, 0));
        length -= extra * subpixels;
        repeated = int((start + length / 2) / subpixels);
    }
    int end() const { return int(std::ceil(toPixels(start + length))); }
};

double scaleOf(const Transform& transform) { return std::sqrt(std::abs(transform.a * transform.d - transform.b * transform.c)); }

// The share of a blurred edge's light at a place, from 0 at one blur's reach before the edge to 1 as far behind it: a smooth
// bell without tails, summed up.
double blurredStep(double place, double reach) {
    if (reach <= 0) return std::clamp(place + 0.5, 0.0, 1.0);
    const double t = std::clamp(place / reach, -1.0, 1.0);
    return 0.5 + 15.0 / 16 * (t - 2.0 / 3 * t * t * t + t * t * t * t * t / 5);
}

} // namespace

// Where a shape stands, and the small version of it that its mask is made of.
struct ShapeMasks::Placement {
    Axis horizontal, vertical;
    int margin; // pixels around the frame that may be touched too

    Placement(const Rect& frame, double corner, int margin_px)
        : horizontal(frame.minX(), frame.maxX(), corner), vertical(frame.minY(), frame.maxY(), corner), margin(margin_px) {}

    Rect frame() const {
        return {{toPixels(horizontal.start) + margin, toPixels(vertical.start) + margin},
                {toPixels(horizontal.length), toPixels(vertical.length)}};
    }
    int width() const { return horizontal.end() + 2 * margin; }
    int height() const { return vertical.end() + 2 * margin; }
};

std::size_t ShapeMasks::ShapeKey::Hash::operator()(const ShapeKey& key) const {
    std::size_t hash = 0;
    for (const std::int64_t value : key.values) mixHash(hash, std::uint64_t(value));
    return hash;
}

std::size_t ShapeMasks::PathKey::Hash::operator()(const PathKey& key) const {
    std::size_t hash = key.path.verbs().size();
    for (const Point point : key.path.points()) {
        mixHash(hash, point.x);
        mixHash(hash, point.y);
    }
    for (const double value :
         {key.transform.a, key.transform.b, key.transform.c, key.transform.d, key.transform.tx, key.transform.ty})
        mixHash(hash, value);
    mixHash(hash, key.stroke.width);
    return hash;
}

ShapeMasks::ShapeMasks(CoverageRasterizer& rasterizer)
    : m_rasterizer(rasterizer), m_shapes(shapeCacheBytes), m_paths(pathCacheBytes) {}

PlacedMask ShapeMasks::roundedRectangle(const Rect& frame, double radius, CornerStyle style, double lineWidth) {
    // Continuous corners begin a little earlier than at their radius.
    constexpr double longestReach = 1.6;
    const double cutRadius = std::max(0.0, std::min({radius, frame.width() / 2, frame.height() / 2}));
    const double half = lineWidth / 2;
    // Of a flat one the outlines of both sides would lie over each other.
    if (lineWidth > 0 && (frame.width() <= 0 || frame.height() <= 0))
        return roundedRectangle(frame.insetBy(-half, -half), 0, CornerStyle::circular, 0);
    const Placement placement(frame, cutRadius * longestReach + half, int(std::ceil(half)));
    return shape(style == CornerStyle::continuous ? Kind::continuous : Kind::circular, placement, cutRadius, lineWidth);
}

PlacedMask ShapeMasks::ellipse(const Rect& frame, double lineWidth) {
    const Placement placement(frame, std::max(frame.width(), frame.height()), int(std::ceil(lineWidth / 2)));
    return shape(Kind::ellipse, placement, 0, lineWidth);
}

PlacedMask ShapeMasks::shadow(const Rect& frame, double blurRadius) {
    const double reach = 2 * blurRadius;
    return shape(Kind::shadow, Placement(frame, reach, int(std::ceil(reach))), blurRadius, 0);
}

PlacedMask ShapeMasks::shape(Kind kind, const Placement& placement, double radius, double lineWidth) {
    const Axis &horizontal = placement.horizontal, &vertical = placement.vertical;
    const ShapeKey key{{std::int64_t(kind), horizontal.start, horizontal.length, vertical.start, vertical.length,
                        toSubpixels(radius), toSubpixels(lineWidth)}};
    MaskRef mask;
    if (const MaskRef* known = m_shapes.find(key)) {
        mask = *known;
    } else {
        mask = std::make_shared<CoverageMask>(
            makeShape(kind, placement, toPixels(toSubpixels(radius)), toPixels(toSubpixels(lineWidth))));
        m_shapes.insert(key, mask, mask->byteCount());
    }
    const int margin = placement.margin;
    return {std::move(mask),  horizontal.pixel - margin,  vertical.pixel - margin, horizontal.repeated + margin,
            horizontal.extra, vertical.repeated + margin, vertical.extra};
}

CoverageMask ShapeMasks::makeShape(Kind kind, const Placement& placement, double radius, double lineWidth) {
    if (kind == Kind::shadow) return makeShadow(placement, radius);
    const CornerStyle style = kind == Kind::continuous ? CornerStyle::continuous : CornerStyle::circular;
    const Path path =
        kind == Kind::ellipse ? Path::ellipse(placement.frame()) : Path::roundedRectangle(placement.frame(), radius, style);
    return makeOutline(path, {}, {lineWidth}, {placement.width(), placement.height()});
}

CoverageMask ShapeMasks::makeOutline(const Path& path, const Transform& toPixels, Stroke stroke, PixelSize size) {
    m_rasterizer.begin(size.width, size.height);
    if (stroke.width > 0)
        m_rasterizer.add(m_strokes.outline(path, stroke, scaleOf(toPixels)), toPixels);
    else
        m_rasterizer.add(path, toPixels);
    return m_rasterizer.finish();
}

// A blurred rectangle is the product of two blurred stretches.
CoverageMask ShapeMasks::makeShadow(const Placement& placement, double blurRadius) {
    const Rect frame = placement.frame();
    const auto profile = [reach = 2 * blurRadius](int length, double from, double to) {
        std::vector<double> values(static_cast<std::size_t>(length));
        double middle = 0.5;
        for (double& value : values) {
            value = blurredStep(middle - from, reach) - blurredStep(middle - to, reach);
            ++middle;
        }
        return values;
    };
    const std::vector<double> columns = profile(placement.width(), frame.minX(), frame.maxX());
    const std::vector<double> rows = profile(placement.height(), frame.minY(), frame.maxY());
    CoverageMask mask;
    std::vector<std::uint8_t> row(columns.size());
    for (const double vertical : rows) {
        for (std::size_t index = 0; index < row.size(); ++index) row[index] = std::uint8_t(vertical * columns[index] * 255 + 0.5);
        mask.appendRow(row);
    }
    return mask;
}

PlacedMask ShapeMasks::path(const Path& path, const Transform& toPixels, Stroke stroke, const PixelRect& window) {
    // Only rectangles have mitred corners, whose tips reach no further than their sides.
    const double reach = stroke.width / 2;
    const PixelRect visible = touchedPixels(toPixels.apply(path.bounds().insetBy(-reach, -reach))).intersection(window);
    if (visible.isEmpty()) return {};

    // The mask moves with whole pixels.
    m_lookup.path = path;
    m_lookup.transform = toPixels.then(Transform::translation(-visible.left, -visible.top));
    m_lookup.stroke = stroke;
    m_lookup.size = {visible.width(), visible.height()};
    MaskRef mask;
    if (const MaskRef* known = m_paths.find(m_lookup)) {
        mask = *known;
    } else {
        mask = std::make_shared<CoverageMask>(makeOutline(path, m_lookup.transform, stroke, m_lookup.size));
        m_paths.insert(m_lookup, mask, mask->byteCount() + path.points().size() * sizeof(Point) + sizeof(PathKey));
    }
    return {std::move(mask), visible.left, visible.top};
}

} // namespace proupsells::rasterbackend

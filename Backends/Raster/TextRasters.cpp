#include "Backends/Raster/TextRasters.hpp"

#include <cmath>
#include <cstring>
#include <limits>

#include "Backends/Raster/Resampling.hpp"
#include "Backends/Raster/TransformedPicture.hpp"

namespace proupsells::rasterbackend {

using geometry::Point;
using geometry::Rect;
using geometry::Transform;

namespace {

constexpr std::size_t textCacheBytes = 24 << 20;
// Glyphs of a larger size are cut off here.
constexpr int largestExtent_px = 8192;

struct GlyphPlace {
    const GlyphShape* shape;
    Point pen; // from the fragment's left end
};

// The glyphs of a fragment where they stand on the line. A ligature that the fragment cuts is there as a whole, and is to be cut.
struct FragmentGlyphs {
    std::vector<GlyphPlace> glyphs;
    double width = 0;
    bool isCutLeft = false, isCutRight = false;
    bool hasPictures = false;
};

class FragmentReader {
public:
    FragmentReader(const RasterShapedText& text, FragmentRange range) : m_text(text), m_range(range) {}

    FragmentGlyphs read() {
        const bool isRightToLeft = m_text.clusters[m_range.first].bidiLevel % 2 == 1;
        std::uint32_t group = std::numeric_limits<std::uint32_t>::max();
        for (std::uint32_t step = 0; step < m_range.end - m_range.first; ++step) {
            const std::uint32_t cluster = isRightToLeft ? m_range.end - 1 - step : m_range.first + step;
            if (m_text.groupStarts[cluster] != group) {
                group = m_text.groupStarts[cluster];
                addGroup(group, isRightToLeft);
            }
            m_result.width += m_text.clusters[cluster].advance;
        }
        return std::move(m_result);
    }

private:
    void addGroup(std::uint32_t group, bool isRightToLeft) {
        std::uint32_t end = group + 1;
        while (end < m_text.clusters.size() && m_text.groupStarts[end] == group) ++end;
        double before = 0, after = 0; // widths of what is not in the fragment, in reading order
        for (std::uint32_t cluster = group; cluster < m_range.first; ++cluster) before += m_text.clusters[cluster].advance;
        for (std::uint32_t cluster = m_range.end; cluster < end; ++cluster) after += m_text.clusters[cluster].advance;
        (isRightToLeft ? m_result.isCutRight : m_result.isCutLeft) |= group < m_range.first;
        (isRightToLeft ? m_result.isCutLeft : m_result.isCutRight) |= end > m_range.end;

        const double left = m_result.width - (isRightToLeft ? after : before);
        for (std::uint32_t index = m_text.glyphStarts[group]; index < m_text.glyphStarts[group + 1]; ++index) {
            const PlacedGlyph& glyph = m_text.glyphs[index];
            m_result.glyphs.push_back({glyph.shape, {left + glyph.x, double(glyph.y)}});
            m_result.hasPictures |= !glyph.shape->picture.isNull();
        }
    }

    const RasterShapedText& m_text;
    const FragmentRange m_range;
    FragmentGlyphs m_result;
};

PixelRect pixelsOf(const FragmentGlyphs& fragment, double size, const Transform& toPixels) {
    Rect touched;
    for (const GlyphPlace& glyph : fragment.glyphs) {
        const Rect box = glyph.shape->picture.isNull() ? glyph.shape->outline.bounds() : glyph.shape->pictureFrame;
        if (!box.isEmpty()) touched = touched.united(scaledBy(box, size).offsetBy(glyph.pen));
    }
    const double left = fragment.isCutLeft ? std::max(0.0, touched.minX()) : touched.minX();
    const double right = fragment.isCutRight ? std::min(fragment.width, touched.maxX()) : touched.maxX();
    if (!(left < right)) return {};
    const PixelRect pixels = touchedPixels(toPixels.apply(Rect{{left, touched.minY()}, {right - left, touched.height()}}));
    return pixels.intersection({-largestExtent_px, -largestExtent_px, largestExtent_px, largestExtent_px});
}

Transform glyphTransform(const GlyphPlace& glyph, double size, const Transform& toPixels) {
    return Transform{size, 0, 0, size, glyph.pen.x, glyph.pen.y}.then(toPixels);
}

void blendAt(Picture& target, const Picture& source, int x, int y) {
    const int left = std::max(x, 0), right = std::min(x + source.width(), target.width());
    if (left >= right) return;
    for (int row = std::max(y, 0); row < std::min(y + source.height(), target.height()); ++row)
        blendPixels(target.row(row) + left, std::size_t(right - left), source.row(row - y) + (left - x), 255);
}

void drawPicture(Picture& target, const PixelRect& pixels, const GlyphPlace& glyph, double size, const Transform& toPixels,
                 CoverageRasterizer& rasterizer) {
    const Transform t = glyphTransform(glyph, size, toPixels).then(Transform::translation(-pixels.left, -pixels.top));
    const Rect& frame = glyph.shape->pictureFrame;
    const Rect shown = t.apply(frame);
    if (t.b != 0 || t.c != 0 || t.a <= 0 || t.d <= 0) return paintTransformed(target, glyph.shape->picture, frame, t, rasterizer);
    const auto side = [](double length) { return int(std::lround(length)); };
    blendAt(target, resampled(glyph.shape->picture, side(shown.width()), side(shown.height())), nearestPixel(shown.minX()),
            nearestPixel(shown.minY()));
}

// A place between pixels, on a grid of quarters.
struct SnappedPlace {
    int pixel, phase;

    explicit SnappedPlace(double place) {
        const double quarters = std::floor(std::clamp(place, -1e8, 1e8) * 4 + 0.5);
        pixel = int(std::floor(quarters / 4));
        phase = int(quarters) - pixel * 4;
    }
};

} // namespace

std::size_t TextRasters::Key::Hash::operator()(const Key& key) const {
    std::size_t hash = key.text * 31 + key.range.first;
    const auto mix = [&hash](std::uint64_t value) {
        hash = (hash ^ value) * 0x9E3779B97F4A7C15u;
        hash ^= hash >> 29;
    };
    mix(key.range.end);
    mix(std::uint64_t(key.phaseX) << 40 | std::uint64_t(key.phaseY) << 36 | key.color);
    for (const double value : key.linear) {
        std::uint64_t bits;
        std::memcpy(&bits, &value, sizeof bits);
        mix(bits);
    }
    return hash;
}

TextRasters::TextRasters(CoverageRasterizer& rasterizer) : m_rasterizer(rasterizer), m_entries(textCacheBytes) {}

TextRaster TextRasters::raster(const RasterShapedText& text, FragmentRange range, Point baseline, const Transform& toPixels,
                               Pixel color) {
    range.end = std::min(range.end, std::uint32_t(text.clusters.size()));
    if (range.first >= range.end) return {};
    const bool isUpright = toPixels.b == 0 && toPixels.c == 0 && toPixels.d > 0;
    const Point place = toPixels.apply(baseline);
    const SnappedPlace x(place.x), y(isUpright ? double(nearestPixel(place.y)) : place.y);
    Key key{text.serial, range, {toPixels.a, toPixels.b, toPixels.c, toPixels.d}, x.phase, y.phase, 0};

    Entry* entry = m_entries.find(key);
    if (entry && !entry->picture.isNull()) {
        key.color = color;
        entry = m_entries.find(key);
    }
    if (!entry) {
        const Transform placed{toPixels.a, toPixels.b, toPixels.c, toPixels.d, x.phase / 4.0, y.phase / 4.0};
        Entry made = make(text, range, placed, color);
        const std::size_t byteCount =
            sizeof(Entry) + sizeof(Key) + (made.mask ? made.mask->byteCount() : 0) + made.picture.byteCount();
        if (!made.picture.isNull()) {
            // The entry without a colour says that there is a picture for each colour.
            if (key.color == 0 && !m_entries.find(key)) m_entries.insert(key, made, 0);
            key.color = color;
            entry = m_entries.find(key);
        }
        if (!entry) entry = &m_entries.insert(key, std::move(made), byteCount);
    }
    return {{entry->mask, x.pixel + entry->x, y.pixel + entry->y}, entry->picture};
}

TextRasters::Entry TextRasters::make(const RasterShapedText& text, FragmentRange range, const Transform& toPixels, Pixel color) {
    const FragmentGlyphs fragment = FragmentReader(text, range).read();
    const double size = text.runs[text.clusters[range.first].run].font.size;
    const PixelRect pixels = pixelsOf(fragment, size, toPixels);
    if (pixels.isEmpty()) return {std::make_shared<CoverageMask>(), {}, 0, 0};

    m_rasterizer.begin(pixels.width(), pixels.height());
    for (const GlyphPlace& glyph : fragment.glyphs)
        m_rasterizer.add(glyph.shape->outline,
                         glyphTransform(glyph, size, toPixels).then(Transform::translation(-pixels.left, -pixels.top)));
    auto mask = std::make_shared<CoverageMask>(m_rasterizer.finish());
    if (!fragment.hasPictures) return {std::move(mask), {}, pixels.left, pixels.top};

    Picture picture(pixels.width(), pixels.height());
    const PlacedMask placed{mask};
    for (int y = 0; y < pixels.height(); ++y) {
        Pixel* row = picture.row(y);
        placed.visitRow(y, 0, pixels.width(), [&](int left, int right, const std::uint8_t* coverages, std::uint8_t shared) {
            if (coverages)
                blendColor(row + left, std::size_t(right - left), color, coverages);
            else
                blendColor(row + left, std::size_t(right - left), color, shared);
        });
    }
    for (const GlyphPlace& glyph : fragment.glyphs)
        if (!glyph.shape->picture.isNull()) drawPicture(picture, pixels, glyph, size, toPixels, m_rasterizer);
    return {std::move(mask), picture, pixels.left, pixels.top};
}

std::shared_ptr<const RasterShapedText> TextRasters::withGlyphs(const std::shared_ptr<const graphics::ShapedText>& text) {
    if (auto ours = std::dynamic_pointer_cast<const RasterShapedText>(text)) return ours;
    const auto found = m_foreignTexts.find(text.get());
    if (found != m_foreignTexts.end() && found->second.original.lock() == text) return found->second.ours;

    constexpr std::size_t cleaningCount = 1024;
    if (m_foreignTexts.size() >= cleaningCount)
        std::erase_if(m_foreignTexts, [](const auto& entry) { return entry.second.original.expired(); });
    ForeignText& entry = m_foreignTexts[text.get()];
    entry = {text, translate(*text)};
    return entry.ours;
}

std::shared_ptr<const RasterShapedText> TextRasters::translate(const graphics::ShapedText& text) {
    const auto shaped =
        std::static_pointer_cast<const RasterShapedText>(m_shaper.shape(text.runs, {}, geometry::LayoutDirection::leftToRight));
    auto result = std::make_shared<RasterShapedText>();
    static_cast<graphics::ShapedText&>(*result) = text;
    result->glyphTables = shaped->glyphTables;
    std::uint32_t source = 0;
    for (std::uint32_t cluster = 0; cluster < text.clusters.size(); ++cluster) {
        result->groupStarts.push_back(cluster);
        result->glyphStarts.push_back(std::uint32_t(result->glyphs.size()));
        const std::uint32_t endOffset = text.clusters[cluster].textOffset + text.clusters[cluster].textLength;
        const std::uint32_t first = source;
        double width = 0;
        for (; source < shaped->clusters.size() && shaped->clusters[source].textOffset < endOffset; ++source)
            width += shaped->clusters[source].advance;
        // Each one's glyphs stand in the middle of its place.
        double x = (text.clusters[cluster].advance - width) / 2;
        for (std::uint32_t index = first; index < source; ++index) {
            for (std::uint32_t glyph = shaped->glyphStarts[index]; glyph < shaped->glyphStarts[index + 1]; ++glyph) {
                PlacedGlyph placed = shaped->glyphs[glyph];
                placed.x += float(x);
                result->glyphs.push_back(placed);
            }
            x += shaped->clusters[index].advance;
        }
    }
    result->glyphStarts.push_back(std::uint32_t(result->glyphs.size()));
    return result;
}

} // namespace proupsells::rasterbackend

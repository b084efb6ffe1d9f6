#include "Backends/Raster/RasterPainter.hpp"

#include <algorithm>
#include <array>
#include <cstring>
#include <functional>
#include <utility>

#include "Backends/Raster/Blending.hpp"
#include "Backends/Raster/CommandPixels.hpp"

namespace proupsells::rasterbackend {

using geometry::Path;
using geometry::Point;
using geometry::Rect;
using geometry::Transform;
using graphics::Command;
using graphics::CommandKind;

namespace {

// Shapes whose corners or curves are larger are made for their place in the window alone.
constexpr double largestShape_px = 2048;
constexpr std::uint32_t longestTextPiece = 256; // clusters
// What is painted over what stays in the processor's cache.
constexpr int bandHeight_px = 128;
constexpr Pixel white = 0xFFFFFFFF;

// Calls paintRow(y, left, right, coverage) for the rows of an area, cut by a rounded clip where there is one.
template <class PaintRow>
void forEachRow(const PixelRect& area, const PlacedMask& clip, PaintRow&& paintRow) {
    for (int y = area.top; y < area.bottom; ++y) {
        if (!clip.mask) {
            paintRow(y, area.left, area.right, std::uint8_t(255));
            continue;
        }
        clip.visitRow(y, area.left, area.right, [&](int left, int right, const std::uint8_t* coverages, std::uint8_t shared) {
            if (!coverages) return paintRow(y, left, right, shared);
            for (int x = left; x < right; ++x)
                if (coverages[x - left] > 0) paintRow(y, x, x + 1, coverages[x - left]);
        });
    }
}

// Whether points are mapped by one positive factor and moved, nothing else.
bool isUniform(const Transform& toPixels) {
    return toPixels.b == 0 && toPixels.c == 0 && toPixels.a == toPixels.d && toPixels.a > 0;
}

bool isFill(CommandKind kind) {
    return kind == CommandKind::fillRectangle || kind == CommandKind::fillRoundedRectangle || kind == CommandKind::fillEllipse ||
           kind == CommandKind::fillPath;
}

} // namespace

// Painting a part of the target.
struct RasterPainter::Job {
    Pixel* pixels;
    std::ptrdiff_t pixelsPerRow;
    const graphics::DisplayList& list;
    const double scale;
    const PixelRect region;
    const int end; // where the last band that is painted in turn ends
    const PixelRect window;
    const Pixel ground; // below everything
    // Where nothing is painted yet, not even the ground: a picture is painted together with what is below it.
    PixelRect bare;

    Pixel* row(int y) const { return pixels + y * pixelsPerRow; }

    // Before something is painted over a part.
    void paintGround(const PixelRect& part) {
        const PixelRect touched = part.intersection(bare);
        if (takeBare(touched)) fill(touched);
    }
    // Whether the whole part is bare; then it counts as painted, and whoever asks must do so.
    bool takeBare(const PixelRect& part) {
        if (part.isEmpty() || !bare.contains(part)) return false;
        std::array<PixelRect, 4> around = {{{bare.left, bare.top, bare.right, part.top},
                                            {bare.left, part.bottom, bare.right, bare.bottom},
                                            {bare.left, part.top, part.left, part.bottom},
                                            {part.right, part.top, bare.right, part.bottom}}};
        const auto area = [](const PixelRect& rect) { return rect.isEmpty() ? 0 : rect.width() * rect.height(); };
        std::sort(around.begin(), around.end(), [&](const auto& a, const auto& b) { return area(a) < area(b); });
        bare = around.back();
        std::for_each(around.begin(), around.end() - 1, [&](const PixelRect& rect) { fill(rect); });
        return true;
    }

private:
    void fill(const PixelRect& rect) const {
        if (rect.isEmpty()) return;
        for (int y = rect.top; y < rect.bottom; ++y) blendColor(row(y) + rect.left, std::size_t(rect.width()), ground, 255);
    }
};

// One command, in pixels.
struct RasterPainter::Item {
    const Command& command;
    Transform toPixels;
    PixelRect area; // nothing is painted outside; within the region
    PlacedMask clip;
    std::uint8_t opacity = 255;

    Rect frame() const { return toPixels.apply(command.frame); }
    double factor() const { return toPixels.a; }

    template <class PaintRow>
    void paintRows(Job& job, const PixelRect& extent, PaintRow&& paintRow) const {
        const PixelRect visible = area.intersection(extent);
        if (visible.isEmpty()) return;
        job.paintGround(visible);
        forEachRow(visible, clip, paintRow);
    }

    void paintColor(Job& job, const PixelRect& extent, Pixel color) const {
        paintRows(job, extent, [&](int y, int left, int right, std::uint8_t coverage) {
            blendColor(job.row(y) + left, std::size_t(right - left), color, coverage);
        });
    }

    void paintMask(Job& job, const PlacedMask& mask, Pixel color) const {
        if (!mask.mask || mask.mask->isEmpty()) return;
        const PixelRect extent{job.window.left, mask.top(), job.window.right, mask.bottom()};
        paintRows(job, extent, [&](int y, int left, int right, std::uint8_t coverage) {
            Pixel* row = job.row(y);
            const Pixel covered = coverage == 255 ? color : scaled(color, coverage);
            mask.visitRow(y, left, right, [&](int from, int to, const std::uint8_t* coverages, std::uint8_t shared) {
                if (coverages)
                    blendColor(row + from, std::size_t(to - from), covered, coverages);
                else
                    blendColor(row + from, std::size_t(to - from), covered, shared);
            });
        });
    }

    void paintPixels(Job& job, const Picture& picture, int x, int y, bool isOpaque) const {
        const PixelRect extent{x, y, x + picture.width(), y + picture.height()};
        paintPixels(job, picture, extent, isOpaque, takesGround(job, extent));
    }

    // Tile by tile where they are not kept. False where one cannot be read; its place stays as it is.
    bool paintFile(Job& job, FilePicture& picture, int x, int y) const {
        const PixelSize size = picture.tiles().picture;
        const PixelRect extent{x, y, x + size.width, y + size.height};
        const bool isBare = takesGround(job, extent);
        FilePicture::Reader reader(picture);
        const PixelRect part = area.intersection(extent).moved(-x, -y);
        if (const Picture kept = reader.kept(part); !kept.isNull()) {
            paintPixels(job, kept, extent, picture.isOpaque(), isBare);
            return true;
        }
        bool isRead = true;
        picture.tiles().forEachTouched(part, [&](int index, const PixelRect& rect) {
            const bool goesOn = rect.bottom + y > job.region.bottom && job.region.bottom < job.end;
            const Picture tile = reader.tile(index, goesOn);
            isRead = isRead && !tile.isNull();
            if (!tile.isNull())
                paintPixels(job, tile, rect.moved(x, y), picture.isOpaque(), isBare);
            else if (isBare)
                paintColor(job, rect.moved(x, y), job.ground);
        });
        return isRead;
    }

private:
    bool takesGround(Job& job, const PixelRect& extent) const { return !clip.mask && job.takeBare(area.intersection(extent)); }

    void paintPixels(Job& job, const Picture& picture, const PixelRect& extent, bool isOpaque, bool isBare) const {
        paintRows(job, extent, [&](int y, int left, int right, std::uint8_t coverage) {
            const Pixel* from = picture.row(y - extent.top) + (left - extent.left);
            const std::uint8_t factor = scaledByte(opacity, coverage);
            Pixel* to = job.row(y) + left;
            const std::size_t count = std::size_t(right - left);
            if (isOpaque && factor == 255)
                std::memcpy(to, from, count * sizeof(Pixel));
            else if (isBare)
                blendPixels(to, count, from, factor, job.ground);
            else
                blendPixels(to, count, from, factor);
        });
    }
};

const std::shared_ptr<RasterPainter>& RasterPainter::shared() {
    static const auto painter = std::make_shared<RasterPainter>();
    return painter;
}

void RasterPainter::paint(const PaintTarget& target, const graphics::DisplayList& list, double scale,
                          std::span<const PixelRect> regions) {
    for (const PixelRect& region : regions)
        for (int top = region.top; top < region.bottom; top += bandHeight_px)
            paintBand(target, list, scale, {region.left, top, region.right, std::min(region.bottom, top + bandHeight_px)},
                      region.bottom);
    m_images.endPainting();
}

void RasterPainter::paintBand(const PaintTarget& target, const graphics::DisplayList& list, double scale, const PixelRect& band,
                              int end) {
    std::size_t first = list.commands.size();
    while (first > 0 && !hiddenPixels(list.commands[first - 1], scale).contains(band)) --first;
    const Pixel ground = first > 0 ? premultiplied(list.commands[first - 1].color, 255) : white;
    Job job{target.pixels, target.pixelsPerRow, list, scale, band, end, {0, 0, target.size.width, target.size.height}, ground,
            band};
    for (; first < list.commands.size(); ++first) paintCommand(job, list.commands[first]);
    job.paintGround(band);
}

void RasterPainter::paintCommand(Job& job, const Command& command) {
    Item item{command, {}, paintedPixels(command, job.scale, job.region), {}, opacityFactor(command.opacity)};
    if (item.area.isEmpty() || item.opacity == 0) return;

    const Transform toPixels = Transform::scaling(job.scale, job.scale);
    const bool hasTransform = command.transform >= 0 && std::size_t(command.transform) < job.list.transforms.size();
    item.toPixels = hasTransform ? job.list.transforms[std::size_t(command.transform)].then(toPixels) : toPixels;
    if (command.clipRadius > 0) {
        const PixelRect clip = nearestPixels(scaledBy(command.roundedClip, job.scale));
        if (clip.isEmpty()) return;
        item.clip = m_shapes.roundedRectangle(
            {{double(clip.left), double(clip.top)}, {double(clip.width()), double(clip.height())}},
            std::min(command.clipRadius * job.scale, largestShape_px), geometry::CornerStyle::circular, 0);
    }
    switch (command.kind) {
    case CommandKind::text: return paintText(job, item);
    case CommandKind::image:
    case CommandKind::bitmap: return paintImage(job, item);
    default: return paintShape(job, item);
    }
}

void RasterPainter::paintShape(Job& job, const Item& item) {
    const Pixel color = premultiplied(item.command.color, item.opacity);
    if (item.command.kind == CommandKind::fillRectangle && isUniform(item.toPixels)) {
        const PixelRect covered = coveredPixels(item.frame());
        if (covered == touchedPixels(item.frame())) return item.paintColor(job, covered, color);
    }
    item.paintMask(job, shapeMask(job, item), color);
}

PlacedMask RasterPainter::shapeMask(const Job& job, const Item& item) {
    const Command& command = item.command;
    const Rect frame = item.frame();
    const double lineWidth = isFill(command.kind) ? 0 : command.lineWidth * item.factor();
    if (command.kind == CommandKind::shadow)
        return m_shapes.shadow(frame, std::min(command.blurRadius * std::abs(item.factor()), 500.0));
    if (!isUniform(item.toPixels) || lineWidth > largestShape_px) return outlineMask(job, item);

    const double radius = std::min({command.cornerRadius * item.factor(), frame.width() / 2, frame.height() / 2});
    switch (command.kind) {
    case CommandKind::fillRectangle: return m_shapes.roundedRectangle(frame, 0, geometry::CornerStyle::circular, 0);
    case CommandKind::fillRoundedRectangle:
    case CommandKind::strokeRoundedRectangle:
        if (radius > largestShape_px) return outlineMask(job, item);
        return m_shapes.roundedRectangle(frame, radius, command.cornerStyle, lineWidth);
    case CommandKind::fillEllipse:
    case CommandKind::strokeEllipse:
        if (std::max(frame.width(), frame.height()) > largestShape_px) return outlineMask(job, item);
        return m_shapes.ellipse(frame, lineWidth);
    default: return outlineMask(job, item);
    }
}

PlacedMask RasterPainter::outlineMask(const Job& job, const Item& item) {
    const Command& command = item.command;
    const bool isPath = command.kind == CommandKind::fillPath || command.kind == CommandKind::strokePath;
    const Stroke stroke{isFill(command.kind) ? 0 : command.lineWidth, isPath ? LineJoin::round : LineJoin::mitred};
    const auto mask = [&](const Path& path) { return m_shapes.path(path, item.toPixels, stroke, job.window); };
    if (isPath) {
        const Path* path = resourceOf(job.list.paths, command);
        return path ? mask(*path) : PlacedMask{};
    }
    const bool isEllipse = command.kind == CommandKind::fillEllipse || command.kind == CommandKind::strokeEllipse;
    return mask(isEllipse ? Path::ellipse(command.frame)
                          : Path::roundedRectangle(command.frame, command.cornerRadius, command.cornerStyle));
}

void RasterPainter::paintText(Job& job, const Item& item) {
    const std::shared_ptr<const graphics::ShapedText>* shaped = resourceOf(job.list.texts, item.command);
    if (!shaped || !*shaped) return;
    const std::shared_ptr<const RasterShapedText> text = m_texts.withGlyphs(*shaped);
    const std::uint32_t end = std::min(item.command.endCluster, std::uint32_t(text->clusters.size()));
    if (item.command.firstCluster >= end) return;

    // A line that nobody has broken is painted in pieces, so that only those in sight are made.
    const bool isRightToLeft = text->clusters[item.command.firstCluster].bidiLevel % 2 == 1;
    const std::uint32_t pieceCount = (end - item.command.firstCluster + longestTextPiece - 1) / longestTextPiece;
    Point baseline = item.command.frame.origin;
    for (std::uint32_t piece = 0; piece < pieceCount; ++piece) {
        const std::uint32_t index = isRightToLeft ? pieceCount - 1 - piece : piece;
        const std::uint32_t first = item.command.firstCluster + index * longestTextPiece;
        const FragmentRange range{first, std::min(end, first + longestTextPiece)};
        paintTextPiece(job, item, *text, range, baseline);
        for (std::uint32_t cluster = range.first; cluster < range.end; ++cluster) baseline.x += text->clusters[cluster].advance;
    }
}

void RasterPainter::paintTextPiece(Job& job, const Item& item, const RasterShapedText& text, FragmentRange range, Point baseline) {
    if (item.command.endCluster - item.command.firstCluster > longestTextPiece) {
        double width = 0;
        for (std::uint32_t cluster = range.first; cluster < range.end; ++cluster) width += text.clusters[cluster].advance;
        const double size = text.runs[text.clusters[range.first].run].font.size;
        const Rect reach{{baseline.x - size, baseline.y - 2 * size}, {width + 2 * size, 4 * size}};
        if (touchedPixels(item.toPixels.apply(reach)).intersection(item.area).isEmpty()) return;
    }
    // A picture of emoji has the text's colour in it already, but not the opacity.
    const TextRaster raster = m_texts.raster(text, range, baseline, item.toPixels, premultiplied(item.command.color, 255));
    if (!raster.picture.isNull()) return item.paintPixels(job, raster.picture, raster.mask.x, raster.mask.y, false);
    item.paintMask(job, raster.mask, premultiplied(item.command.color, item.opacity));
}

void RasterPainter::paintImage(Job& job, const Item& item) {
    const Command& command = item.command;
    const graphics::ImageRef* image = command.kind == CommandKind::image ? resourceOf(job.list.images, command) : nullptr;
    const auto* bitmap = command.kind == CommandKind::bitmap ? resourceOf(job.list.bitmaps, command) : nullptr;
    if (!(image && *image) && !(bitmap && *bitmap)) return;

    const PixelRect place = imagePixels(command, job.scale);
    const PixelSize size{place.width(), place.height()};
    const ImageRaster& raster =
        image ? m_images.image(**image, command.scheme, size, command.transform >= 0) : m_images.bitmap(*bitmap, size);
    if (raster.pixels.isNull() && !raster.file) return;

    const auto paintRaster = [&](const ImageRaster& shown, int x, int y) {
        if (shown.file) {
            if (!item.paintFile(job, *shown.file, x, y)) m_images.report(shown.file->path());
        } else if (shown.coverage)
            item.paintMask(job, {shown.coverage, x, y}, premultiplied(command.color, item.opacity));
        else
            item.paintPixels(job, shown.pixels, x, y, shown.isOpaque);
    };
    if (command.transform < 0) return paintRaster(raster, place.left, place.top);
    const ImageRaster shown = m_images.transformed(raster, command.frame, item.toPixels, job.window);
    if (!shown.pixels.isNull()) paintRaster(shown, shown.x, shown.y);
}

void RasterPainter::prepareAhead(const graphics::DisplayList& list, double scale) {
    for (const auto& commands : {std::cref(list.commands), std::cref(list.ahead)})
        for (const Command& command : commands.get()) prepareImage(list, command, scale);
}

void RasterPainter::prepareImage(const graphics::DisplayList& list, const Command& command, double scale) {
    const graphics::ImageRef* image = command.kind == CommandKind::image ? resourceOf(list.images, command) : nullptr;
    if (!image || !*image || command.transform >= 0) return;
    const PixelRect place = imagePixels(command, scale);
    const ImageRaster& raster = m_images.image(**image, command.scheme, {place.width(), place.height()}, false);
    if (!raster.file) return;
    const PixelRect seen = touchedPixels(scaledBy(command.clip.intersection(command.frame), scale));
    m_images.prepare(raster, seen.moved(-place.left, -place.top));
}

} // namespace proupsells::rasterbackend

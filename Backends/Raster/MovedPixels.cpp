#include "Backends/Raster/MovedPixels.hpp"

#include <algorithm>
#include <cstdlib>

#include "Backends/Raster/CommandPixels.hpp"

namespace proupsells::rasterbackend {

using graphics::Command;
using graphics::CommandKind;

namespace {

// A command that is new hides at most so many others that have moved from the search for its counterpart.
constexpr std::size_t furthestCounterpart = 32;
// Below this a copy saves nothing worth a search.
constexpr int leastArea_px = 64 * 64;

long long areaOf(const PixelRect& rect) { return rect.isEmpty() ? 0 : (long long)(rect.width()) * rect.height(); }

template <class Resource>
bool sharesResource(const std::vector<Resource>& inBefore, const Command& before, const std::vector<Resource>& inAfter,
                    const Command& after) {
    const Resource *first = resourceOf(inBefore, before), *second = resourceOf(inAfter, after);
    return first && second && *first == *second;
}

// Whether numbers of pixels differ by exactly so many. One of the two sums is exact, whatever the numbers are.
bool isFurther(double before, double after, int by) { return before + by == after && after - by == before; }

bool isFurther(const geometry::Rect& before, const geometry::Rect& after, PixelOffset by) {
    return isFurther(before.minX(), after.minX(), by.x) && isFurther(before.minY(), after.minY(), by.y) &&
           isFurther(before.maxX(), after.maxX(), by.x) && isFurther(before.maxY(), after.maxY(), by.y);
}

bool isPicture(const Command& command) {
    return (command.kind == CommandKind::image || command.kind == CommandKind::bitmap) && command.transform < 0;
}

} // namespace

MovedPixels MoveFinder::find(const graphics::DisplayList& before, const graphics::DisplayList& after, double scale,
                             const PixelRect& damage) {
    m_before = &before;
    m_after = &after;
    m_scale = scale;
    m_repainted.clear();
    if (areaOf(damage) < leastArea_px) return {};
    m_offset = offsetOfLargestPicture(damage);
    if (m_offset == PixelOffset{}) return {};
    const PixelRect to = damage.intersection(damage.moved(m_offset.x, m_offset.y));
    if (to.isEmpty()) return {};

    place(*m_before, m_offset, to, m_placedBefore);
    place(*m_after, {}, to, m_placedAfter);
    matchInOrder();
    // What has come in at the sides.
    repaint({damage.left, damage.top, damage.right, to.top});
    repaint({damage.left, to.bottom, damage.right, damage.bottom});
    repaint({damage.left, to.top, to.left, to.bottom});
    repaint({to.right, to.top, damage.right, to.bottom});
    return isWorthIt(damage) ? MovedPixels{to, m_offset} : MovedPixels{};
}

// By how much it has moved since, or nothing. Of several equal pictures before, the nearest one is meant.
PixelOffset MoveFinder::offsetOfLargestPicture(const PixelRect& damage) const {
    PixelOffset offset;
    long long largest = leastArea_px;
    for (const Command& after : m_after->commands) {
        if (!isPicture(after)) continue;
        const long long area = areaOf(paintedPixels(after, m_scale, damage));
        if (area < largest) continue;
        const PixelRect place = imagePixels(after, m_scale);
        long long nearest = (long long)(damage.width()) + damage.height();
        for (const Command& before : m_before->commands) {
            if (before.kind != after.kind || before.transform >= 0 || !looksTheSame(before, after)) continue;
            const PixelRect former = imagePixels(before, m_scale);
            const PixelOffset by{place.left - former.left, place.top - former.top};
            const long long distance = std::abs(by.x) + std::abs(by.y);
            if (former.moved(by.x, by.y) != place || distance >= nearest) continue;
            nearest = distance;
            largest = area;
            offset = by;
        }
    }
    return offset;
}

void MoveFinder::place(const graphics::DisplayList& list, PixelOffset by, const PixelRect& part,
                       std::vector<Placed>& placed) const {
    placed.clear();
    for (const Command& command : list.commands) {
        PixelRect area = paintedPixels(command, m_scale, part.moved(-by.x, -by.y));
        if (isPicture(command)) area = area.intersection(imagePixels(command, m_scale));
        if (!area.isEmpty() && command.opacity > 0) placed.push_back({&command, area.moved(by.x, by.y)});
    }
}

// Commands that both lists have, in the same order, paint the same wherever no other command paints.
void MoveFinder::matchInOrder() {
    std::size_t next = 0;
    const auto repaintBefore = [&](std::size_t end) {
        for (; next < end; ++next) repaint(m_placedBefore[next].area);
    };
    for (const Placed& after : m_placedAfter) {
        const std::size_t end = std::min(m_placedBefore.size(), next + furthestCounterpart);
        std::size_t index = next;
        while (index < end && !isMoved(m_placedBefore[index], after)) ++index;
        if (index == end) {
            repaint(after.area);
            continue;
        }
        repaintBefore(index);
        const Command &clippedBefore = *m_placedBefore[next].command, &clippedAfter = *after.command;
        if (!hasClipOfBefore(clippedBefore, clippedAfter)) {
            repaintCorners(clippedBefore, m_offset, after.area);
            repaintCorners(clippedAfter, {}, after.area);
        }
        ++next;
    }
    repaintBefore(m_placedBefore.size());
}

bool MoveFinder::isMoved(const Placed& before, const Placed& after) const {
    return before.area == after.area && before.command->kind == after.command->kind && before.command->transform < 0 &&
           after.command->transform < 0 && looksTheSame(*before.command, *after.command) &&
           isAtOffset(*before.command, *after.command, after.area);
}

bool MoveFinder::looksTheSame(const Command& before, const Command& after) const {
    if (before.color != after.color || before.opacity != after.opacity || before.clipRadius != after.clipRadius) return false;
    switch (after.kind) {
    case CommandKind::image:
        return before.scheme == after.scheme && sharesResource(m_before->images, before, m_after->images, after);
    case CommandKind::bitmap: return sharesResource(m_before->bitmaps, before, m_after->bitmaps, after);
    case CommandKind::text:
        return before.firstCluster == after.firstCluster && before.endCluster == after.endCluster &&
               sharesResource(m_before->texts, before, m_after->texts, after);
    // To compare outlines costs as much as to paint them.
    case CommandKind::fillPath:
    case CommandKind::strokePath: return false;
    default:
        return before.cornerRadius == after.cornerRadius && before.cornerStyle == after.cornerStyle &&
               before.lineWidth == after.lineWidth && before.blurRadius == after.blurRadius;
    }
}

// Whether what looks the same is the same in an area: shapes and texts only where they lie alike between pixels. A rounded clip may
// move along, or stay, except for its corners.
bool MoveFinder::isAtOffset(const Command& before, const Command& after, const PixelRect& area) const {
    const bool isClipKept = pixels(before.roundedClip) == pixels(after.roundedClip);
    if (!isClipKept && !hasClipOfBefore(before, after)) return false;
    if (isPicture(after)) return imagePixels(before, m_scale).moved(m_offset.x, m_offset.y) == imagePixels(after, m_scale);
    const geometry::Rect from = scaledBy(before.frame, m_scale), to = scaledBy(after.frame, m_scale);
    // A ground that fills the area may well have stayed.
    if (after.kind == CommandKind::fillRectangle && coveredPixels(from).moved(m_offset.x, m_offset.y).contains(area) &&
        coveredPixels(to).contains(area))
        return true;
    return isFurther(from, to, m_offset);
}

bool MoveFinder::hasClipOfBefore(const Command& before, const Command& after) const {
    return pixels(before.roundedClip, m_offset) == pixels(after.roundedClip);
}

void MoveFinder::repaintCorners(const Command& clipped, PixelOffset by, const PixelRect& area) {
    const PixelRect clip = pixels(clipped.roundedClip, by);
    const int radius = ceilPixel(clipped.clipRadius * m_scale);
    for (const int left : {clip.left, clip.right - radius})
        for (const int top : {clip.top, clip.bottom - radius})
            repaint(PixelRect{left, top, left + radius, top + radius}.intersection(area));
}

void MoveFinder::repaint(const PixelRect& rect) {
    const bool isKnown =
        std::any_of(m_repainted.begin(), m_repainted.end(), [&](const auto& known) { return known.contains(rect); });
    if (!rect.isEmpty() && !isKnown) m_repainted.push_back(rect);
}

PixelRect MoveFinder::pixels(const geometry::Rect& rect, PixelOffset by) const {
    return nearestPixels(scaledBy(rect, m_scale)).moved(by.x, by.y);
}

// Whoever paints most of it again had better not read it first.
bool MoveFinder::isWorthIt(const PixelRect& damage) const {
    long long repainted = 0;
    for (const PixelRect& rect : m_repainted) repainted += areaOf(rect);
    return repainted * 2 < areaOf(damage);
}

} // namespace proupsells::rasterbackend

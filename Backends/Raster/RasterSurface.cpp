#include "Backends/Raster/RasterSurface.hpp"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>

#include "Backends/Raster/CommandPixels.hpp"
#include "Backends/Raster/MovedPixels.hpp"
#include "Backends/Raster/RasterPainter.hpp"

namespace proupsells::rasterbackend {

namespace {

// What is left of a rectangle beside a stripe that crosses it at its top or bottom, else all of it.
PixelRect without(PixelRect rect, const PixelRect& stripe) {
    if (stripe.intersection(rect).isEmpty() || stripe.left > rect.left || stripe.right < rect.right) return rect;
    if (stripe.top <= rect.top)
        rect.top = stripe.bottom;
    else if (stripe.bottom >= rect.bottom)
        rect.bottom = stripe.top;
    return rect;
}

// Rectangles that do not overlap stay so.
void unite(std::vector<PixelRect>& rectangles, PixelRect rect) {
    for (std::size_t index = 0; index < rectangles.size();) {
        if (rectangles[index].intersection(rect).isEmpty()) {
            ++index;
            continue;
        }
        rect = rect.united(rectangles[index]);
        rectangles.erase(rectangles.begin() + std::ptrdiff_t(index));
        index = 0;
    }
    rectangles.push_back(rect);
}

// Row by row, so that none is written over before it is read.
void copyPixels(const PaintTarget& target, const MovedPixels& moved) {
    const PixelRect from = moved.from();
    const auto row = [&](int index) {
        const auto at = [&](const PixelRect& rect) { return target.pixels + (rect.top + index) * target.pixelsPerRow + rect.left; };
        std::memmove(at(moved.to), at(from), std::size_t(from.width()) * sizeof(Pixel));
    };
    if (moved.by.y > 0)
        for (int index = from.height() - 1; index >= 0; --index) row(index);
    else
        for (int index = 0; index < from.height(); ++index) row(index);
}

} // namespace

RasterSurface::RasterSurface() : RasterSurface(RasterPainter::shared()) {}

RasterSurface::RasterSurface(std::shared_ptr<RasterPainter> painter)
    : m_painter(std::move(painter)), m_moveFinder(std::make_unique<MoveFinder>()) {}

RasterSurface::~RasterSurface() = default;

PixelSize pixelSize(geometry::Size size, double scale) {
    return {std::max(0, ceilPixel(size.width * scale)), std::max(0, ceilPixel(size.height * scale))};
}

void RasterSurface::lend(const std::optional<PixelBuffer>& buffer, bool holdsShown) {
    if (buffer == m_buffer) return;
    m_buffer = buffer;
    if (holdsShown) return;
    m_picture = {};
    forgetShown();
}

// The painter writes 32-bit numbers in the machine's order.
bool RasterSurface::paintsDirectly() const {
    return m_buffer && m_buffer->format != PixelFormat::rgba && std::endian::native == std::endian::little &&
           m_buffer->bytesPerRow % std::ptrdiff_t(sizeof(Pixel)) == 0 &&
           reinterpret_cast<std::uintptr_t>(m_buffer->pixels) % alignof(Pixel) == 0;
}

PixelSize RasterSurface::sizeOfTarget(geometry::Size size, double scale) const {
    const PixelSize wanted = pixelSize(size, scale);
    if (!m_buffer) return wanted;
    return {std::min(wanted.width, m_buffer->width), std::min(wanted.height, m_buffer->height)};
}

void RasterSurface::present(const graphics::DisplayList& list, geometry::Size size, double scale) {
    m_damage.clear();
    const PixelSize pixels = sizeOfTarget(size, scale);
    const PixelRect window{0, 0, pixels.width, pixels.height};
    const bool isShown = size == m_size && scale == m_scale;
    if (!isShown) {
        m_size = size;
        m_scale = scale;
        m_picture = paintsDirectly() ? Picture{} : Picture::unwritten(pixels.width, pixels.height);
        if (!window.isEmpty()) m_damage.push_back(window);
    } else {
        findDamagedPixels(list, window);
    }
    if (window.isEmpty()) return;

    const PaintTarget target = paintsDirectly() ? PaintTarget{static_cast<Pixel*>(m_buffer->pixels),
                                                              m_buffer->bytesPerRow / std::ptrdiff_t(sizeof(Pixel)), pixels}
                                                : PaintTarget{m_picture.row(0), pixels.width, pixels};
    if (isShown) movePixels(list, target);
    m_painter->paint(target, list, scale, isShown ? m_painted : m_damage);
    if (m_buffer && !paintsDirectly())
        for (const PixelRect& rect : m_damage) copyToBuffer(rect);
    m_shown = list;
}

void RasterSurface::prepareAhead() {
    if (m_scale > 0) m_painter->prepareAhead(m_shown, m_scale);
}

void RasterSurface::findDamagedPixels(const graphics::DisplayList& list, const PixelRect& window) {
    graphics::findDamage(m_shown, list, m_damagedPoints);
    for (const geometry::Rect& rect : m_damagedPoints) {
        const PixelRect touched = touchedPixels(scaledBy(rect, m_scale)).intersection(window);
        // Rectangles that do not overlap in points may do so in pixels.
        if (!touched.isEmpty()) unite(m_damage, touched);
    }
    leaveOutHiddenDamage(list);
}

// What stands unchanged over everything else hides what changes below it, as a bar at the edge does while the content scrolls.
void RasterSurface::leaveOutHiddenDamage(const graphics::DisplayList& list) {
    const std::size_t common = std::min(m_shown.commands.size(), list.commands.size());
    for (std::size_t fromEnd = 1; fromEnd <= common; ++fromEnd) {
        const graphics::Command &shown = m_shown.commands[m_shown.commands.size() - fromEnd],
                                &next = list.commands[list.commands.size() - fromEnd];
        if (!graphics::paintsTheSame(m_shown, shown, list, next)) break;
        const PixelRect hidden = hiddenPixels(next, m_scale);
        for (PixelRect& rect : m_damage) rect = without(rect, hidden);
    }
    std::erase_if(m_damage, [](const PixelRect& rect) { return rect.isEmpty(); });
}

// What is on the screen already and only goes to another place is copied; the rest of the damage is painted.
void RasterSurface::movePixels(const graphics::DisplayList& list, const PaintTarget& target) {
    m_painted.clear();
    for (const PixelRect& rect : m_damage) {
        const MovedPixels moved = m_moveFinder->find(m_shown, list, m_scale, rect);
        if (moved.to.isEmpty()) {
            m_painted.push_back(rect);
            continue;
        }
        copyPixels(target, moved);
        for (const PixelRect& repainted : m_moveFinder->repainted()) unite(m_painted, repainted);
    }
}

void RasterSurface::copyToBuffer(const PixelRect& rect) const {
    const bool redFirst = m_buffer->format == PixelFormat::rgba;
    for (int y = rect.top; y < rect.bottom; ++y) {
        auto* to = static_cast<std::uint8_t*>(m_buffer->pixels) + y * m_buffer->bytesPerRow + std::ptrdiff_t(rect.left) * 4;
        for (int x = rect.left; x < rect.right; ++x, to += 4) {
            const Pixel pixel = m_picture.row(y)[x];
            const std::uint8_t red = std::uint8_t(pixel >> 16), green = std::uint8_t(pixel >> 8), blue = std::uint8_t(pixel);
            to[0] = redFirst ? red : blue;
            to[1] = green;
            to[2] = redFirst ? blue : red;
            to[3] = alphaOf(pixel);
        }
    }
}

} // namespace proupsells::rasterbackend

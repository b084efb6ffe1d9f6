#include "Backends/Raster/CoverageRasterizer.hpp"

#include <algorithm>
#include <cmath>

namespace proupsells::rasterbackend {

using geometry::Path;
using geometry::Point;

void CoverageRasterizer::begin(int width, int height) {
    m_width = width;
    m_height = height;
    m_cells.resize(std::max(m_cells.size(), std::size_t(m_width + 2) * std::size_t(m_height)));
    m_extents.assign(std::size_t(m_height), {m_width + 2, 0});
    m_row.resize(std::size_t(m_width));
}

void CoverageRasterizer::add(const Path& path, const geometry::Transform& toPixels) {
    Point start, current;
    std::size_t next = 0;
    const auto point = [&] { return toPixels.apply(path.points()[next++]); };
    for (const Path::Verb verb : path.verbs()) {
        switch (verb) {
        case Path::Verb::move:
            addLine(current, start);
            start = current = point();
            break;
        case Path::Verb::line: {
            const Point to = point();
            addLine(current, to);
            current = to;
            break;
        }
        case Path::Verb::cubic: {
            const Point control1 = point(), control2 = point(), to = point();
            addCubic(current, control1, control2, to);
            current = to;
            break;
        }
        case Path::Verb::close:
            addLine(current, start);
            current = start;
            break;
        }
    }
    addLine(current, start);
}

void CoverageRasterizer::addCubic(Point from, Point control1, Point control2, Point to) {
    constexpr double tolerance_px = 0.008;
    constexpr double mostSteps = 200;
    const Point bend1 = from - control1 - (control1 - control2), bend2 = control1 - control2 - (control2 - to);
    const double bend = std::sqrt(std::max(bend1.x * bend1.x + bend1.y * bend1.y, bend2.x * bend2.x + bend2.y * bend2.y));
    // A chord of an n-th of the curve strays from it by at most 6·bend / (8·n²).
    const double wanted = std::sqrt(0.75 * bend / tolerance_px) + 1;
    // Of curves that lead nowhere, too, whose lines are left out.
    const int steps = int(std::fmin(wanted, mostSteps));
    Point previous = from;
    for (int step = 1; step < steps; ++step) {
        const double t = double(step) / steps, u = 1 - t;
        const double a = u * u * u, b = 3 * u * u * t, c = 3 * u * t * t, d = t * t * t;
        const Point next{a * from.x + b * control1.x + c * control2.x + d * to.x,
                         a * from.y + b * control1.y + c * control2.y + d * to.y};
        addLine(previous, next);
        previous = next;
    }
    addLine(previous, to);
}

void CoverageRasterizer::addLine(Point from, Point to) {
    if (from.y == to.y || !std::isfinite(from.x + from.y + to.x + to.y)) return;
    const double sign = from.y < to.y ? 1 : -1;
    const Point top = sign > 0 ? from : to, bottom = sign > 0 ? to : from;
    const double slope = (bottom.x - top.x) / (bottom.y - top.y);
    const double firstY = std::max(top.y, 0.0), endY = std::min(bottom.y, double(m_height));
    if (!(firstY < endY)) return;

    double x = top.x + (firstY - top.y) * slope, y = firstY;
    for (int row = int(firstY); y < endY; ++row) {
        const double nextY = std::min(endY, double(row + 1));
        const double nextX = nextY == bottom.y ? bottom.x : top.x + (nextY - top.y) * slope;
        addInRow(row, x, nextX, sign * (nextY - y));
        x = nextX;
        y = nextY;
    }
}

// A piece of a line within one row, cut at the rectangle's sides. Left of it, it still decides over the whole row.
void CoverageRasterizer::addInRow(int y, double fromX, double toX, double height) {
    const double left = std::min(fromX, toX), right = std::max(fromX, toX), width = m_width;
    if (left >= width) return;
    if (left >= 0 && right <= width) return addInside(y, left, right, height);
    if (right <= 0) return addInside(y, 0, 0, height);

    const double perPoint = height / (right - left);
    const double insideLeft = std::max(left, 0.0), insideRight = std::min(right, width);
    if (left < 0) addInside(y, 0, 0, -left * perPoint);
    addInside(y, insideLeft, insideRight, (insideRight - insideLeft) * perPoint);
}

void CoverageRasterizer::addInside(int y, double left, double right, double height) {
    float* row = m_cells.data() + std::size_t(y) * std::size_t(m_width + 2);
    RowExtent& extent = m_extents[std::size_t(y)];
    const int first = int(left);
    int last = int(right);
    if (last > first && last == right) --last; // the right edge itself is outside
    extent.first = std::min(extent.first, first);
    extent.end = std::max(extent.end, last + 2);
    if (first == last) {
        const double share = (left + right) / 2 - first; // of the height that the next pixel gets
        row[first] += float(height * (1 - share));
        row[first + 1] += float(height * share);
        return;
    }
    const double perPoint = height / (right - left);
    for (int x = first; x <= last; ++x) {
        const double from = std::max(left, double(x)), to = std::min(right, double(x + 1));
        const double piece = (to - from) * perPoint, share = (from + to) / 2 - x;
        row[x] += float(piece * (1 - share));
        row[x + 1] += float(piece * share);
    }
}

CoverageMask CoverageRasterizer::finish() {
    CoverageMask mask;
    for (int y = 0; y < m_height; ++y) {
        const RowExtent extent = m_extents[std::size_t(y)];
        if (extent.first >= extent.end) {
            mask.appendRow({});
            continue;
        }
        float* cells = m_cells.data() + std::size_t(y) * std::size_t(m_width + 2);
        std::fill(m_row.begin(), m_row.begin() + std::min(extent.first, m_width), std::uint8_t(0));
        float sum = 0;
        int end = extent.first;
        for (; end < std::min(extent.end, m_width); ++end) {
            sum += cells[end];
            m_row[std::size_t(end)] = std::uint8_t(std::min(std::fabs(sum), 1.0f) * 255 + 0.5f);
        }
        // Past the last touched cell the coverage stays, which is more than nothing only where the rectangle cuts the outline.
        const auto rest = std::uint8_t(std::min(std::fabs(sum), 1.0f) * 255 + 0.5f);
        if (rest > 0)
            for (; end < m_width; ++end) m_row[std::size_t(end)] = rest;
        std::fill(cells + extent.first, cells + extent.end, 0.0f);
        mask.appendRow({m_row.data(), std::size_t(end)});
    }
    return mask;
}

} // namespace proupsells::rasterbackend

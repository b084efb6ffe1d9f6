#include "Backends/Raster/StrokeOutline.hpp"

#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_MODULE_H
#include FT_STROKER_H
#include FT_SYSTEM_H

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <span>
#include <utility>
#include <vector>

#include "Platform/Commons/FatalError.hpp"

namespace proupsells::rasterbackend {

using geometry::Path;
using geometry::Point;

namespace {

// FreeType counts in whole numbers; a pixel has this many of them.
constexpr double unitsPerPixel = 1024;
constexpr double furthest = 1 << 28; // of them, from the origin
constexpr double flatness_px = 0.01;
constexpr double miterLimit = 10; // line widths

FT_Fixed toFixed(double value) { return FT_Fixed(std::lround(value * 65536)); }

} // namespace

struct StrokeOutliner::Stroker {
    FT_MemoryRec_ memory{.user = nullptr,
                         .alloc = [](FT_Memory, long size) { return std::malloc(std::size_t(size)); },
                         .free = [](FT_Memory, void* block) { std::free(block); },
                         .realloc = [](FT_Memory, long, long size, void* block) { return std::realloc(block, std::size_t(size)); }};
    FT_Library library = nullptr;
    FT_Stroker stroker = nullptr;
    double factor = 1; // from the path's lengths to FreeType's
    FT_Vector last{};
    bool hasBegun = false; // the part that is being added

    Stroker() {
        // Without modules, which read fonts: the stroker needs none of them.
        if (FT_New_Library(&memory, &library) != 0 || FT_Stroker_New(library, &stroker) != 0)
            commons::fatalError("FreeType's stroker cannot be set up");
    }
    ~Stroker() {
        FT_Stroker_Done(stroker);
        FT_Done_Library(library);
    }
    Stroker(const Stroker&) = delete;
    Stroker& operator=(const Stroker&) = delete;

    FT_Vector vector(Point p) const {
        const auto whole = [this](double length) {
            return std::isnan(length) ? FT_Pos(0) : FT_Pos(std::lround(std::clamp(length * factor, -furthest, furthest)));
        };
        return {whole(p.x), whole(p.y)};
    }
    Point point(const FT_Vector& v) const { return {double(v.x) / factor, double(v.y) / factor}; }

    void begin(Stroke stroke, double scale) {
        factor = unitsPerPixel * std::max(scale, 1e-6);
        const double radius = std::clamp(stroke.width / 2 * factor, 1.0, furthest);
        const bool isRound = stroke.join == LineJoin::round;
        FT_Stroker_Set(stroker, FT_Fixed(std::lround(radius)), isRound ? FT_STROKER_LINECAP_ROUND : FT_STROKER_LINECAP_BUTT,
                       isRound ? FT_STROKER_LINEJOIN_ROUND : FT_STROKER_LINEJOIN_MITER_FIXED, toFixed(miterLimit));
    }
    // Returns whether it goes anywhere: FreeType ends a part that does not by reading memory that is not its own.
    bool addPart(Point from, std::span<const Path::Verb> verbs, const Point* points, bool isClosed);
    void addLine(Point to, bool isClosed);
    void addCurve(Point from, const Point* points, bool isClosed);
    void appendTo(Path& result) const;
};

namespace {

// One part of a path: where it starts, and its verbs without the move and the close, with the first of their points.
struct Part {
    Point start;
    std::size_t firstVerb = 0, endVerb = 0, firstPoint = 0;
    bool isClosed = false;
};

std::vector<Part> partsOf(const Path& path) {
    std::vector<Part> parts;
    std::size_t point = 0;
    for (std::size_t verb = 0; verb < path.verbs().size(); ++verb) {
        switch (path.verbs()[verb]) {
        case Path::Verb::move:
            parts.push_back({path.points()[point], verb + 1, verb + 1, point + 1, false});
            ++point;
            continue;
        case Path::Verb::close:
            if (!parts.empty()) parts.back().isClosed = true;
            continue;
        default:
            if (parts.empty()) return parts;
            // Behind a close it goes on where the outline began.
            if (parts.back().isClosed) parts.push_back({parts.back().start, verb, verb, point, false});
            parts.back().endVerb = verb + 1;
        }
        point += path.verbs()[verb] == Path::Verb::cubic ? 3 : 1;
    }
    return parts;
}

} // namespace

bool StrokeOutliner::Stroker::addPart(Point from, std::span<const Path::Verb> verbs, const Point* points, bool isClosed) {
    last = vector(from);
    hasBegun = false;
    for (const Path::Verb verb : verbs) {
        if (verb == Path::Verb::line) {
            from = *points++;
            addLine(from, isClosed);
            continue;
        }
        addCurve(from, points, isClosed);
        from = points[2];
        points += 3;
    }
    if (hasBegun) FT_Stroker_EndSubPath(stroker);
    return hasBegun;
}

void StrokeOutliner::Stroker::addLine(Point to, bool isClosed) {
    FT_Vector at = vector(to);
    if (at.x == last.x && at.y == last.y) return;
    if (!std::exchange(hasBegun, true)) FT_Stroker_BeginSubPath(stroker, &last, !isClosed);
    FT_Stroker_LineTo(stroker, &at);
    last = at;
}

// As short lines: FreeType's own way is off by a quarter of a percent of the width.
void StrokeOutliner::Stroker::addCurve(Point from, const Point* points, bool isClosed) {
    const auto bend = [](Point a, Point b, Point c) { return std::hypot(a.x - 2 * b.x + c.x, a.y - 2 * b.y + c.y); };
    const double bend_px =
        std::max(bend(from, points[0], points[1]), bend(points[0], points[1], points[2])) * factor / unitsPerPixel;
    // Also of a bend that is no number.
    const double wanted = std::ceil(std::sqrt(0.75 * bend_px / flatness_px));
    const int count = wanted > 1 ? int(std::min(wanted, 256.0)) : 1;
    for (int step = 1; step <= count; ++step) {
        const double t = double(step) / count, rest = 1 - t;
        const double weights[] = {rest * rest * rest, 3 * rest * rest * t, 3 * rest * t * t, t * t * t};
        Point p{weights[0] * from.x, weights[0] * from.y};
        for (int index = 0; index < 3; ++index) {
            p.x += weights[index + 1] * points[index].x;
            p.y += weights[index + 1] * points[index].y;
        }
        addLine(p, isClosed);
    }
}

void StrokeOutliner::Stroker::appendTo(Path& result) const {
    FT_UInt pointCount = 0, contourCount = 0;
    if (FT_Stroker_GetCounts(stroker, &pointCount, &contourCount) != 0) return;
    FT_Outline outline;
    // It refuses more points than an outline can have.
    if (FT_Outline_New(library, pointCount, FT_Int(contourCount), &outline) != 0) return;
    outline.n_points = 0;
    outline.n_contours = 0;
    FT_Stroker_Export(stroker, &outline);

    using Target = std::pair<const Stroker&, Path&>;
    Target target{*this, result};
    FT_Outline_Funcs functions{};
    functions.move_to = [](const FT_Vector* to, void* user) {
        const auto& [from, path] = *static_cast<Target*>(user);
        return path.moveTo(from.point(*to)), 0;
    };
    functions.line_to = [](const FT_Vector* to, void* user) {
        const auto& [from, path] = *static_cast<Target*>(user);
        return path.lineTo(from.point(*to)), 0;
    };
    functions.cubic_to = [](const FT_Vector* control1, const FT_Vector* control2, const FT_Vector* to, void* user) {
        const auto& [from, path] = *static_cast<Target*>(user);
        return path.cubicTo(from.point(*control1), from.point(*control2), from.point(*to)), 0;
    };
    // The stroker makes none of these.
    functions.conic_to = [](const FT_Vector*, const FT_Vector*, void*) { return 1; };
    FT_Outline_Decompose(&outline, &functions, &target);
    FT_Outline_Done(library, &outline);
}

StrokeOutliner::StrokeOutliner() = default;
StrokeOutliner::~StrokeOutliner() = default;

Path StrokeOutliner::outline(const Path& path, Stroke stroke, double scale) {
    if (!m_stroker) m_stroker = std::make_unique<Stroker>();
    m_stroker->begin(stroke, scale);
    Path result;
    for (const Part& part : partsOf(path)) {
        const std::span verbs(path.verbs().data() + part.firstVerb, part.endVerb - part.firstVerb);
        FT_Stroker_Rewind(m_stroker->stroker);
        const Point* const points = path.points().data() + part.firstPoint;
        if (m_stroker->addPart(part.start, verbs, points, part.isClosed)) m_stroker->appendTo(result);
    }
    return result;
}

} // namespace proupsells::rasterbackend

// Outlines made of lines and cubic curves.
#pragma once

#include <cstdint>
#include <vector>

#include "Platform/Geometry/Transform.hpp"
#include "Platform/System/Compiler.hpp"

namespace proupsells::geometry {

// An arc of a circle, or a curve that bends little by little.
enum class CornerStyle : std::uint8_t { circular, continuous };

class PROUPSELLS_EXPORT Path {
public:
    // One step of the pen.
    enum class Verb : std::uint8_t { move, line, cubic, close };

    // Begins a new outline there.
    void moveTo(Point p);
    // Goes on from where the last step has led.
    void lineTo(Point p);
    void cubicTo(Point control1, Point control2, Point end);
    // Goes back to where the outline began.
    void close();
    // Empties the path and keeps the memory.
    void clear();
    // Maps every point.
    void transform(const Transform& transform);

    // Closed outlines that fill `rect`.
    static Path rectangle(const Rect& rect);
    static Path ellipse(const Rect& rect);
    // `radius` is cut to half the shorter side. Continuous corners ease into the straight sides instead of meeting
    // them at an arc's end.
    static Path roundedRectangle(const Rect& rect, double radius, CornerStyle style);

    // In the order in which they were added.
    const std::vector<Verb>& verbs() const { return m_verbs; }
    // One point for a move or a line, three for a cubic, none for a close.
    const std::vector<Point>& points() const { return m_points; }
    // True where nothing was drawn.
    bool isEmpty() const { return m_verbs.empty(); }
    // Of the control points; an empty rectangle for an empty path.
    Rect bounds() const;
    // A copy with every point mapped.
    Path transformed(const Transform& transform) const;

    bool operator==(const Path&) const = default;

private:
    std::vector<Verb> m_verbs;
    std::vector<Point> m_points;
};

} // namespace proupsells::geometry

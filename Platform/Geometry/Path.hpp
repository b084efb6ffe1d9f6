// Outlines made of lines and cubic curves.
#pragma once

#include <cstdint>
#include <vector>

#include "Platform/Geometry/Transform.hpp"

namespace proupsells::geometry {

enum class CornerStyle : std::uint8_t { circular, continuous };

class Path {
public:
    enum class Verb : std::uint8_t { move, line, cubic, close };

    void moveTo(Point p);
    void lineTo(Point p);
    void cubicTo(Point control1, Point control2, Point end);
    void close();
    // Keeps the memory.
    void clear();
    // Maps every point.
    void transform(const Transform& transform);

    static Path rectangle(const Rect& rect);
    static Path ellipse(const Rect& rect);
    // `radius` is cut to half the shorter side. Continuous corners ease into the straight sides instead of meeting
    // them at an arc's end.
    static Path roundedRectangle(const Rect& rect, double radius, CornerStyle style);

    const std::vector<Verb>& verbs() const { return m_verbs; }
    // One point for a move or a line, three for a cubic, none for a close.
    const std::vector<Point>& points() const { return m_points; }
    bool isEmpty() const { return m_verbs.empty(); }
    // Of the control points; an empty rectangle for an empty path.
    Rect bounds() const;
    Path transformed(const Transform& transform) const;

    bool operator==(const Path&) const = default;

private:
    std::vector<Verb> m_verbs;
    std::vector<Point> m_points;
};

} // namespace proupsells::geometry

#include "Platform/SwiftUI/Shapes/Shapes.hpp"

#include <algorithm>
#include <cmath>

namespace proupsells::swiftui {

using geometry::Path;
using geometry::Rect;

Shape Shape::fill() const {
    Shape result = *this;
    result.m_isStroked = false;
    result.m_color.reset();
    return result;
}

Shape Shape::fill(graphics::Color color) const {
    Shape result = fill();
    result.m_color = color;
    return result;
}

Shape Shape::stroke(double lineWidth) const {
    Shape result = *this;
    result.m_isStroked = true;
    result.m_lineWidth = std::isfinite(lineWidth) ? lineWidth : 0;
    result.m_color.reset();
    return result;
}

Shape Shape::stroke(graphics::Color color, double lineWidth) const {
    Shape result = stroke(lineWidth);
    result.m_color = color;
    return result;
}

Shape Shape::inset(double by) const {
    Shape result = *this;
    if (std::isfinite(by)) result.m_inset += by;
    return result;
}

Shape Shape::withAnimatableData(double value) const {
    Shape result = *this;
    result.m_custom.animatableData = value;
    return result;
}

double Shape::cornerRadiusIn(const Rect& rect) const {
    const Rect outline = outlineRect(rect);
    const double half = std::max(0.0, std::min(outline.width(), outline.height()) / 2);
    switch (m_kind) {
    case Kind::roundedRectangle: return std::clamp(m_cornerRadius, 0.0, half);
    case Kind::circle:
    case Kind::capsule: return half;
    default: return 0;
    }
}

Rect Shape::outlineRect(const Rect& rect) const {
    const double inset = std::min({m_inset, std::max(0.0, rect.width() / 2), std::max(0.0, rect.height() / 2)});
    const Rect inside = rect.insetBy(inset, inset);
    if (m_kind == Kind::circle) {
        const double side = std::min(inside.width(), inside.height());
        return {{inside.midX() - side / 2, inside.midY() - side / 2}, {side, side}};
    }
    return m_kind == Kind::custom && m_custom.path ? m_custom.path(inside, m_custom.animatableData).bounds() : inside;
}

Path Shape::path(const Rect& rect) const {
    const Rect outline = outlineRect(rect);
    switch (m_kind) {
    case Kind::rectangle: return Path::rectangle(outline);
    case Kind::circle:
    case Kind::ellipse: return Path::ellipse(outline);
    case Kind::custom: return m_custom.path ? m_custom.path(rect.insetBy(m_inset, m_inset), m_custom.animatableData) : Path{};
    default: return Path::roundedRectangle(outline, cornerRadiusIn(rect), m_style);
    }
}

std::string_view Shape::typeName() const {
    switch (m_kind) {
    case Kind::rectangle: return "Rectangle";
    case Kind::roundedRectangle: return "RoundedRectangle";
    case Kind::circle: return "Circle";
    case Kind::capsule: return "Capsule";
    case Kind::ellipse: return "Ellipse";
    default: return m_custom.name;
    }
}

} // namespace proupsells::swiftui

// Outlines that fill the room they are offered; filled with the foreground style unless told otherwise.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <variant>

#include "Platform/Geometry/Path.hpp"
#include "Platform/Graphics/Color.hpp"
#include "Platform/SwiftUI/Tree/TypeKey.hpp"
#include "Platform/SwiftUI/Tree/View.hpp"

namespace proupsells::swiftui {

// A custom shape: a path for a rectangle, with one number that may animate. The same type and number must give the same path.
struct CustomShape {
    geometry::Path (*path)(const geometry::Rect& rect, double animatableData) = nullptr;
    double animatableData = 0;
    std::string_view name = "Path"; // in the semantic tree

    bool operator==(const CustomShape&) const = default;
};

// Any shape, with how it is drawn. Also a view by itself.
class Shape {
public:
    enum class Kind : std::uint8_t { rectangle, roundedRectangle, circle, capsule, ellipse, custom };

    Shape(Kind kind, double cornerRadius = 0, geometry::CornerStyle style = geometry::CornerStyle::circular)
        : m_kind(kind), m_style(style), m_cornerRadius(cornerRadius) {}
    Shape(CustomShape custom) : m_kind(Kind::custom), m_custom(custom) {}

    // Absent colour: the foreground style in force.
    Shape fill() const;
    Shape fill(graphics::Color color) const;
    // Centred on the outline. Lines of no width paint nothing.
    Shape stroke(double lineWidth) const;
    Shape stroke(graphics::Color color, double lineWidth) const;
    // The outline moved inwards on all sides.
    Shape inset(double by) const;

    Kind kind() const { return m_kind; }
    geometry::CornerStyle style() const { return m_style; }
    bool isStroked() const { return m_isStroked; }
    double lineWidth() const { return m_lineWidth; }
    double insetAmount() const { return m_inset; }
    const std::optional<graphics::Color>& color() const { return m_color; }
    double animatableData() const { return m_custom.animatableData; }
    Shape withAnimatableData(double value) const;
    // The corners' radius in this rectangle: at most half of its shorter side.
    double cornerRadiusIn(const geometry::Rect& rect) const;
    // The outline's own rectangle: inset applied, circles made square.
    geometry::Rect outlineRect(const geometry::Rect& rect) const;
    geometry::Path path(const geometry::Rect& rect) const;
    std::string_view typeName() const;

    Element* makeElement() &&;
    bool operator==(const Shape&) const = default;

private:
    Kind m_kind;
    geometry::CornerStyle m_style = geometry::CornerStyle::circular;
    bool m_isStroked = false;
    double m_cornerRadius = 0;
    double m_lineWidth = 0;
    double m_inset = 0;
    std::optional<graphics::Color> m_color;
    CustomShape m_custom;
};

inline Shape Rectangle() { return Shape(Shape::Kind::rectangle); }
inline Shape RoundedRectangle(double cornerRadius, geometry::CornerStyle style = geometry::CornerStyle::circular) {
    return Shape(Shape::Kind::roundedRectangle, cornerRadius, style);
}
// As large as the shorter side, in the middle.
inline Shape Circle() { return Shape(Shape::Kind::circle); }
inline Shape Ellipse() { return Shape(Shape::Kind::ellipse); }
inline Shape Capsule(geometry::CornerStyle style = geometry::CornerStyle::circular) {
    return Shape(Shape::Kind::capsule, 0, style);
}

// A colour that fills what it is offered, as a view: `ColorView{Color::clear}`.
struct ColorView {
    graphics::Color color;
    double opacity = 1;

    Element* makeElement() &&;
    bool operator==(const ColorView&) const = default;
};

} // namespace proupsells::swiftui

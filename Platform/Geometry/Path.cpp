#include "Platform/Geometry/Path.hpp"

namespace proupsells::geometry {

namespace {

// Where a cubic's control points lie so that it follows a quarter of a circle, as a share of the radius.
constexpr double quarterArcControl = 0.5522847498307936;

// Half a corner, from the straight side to the corner's diagonal, in units of the radius: how far along the side and how
// deep across it each point lies, counted from the rectangle's corner.
struct HalfCorner {
    double start;    // on the side
    double control1; // on the side
    Point control2;  // along, across
    double diagonal; // along and across
};

// Halfway round, every corner touches the circle of its radius.
constexpr double diagonalPoint = 0.2928932188134525; // 1 - 1/√2
constexpr double continuousReach = 1.528;

// `reach` is where the corner begins, from 1 (no room: an eighth of a circle) to continuousReach.
HalfCorner halfCorner(double reach) {
    // An eighth of a circle: its control points lie 4/3·tan(π/16) along the tangents.
    constexpr double circularControl1 = 0.7347821607;
    constexpr Point circularControl2{0.4804349, 0.1053515};
    // The three points on the side make the curvature start from 0. The second one is placed so that the curvature, once it
    // has grown beyond the arc's, stays about even: at the diagonal it is 1.14/radius, nowhere more than 1.21/radius.
    constexpr double continuousControl1 = 1.0;
    constexpr Point continuousControl2{2 * diagonalPoint, 0};

    const double share = (reach - 1) / (continuousReach - 1);
    const auto between = [share](double circular, double continuous) { return circular + share * (continuous - circular); };
    return {reach,
            between(circularControl1, continuousControl1),
            {between(circularControl2.x, continuousControl2.x), between(circularControl2.y, continuousControl2.y)},
            diagonalPoint};
}

// Walks clockwise round a rectangle's corners, with lengths counted from the corner along the side that leads to it and
// along the side that leaves it.
struct Corner {
    Point corner;
    Point incoming; // unit vector from the corner back along the side that leads to it
    Point outgoing; // unit vector along the side that leaves it

    Point at(double back, double ahead) const {
        return {corner.x + incoming.x * back + outgoing.x * ahead, corner.y + incoming.y * back + outgoing.y * ahead};
    }
};

void addCircularCorner(Path& path, const Corner& corner, double radius) {
    const double control = radius * (1 - quarterArcControl);
    path.lineTo(corner.at(radius, 0));
    path.cubicTo(corner.at(control, 0), corner.at(0, control), corner.at(0, radius));
}

void addContinuousCorner(Path& path, const Corner& corner, double radius, const HalfCorner& in, const HalfCorner& out) {
    path.lineTo(corner.at(radius * in.start, 0));
    path.cubicTo(corner.at(radius * in.control1, 0), corner.at(radius * in.control2.x, radius * in.control2.y),
                 corner.at(radius * in.diagonal, radius * in.diagonal));
    path.cubicTo(corner.at(radius * out.control2.y, radius * out.control2.x), corner.at(0, radius * out.control1),
                 corner.at(0, radius * out.start));
}

} // namespace

void Path::moveTo(Point p) {
    m_verbs.push_back(Verb::move);
    m_points.push_back(p);
}

void Path::lineTo(Point p) {
    m_verbs.push_back(Verb::line);
    m_points.push_back(p);
}

void Path::cubicTo(Point control1, Point control2, Point end) {
    m_verbs.push_back(Verb::cubic);
    m_points.insert(m_points.end(), {control1, control2, end});
}

void Path::close() { m_verbs.push_back(Verb::close); }

void Path::clear() {
    m_verbs.clear();
    m_points.clear();
}

Path Path::rectangle(const Rect& rect) {
    Path path;
    path.moveTo(rect.origin);
    path.lineTo({rect.maxX(), rect.minY()});
    path.lineTo({rect.maxX(), rect.maxY()});
    path.lineTo({rect.minX(), rect.maxY()});
    path.close();
    return path;
}

Path Path::ellipse(const Rect& rect) {
    const Point center = rect.center();
    const double dx = rect.width() / 2 * quarterArcControl, dy = rect.height() / 2 * quarterArcControl;
    const Point top{center.x, rect.minY()}, right{rect.maxX(), center.y}, bottom{center.x, rect.maxY()},
        left{rect.minX(), center.y};
    Path path;
    path.moveTo(top);
    path.cubicTo({top.x + dx, top.y}, {right.x, right.y - dy}, right);
    path.cubicTo({right.x, right.y + dy}, {bottom.x + dx, bottom.y}, bottom);
    path.cubicTo({bottom.x - dx, bottom.y}, {left.x, left.y + dy}, left);
    path.cubicTo({left.x, left.y - dy}, {top.x - dx, top.y}, top);
    path.close();
    return path;
}

Path Path::roundedRectangle(const Rect& rect, double radius, CornerStyle style) {
    const double halfWidth = rect.width() / 2, halfHeight = rect.height() / 2;
    const double cutRadius = std::min({radius, halfWidth, halfHeight});
    if (!(cutRadius > 0)) return rectangle(rect);

    const Point leftward{-1, 0}, rightward{1, 0}, upward{0, -1}, downward{0, 1};
    const Corner corners[] = {
        {{rect.maxX(), rect.minY()}, leftward, downward},
        {{rect.maxX(), rect.maxY()}, upward, leftward},
        {{rect.minX(), rect.maxY()}, rightward, upward},
        {{rect.minX(), rect.minY()}, downward, rightward},
    };
    // Where a side is too short for its two corners to ease in, they do so as far as the side allows.
    const HalfCorner alongWidth = halfCorner(std::min(continuousReach, halfWidth / cutRadius));
    const HalfCorner alongHeight = halfCorner(std::min(continuousReach, halfHeight / cutRadius));

    Path path;
    path.moveTo({rect.minX() + cutRadius * (style == CornerStyle::continuous ? alongWidth.start : 1), rect.minY()});
    bool comesAlongWidth = true;
    for (const Corner& corner : corners) {
        if (style == CornerStyle::circular) {
            addCircularCorner(path, corner, cutRadius);
        } else {
            addContinuousCorner(path, corner, cutRadius, comesAlongWidth ? alongWidth : alongHeight,
                                comesAlongWidth ? alongHeight : alongWidth);
        }
        comesAlongWidth = !comesAlongWidth;
    }
    path.close();
    return path;
}

Rect Path::bounds() const {
    if (m_points.empty()) return {};
    Point lowest = m_points.front(), highest = m_points.front();
    for (const Point point : m_points) {
        lowest = {std::min(lowest.x, point.x), std::min(lowest.y, point.y)};
        highest = {std::max(highest.x, point.x), std::max(highest.y, point.y)};
    }
    return {lowest, {highest.x - lowest.x, highest.y - lowest.y}};
}

Path Path::transformed(const Transform& transform) const {
    Path result = *this;
    result.transform(transform);
    return result;
}

void Path::transform(const Transform& transform) {
    for (Point& point : m_points) point = transform.apply(point);
}

} // namespace proupsells::geometry

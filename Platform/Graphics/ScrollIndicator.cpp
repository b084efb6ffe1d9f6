#include "Platform/Graphics/ScrollIndicator.hpp"

#include <algorithm>

namespace proupsells::graphics {
namespace {

constexpr double hold_s = 0.4;
constexpr double fade_s = 0.3;
constexpr double thickness = 3;
constexpr double margin = 3;
constexpr double shortestBar = 36;
constexpr double shortestPulledBar = 8;

geometry::Rect uncovered(const geometry::Rect& viewport, const geometry::PhysicalInsets& covered) {
    return {{viewport.minX() + covered.left, viewport.minY() + covered.top},
            {viewport.width() - covered.left - covered.right, viewport.height() - covered.top - covered.bottom}};
}

} // namespace

double ScrollIndicator::opacityAt(double now_s) const { return std::clamp((end_s() - now_s) / fade_s, 0.0, 1.0); }

double ScrollIndicator::end_s() const { return m_shownUntil_s + hold_s + fade_s; }

geometry::Rect ScrollIndicator::bar(const Track& track) {
    const bool isHorizontal = track.axis == geometry::Axis::horizontal;
    const geometry::Rect seen = uncovered(track.viewport, track.covered), room = seen.insetBy(margin, margin);
    const double seenLength = isHorizontal ? seen.width() : seen.height();
    const double roomLength = isHorizontal ? room.width() : room.height();
    const double travel = track.contentLength - seenLength;
    if (!(travel > 0) || !(roomLength > 0)) return {};

    const double travelled = track.offset + (isHorizontal ? track.covered.left : track.covered.top);
    const double pulled = std::max({0.0, -travelled, travelled - travel});
    const double natural = std::max(shortestBar, roomLength * seenLength / track.contentLength);
    const double length = std::min(roomLength, std::max(shortestPulledBar, natural - pulled));
    const double start = (roomLength - length) * std::clamp(travelled / travel, 0.0, 1.0);
    if (isHorizontal) return {{room.minX() + start, room.maxY() - thickness}, {length, thickness}};
    return {{track.isRightToLeft ? room.minX() : room.maxX() - thickness, room.minY() + start}, {thickness, length}};
}

void ScrollIndicator::paint(PaintContext& context, const PaintState& state, const Track& track, double now_s) const {
    const double opacity = opacityAt(now_s);
    const geometry::Rect rect = bar(track);
    if (opacity <= 0 || rect.isEmpty()) return;
    const bool isDark = state.scheme == ColorScheme::dark;
    const RGBA color = isDark ? rgb(0xFFFFFF, 128) : rgb(0x000000, 90);
    const double radius = std::min(rect.width(), rect.height()) / 2;
    context.fillRoundedRectangle(state.fadedBy(opacity), rect, radius, geometry::CornerStyle::circular, color);
}

} // namespace proupsells::graphics

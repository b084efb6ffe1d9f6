#include "Platform/Graphics/ScrollIndicator.hpp"

#include <algorithm>

namespace proupsells::graphics {
namespace {

constexpr double hold_s = 0.4;
constexpr double fade_s = 0.3;
constexpr double shortestBar = 36;
constexpr double shortestPulledBar = 8;

} // namespace

double ScrollIndicator::opacityAt(double now_s) const { return std::clamp((end_s() - now_s) / fade_s, 0.0, 1.0); }

double ScrollIndicator::end_s() const { return m_shownUntil_s + hold_s + fade_s; }

geometry::Rect ScrollIndicator::bar(const Track& track) {
    const bool isHorizontal = track.axis == geometry::Axis::horizontal;
    const double trackLength = isHorizontal ? track.rect.width() : track.rect.height();
    const double travel = track.contentLength - track.viewportLength;
    if (!(travel > 0) || !(trackLength > 0)) return {};

    const double pulled = std::max({0.0, -track.offset, track.offset - travel});
    const double natural = std::max(shortestBar, trackLength * track.viewportLength / track.contentLength);
    const double length = std::min(trackLength, std::max(shortestPulledBar, natural - pulled));
    const double start = (trackLength - length) * std::clamp(track.offset / travel, 0.0, 1.0);
    if (isHorizontal) return {{track.rect.minX() + start, track.rect.minY()}, {length, track.rect.height()}};
    return {{track.rect.minX(), track.rect.minY() + start}, {track.rect.width(), length}};
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

#include <cmath>

#include "Platform/Graphics/PaintContext.hpp"

namespace proupsells::graphics {

using geometry::Rect;

PaintState PaintState::clippedTo(const Rect& rect, double radius) const {
    PaintState state = *this;
    const Rect window = toWindow(rect);
    state.clip = clip.intersection(window);
    if (radius > 0) {
        // One rounded clip is in force at a time; the innermost is the one whose corners show.
        const double scale = std::sqrt(std::abs(transform.a * transform.d - transform.b * transform.c));
        state.roundedClip = window;
        state.clipRadius = std::min({radius * scale, window.width() / 2, window.height() / 2});
    }
    return state;
}

PaintState PaintState::fadedBy(double factor) const {
    PaintState state = *this;
    state.opacity = std::clamp(opacity * factor, 0.0, 1.0);
    return state;
}

PaintState PaintState::transformedBy(const geometry::Transform& local) const {
    if (local.isTranslation()) return movedBy({local.tx, local.ty});
    PaintState state = *this;
    state.transform = local.about(origin).then(transform);
    return state;
}

} // namespace proupsells::graphics

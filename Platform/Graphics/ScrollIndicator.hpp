// The thin bar that shows, while content moves, where in it one is.
#pragma once

#include "Platform/Geometry/Axis.hpp"
#include "Platform/Graphics/PaintContext.hpp"

namespace proupsells::graphics {

class ScrollIndicator {
public:
    // What there is to show.
    struct Track {
        geometry::Axis axis = geometry::Axis::vertical;
        geometry::Rect rect; // along the viewport's edge, in its coordinates
        double viewportLength = 0;
        double contentLength = 0;
        double offset = 0; // 0 at the content's start
    };

    // The content moves until then.
    void show(double until_s) { m_shownUntil_s = until_s; }
    // 1 while shown, fading afterwards.
    double opacityAt(double now_s) const;
    // When it has faded.
    double end_s() const;
    void paint(PaintContext& context, const PaintState& state, const Track& track, double now_s) const;
    // Where the bar stands; empty where the content fits. It shrinks against the end that the content is pulled away from.
    static geometry::Rect bar(const Track& track);

private:
    double m_shownUntil_s = -1e300;
};

} // namespace proupsells::graphics

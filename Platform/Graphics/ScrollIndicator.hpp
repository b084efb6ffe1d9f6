// The thin bar that shows where one is in the content, while the content moves.
#pragma once

#include "Platform/Geometry/Axis.hpp"
#include "Platform/Graphics/PaintContext.hpp"

namespace proupsells::graphics {

class ScrollIndicator {
public:
    // What there is to show.
    struct Track {
        geometry::Axis axis = geometry::Axis::vertical;
        geometry::Rect viewport;
        geometry::PhysicalInsets covered; // of the viewport; nothing is shown there
        bool isRightToLeft = false;       // a vertical bar stands at the trailing edge
        double contentLength = 0;
        double offset = 0; // of the viewport's left or top edge in the content
    };

    // The content moves until then.
    void show(double until_s) { m_shownUntil_s = until_s; }
    // 1 while shown, fading afterwards.
    double opacityAt(double now_s) const;
    // When it has faded.
    double end_s() const;
    void paint(PaintContext& context, const PaintState& state, const Track& track, double now_s) const;
    // Where the bar stands in the viewport's coordinates; empty where the content fits. It shrinks where the content is pulled past
    // an end.
    static geometry::Rect bar(const Track& track);

private:
    double m_shownUntil_s = -1e300;
};

} // namespace proupsells::graphics

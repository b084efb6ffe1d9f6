// The thin bar that shows, while content moves, where in it one is.
#pragma once

#include "Platform/Graphics/PaintContext.hpp"
#include "Platform/UIKit/Views/UIKitTypes.hpp"

namespace uikit {

class ScrollIndicator {
public:
    // What there is to show, along one axis.
    struct Track {
        Axis axis = Axis::vertical;
        geometry::Rect rect; // along the edge that the bar moves on
        double viewportLength = 0;
        double contentLength = 0;
        double offset = 0; // 0 at the content's start
    };

    // The content moves until then.
    void show(double until_s) { m_shownUntil_s = until_s; }
    // When the bar has faded.
    double end_s() const;
    void paint(graphics::PaintContext& context, const graphics::PaintState& state, const Track& track, double now_s) const;
    // Empty where the content fits. Shrinks against the end that the content is pulled away from.
    static geometry::Rect bar(const Track& track);

private:
    double m_shownUntil_s = -1e300;
};

} // namespace uikit

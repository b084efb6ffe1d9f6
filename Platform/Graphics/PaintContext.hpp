// Writes display lists: keeps the clip, the opacity and the transform that are in force.
#pragma once

#include <utility>

#include "Platform/Graphics/DisplayList.hpp"
#include "Platform/Graphics/TextLayout.hpp"
#include "Platform/System/Compiler.hpp"

namespace proupsells::graphics {

// What is in force at a place of a tree. Cheap to copy; a parent hands a changed copy to its children.
struct PROUPSELLS_EXPORT PaintState {
    geometry::Point origin;                        // of the current coordinates, in window points before `transform`
    geometry::Rect clip{{-1e9, -1e9}, {2e9, 2e9}}; // in window points
    geometry::Rect roundedClip;
    double clipRadius = 0;
    double opacity = 1;
    geometry::Transform transform; // about the window's origin
    ColorScheme scheme = ColorScheme::light;
    bool readsOnlyWhatIsSeen = false; // where the state is for a semantic tree

    // The same for what stands `delta` further.
    PaintState movedBy(geometry::Point delta) const;
    // The same with nothing painted outside `rect`, in current coordinates, whose corners are rounded by `radius`.
    PaintState clippedTo(const geometry::Rect& rect, double radius = 0) const;
    // The same with the opacity multiplied.
    PaintState fadedBy(double opacity) const;
    // The same with everything transformed, in current coordinates.
    PaintState transformedBy(const geometry::Transform& transform) const;
    // A rectangle in current coordinates as it stands in the window, transform applied, clip not.
    geometry::Rect toWindow(const geometry::Rect& rect) const;
    // What can be seen of the current coordinates; absent under a transform that does more than move.
    std::optional<geometry::Rect> visibleRect() const;
    // True where nothing of the rectangle can be seen.
    bool hides(const geometry::Rect& rect) const;
};

// Asked of every view at every painting.
inline PaintState PaintState::movedBy(geometry::Point delta) const {
    PaintState state = *this;
    state.origin = origin + delta;
    return state;
}

inline geometry::Rect PaintState::toWindow(const geometry::Rect& rect) const {
    const geometry::Rect placed = rect.offsetBy(origin);
    return transform.isTranslation() ? placed.offsetBy({transform.tx, transform.ty}) : transform.apply(placed);
}

inline std::optional<geometry::Rect> PaintState::visibleRect() const {
    if (!transform.isTranslation()) return std::nullopt;
    return clip.offsetBy({-origin.x - transform.tx, -origin.y - transform.ty});
}

inline bool PaintState::hides(const geometry::Rect& rect) const { return !(opacity > 0) || !toWindow(rect).intersects(clip); }

// Everything is in current coordinates of the state that is given with it. Commands that nothing of can be seen are left out.
class PROUPSELLS_EXPORT PaintContext {
public:
    // Writes to the end of `list`, which must live longer.
    explicit PaintContext(DisplayList& list) : m_list(list) {}

    // One command each, in front of those before. Strokes are centred on the edge; `tint` colours a tinted image.
    void fillRectangle(const PaintState&, const geometry::Rect&, RGBA);
    void fillRoundedRectangle(const PaintState&, const geometry::Rect&, double radius, geometry::CornerStyle, RGBA);
    void strokeRoundedRectangle(const PaintState&, const geometry::Rect&, double radius, geometry::CornerStyle, double lineWidth,
                                RGBA);
    void fillEllipse(const PaintState&, const geometry::Rect&, RGBA);
    void strokeEllipse(const PaintState&, const geometry::Rect&, double lineWidth, RGBA);
    void fillPath(const PaintState&, const geometry::Path&, RGBA);
    void strokePath(const PaintState&, const geometry::Path&, double lineWidth, RGBA);
    void image(const PaintState&, const geometry::Rect&, const ImageRef&, RGBA tint = {});
    void bitmap(const PaintState&, const geometry::Rect&, const std::shared_ptr<const Bitmap>&);
    // A fragment of a line; `baseline` is its left end.
    void text(const PaintState&, geometry::Point baseline, const geometry::Rect& lineBox, const std::shared_ptr<const ShapedText>&,
              std::uint32_t firstCluster, std::uint32_t endCluster, RGBA);
    // The shadow of a filled rectangle.
    void shadow(const PaintState&, const geometry::Rect&, double blurRadius, geometry::Point offset, RGBA);

    // What `paint` paints is not seen yet but may be soon: only its images count, for the list's `ahead`.
    template <class Paint>
    void lookAhead(Paint&& paint) {
        const bool before = std::exchange(m_looksAhead, true);
        paint();
        m_looksAhead = before;
    }

private:
    // Null where nothing of `touched` can be seen.
    Command* add(const PaintState& state, CommandKind kind, const geometry::Rect& frame, const geometry::Rect& touched);
    geometry::Point windowOffset(const PaintState& state) const;

    DisplayList& m_list;
    bool m_looksAhead = false;
};

} // namespace proupsells::graphics

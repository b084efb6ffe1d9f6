// Painting text that was laid out.
#pragma once

#include <memory>
#include <span>

#include "Platform/Graphics/AttributedString.hpp"
#include "Platform/Graphics/PaintContext.hpp"

namespace proupsells::graphics {

// How a run of a text is painted.
struct TextRunPaint {
    RGBA color;
    bool isStruckThrough = false;

    bool operator==(const TextRunPaint&) const = default;
};

// How far a line of `lineWidth` is moved to the right in a box of `boxWidth`.
double lineOffset(double boxWidth, double lineWidth, TextAlignment alignment, geometry::LayoutDirection direction);

// Paints the lines from the top of `box` down, each aligned in its width. `paints` has one entry for each run of `text`; runs past
// its end look like its last one. `ellipsis` is "…" as it was measured for the layout; it may be null for a text that was not cut.
void paintTextLayout(PaintContext& context, const PaintState& state, const TextLayout& layout,
                     const std::shared_ptr<const ShapedText>& text, const std::shared_ptr<const ShapedText>& ellipsis,
                     const geometry::Rect& box, TextAlignment alignment, std::span<const TextRunPaint> paints);

} // namespace proupsells::graphics
